#include "printerstatus.h"

#include <random>

namespace {

constexpr std::size_t proofLength = 6; // two bytes of head, four of id
constexpr std::size_t keptProofs = 100;

bool isStatusAnswer(unsigned char byte)
{
    return (byte & 0x93) == 0x12;
}

bool isReport(unsigned char byte)
{
    return (byte & 0x93) == 0x10;
}

} // namespace

bool PrinterStatus::isReady() const
{
    for (const TroubleKind &kind : troubleKinds) {
        if (kind.stops && has(kind))
            return false;
    }
    return true;
}

std::string_view PrinterStatus::sentence() const
{
    for (const TroubleKind &kind : troubleKinds) {
        if (has(kind))
            return kind.sentence;
    }
    return {};
}

std::string statusQuestion(int question)
{
    return {'\x10', '\x04', char(question)};
}

std::string proofQuestion(std::string_view id)
{
    return std::string("\x1D\x28\x48\x06\x00\x30\x30", 7) + std::string(id);
}

std::string freshProofId()
{
    std::random_device random;
    std::uniform_int_distribution<int> printable('!', '~');
    std::string id;
    for (int count = 0; count < 4; ++count)
        id += char(printable(random));
    return id;
}

void AnswerReader::take(std::string_view bytes)
{
    for (const char byte : bytes)
        take(static_cast<unsigned char>(byte));
}

void AnswerReader::take(unsigned char byte)
{
    if (toSkip > 0) {
        --toSkip;
    } else if (!proof.empty()) {
        proof += char(byte);
        takeProof();
    } else if (byte == 0x37) {
        proof = char(byte);
    } else if (isStatusAnswer(byte)) {
        status = byte;
    } else if (isReport(byte)) {
        toSkip = 3;
    }
}

/// A beginning that was none is garbage, and what follows may be the true one.
void AnswerReader::takeProof()
{
    const char last = proof.back();
    const bool isNone = proof.size() == 2 && last != '\x22';
    if (proof.size() == proofLength + 1 && last == '\0' && proofs.size() < keptProofs)
        proofs += ' ' + proof.substr(2, 4);
    if (isNone || proof.size() > proofLength)
        proof.clear();
    if (isNone)
        take(static_cast<unsigned char>(last));
}

int AnswerReader::takeStatus()
{
    const int answer = status;
    status = -1;
    return answer;
}

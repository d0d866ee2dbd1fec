#pragma once

#include <array>
#include <string>
#include <string_view>

/// What a receipt printer says of itself when it is asked.

/// What may be wrong with it. The print server knows each by a keyword.
struct TroubleKind
{
    int question; ///< n of the question 10 04 n
    int mask;     ///< bits of the answer, any of which tells it
    std::string_view reason;
    std::string_view sentence; ///< what is the matter, and what to do
    bool stops;                ///< nothing is printed as long as it lasts
};

/// From what a person can see at once to what only the printer knows. "Offline" is the last: it is so because
/// of another one, where another one is told.
inline constexpr TroubleKind troubleKinds[] = {
    {2, 0x04, "cover-open-error", "The cover is open; close it.", true},
    {4, 0x60, "media-empty-error", "The paper is out; put in a new roll.", true},
    {2, 0x20, "media-needed-error", "The printer stopped because the paper ended; put in a new roll.", true},
    {3, 0x08, "media-jam-error", "The cutter is stuck; free it, and switch the printer off and on.", true},
    {3, 0x20, "other-error",
     "The printer reports an error that it cannot recover from; switch it off and on.", true},
    {3, 0x40, "other-warning", "The printer pauses, its head is hot; it goes on by itself.", true},
    {1, 0x08, "offline-report", "The printer is offline; look at its cover, its paper and its buttons.",
     true},
    {4, 0x0C, "media-low-warning", "The paper is nearly out.", false},
};

/// The answers to the four questions.
class PrinterStatus
{
public:
    static constexpr int questions = 4;

    /// `question` counts from 1.
    void take(int question, unsigned char answer) { answers[std::size_t(question - 1)] = answer; }
    bool has(const TroubleKind &kind) const
    {
        return (answers[std::size_t(kind.question - 1)] & kind.mask) != 0;
    }
    bool isReady() const;
    /// The sentence of the first trouble that stops it, else of the first; "" when all is well.
    std::string_view sentence() const;

private:
    std::array<unsigned char, questions> answers{};
};

/// The question, three bytes, answered at once whatever the printer does.
std::string statusQuestion(int question);
/// The question whose answer is sent when all that stands before it is on paper. `id` is four printable
/// characters.
std::string proofQuestion(std::string_view id);
/// An `id` that no other job has, as far as chance goes.
std::string freshProofId();

/// Sorts the bytes that a printer sends. Any bytes are taken.
class AnswerReader
{
public:
    void take(std::string_view bytes);
    bool hasStatus() const { return status >= 0; }
    /// The answer to a question of status, once; -1 when there is none.
    int takeStatus();
    bool hasProof(std::string_view id) const
    {
        return proofs.find(std::string(1, ' ').append(id)) != std::string::npos;
    }

private:
    void take(unsigned char byte);
    void takeProof();

    int status = -1;
    std::string proof;  ///< being received
    std::string proofs; ///< received, a blank before each
    int toSkip = 0;     ///< bytes of a report that nobody asked for
};

#include "prooffinder.h"

namespace {

constexpr qsizetype questionLength = 6;

} // namespace

void ProofFinder::command(const PrinterCommand &command)
{
    isQuestion = command.bytes.startsWith("\x1D\x28\x48");
    words.clear();
}

void ProofFinder::data(qint64, QByteArrayView bytes)
{
    if (isQuestion && words.size() < questionLength)
        words += bytes;
}

void ProofFinder::endOfCommand()
{
    if (isQuestion && words.size() == questionLength && words.startsWith("\x30\x30"))
        id = words.sliced(2);
}

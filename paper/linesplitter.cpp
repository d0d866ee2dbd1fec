#include "linesplitter.h"

#include <utility>

namespace paper {

LineSplitter::LineSplitter(std::function<void(const StreamLine &)> take) : takeLine(std::move(take)) {}

void LineSplitter::add(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const qsizetype length = bytes.indexOf('\n');
        if (length < 0)
            return keep(bytes);
        const bool isHere = kept.isEmpty() && length <= maxLength; // the whole of it, so it needs no copy
        if (isHere) {
            deliver({.bytes = bytes.first(length)});
        } else {
            keep(bytes.first(length));
            deliverKept(true);
        }
        bytes = bytes.sliced(length + 1);
    }
}

void LineSplitter::finish()
{
    if (!kept.isEmpty())
        deliverKept(false);
}

void LineSplitter::keep(QByteArrayView bytes)
{
    const qsizetype room = maxLength - kept.size();
    isTooLong = isTooLong || bytes.size() > room;
    kept.append(bytes.first(qMin(room, bytes.size())));
}

void LineSplitter::deliverKept(bool isEnded)
{
    deliver({.bytes = kept, .isEnded = isEnded, .isTooLong = isTooLong});
    kept.resize(0); // and keeps its memory for the next one
    isTooLong = false;
}

void LineSplitter::deliver(StreamLine line)
{
    line.number = ++count;
    takeLine(line);
}

} // namespace paper

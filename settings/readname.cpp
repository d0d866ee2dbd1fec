#include "readname.h"

namespace {

constexpr QByteArrayView blanks(" \t\v\f\r");

qsizetype lastWordOf(QByteArrayView text)
{
    qsizetype begin = text.size();
    while (begin > 0 && text[begin - 1] != '\n' && !blanks.contains(text[begin - 1]))
        --begin;
    return begin;
}

} // namespace

ReadName readName(QByteArrayView bytes)
{
    const QByteArrayView text = bytes.trimmed();
    const qsizetype begin = lastWordOf(text);
    const QByteArrayView front = text.first(begin);
    const QByteArrayView line = front.sliced(front.lastIndexOf('\n') + 1).trimmed();
    const QByteArrayView word = text.sliced(begin);
    const bool isRemark = [](QByteArrayView of) {
        return of.startsWith('#') || of.startsWith("//");
    }(line.isEmpty() ? word : line);
    return {word.toByteArray(), front.trimmed().toByteArray(), isRemark};
}

#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <functional>

namespace paper {

/// One line of a stream, as its bytes.
struct StreamLine
{
    qint64 number = 0;      ///< from 1
    QByteArrayView bytes;   ///< without the line feed; good until the call that delivers it returns
    bool isEnded = true;    ///< false when the stream ends before the line feed
    bool isTooLong = false; ///< `bytes` are its beginning, the rest was dropped
};

/// Cuts a stream that comes in pieces into its lines, one at a time. Nothing but a line feed ends a line.
class LineSplitter
{
public:
    /// In bytes. What a line has beyond is dropped, so that a stream without line feeds takes no memory.
    static constexpr qsizetype maxLength = 1'000'000;

    /// `take` gets each line.
    explicit LineSplitter(std::function<void(const StreamLine &)> take);

    void add(QByteArrayView bytes);
    /// The stream has ended: delivers what stands behind the last line feed, if anything.
    void finish();

private:
    void keep(QByteArrayView bytes);
    void deliverKept(bool isEnded);
    void deliver(StreamLine line);

    std::function<void(const StreamLine &)> takeLine;
    QByteArray kept; ///< the beginning of a line whose end has not come yet
    bool isTooLong = false;
    qint64 count = 0;
};

} // namespace paper

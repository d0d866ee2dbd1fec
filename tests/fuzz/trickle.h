#pragma once

#include <QIODevice>

#include <algorithm>

/// A device that hands out its bytes in drops, so that every kind of token meets the end of the reader's
/// buffer. A drop is larger than any character: one that held no whole character would be the end of the job
/// to the toolkit. Files and pipes are read in full kilobytes.
class Trickle : public QIODevice
{
public:
    explicit Trickle(const QByteArray &content) : bytes(content) { open(ReadOnly | Unbuffered); }

    bool isSequential() const override { return true; }
    bool atEnd() const override { return position == bytes.size(); }

protected:
    qint64 readData(char *data, qint64) override
    {
        constexpr qsizetype dropSize = 13;
        const QByteArray drop = bytes.mid(position, dropSize);
        std::copy(drop.begin(), drop.end(), data);
        position += drop.size();
        return drop.isEmpty() ? -1 : drop.size();
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    const QByteArray bytes;
    qsizetype position = 0;
};

#include "spool.h"

namespace {

constexpr qint64 pieceSize = 65'536;

} // namespace

void Spool::start()
{
    file = std::make_unique<QTemporaryFile>();
    failed = !file->open() || failed;
}

void Spool::add(const QByteArray &bytes)
{
    if (file && file->write(bytes) != bytes.size())
        failed = true;
}

void Spool::replay(const std::function<void(const QByteArray &)> &take)
{
    failed = failed || !file->flush() || !file->seek(0);
    while (!failed && !file->atEnd()) {
        const QByteArray piece = file->read(pieceSize);
        failed = piece.isEmpty();
        take(piece);
    }
}

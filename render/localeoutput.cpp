#include "localeoutput.h"

#include <fcntl.h>

namespace {

/// Opened by the C library, because a file name is bytes and the toolkit takes it for UTF-8.
int openForWriting(const QByteArray &name, bool append)
{
    constexpr mode_t everybodyAsTheMaskAllows = 0666;
    const int flags = O_WRONLY | O_CREAT | O_CLOEXEC | (append ? O_APPEND : O_TRUNC);
    return open(name.constData(), flags, everybodyAsTheMaskAllows);
}

} // namespace

LocaleOutput::LocaleOutput(const QByteArray &fileName, bool append)
{
    const int descriptor = openForWriting(fileName, append);
    if (descriptor >= 0)
        file.open(descriptor, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle);
}

LocaleOutput &LocaleOutput::operator<<(const QString &text)
{
    return *this << encoding.encode(text);
}

LocaleOutput &LocaleOutput::operator<<(const QByteArray &bytes)
{
    if (error.isNull() && !write(bytes))
        fail();
    return *this;
}

bool LocaleOutput::write(const QByteArray &bytes)
{
    // A disk that fills up takes a part, and gives no reason. It gives one when it is asked to take the rest.
    const qint64 written = file.write(bytes);
    if (written == bytes.size())
        return true;
    const QByteArray rest = bytes.mid(qMax<qint64>(0, written));
    return file.write(rest) == rest.size();
}

bool LocaleOutput::close()
{
    if (error.isNull() && !file.flush() && !file.flush()) // twice, for the same reason
        fail();
    file.close();
    if (error.isNull() && file.error() != QFileDevice::NoError)
        fail();
    return error.isNull();
}

void LocaleOutput::fail()
{
    error = file.errorString();
}

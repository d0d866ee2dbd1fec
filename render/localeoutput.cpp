#include "localeoutput.h"

#include <fcntl.h>

namespace {

/// Opened by the C library, because the toolkit encodes file names as UTF-8 whatever the locale says.
int openForWriting(const QByteArray &name, bool append)
{
    constexpr mode_t everybodyAsTheMaskAllows = 0666;
    const int flags = O_WRONLY | O_CREAT | O_CLOEXEC | (append ? O_APPEND : O_TRUNC);
    return open(name.constData(), flags, everybodyAsTheMaskAllows);
}

} // namespace

LocaleOutput::LocaleOutput(const QString &fileName, bool append)
{
    const int descriptor = openForWriting(encoding.encode(fileName), append);
    if (descriptor >= 0)
        file.open(descriptor, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle);
}

LocaleOutput &LocaleOutput::operator<<(const QString &text)
{
    if (!error.isNull())
        return *this;
    const QByteArray bytes = encoding.encode(text);
    if (file.write(bytes) != bytes.size())
        fail();
    return *this;
}

bool LocaleOutput::close()
{
    if (error.isNull() && !file.flush())
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

#include "filename.h"

#include "localeencoding.h"

FileName::FileName(const QString &text) : name(text.toStdString()) {}

FileName::FileName(const QByteArray &bytes) : name(bytes.toStdString()) {}

FileName::FileName(const std::filesystem::path &path) : name(path) {}

QString FileName::shown() const
{
    return LocaleEncoding().decode(bytes());
}

bool FileName::exists() const
{
    std::error_code unknown;
    return std::filesystem::exists(name, unknown);
}

bool FileName::isRegularFile() const
{
    std::error_code unknown;
    return std::filesystem::is_regular_file(name, unknown);
}

FileName FileName::with(const QString &suffix) const
{
    return FileName(bytes() + suffix.toUtf8());
}

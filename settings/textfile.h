#pragma once

#include "filename.h"

#include <QFile>

#include <memory>
#include <ostream>

/// A file that a command writes from its beginning to its end. It takes the place of an older one when it is
/// complete, and not before. What is there and is no regular file, such as a device, is written to as it is.
class TextFile
{
public:
    /// Throws a CommandError (WriteFailed), or (Unreadable) for a link that leads nowhere.
    explicit TextFile(const FileName &given);
    TextFile(const TextFile &) = delete;
    TextFile &operator=(const TextFile &) = delete;
    /// Without a commit an older file stays as it was.
    ~TextFile();

    std::ostream &stream() { return *out; }
    /// Puts the file in place. Called once, last. Throws a CommandError (WriteFailed).
    void commit();

private:
    int openBeside();
    [[noreturn]] void fail(const QString &reason) const;

    const FileName name;  ///< as given, for messages
    const FileName path;  ///< behind links
    QByteArray temporary; ///< the name of what will be renamed to `path`; "" when there is nothing to rename
    QFile file;
    std::unique_ptr<std::streambuf> buffer;
    std::unique_ptr<std::ostream> out;
};

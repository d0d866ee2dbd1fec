#pragma once

#include "deadlines.h"
#include "filereplacement.h"
#include "libconfig.h"
#include "losses.h"

#include <QString>

/// The two forms of a configuration file, by the words that `libconfig::Config` knows them by.
namespace form {
inline constexpr QLatin1StringView text("cfg");
inline constexpr QLatin1StringView xml("xml");

/// Told by the first character: XML begins with "<".
bool isXml(const QByteArray &content);
} // namespace form

/// A configuration file in the hands of a person: read, looked at, changed, and never lost.
///
/// To change one, make the `FileReplacement` first, then this object, and save through it: then nobody else's
/// change can come between.
class ConfigFile
{
public:
    /// Reads `path`, whose form is told by its first character: XML begins with "<". A file that is not there
    /// reads as empty text form. Throws a CommandError (Unreadable) with the place of the trouble.
    explicit ConfigFile(const FileName &path);

    const FileName path;
    bool exists() const { return isThere; }
    /// One of `form`.
    QString type() const { return form; }
    libconfig::Config &config() { return tree; }
    const libconfig::Config &config() const { return tree; }

    /// The bytes that were read, or saved last.
    const QByteArray &content() const { return bytes; }
    /// Whether both were read from the same bytes, or from no file.
    bool isSameAs(const ConfigFile &other) const;

    std::vector<Loss> losses() const;
    /// All losses with their places as one error (WouldLose) that names --force as the way on.
    CommandError lossesAsError() const;

    /// The lines of the file that look as if they set `key` and do not; see `deadLines`. After `save` they
    /// are those of the new file. The XML form has none.
    std::vector<DeadLine> deadLines(const QString &key) const;

    /// The first setting, as a dotted path, that would read differently from a file of form `as`; "" when all
    /// of the tree survives.
    QString changedIn(const QString &as);
    /// The tree as the bytes of a file of form `as`. Throws a CommandError (Refused) when that form cannot
    /// hold the tree, naming the first setting that would change; with `evenIfItChanges` it does not look.
    QByteArray written(const QString &as, bool evenIfItChanges = false);

    /// Writes the tree through `replacement`, which locks this file, and keeps the old file beside it: as
    /// "<name>.bak", or, when something of it is lost, as "<name>.bak.<n>" which is never overwritten;
    /// returns the latter, an empty name when there is none. Throws a CommandError; WouldLose unless `force`
    /// when `losses()` names any. With `keepOld` the old file is kept under a number even when nothing else
    /// is lost, because somebody took settings out.
    FileName save(FileReplacement &replacement, bool force, bool keepOld = false);

private:
    void read();
    void checkXml();
    void keepFirstElement();
    QByteArray inForm(const QString &as);

    bool isThere = false;
    QString form;
    QByteArray bytes;
    QString firstElement; ///< its name, in the XML form
    libconfig::Config tree;
};

/// All of the regular file `path`. Throws a CommandError (Unreadable), also when only a part can be read.
QByteArray bytesOf(const FileName &path);

/// Keeps `content`, what the file `path` holds, beside it: as "<name>.bak", or `forGood` as "<name>.bak.<n>",
/// which is never overwritten. Returns the backup. Throws a CommandError.
FileName keepBackup(const FileName &path, const QByteArray &content, bool forGood);

/// The first setting, as a dotted path, in which two trees differ: the pairs of their roots and everything in
/// their first blocks, where an empty block counts as none. "" when they are equal.
QString firstDifference(const QDomElement &root, const QDomElement &otherRoot);

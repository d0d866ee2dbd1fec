#include "configfile.h"

#include "orderedattributes.h"
#include "usercatalogue.h"

#include <QBuffer>
#include <QFile>
#include <QXmlStreamReader>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Whether there is a file. Throws a CommandError (Unreadable) when nobody can tell, as in a folder that may
/// not be entered.
bool isThereAt(const FileName &path)
{
    struct stat found = {};
    if (::stat(path.system(), &found) == 0)
        return true;
    if (errno == ENOENT || errno == ENOTDIR)
        return false;
    throw CommandError(ExitCode::Unreadable, path, qt_error_string(errno));
}

QString withoutFullStop(const QString &sentence)
{
    return sentence.endsWith(u'.') ? sentence.chopped(1) : sentence;
}

bool isEmptyBlock(const QDomElement &block)
{
    if (block.hasAttributes())
        return false;
    for (QDomElement child = block.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (!isEmptyBlock(child))
            return false;
    }
    return true;
}

QDomElement skipEmptyBlocks(QDomElement block)
{
    while (!block.isNull() && isEmptyBlock(block))
        block = block.nextSiblingElement();
    return block;
}

QString differingPair(const QDomElement &one, const QDomElement &other, const QString &path)
{
    const QStringList names = libconfig::OrderedAttributes(one).names();
    const QStringList otherNames = libconfig::OrderedAttributes(other).names();
    for (const QString &name : names + otherNames) {
        if (one.hasAttribute(name) != other.hasAttribute(name) ||
            one.attribute(name) != other.attribute(name))
            return path + name;
    }
    return {};
}

QString firstDifference(const QDomElement &one, const QDomElement &other, const QString &above)
{
    const QString path = above + one.tagName() + u'.';
    if (one.isNull() && other.isNull())
        return {};
    if (one.isNull() || other.isNull() || one.tagName() != other.tagName())
        return one.isNull() ? above + other.tagName() : path.chopped(1);
    if (QString pair = differingPair(one, other, path); !pair.isEmpty())
        return pair;
    QDomElement child = skipEmptyBlocks(one.firstChildElement());
    QDomElement otherChild = skipEmptyBlocks(other.firstChildElement());
    while (!child.isNull() || !otherChild.isNull()) {
        if (QString inside = firstDifference(child, otherChild, path); !inside.isEmpty())
            return inside;
        child = skipEmptyBlocks(child.nextSiblingElement());
        otherChild = skipEmptyBlocks(otherChild.nextSiblingElement());
    }
    return {};
}

QString whatFits(const QString &type)
{
    if (type == form::text)
        return UserWords::tr("the text form has no room for ';' and '\"', characters outside Latin-1, and "
                             "more than 2044 bytes");
    return UserWords::tr(
        "the XML form has no room for pairs outside the first block, names that are no XML names, and "
        "'\"', "
        "'<', '&' and line breaks in values");
}

} // namespace

bool form::isXml(const QByteArray &content)
{
    return content.trimmed().startsWith('<') || content.startsWith("\xef\xbb\xbf<");
}

QByteArray bytesOf(const FileName &path)
{
    if (!path.isRegularFile()) // a pipe could be read only once, a folder not at all
        throw CommandError(ExitCode::Unreadable, path, UserWords::tr("it is no regular file; give one"));
    const int descriptor = ::open(path.system(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        throw CommandError(ExitCode::Unreadable, path, qt_error_string(errno));
    QFile file;
    file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw CommandError(ExitCode::Unreadable, path, file.errorString());
    return bytes;
}

QString firstDifference(const QDomElement &root, const QDomElement &otherRoot)
{
    if (QString pair = differingPair(root, otherRoot, QString()); !pair.isEmpty())
        return pair;
    const auto firstBlock = [](const QDomElement &of) {
        const QDomElement block = of.firstChild().toElement();
        return block.isNull() || isEmptyBlock(block) ? QDomElement() : block;
    };
    return firstDifference(firstBlock(root), firstBlock(otherRoot), QString());
}

ConfigFile::ConfigFile(const FileName &filePath)
    : path(filePath), isThere(isThereAt(behindLinks(filePath))), form(form::text)
{
    if (isThere)
        read();
}

void ConfigFile::read()
{
    bytes = bytesOf(path);
    if (form::isXml(bytes))
        form = form::xml;
    tree.readContent(bytes, path.shown(), form);
    if (form == form::xml)
        checkXml();
}

void ConfigFile::checkXml()
{
    const QDomNode first = tree.root().firstChild();
    firstElement = first.toElement().tagName();
    if (first.isElement())
        return;
    if (!first.isNull()) {
        throw CommandError(
            ExitCode::Unreadable, path, Position(),
            UserWords::tr("nothing is found in an XML file that begins with a declaration or a remark; "
                          "remove what stands before the first element"));
    }
    QXmlStreamReader reader(bytes);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd())
        reader.readNext();
    const QString reason = reader.hasError()
                               ? withoutFullStop(reader.errorString())
                               : UserWords::tr("elements nest deeper than %1").arg(libconfig::maxDepth);
    throw CommandError(ExitCode::Unreadable, path, {reader.lineNumber(), reader.columnNumber() + 1},
                       UserWords::tr("%1; nothing is found in XML that is not well-formed").arg(reason));
}

/// A file without any element would count as text form from then on.
void ConfigFile::keepFirstElement()
{
    if (form == form::xml && tree.root().firstChildElement().isNull())
        tree.appendBlock(tree.root(), firstElement);
}

bool ConfigFile::isSameAs(const ConfigFile &other) const
{
    return isThere == other.isThere && bytes == other.bytes;
}

std::vector<Loss> ConfigFile::losses() const
{
    return form == form::xml ? lossesInXml(bytes) : lossesInText(bytes);
}

CommandError ConfigFile::lossesAsError() const
{
    CommandError error(ExitCode::WouldLose);
    for (const Loss &loss : losses())
        error.add(path, loss.at, u"writing would lose %1; take it out, or give --force"_s.arg(loss.what));
    return error;
}

std::vector<DeadLine> ConfigFile::deadLines(const QString &key) const
{
    return form == form::xml ? std::vector<DeadLine>() : ::deadLines(bytes, key);
}

QByteArray ConfigFile::inForm(const QString &as)
{
    QBuffer memory;
    memory.open(QIODevice::WriteOnly);
    // Whether the writer says that all is well does not matter: `changedIn` sees more.
    if (as == form::xml) {
        tree.buildConfigXmlFile(memory);
    } else {
        tree.buildConfigFile(memory);
    }
    return memory.data();
}

QString ConfigFile::changedIn(const QString &as)
{
    libconfig::Config readAgain;
    readAgain.readContent(inForm(as), path.shown(), as);
    return firstDifference(tree.root(), readAgain.root());
}

QByteArray ConfigFile::written(const QString &as, bool evenIfItChanges)
{
    const QString changed = evenIfItChanges ? QString() : changedIn(as);
    if (!changed.isEmpty()) {
        throw CommandError(ExitCode::Refused, path,
                           UserWords::tr("\"%1\" would not survive: %2").arg(changed, whatFits(as)));
    }
    return inForm(as);
}

FileName ConfigFile::save(FileReplacement &replacement, bool force, bool keepOld)
{
    const bool isFaithful = losses().empty();
    if (!isFaithful && !force)
        throw lossesAsError();
    const bool loses = keepOld || !isFaithful;
    keepFirstElement();
    const QByteArray content = written(form);
    if (content == bytes)
        return {};
    const FileName backup = isThere ? keepBackup(path, bytes, loses) : FileName();
    replacement.commit(content);
    bytes = content;
    isThere = true;
    return loses ? backup : FileName();
}

FileName keepBackup(const FileName &path, const QByteArray &content, bool forGood)
{
    const FileName target = behindLinks(path);
    const FileName usual = target.with(u".bak"_s);
    int number = 1;
    while (forGood && usual.with(u".%1"_s.arg(number)).exists())
        ++number;
    const FileName backup = forGood ? usual.with(u".%1"_s.arg(number)) : usual;
    FileReplacement(backup, target).commit(content);
    return backup;
}

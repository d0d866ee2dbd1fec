#include "jobreader.h"

#include "printerdriver.h"
#include "printmethods.h"

#include <QXmlSimpleReader>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Whether the parentheses of an entity's value, in each other, are more than a declaration may have. In the
/// text of the job they may be written as references to characters.
bool nestsTooDeep(const QString &value)
{
    int open = 0;
    for (const QChar character : value) {
        open += (character == u'(') - (character == u')');
        if (open > maxNesting)
            return true;
        open = qMax(0, open);
    }
    return false;
}

} // namespace

QChar JobSource::next()
{
    if (!isWatched)
        return QXmlInputSource::next();
    // At the end of its buffer the toolkit's operation calls this one again: the character is watched once.
    isWatched = false;
    const QChar character = QXmlInputSource::next();
    isWatched = true;
    watch(character);
    return isTooMuch() ? QChar(EndOfDocument) : character;
}

void JobSource::watch(QChar character)
{
    if (inProlog)
        watchParentheses(character);
    if (character == u'&' || character == u'%')
        expanded += qMin(entityLength * entityReferences, maxExpansion + 1);
}

void JobSource::watchParentheses(QChar character)
{
    // Behind the beginning of a comment or an instruction, even of one that is quoted text to the reader, no
    // declaration comes without one of these: written out, from an entity, or as a reference to a character.
    if (character == u'<' || character == u'%' || character == u'&')
        lastMarkup.clear();
    if (lastMarkup.size() < 4)
        lastMarkup += character;
    if (!inDocumentType || lastMarkup.startsWith("<?"_L1) || lastMarkup == "<!--"_L1)
        return;
    if (character == u'(')
        ++openParentheses;
    else if (character == u')') // never below zero: an entity's text may close what nobody opened
        openParentheses = qMax(0, openParentheses - 1);
}

bool JobSource::addEntity(const QString &value)
{
    // No entity may refer to itself, so none stands for more than the text of all of them, repeated once for
    // each way through their references. That holds in whatever order they are declared.
    entityLength += value.size();
    const qint64 references = value.count(u'&') + value.count(u'%');
    entityReferences = qMin(entityReferences * qMax<qint64>(1, references), maxExpansion);
    return ++entities <= maxEntities && !nestsTooDeep(value);
}

QString JobSource::exceeded() const
{
    if (openParentheses > maxNesting)
        return u"parentheses are nested deeper than %1"_s.arg(maxNesting);
    if (expanded > maxExpansion)
        return u"entity references may stand for more than %1 characters"_s.arg(maxExpansion);
    return {};
}

void JobSource::leaveProlog()
{
    inProlog = false;
    isWatched = entities > 0;
}

bool JobHandler::startDocument()
{
    return printer.startDocument();
}

bool JobHandler::endDocument()
{
    return printer.endDocument();
}

bool JobHandler::startElement(const QString &namespaceUri, const QString &localName, const QString &qName,
                              const QXmlAttributes &attributes)
{
    source.leaveProlog();
    if (++openElements > maxNesting) {
        limit = u"elements are nested deeper than %1"_s.arg(maxNesting);
        return false;
    }
    if (printer.startElement(namespaceUri, localName, qName, attributes))
        return true;
    const QString method = attributes.value("name"_L1);
    if (!vocabulary::findPrintMethod(method))
        limit = u"there is no print method \"%1\""_s.arg(method);
    return false;
}

bool JobHandler::endElement(const QString &namespaceUri, const QString &localName, const QString &qName)
{
    --openElements;
    if (prefixes.endElement())
        return printer.endElement(namespaceUri, localName, qName);
    limit = u"more namespace prefixes than the reader can afford"_s;
    return false;
}

bool JobHandler::startPrefixMapping(const QString &prefix, const QString &)
{
    prefixes.add(prefix);
    return true;
}

bool JobHandler::endPrefixMapping(const QString &prefix)
{
    prefixes.remove(prefix);
    return true;
}

bool JobHandler::startDTD(const QString &, const QString &, const QString &)
{
    source.setInDocumentType(true);
    return true;
}

bool JobHandler::endDTD()
{
    source.setInDocumentType(false);
    return true;
}

bool JobHandler::internalEntityDecl(const QString &, const QString &value)
{
    if (source.addEntity(value))
        return true;
    limit = u"more than %1 entities, or parentheses nested deeper than %2 in one"_s.arg(maxEntities)
                .arg(maxNesting);
    return false;
}

bool JobHandler::fatalError(const QXmlParseException &exception)
{
    errorLine = exception.lineNumber();
    errorColumn = exception.columnNumber();
    errorText = exceeded().isEmpty() ? exception.message() : exceeded();
    return false;
}

QString JobHandler::errorString() const
{
    return exceeded().isEmpty() ? printer.errorString() : exceeded();
}

QString JobHandler::exceeded() const
{
    return limit.isEmpty() ? source.exceeded() : limit;
}

void printJob(JobSource &source, JobHandler &handler)
{
    QXmlSimpleReader reader;
    reader.setContentHandler(&handler);
    reader.setDeclHandler(&handler);
    reader.setLexicalHandler(&handler);
    reader.setErrorHandler(&handler);
    reader.parse(source);
}

#include "jobreader.h"

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
    if (inProlog && character == u'(')
        ++openParentheses;
    else if (inProlog && character == u')') // never below zero: a comment may close what nobody opened
        openParentheses = qMax(0, openParentheses - 1);
    else if (character == u'&' || character == u'%')
        expanded += qMin(entityLength * entityReferences, maxExpansion + 1);
}

bool JobSource::addEntity(const QString &value)
{
    // No entity may refer to itself, so none stands for more than the text of all of them, repeated once for
    // each way through their references. That holds in whatever order they are declared.
    entityLength += value.size();
    const qint64 references = value.count(u'&') + value.count(u'%');
    entityReferences = qMin(entityReferences * qMax<qint64>(1, references), maxExpansion);
    return ++entities <= maxEntities;
}

void JobSource::leaveProlog()
{
    inProlog = false;
    isWatched = entities > 0;
}

bool JobPrinter::startElement(const QString &namespaceUri, const QString &localName, const QString &qName,
                              const QXmlAttributes &attributes)
{
    source.leaveProlog();
    if (++openElements > maxNesting)
        return false;
    return CompanyPrinterDriver::startElement(namespaceUri, localName, qName, attributes);
}

bool JobPrinter::endElement(const QString &namespaceUri, const QString &localName, const QString &qName)
{
    --openElements;
    return CompanyPrinterDriver::endElement(namespaceUri, localName, qName);
}

bool JobPrinter::startPrefixMapping(const QString &prefix, const QString &)
{
    // Counted by name: many a serializer declares the same prefix anew at every element.
    prefixes.insert(prefix);
    return prefixes.size() <= maxPrefixes;
}

bool JobPrinter::internalEntityDecl(const QString &, const QString &value)
{
    return source.addEntity(value);
}

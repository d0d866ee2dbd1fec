#include "jobreader.h"

QChar JobSource::next()
{
    if (!inProlog)
        return QXmlInputSource::next();
    const QChar character = QXmlInputSource::next();
    if (character == u'(')
        ++openParentheses;
    else if (character == u')')
        --openParentheses;
    return openParentheses > maxNesting ? QChar(EndOfDocument) : character;
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

#include "content.h"

#include "contentkind.h"

namespace check {

namespace {

/// The first bytes without those that only tell the encoding, of which two stand for one in UTF-16.
QByteArray asciiOf(QByteArrayView beginning)
{
    QByteArray text = beginning.first(qMin(beginning.size(), bytesThatTell)).toByteArray();
    if (text.startsWith("\xef\xbb\xbf"))
        text.remove(0, 3);
    return text.startsWith("\xff\xfe") || text.startsWith("\xfe\xff") ? text.mid(2).replace('\0', "") : text;
}

/// Behind what may stand in front of the root element: the declaration, remarks, a document type.
QByteArray fromRootElement(QByteArray text)
{
    text = text.trimmed();
    while (text.startsWith("<?") || text.startsWith("<!")) {
        const QByteArray end = text.startsWith("<!--") ? "-->" : ">";
        const qsizetype at = text.indexOf(end);
        if (at < 0)
            return {};
        text = text.mid(at + end.size()).trimmed();
    }
    return text;
}

bool isName(const QByteArray &text, const QByteArray &name)
{
    if (!text.startsWith(name))
        return false;
    return text.size() == name.size() || QByteArray(" \t\r\n/>").contains(text[name.size()]);
}

} // namespace

Subject subjectOf(QByteArrayView beginning)
{
    switch (paper::contentKind(beginning.first(qMin(beginning.size(), bytesThatTell)))) {
    case paper::ContentKind::Output:
    case paper::ContentKind::ReceiptPrinter:
        return Subject::Output;
    case paper::ContentKind::Job:
        return isName(fromRootElement(asciiOf(beginning)), "<palvestrin") ? Subject::Configuration
                                                                          : Subject::Job;
    case paper::ContentKind::Neither:
        break;
    }
    return Subject::Configuration;
}

} // namespace check

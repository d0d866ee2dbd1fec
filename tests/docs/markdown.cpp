#include "markdown.h"

#include <QFile>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace markdown {

namespace {

QStringList cellsOf(const QString &row)
{
    QStringList cells = row.sliced(1, row.lastIndexOf(u'|') - 1).split(u'|');
    for (QString &cell : cells)
        cell = cell.remove(u'`').trimmed();
    return cells;
}

/// Calls `heading` with every heading and `block` with every fenced block, in their order.
template <typename OnHeading, typename OnBlock>
void read(const QString &document, OnHeading heading, OnBlock block)
{
    static const QRegularExpression piece(uR"(^(?:#+ (?<heading>.*)|```(?<kind>\w*)\n(?<text>.*?)```)$)"_s,
                                          QRegularExpression::MultilineOption |
                                              QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression firstLine(u"^[^\n]*"_s);
    for (qsizetype from = 0;;) {
        const QRegularExpressionMatch match = piece.match(document, from);
        if (!match.hasMatch())
            return;
        from = match.capturedEnd();
        if (match.hasCaptured(u"kind"_s)) {
            block(match.captured(u"kind"_s), match.captured(u"text"_s));
            continue;
        }
        heading(firstLine.match(match.captured(u"heading"_s)).captured());
        from = document.indexOf(u'\n', match.capturedStart());
    }
}

} // namespace

QString document(const QString &name)
{
    QFile file(QStringLiteral(PALVESTRIN_SOURCE_DIR) + u'/' + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no %s", qPrintable(name));
    return QString::fromUtf8(file.readAll());
}

QString sectionOf(const QString &document, const QString &heading)
{
    static const QRegularExpression anyHeading(u"^#"_s, QRegularExpression::MultilineOption);
    const qsizetype start = document.indexOf(u'\n' + heading + u'\n');
    if (start < 0)
        return {};
    const qsizetype body = start + heading.size() + 2;
    const qsizetype end = document.indexOf(anyHeading, body);
    return document.mid(body, end < 0 ? -1 : end - body);
}

QList<QStringList> tableOf(const QString &section)
{
    QList<QStringList> rows;
    for (const QString &line : section.split(u'\n')) {
        if (line.startsWith(u'|'))
            rows += cellsOf(line);
        else if (!rows.isEmpty())
            break;
    }
    return rows.mid(2);
}

QList<Block> blocksOf(const QString &document)
{
    QList<Block> blocks;
    QString anchor;
    read(
        document, [&](const QString &heading) { anchor = anchorOf(heading); },
        [&](const QString &kind, const QString &text) {
            blocks += Block{kind, anchor, text};
        });
    return blocks;
}

QStringList anchorsOf(const QString &document)
{
    QStringList anchors;
    read(
        document, [&](const QString &heading) { anchors += anchorOf(heading); },
        [](const QString &, const QString &) {});
    return anchors;
}

QString anchorOf(const QString &heading)
{
    static const QRegularExpression other(uR"([^\w\- ])"_s, QRegularExpression::UseUnicodePropertiesOption);
    return QString(heading).toLower().remove(other).replace(u' ', u'-');
}

} // namespace markdown

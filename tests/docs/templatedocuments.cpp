// What is read out of the documents, and out of a job.

#include "markdown.h"
#include "templatepaper.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace paper_template {

namespace {

/// "[receipe](#receipe-on-a-bill)": the element and the place of its template.
QPair<QString, QString> elementAndAnchor(const QString &cell)
{
    static const QRegularExpression link(uR"(\[(\w+)\]\(#([\w-]+)\))"_s);
    const QRegularExpressionMatch match = link.match(cell);
    if (!match.hasMatch())
        qFatal("no link to a template: %s", qPrintable(cell));
    return {match.captured(1), match.captured(2)};
}

void readMethods(const QString &jobFormat, Documents &documents)
{
    const QList<QStringList> methods =
        markdown::tableOf(markdown::sectionOf(jobFormat, u"## Print methods"_s));
    const QList<QStringList> elements =
        markdown::tableOf(markdown::sectionOf(jobFormat, u"## Elements and methods"_s));
    for (qsizetype i = 0; i < methods.size(); ++i) {
        Documents::Method &method = documents.methods[methods[i][1]];
        method.isFiscal = methods[i][3] == "fiscal"_L1;
        method.block = methods[i][4].section(u'.', 1, 1);
        for (const QStringList &row : elements) {
            const auto [name, anchor] = elementAndAnchor(row[0]);
            if (row.value(2 + i) == u"●"_s)
                method.anchors[name] = anchor;
        }
    }
}

void readTemplates(const QString &document, Documents &documents)
{
    for (const markdown::Block &block : markdown::blocksOf(document)) {
        if (block.kind == "paper"_L1)
            documents.templates[block.heading] = parse(block.text);
        else if (block.kind == "define"_L1)
            addDefinitions(block.text, documents.definitions);
    }
}

void readLetters(const QString &jobFormat, Documents &documents)
{
    const QString section = markdown::sectionOf(jobFormat, u"## Templates"_s);
    const QString fromLetters = section.sliced(section.indexOf("| letter |"_L1));
    for (const QStringList &row : markdown::tableOf(fromLetters))
        documents.letters[row[0]] = row[1];
}

/// The setting's "When missing" begins with its number: "32, the printer's own width".
void readMissingWidths(const QString &configuration, Documents &documents)
{
    static const QRegularExpression row(uR"(^\| `(\w+)` \| [^|]* \| (\d+)\b)"_s,
                                        QRegularExpression::MultilineOption);
    for (const QRegularExpressionMatch &match : row.globalMatch(configuration))
        documents.missingWidths[match.captured(1)] = match.captured(2).toInt();
}

QString withoutReferences(const QString &text)
{
    static const QRegularExpression reference(u"&#(\\d+);"_s);
    QString plain;
    qsizetype from = 0;
    for (const QRegularExpressionMatch &match : reference.globalMatch(text)) {
        plain += text.sliced(from, match.capturedStart() - from) + QChar(match.captured(1).toUShort());
        from = match.capturedEnd();
    }
    return plain + text.sliced(from);
}

} // namespace

Documents Documents::read()
{
    Documents documents;
    const QString jobFormat = markdown::document(u"docs/job-format.md"_s);
    readMethods(jobFormat, documents);
    readTemplates(jobFormat, documents);
    readTemplates(markdown::document(u"docs/output-format.md"_s), documents);
    readLetters(jobFormat, documents);
    readMissingWidths(markdown::document(u"docs/configuration.md"_s), documents);
    return documents;
}

QString Tag::value(const QString &attribute) const
{
    for (const QPair<QString, QString> &pair : attributes) {
        if (pair.first == attribute)
            return pair.second;
    }
    return {};
}

QList<Tag> tagsOf(const QString &job)
{
    static const QRegularExpression tag(uR"re(<!--.*?-->|<(\w+)((?:\s+\w+="[^"]*")*)\s*/?>)re"_s,
                                        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression attribute(uR"re((\w+)="([^"]*)")re"_s);
    QList<Tag> tags;
    for (const QRegularExpressionMatch &match : tag.globalMatch(job)) {
        Tag found{match.captured(1), {}};
        for (const QRegularExpressionMatch &pair : attribute.globalMatch(match.captured(2)))
            found.attributes += {pair.captured(1), withoutReferences(pair.captured(2))};
        tags += found;
    }
    return tags;
}

} // namespace paper_template

#include "templatelanguage.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace paper_template {

namespace {

QStringList wordsOf(const QString &line)
{
    static const QRegularExpression word(
        uR"re(\s*("[^"]*"|'[^']*'|«[^»]*»|[A-Za-z_]\w*|\d+|[-+<=(),:])\s*)re"_s);
    QStringList words;
    qsizetype from = 0;
    while (from < line.size()) {
        const QRegularExpressionMatch match = word.match(line, from, QRegularExpression::NormalMatch,
                                                         QRegularExpression::AnchorAtOffsetMatchOption);
        if (!match.hasMatch())
            qFatal("no template: %s", qPrintable(line));
        words += match.captured(1);
        from = match.capturedEnd();
    }
    return words;
}

int indentOf(const QString &line)
{
    int indent = 0;
    while (indent < line.size() && line[indent] == u' ')
        ++indent;
    return indent;
}

/// The statement of one line; what stands behind its colon is the first of its body.
Statement statementOf(const QStringList &words)
{
    const qsizetype colon = words.indexOf(u":"_s);
    if (colon < 0)
        return {words, {}};
    Statement statement{words.first(colon), {}};
    if (colon + 1 < words.size())
        statement.body.push_back(statementOf(words.sliced(colon + 1)));
    return statement;
}

/// Reads the lines from `next` on that are indented by `indent` and those that belong to them.
std::vector<Statement> parseLines(const QStringList &lines, qsizetype &next, int indent)
{
    std::vector<Statement> statements;
    while (next < lines.size() && indentOf(lines[next]) >= indent) {
        if (indentOf(lines[next]) > indent) {
            auto inner = parseLines(lines, next, indentOf(lines[next]));
            statements.back().body.insert(statements.back().body.end(), inner.begin(), inner.end());
        } else {
            statements.push_back(statementOf(wordsOf(lines[next++])));
        }
    }
    return statements;
}

/// "name(a, b)"
QStringList parametersOf(const QStringList &head)
{
    QStringList parameters;
    for (qsizetype i = 2; i < head.size(); i += 2)
        parameters += head[i];
    return parameters;
}

/// "name(a) = text if condition"
void addText(const QStringList &words, Definitions &definitions)
{
    const qsizetype equals = words.indexOf(u"="_s);
    const qsizetype condition = words.indexOf(u"if"_s);
    if (equals < 0)
        qFatal("no definition: %s", qPrintable(words.join(u' ')));
    Definition &definition = definitions[words[0]];
    definition.parameters = parametersOf(words.first(equals));
    definition.alternatives.push_back(
        {words.sliced(equals + 1, (condition < 0 ? words.size() : condition) - equals - 1),
         condition < 0 ? QStringList() : words.sliced(condition + 1)});
}

} // namespace

std::vector<Statement> parse(const QString &block)
{
    const QStringList lines = block.split(u'\n', Qt::SkipEmptyParts);
    qsizetype next = 0;
    return parseLines(lines, next, indentOf(lines.value(0)));
}

void addDefinitions(const QString &block, Definitions &definitions)
{
    for (const Statement &statement : parse(block)) {
        if (statement.body.empty())
            addText(statement.words, definitions);
        else
            definitions[statement.words[0]] = {parametersOf(statement.words), {}, statement.body};
    }
}

} // namespace paper_template

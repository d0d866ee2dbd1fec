#include "templatepaper.h"

#include <QRegularExpression>

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace paper_template {

namespace {

QHash<QString, QHash<QString, QString>> blocksOf(const QString &configuration)
{
    static const QRegularExpression block(uR"((\w+):\s*\{([^{}]*)\};)"_s);
    static const QRegularExpression pair(uR"re((\w+) = "([^"]*)";)re"_s);
    QHash<QString, QHash<QString, QString>> blocks;
    for (const QRegularExpressionMatch &found : block.globalMatch(configuration)) {
        for (const QRegularExpressionMatch &setting : pair.globalMatch(found.captured(2)))
            blocks[found.captured(1)][setting.captured(1)] = setting.captured(2);
    }
    return blocks;
}

/// As "Values" in docs/configuration.md has it.
int countIn(const QString &text)
{
    static const QRegularExpression count(uR"(^[+-]?[0-9]+$)"_s);
    const double number = count.match(text.trimmed()).hasMatch() ? text.trimmed().toDouble() : 0;
    const bool isTooLarge =
        number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max();
    return isTooLarge ? 0 : static_cast<int>(number);
}

Text same(const Text &text)
{
    return text;
}

} // namespace

Paper::Paper(const Documents &source, const QByteArray &configuration,
             const QHash<QString, QString> &catalogue)
    : documents(source), blocks(blocksOf(QString::fromLatin1(configuration))), words(catalogue)
{
}

QByteArray Paper::print(const QByteArray &job)
{
    const QList<Tag> tags = tagsOf(QString::fromUtf8(job));
    for (const Tag &tag : tags) {
        const bool isMethod = tag.name == "method"_L1;
        if (isMethod && !begin(tag))
            return stringOf(output).toUtf8();
        if (isMethod || (method && method->anchors.contains(tag.name)))
            printTemplate(isMethod ? u"method"_s : method->anchors[tag.name], tag);
    }
    printTemplate(u"the-end-of-the-job"_s, {});
    return stringOf(output).toUtf8();
}

bool Paper::begin(const Tag &tag)
{
    const auto chosen = documents.methods.constFind(tag.value(u"name"_s));
    method = chosen == documents.methods.constEnd() ? nullptr : &*chosen;
    if (method)
        readWidths();
    return method;
}

void Paper::readWidths()
{
    for (auto letter = documents.letters.cbegin(); letter != documents.letters.cend(); ++letter) {
        const int count = countIn(blocks.value(method->block).value(*letter));
        widths[letter.key()] = count == 0 ? documents.missingWidths.value(*letter) : count;
    }
}

bool Paper::isOn(const QString &name) const
{
    if (name == "fiscal"_L1)
        return method && method->isFiscal;
    return blocks.value(method->block).value(name) == "true"_L1;
}

void Paper::printTemplate(const QString &anchor, const Tag &tag)
{
    if (!documents.templates.contains(anchor))
        qFatal("no template %s", qPrintable(anchor));
    element = &tag;
    const Context context{
        [this](const QString &name) { return wordValue(name); },
        [this](const Text &text) { return textOf(words.value(stringOf(text), stringOf(text))); },
        [this](const QString &name) { return isOn(name); }, documents.definitions};
    run(*documents.templates.constFind(anchor), Scope(context));
}

/// A letter, the printer's name, or an attribute of the element.
Value Paper::wordValue(const QString &name) const
{
    const auto width = widths.constFind(name);
    if (width != widths.constEnd())
        return *width;
    return name == "printer"_L1 ? printer : textOf(element->value(name));
}

void Paper::run(const std::vector<Statement> &lines, const Scope &scope)
{
    bool wasMet = true;
    for (const Statement &line : lines) {
        if (line.words[0] != "if"_L1 && line.words[0] != "else"_L1) {
            runOne(line, scope);
            continue;
        }
        wasMet = isMet(line, wasMet, scope);
        if (wasMet) {
            met += &line;
            run(line.body, scope);
        }
    }
}

bool Paper::isMet(const Statement &line, bool wasMet, const Scope &scope) const
{
    if (line.words[0] == "else"_L1)
        return !wasMet;
    return Expression(line.words.sliced(1), scope).condition();
}

void Paper::runOne(const Statement &line, const Scope &scope)
{
    met += &line;
    if (!runInstruction(line, scope) && !expand(line, scope))
        printLine(line, scope);
}

bool Paper::runInstruction(const Statement &line, const Scope &scope)
{
    const QString &first = line.words[0];
    if (line.words == QStringList{u"centre"_s} || line.words == QStringList{u"left"_s}) {
        isCentred = first == "centre"_L1;
    } else if (first == "send"_L1) {
        send(line, scope);
    } else if (first == "for"_L1) {
        loop(line, scope);
    } else if (first == "repeat"_L1) {
        repeat(line, scope);
    } else if (first == "once"_L1) {
        if (!std::exchange(onceDone, true))
            run(line.body, scope);
    } else if (line.words.value(1) == "="_L1) {
        printer = Expression(line.words.sliced(2), scope).texts(same);
    } else {
        return false;
    }
    return true;
}

/// The lines that a name stands for.
bool Paper::expand(const Statement &line, const Scope &scope)
{
    const auto definition = documents.definitions.constFind(line.words[0]);
    if (definition == documents.definitions.constEnd() || definition->lines.empty())
        return false;
    Arguments arguments;
    for (qsizetype i = 2; i < line.words.size(); i += 2) // "(", the first, ",", the second
        arguments.push_back(Expression({line.words[i]}, scope).value());
    run(definition->lines, Scope(scope, definition->parameters, arguments));
    return true;
}

void Paper::loop(const Statement &line, const Scope &scope)
{
    const QString kind = line.words.sliced(2).join(u' ');
    if (kind == "attribute"_L1)
        printAttributes(line, scope, 0, {u"value"_s});
    else if (kind == "three attributes from the third"_L1)
        printAttributes(line, scope, 2, {u"first"_s, u"second"_s, u"third"_s});
    else
        printParts(line, scope);
}

void Paper::repeat(const Statement &line, const Scope &scope)
{
    const double times = std::get<double>(scope.valueOf(line.words.value(1)));
    for (int i = 0; i < times; ++i)
        run(line.body, scope);
}

void Paper::printAttributes(const Statement &line, const Scope &scope, qsizetype from,
                            const QStringList &names)
{
    const auto textAt = [this](qsizetype index) { return element->attributes.value(index).second; };
    for (qsizetype at = from; at < element->attributes.size(); at += names.size()) {
        Arguments values;
        for (qsizetype i = 0; i < names.size(); ++i)
            values.emplace_back(textOf(textAt(at + i)));
        run(line.body, Scope(scope, names, values));
    }
}

/// "for each part of address"
void Paper::printParts(const Statement &line, const Scope &scope)
{
    const QStringList names{u"part"_s};
    for (const QString &part : stringOf(textOf(scope.valueOf(line.words.last()))).split(u',')) {
        if (part.isEmpty())
            return;
        const Arguments values{textOf(part)};
        run(line.body, Scope(scope, names, values));
    }
}

void Paper::send(const Statement &line, const Scope &scope)
{
    output += Expression(line.words.sliced(1), scope).texts(same);
}

void Paper::printLine(const Statement &line, const Scope &scope)
{
    const Text text = Expression(line.words, scope).texts([&](const Text &piece) {
        return defined(u"printed"_s, piece, scope);
    });
    output += defined(isCentred ? u"centredLine"_s : u"line"_s, text, scope);
}

Text Paper::defined(const QString &name, const Text &text, const Scope &scope) const
{
    return textOf(valueOf(*documents.definitions.constFind(name), {text}, scope));
}

} // namespace paper_template

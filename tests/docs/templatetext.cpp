#include "templatetext.h"

#include "templatefunctions.h"

using namespace Qt::Literals::StringLiterals;

namespace paper_template {

namespace {

Text quotedText(const QString &word)
{
    QString text = word.sliced(1).chopped(1);
    text.replace(u'␣', u' ').replace(u'␊', u'\n').replace(u'␍', u'\r');
    return textOf(text);
}

} // namespace

Scope::Scope(const Scope &around, const QStringList &localNames, const Arguments &localValues)
    : context(around.context), outer(&around), names(&localNames), values(&localValues)
{
    if (localNames.size() != static_cast<qsizetype>(localValues.size()))
        qFatal("wrong number of arguments for %s", qPrintable(localNames.join(u' ')));
}

Value Scope::valueOf(const QString &name) const
{
    const qsizetype local = names ? names->indexOf(name) : -1;
    if (local >= 0)
        return (*values)[local];
    return outer ? outer->valueOf(name) : context.valueOf(name);
}

Text Expression::texts(const std::function<Text(const Text &)> &each)
{
    Text line;
    while (next < words.size())
        line += each(textOf(sum()));
    return line;
}

bool Expression::condition()
{
    if (take(u"not"_s))
        return !condition();
    if (words.size() == next + 1)
        return scope.context.isOn(word());
    const Value value = sum();
    if (take(u"is"_s))
        return isOneOf(value);
    if (take(u"<"_s))
        return std::get<double>(value) < std::get<double>(sum());
    if (!take(u"begins"_s) || !take(u"with"_s))
        qFatal("no condition: %s", qPrintable(words.join(u' ')));
    return textOf(value).starts_with(textOf(sum()));
}

/// "0, -1 or none"
bool Expression::isOneOf(const Value &value)
{
    bool is = false;
    do {
        const Value candidate = take(u"none"_s) ? Value(None{}) : sum();
        is |= value == candidate;
    } while (take(u","_s) || take(u"or"_s));
    return is;
}

bool Expression::take(const QString &wanted)
{
    if (word() != wanted)
        return false;
    ++next;
    return true;
}

Value Expression::sum()
{
    Value total = atom();
    while (word() == u"+"_s || word() == u"-"_s) {
        const bool adds = words[next++] == u"+"_s;
        const Value other = atom();
        if (std::holds_alternative<Text>(total))
            total = std::get<Text>(total) + textOf(other);
        else
            total = std::get<double>(total) + (adds ? 1 : -1) * std::get<double>(other);
    }
    return total;
}

Value Expression::atom()
{
    if (take(u"-"_s))
        return -std::get<double>(atom());
    const QString name = words.value(next++);
    const QChar first = name.isEmpty() ? QChar() : name[0];
    if (first == u'"' || first == u'\'')
        return quotedText(name);
    if (first == u'«')
        return scope.context.translated(quotedText(name));
    if (first.isDigit())
        return name.toDouble();
    return call(name);
}

Value Expression::call(const QString &name)
{
    const bool isFunction = word() == "("_L1;
    const Arguments values = isFunction ? arguments() : Arguments();
    const auto definition = scope.context.definitions.constFind(name);
    // The attributes `total` and `number` are no functions.
    if (definition != scope.context.definitions.constEnd() && definition->parameters.isEmpty() != isFunction)
        return valueOf(*definition, values, scope);
    return isFunction ? callFunction(name, values, scope) : scope.valueOf(name);
}

Arguments Expression::arguments()
{
    Arguments values;
    ++next; // the parenthesis
    do
        values.push_back(sum());
    while (take(u","_s));
    if (!take(u")"_s))
        qFatal("no arguments: %s", qPrintable(words.join(u' ')));
    return values;
}

Value valueOf(const Definition &definition, const Arguments &arguments, const Scope &scope)
{
    const Scope inside(scope, definition.parameters, arguments);
    for (const Definition::Alternative &alternative : definition.alternatives) {
        if (alternative.condition.isEmpty() || Expression(alternative.condition, inside).condition())
            return Expression(alternative.text, inside).value();
    }
    qFatal("a definition without an alternative that always counts");
}

} // namespace paper_template

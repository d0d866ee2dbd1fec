#include "templatefunctions.h"

#include <QRegularExpression>

#include <array>
#include <cmath>
#include <cstdio>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace paper_template {

namespace {

constexpr int widestFilled = 1'000'000;

/// Sums of widths are of 32 bits and wrap around.
int widthOf(const Value &value)
{
    return static_cast<int>(static_cast<qint64>(std::get<double>(value)));
}

/// What `left` and `right` add to the text, the first of the arguments.
Text fillFor(const Arguments &arguments)
{
    const auto length = static_cast<qint64>(textOf(arguments.at(0)).size());
    const qint64 width = widthOf(arguments.at(1));
    if (width < length || width > widestFilled)
        return {};
    const Text fill = arguments.size() > 2 ? textOf(arguments[2]) : U" ";
    return Text(width - length, fill.at(0));
}

Text cut(const Text &text, int width)
{
    return width < 0 ? text : text.substr(0, width);
}

Text replaced(Text text, const Text &word, const Text &by)
{
    for (size_t at = text.find(word); at != Text::npos; at = text.find(word, at + by.size()))
        text.replace(at, word.size(), by);
    return text;
}

/// Whether a number that reads as 0 has a digit that is none: it has lost its sign, too.
bool isTooSmall(const QString &number)
{
    static const QRegularExpression digit(u"^[^eE]*[1-9]"_s);
    return digit.match(number).hasMatch();
}

/// Infinite for "inf", not a number for "nan", none for what is none.
Value number(const Text &text)
{
    static const QRegularExpression digits(uR"(^[+-]?(\d+\.?\d*|\.\d+)([eE][+-]?\d+)?$)"_s);
    static const QRegularExpression infinite(u"^[+-]?inf$"_s, QRegularExpression::CaseInsensitiveOption);
    const QString candidate = stringOf(text).trimmed();
    if (infinite.match(candidate).hasMatch())
        return candidate[0] == u'-' ? -HUGE_VAL : HUGE_VAL;
    if (candidate.compare("nan"_L1, Qt::CaseInsensitive) == 0)
        return std::numeric_limits<double>::quiet_NaN();
    if (!digits.match(candidate).hasMatch())
        return None{};
    const double value = std::strtod(candidate.toLatin1().constData(), nullptr);
    return value == 0 && isTooSmall(candidate) ? 0 : value;
}

double amount(const Text &text)
{
    const Value value = number(replaced(text, U",", U"."));
    return std::holds_alternative<None>(value) ? 0 : std::get<double>(value);
}

QByteArray general(double value)
{
    std::array<char, 32> text;
    std::snprintf(text.data(), text.size(), "%.15g", value);
    return std::isnan(value) ? "nan" : text.data();
}

double cents(const Text &text)
{
    return std::strtod(general(amount(text) * 100).constData(), nullptr);
}

Value numberOrNone(const Text &text)
{
    const Value value = number(text);
    const bool isNan = std::holds_alternative<double>(value) && std::isnan(std::get<double>(value));
    return isNan ? Value(None{}) : value;
}

} // namespace

Text textOf(const QString &text)
{
    return text.toStdU32String();
}

QString stringOf(const Text &text)
{
    return QString::fromStdU32String(text);
}

Text textOf(const Value &value)
{
    if (std::holds_alternative<double>(value))
        return textOf(QString::fromLatin1(general(std::get<double>(value))));
    return std::holds_alternative<Text>(value) ? std::get<Text>(value) : Text();
}

namespace {

const QHash<QString, Value (*)(const Arguments &, const Scope &)> functions = {
    {u"left"_s, [](const Arguments &of, const Scope &) -> Value { return textOf(of[0]) + fillFor(of); }},
    {u"right"_s, [](const Arguments &of, const Scope &) -> Value { return fillFor(of) + textOf(of[0]); }},
    {u"cut"_s,
     [](const Arguments &of, const Scope &) -> Value { return cut(textOf(of[0]), widthOf(of.at(1))); }},
    {u"length"_s,
     [](const Arguments &of, const Scope &) -> Value { return static_cast<double>(textOf(of[0]).size()); }},
    {u"half"_s,
     [](const Arguments &of, const Scope &) -> Value { return std::floor(std::get<double>(of[0]) / 2); }},
    {u"replace"_s,
     [](const Arguments &of, const Scope &) -> Value {
         return replaced(textOf(of[0]), textOf(of.at(1)), textOf(of.at(2)));
     }},
    {u"trimmed"_s,
     [](const Arguments &of, const Scope &) -> Value { return textOf(stringOf(textOf(of[0])).trimmed()); }},
    {u"translated"_s,
     [](const Arguments &of, const Scope &scope) -> Value {
         return scope.context.translated(textOf(of[0]));
     }},
    {u"number"_s, [](const Arguments &of, const Scope &) -> Value { return numberOrNone(textOf(of[0])); }},
    {u"amount"_s, [](const Arguments &of, const Scope &) -> Value { return amount(textOf(of[0])); }},
    {u"cents"_s, [](const Arguments &of, const Scope &) -> Value { return cents(textOf(of[0])); }},
};

} // namespace

Value callFunction(const QString &name, const Arguments &arguments, const Scope &scope)
{
    const auto function = functions.constFind(name);
    if (function == functions.constEnd() || arguments.empty())
        qFatal("no function %s", qPrintable(name));
    return (*function)(arguments, scope);
}

} // namespace paper_template

#pragma once

#include "templatelanguage.h"

#include <functional>
#include <string>
#include <variant>

/// What the words of a template's line come to.
namespace paper_template {

/// One code point is one character.
using Text = std::u32string;
struct None
{
    bool operator==(const None &) const = default;
};
using Value = std::variant<Text, double, None>;
using Arguments = std::vector<Value>;

Text textOf(const QString &text);
QString stringOf(const Text &text);
/// A number as it is sent, a text as it stands.
Text textOf(const Value &value);

/// What the words mean that are neither functions nor defined: the element, its document, the house.
struct Context
{
    std::function<Value(const QString &name)> valueOf;
    std::function<Text(const Text &)> translated;
    std::function<bool(const QString &name)> isOn; ///< a setting, or `fiscal`
    const Definitions &definitions;
};

/// A context, and in it names of which each has a value of its own. It refers to all of them.
class Scope
{
public:
    explicit Scope(const Context &all) : context(all) {}
    Scope(const Scope &around, const QStringList &localNames, const Arguments &localValues);

    Value valueOf(const QString &name) const;

    const Context &context;

private:
    const Scope *outer = nullptr;
    const QStringList *names = nullptr;
    const Arguments *values = nullptr;
};

/// Computes what a list of words comes to.
class Expression
{
public:
    Expression(const QStringList &list, const Scope &where) : words(list), scope(where) {}

    /// The texts, one after the other, each of them passed through `each`.
    Text texts(const std::function<Text(const Text &)> &each);
    Value value() { return sum(); }
    bool condition();

private:
    QString word() const { return words.value(next); }
    bool take(const QString &wanted);
    Value sum();
    Value atom();
    Value call(const QString &name);
    Arguments arguments();
    bool isOneOf(const Value &value);

    const QStringList &words;
    const Scope &scope;
    qsizetype next = 0;
};

/// What a defined name comes to with these arguments.
Value valueOf(const Definition &definition, const Arguments &arguments, const Scope &scope);

} // namespace paper_template

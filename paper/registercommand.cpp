#include "registercommand.h"

#include "registerwords.h"

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace paper {

namespace {

using Kind = RegisterCommand::Kind;

constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();
constexpr int exactDigits = 15; // what the commands are written with

/// A number as the renderer writes it, "nan" and "inf" among them.
std::optional<double> number(QStringView text)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (!isNumber || text.front().isSpace() || text.back().isSpace())
        return {};
    return value;
}

std::optional<RegisterCommand> parseClosing(QStringView line, const ClosingCommand &form)
{
    const qsizetype length = line.size() - form.prefix.size() - form.suffix.size();
    if (length <= 0 || !line.startsWith(form.prefix) || !line.endsWith(form.suffix))
        return {};
    const std::optional<double> value = number(line.sliced(form.prefix.size(), length));
    if (!value)
        return {};
    RegisterCommand command;
    command.kind = form.kind;
    (form.kind == Kind::Discount ? command.percent : command.cents) = *value;
    return command;
}

/// Takes "-10*5M" or "5.5*1M" off the end of a sale, if it is there. False when it is no modifier.
bool takeModifier(QStringView &sale, RegisterCommand &command)
{
    if (sale.endsWith(u'R'))
        return true;
    const qsizetype end = sale.lastIndexOf(u'R') + 1;
    const QStringView modifier = sale.sliced(end);
    if (end == 0 || !(modifier.endsWith("*5M"_L1) || modifier.endsWith("*1M"_L1)))
        return false;
    command.isModified = true;
    command.percent = modifier.size() > 3 ? number(modifier.chopped(3)).value_or(noNumber) : noNumber;
    sale.truncate(end);
    return true;
}

/// The quantity is written as it stands in the job, with a point or a comma.
double quantityIn(const QString &text)
{
    bool isNumber = false;
    const double value = QString(text).replace(u',', u'.').toDouble(&isNumber);
    return isNumber ? value : noNumber;
}

/// "3*650H2": the last "*" that a number and an "H" follow ends the quantity, for a quantity may be any text.
bool parseNumbers(QStringView sale, RegisterCommand &command)
{
    constexpr qsizetype longestNumber = 30; // characters; the renderer's have 22
    for (qsizetype star = sale.lastIndexOf(u'*'); star >= 0; star = sale.first(star).lastIndexOf(u'*')) {
        const QStringView behind = sale.sliced(star + 1);
        const qsizetype length = behind.first(qMin(longestNumber, behind.size())).indexOf(u'H');
        const std::optional<double> cents = length > 0 ? number(behind.first(length)) : std::nullopt;
        if (!cents)
            continue;
        command.cents = *cents;
        command.quantityText = sale.first(star).toString();
        command.quantity = quantityIn(command.quantityText);
        command.department = behind.sliced(length + 1).toString();
        return true;
    }
    return false;
}

std::optional<RegisterCommand> parseSale(QStringView line, bool isTail)
{
    const qsizetype end = line.lastIndexOf(u'"');
    RegisterCommand command;
    command.descriptionBegin = line.startsWith(u'"') && end > 0 ? 1 : 0;
    command.descriptionEnd = end;
    if (end < 0 || (command.descriptionBegin == 0 && !isTail))
        return {};
    QStringView rest = line.sliced(end + 1);
    if (!takeModifier(rest, command) || !parseNumbers(rest.chopped(1), command))
        return {};
    command.description = line.first(end).sliced(command.descriptionBegin).toString();
    return command;
}

QString named(const QString &text, const QString &whenEmpty)
{
    return text.isEmpty() ? whenEmpty : text;
}

QString modifierMeaning(const RegisterCommand &sale)
{
    if (std::isnan(sale.percent))
        return RegisterWords::tr(", with a modifier that is no number");
    const QString percent = percentText(std::abs(sale.percent));
    return sale.percent < 0 ? RegisterWords::tr(", less %1").arg(percent)
                            : RegisterWords::tr(", plus %1").arg(percent);
}

QString saleMeaning(const RegisterCommand &sale)
{
    QString meaning = RegisterWords::tr("sale: %1 x %2 at %3")
                          .arg(named(sale.quantityText, RegisterWords::tr("no quantity")),
                               named(sale.description, RegisterWords::tr("an item without a name")),
                               amountText(sale.cents));
    if (sale.isModified)
        meaning += modifierMeaning(sale);
    if (sale.isModified || sale.quantity != 1)
        meaning += " = "_L1 + amountText(priceOf(sale));
    return meaning + ", "_L1 +
           (sale.department.isEmpty() ? RegisterWords::tr("no department")
                                      : RegisterWords::tr("department %1").arg(sale.department));
}

} // namespace

const ClosingCommand *closingCommand(Kind kind)
{
    const auto *command = std::ranges::find(closingCommands, kind, &ClosingCommand::kind);
    return command == std::end(closingCommands) ? nullptr : command;
}

std::optional<RegisterCommand> parseCommand(QStringView line, bool isTail)
{
    for (const ClosingCommand &form : closingCommands) {
        if (std::optional<RegisterCommand> command = parseClosing(line, form))
            return command;
    }
    return parseSale(line, isTail);
}

bool endsWithReturn(const RegisterCommand &command)
{
    const ClosingCommand *closing = closingCommand(command.kind);
    return !closing || closing->endsWithReturn;
}

QString wordsOf(const ClosingCommand &closing)
{
    return RegisterWords::tr(closing.meaning.data());
}

QString meaningOf(const RegisterCommand &command)
{
    const ClosingCommand *closing = closingCommand(command.kind);
    if (!closing)
        return saleMeaning(command);
    const bool isDiscount = command.kind == Kind::Discount;
    return wordsOf(*closing) + ": "_L1 +
           (isDiscount ? percentText(command.percent) : amountText(command.cents));
}

double priceOf(const RegisterCommand &sale)
{
    return sale.quantity * sale.cents * (1 + sale.percent / 100);
}

QString amountText(double cents)
{
    if (!std::isfinite(cents))
        return RegisterWords::tr("no number");
    const double amount = cents / 100 + 0.0; // no minus in front of a zero
    const QString text = QString::number(amount, 'g', exactDigits);
    if (text.contains(u'e'))
        return text;
    const qsizetype decimals = text.contains(u'.') ? text.size() - text.indexOf(u'.') - 1 : 0;
    return decimals >= 2 ? text : QString::number(amount, 'f', 2);
}

QString percentText(double percent)
{
    return QString::number(percent + 0.0, 'g', exactDigits) + " %"_L1;
}

} // namespace paper

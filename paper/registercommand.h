#pragma once

#include <QCoreApplication>
#include <QLatin1StringView>
#include <QString>
#include <QStringView>

#include <optional>

namespace paper {

/// One command to the cash register, taken apart. Amounts are in cents and not rounded; NaN stands for one
/// that is no number.
struct RegisterCommand
{
    enum class Kind { Sale, Reduction, Discount, Cash, CreditCard, Cheque, NotPaid };

    Kind kind = Kind::Sale;
    double cents = 0;        ///< the price of one, the reduction, the payment
    double percent = 0;      ///< the discount; the modifier of a sale, 10 for ten per cent more
    double quantity = 1;     ///< of a sale
    bool isModified = false; ///< a sale with a modifier
    QString description;     ///< of a sale, from here on
    QString quantityText;
    QString department;
    /// Where in the line the description of a sale stands, quotes not counted, in code units.
    qsizetype descriptionBegin = 0;
    qsizetype descriptionEnd = 0;
};

/// A command that is a payment or the like: what stands before and behind its value, and what it means.
struct ClosingCommand
{
    QLatin1StringView prefix;
    QLatin1StringView suffix;
    RegisterCommand::Kind kind;
    QLatin1StringView meaning; ///< to be translated in the context "Register"
    bool endsWithReturn;       ///< with CR LF, as a sale does; the others with LF alone
};

inline constexpr ClosingCommand closingCommands[] = {
    {QLatin1StringView("="), QLatin1StringView("H4M"), RegisterCommand::Kind::Reduction,
     QLatin1StringView(QT_TRANSLATE_NOOP("Register", "reduction")), true},
    {QLatin1StringView("="), QLatin1StringView("* 2M"), RegisterCommand::Kind::Discount,
     QLatin1StringView(QT_TRANSLATE_NOOP("Register", "discount")), false},
    {QLatin1StringView(""), QLatin1StringView("H1T"), RegisterCommand::Kind::Cash,
     QLatin1StringView(QT_TRANSLATE_NOOP("Register", "cash")), false},
    {QLatin1StringView(""), QLatin1StringView("H3T"), RegisterCommand::Kind::CreditCard,
     QLatin1StringView(QT_TRANSLATE_NOOP("Register", "credit card")), false},
    {QLatin1StringView(""), QLatin1StringView("H2T"), RegisterCommand::Kind::Cheque,
     QLatin1StringView(QT_TRANSLATE_NOOP("Register", "cheque")), false},
    {QLatin1StringView(""), QLatin1StringView("H5T"), RegisterCommand::Kind::NotPaid,
     QLatin1StringView(QT_TRANSLATE_NOOP("Register", "not paid")), false},
};

/// The row of that kind; null for a sale.
const ClosingCommand *closingCommand(RegisterCommand::Kind kind);

/// The command in `line`, which ends before its carriage return. With `isTail`, a description that began on
/// an earlier line may end in this one: then no quote opens it. Nothing when it is no command.
std::optional<RegisterCommand> parseCommand(QStringView line, bool isTail = false);

/// Whether the register wants the command's line to end in CR LF.
bool endsWithReturn(const RegisterCommand &command);

/// What the closing command is about, in words.
QString wordsOf(const ClosingCommand &closing);
/// What the register does at the command, in words.
QString meaningOf(const RegisterCommand &command);

/// What a sale comes to, in cents; NaN when something in it is no number.
double priceOf(const RegisterCommand &sale);

/// "16.20" for 1620 cents; more decimals where there are parts of a cent.
QString amountText(double cents);
/// "10 %" for 10.
QString percentText(double percent);

} // namespace paper

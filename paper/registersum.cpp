#include "registersum.h"

#include <QStringList>

#include <cmath>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace paper {

namespace {

using Kind = RegisterCommand::Kind;

/// What the command is about, in cents or per cent.
double valueOf(const RegisterCommand &command)
{
    if (command.kind == Kind::Sale)
        return priceOf(command);
    return command.kind == Kind::Discount ? command.percent : command.cents;
}

/// Sums of hundreds of decimal amounts are off by less than this, in cents.
constexpr double rounding = 1e-6;

} // namespace

void RegisterSum::add(const RegisterCommand &command)
{
    isUntouched = false;
    const double value = valueOf(command);
    if (!std::isfinite(value))
        return addUnread();
    switch (command.kind) {
    case Kind::Sale:
        sales += value;
        break;
    case Kind::Reduction:
        reductions += value;
        break;
    case Kind::Discount: // of what was sold so far
        discounts += total() * value / 100;
        break;
    default:
        payments.at(closingCommand(command.kind) - closingCommands) += value;
    }
}

QString RegisterSum::text() const
{
    QString text = "The register will show "_L1 + amountText(total()) + partsText() + u'.' + paymentText();
    if (unread > 0)
        text += u" Not counted: %1 that could not be read."_s.arg(unread == 1 ? u"1 command"_s
                                                                              : u"%1 commands"_s.arg(unread));
    return text;
}

double RegisterSum::paid() const
{
    return std::accumulate(payments.begin(), payments.end(), 0.0);
}

/// How the sum comes about, where it is not the sales alone.
QString RegisterSum::partsText() const
{
    if (reductions == 0 && discounts == 0)
        return {};
    QString text = ": sales "_L1 + amountText(sales);
    if (reductions != 0)
        text += ", less reductions "_L1 + amountText(reductions);
    if (discounts != 0)
        text += ", less discount "_L1 + amountText(discounts);
    return text;
}

QString RegisterSum::paymentText() const
{
    QStringList kinds;
    for (std::size_t i = 0; i < payments.size(); ++i) {
        if (payments.at(i) != 0)
            kinds += closingCommands[i].meaning + u' ' + amountText(payments.at(i));
    }
    if (kinds.isEmpty())
        return {};
    const double left = total() - paid();
    const QString text = " Settled by "_L1 + kinds.join(", "_L1);
    if (std::abs(left) < rounding)
        return text + u'.';
    return text + ": "_L1 + amountText(std::abs(left)) + (left > 0 ? " less"_L1 : " more"_L1) +
           " than the sum."_L1;
}

} // namespace paper

#include "registersum.h"

#include "registerwords.h"

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
    const QString sum = RegisterWords::tr("The register will show %1").arg(amountText(total()));
    return sum + partsText() + u'.' + paymentText() + unreadText();
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
    QString text = RegisterWords::tr(": sales %1").arg(amountText(sales));
    if (reductions != 0)
        text += RegisterWords::tr(", less reductions %1").arg(amountText(reductions));
    if (discounts != 0)
        text += RegisterWords::tr(", less discount %1").arg(amountText(discounts));
    return text;
}

QString RegisterSum::unreadText() const
{
    if (unread == 0)
        return {};
    return u' ' + (unread == 1
                       ? RegisterWords::tr("Not counted: 1 command that could not be read.")
                       : RegisterWords::tr("Not counted: %1 commands that could not be read.").arg(unread));
}

QString RegisterSum::paymentText() const
{
    QStringList kinds;
    for (std::size_t i = 0; i < payments.size(); ++i) {
        if (payments.at(i) != 0)
            kinds += wordsOf(closingCommands[i]) + u' ' + amountText(payments.at(i));
    }
    if (kinds.isEmpty())
        return {};
    const double left = total() - paid();
    const QString text = u' ' + RegisterWords::tr("Settled by %1").arg(kinds.join(", "_L1));
    if (std::abs(left) < rounding)
        return text + u'.';
    const QString amount = amountText(std::abs(left));
    return text + ": "_L1 +
           (left > 0 ? RegisterWords::tr("%1 less than the sum.").arg(amount)
                     : RegisterWords::tr("%1 more than the sum.").arg(amount));
}

} // namespace paper

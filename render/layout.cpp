// Rows, column titles and rules: everything on the paper that stands in columns.

#include "columns.h"
#include "printerdriver.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int dateWidth = 15; ///< of the date column in a statement of account

/// What of the paper is left when `taken` characters are, in 32-bit arithmetic that wraps: widths come from
/// the configuration as they stand, and no sum of them may be an overflow.
template <typename... Widths>
int leftOver(int paperWidth, Widths... taken)
{
    return static_cast<int>(static_cast<unsigned>(paperWidth) - (static_cast<unsigned>(taken) + ...));
}

/// The description is the one column that is cut: it loses its tail, whatever else the row holds.
QString descriptionColumn(const QString &text, int width, QChar fill)
{
    return columns::cut(columns::leftJustified(text, width, fill), width);
}

} // namespace

QString PrinterDriver::descriptionRow(const QString &quantity, const QString &description,
                                      const QString &price, const QString &total, QChar fill,
                                      const QString &style) const
{
    const int Q = documentSettings.quantityFieldWidth;
    const int P = documentSettings.priceFieldWidth;
    const int T = documentSettings.totalPriceFieldWidth;
    const int W = documentSettings.paperWidth;
    const QChar blank = u' ';

    if (style == "qdpt"_L1)
        return columns::rightJustified(quantity, Q, blank) + blank +
               descriptionColumn(description, leftOver(W, Q, P, T, 1), fill) +
               columns::rightJustified(price, P, fill) + columns::rightJustified(total, T, blank);
    if (style == "qxdpt"_L1)
        return columns::rightJustified(quantity, Q, blank) + " x "_L1 +
               descriptionColumn(description, leftOver(W, Q, P, T, 3), fill) +
               columns::rightJustified(price, P, fill) + columns::rightJustified(total, T, blank);
    if (style == "qxd"_L1)
        return columns::rightJustified(quantity, Q, blank) + " x "_L1 +
               descriptionColumn(description, leftOver(W, Q, 3), fill);
    // Two characters short of the paper, and blank whatever the fill. It stays so: kitchens know their
    // tickets.
    if (style == "qd"_L1)
        return columns::rightJustified(quantity, Q, blank) + blank +
               descriptionColumn(description, leftOver(W, Q, 3), blank);
    if (style == "qxdtDoubleLine"_L1)
        return quantity + " x "_L1 + price + u'\n' + descriptionColumn(description, leftOver(W, T), fill) +
               columns::rightJustified(total, T, fill);
    // Three characters short of the paper, on purpose; the total is not used.
    if (style == "date-amount-type"_L1)
        return columns::leftJustified(quantity, dateWidth, blank) +
               descriptionColumn(description, leftOver(W, dateWidth, P, 3), fill) +
               columns::rightJustified(price, P, fill);
    return {};
}

void PrinterDriver::printColumnsHeader(const QString &quantity, const QString &description,
                                       const QString &price, const QString &total)
{
    if (!oneTime())
        return;
    setBold();
    println(descriptionRow(quantity, description, price, total, u' ', u"qdpt"_s));
    setCharSize();
}

void PrinterDriver::printSeparatorLine()
{
    println(columns::leftJustified(QString(), documentSettings.paperWidth, u'='));
}

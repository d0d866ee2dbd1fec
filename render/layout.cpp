// Rows, column titles and rules: everything on the paper that stands in columns.

#include "columns.h"
#include "printerdriver.h"

#include <QObject>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int dateWidth = 15; ///< of the date column in a statement of account

/// What of the paper is left when `taken` characters are, in 32-bit arithmetic that wraps: widths come from
/// the configuration as they stand, and no sum of them may be an overflow.
template <typename... Widths>
int leftOver(int paper, Widths... taken)
{
    return static_cast<int>(static_cast<unsigned>(paper) - (static_cast<unsigned>(taken) + ...));
}

} // namespace

QString PrinterDriver::descriptionRow(const QString &quantityText, const QString &descriptionText,
                                      const QString &priceText, const QString &totalText, QChar fill,
                                      const QString &style) const
{
    const QString quantity = printable(quantityText);
    const QString description = printable(descriptionText);
    const QString price = printable(priceText);
    const QString total = printable(totalText);
    const int Q = quantityFieldWidth;
    const int P = priceFieldWidth;
    const int T = totalPriceFieldWidth;
    const int W = rowWidth();
    const QChar blank = u' ';

    // The description is the one column that is cut: it loses its tail, whatever else the row holds.
    columns::Row row;
    if (style == "qdpt"_L1) {
        row.rightJustified(quantity, Q, blank)
            .text(u" ")
            .cut(description, leftOver(W, Q, P, T, 1), fill)
            .rightJustified(price, P, fill)
            .rightJustified(total, T, blank);
    } else if (style == "qxdpt"_L1) {
        row.rightJustified(quantity, Q, blank)
            .text(u" x ")
            .cut(description, leftOver(W, Q, P, T, 3), fill)
            .rightJustified(price, P, fill)
            .rightJustified(total, T, blank);
    } else if (style == "qxd"_L1) {
        row.rightJustified(quantity, Q, blank).text(u" x ").cut(description, leftOver(W, Q, 3), fill);
    } else if (style == "qd"_L1) {
        // Two characters short of the paper, and blank whatever the fill: relied upon as it is.
        row.rightJustified(quantity, Q, blank).text(u" ").cut(description, leftOver(W, Q, 3), blank);
    } else if (style == "qxdtDoubleLine"_L1) {
        row.text(quantity)
            .text(u" x ")
            .text(price)
            .text(u"\n")
            .cut(description, leftOver(W, T), fill)
            .rightJustified(total, T, fill);
    } else if (style == "date-amount-type"_L1) {
        // Three characters short of the paper, on purpose; the total is not used.
        row.leftJustified(quantity, dateWidth, blank)
            .cut(description, leftOver(W, dateWidth, P, 3), fill)
            .rightJustified(price, P, fill);
    }
    return row.toString();
}

const ItemTitles &PrinterDriver::itemTitles()
{
    if (!titles)
        titles = ItemTitles{QObject::tr("Num"), QObject::tr("Description"), QObject::tr("Price"),
                            QObject::tr("Amount")};
    return *titles;
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
    println(columns::leftJustified(QString(), rowWidth(), u'='));
}

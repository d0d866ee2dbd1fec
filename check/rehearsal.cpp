#include "rehearsal.h"

using namespace Qt::Literals::StringLiterals;

namespace check {

void Rehearsal::forgetRows()
{
    printed.clear();
    isWithoutTitles = false;
}

void Rehearsal::startSection()
{
    CompanyPrinterDriver::startSection();
    hasTitles = false;
    forgetRows(); // brackets are no rows
}

void Rehearsal::printColumnsHeader(const QString &quantity, const QString &description, const QString &price,
                                   const QString &total)
{
    isWithoutTitles = isWithoutTitles || (oneTimeDone && !hasTitles);
    hasTitles = true;
    CompanyPrinterDriver::printColumnsHeader(quantity, description, price, total);
}

void Rehearsal::write(const QString &text)
{
    const bool isRow = text.endsWith("\"@\n"_L1) && !isFiscal();
    const QStringView row = isRow ? QStringView(text).sliced(1).chopped(3) : QStringView(text).trimmed();
    if (printed.isEmpty() || printed.last() != row) // a margin may be miles long
        printed += row.toString();
}

} // namespace check

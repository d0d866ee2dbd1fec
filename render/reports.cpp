// The report of a period: counts, serial ranges, payments and taxes, as the ordering application computed
// them.

#include "columns.h"
#include "documents.h"
#include "printerdriver.h"

#include <QObject>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int rateWidth = 6;
constexpr int amountWidth = 10;
constexpr int serialWidth = 10;
constexpr int cancelledTotalWidth = 11;

QString right(const PrinterDriver &driver, const QString &text, int width)
{
    return columns::rightJustified(driver.printable(text), width, u' ');
}

QString left(const PrinterDriver &driver, const QString &text, int width)
{
    return columns::leftJustified(driver.printable(text), width, u' ');
}

/// A blank line and the title, centred; then a blank line at the left.
void printTitle(PrinterDriver &driver, const QString &title)
{
    driver.setBold();
    driver.setCenterJustify();
    driver.println(QString());
    driver.println(title);
    driver.setCharSize();
    driver.println(QString());
}

/// The text at a position, told by no name; "" behind the last.
QString valueAt(const QXmlAttributes &attributes, int index)
{
    return index < attributes.count() ? attributes.value(index) : QString();
}

void printCancelledRow(PrinterDriver &driver, const QString &serial, const QString &total,
                       const QString &taxRate)
{
    driver.print(0, left(driver, serial, serialWidth));
    driver.print(0, left(driver, total, cancelledTotalWidth));
    driver.println(left(driver, taxRate, serialWidth));
}

} // namespace

void PrinterDriver::printReport(const QString &element, const QXmlAttributes &attributes)
{
    printDocument(vocabulary::report, element, attributes);
}

void printReportPeriod(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.setBold();
    driver.setCenterJustify();
    driver.println(QString());
    driver.println(QObject::tr("SUMMARIES"));
    driver.println(QString()); // centred, unlike the one below every other title
    driver.setCharSize();
    printLines(driver, vocabulary::reportPeriodAttributes, attributes);
}

void printPrefiscalsSummary(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    printTitle(driver, QObject::tr("PREFISCAL SUMMARY"));
    printLines(driver, vocabulary::prefiscalsSummaryAttributes, attributes);
}

void printReceiptsSummary(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    printTitle(driver, QObject::tr("RECEIPTS SUMMARY"));
    printLines(driver, vocabulary::receiptsSummaryAttributes, attributes);
    driver.println(QString());
    driver.printSeparatorLine();
    driver.println(right(driver, QObject::tr("TAXRATE"), rateWidth) + u' ' +
                   right(driver, QObject::tr("TAXABLE"), amountWidth) + u' ' +
                   right(driver, QObject::tr("TAX"), amountWidth) + u' ' +
                   right(driver, QObject::tr("AMOUNT"), amountWidth));
}

void printTaxRateRow(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    // The percent sign makes the row one character wider than its header, and a blank ends it: both stay
    // as they are.
    driver.println(right(driver, attributes.value("taxrate"_L1), rateWidth) + "% "_L1 +
                   right(driver, attributes.value("taxable"_L1), amountWidth) + u' ' +
                   right(driver, attributes.value("tax"_L1), amountWidth) + u' ' +
                   right(driver, attributes.value("amount"_L1), amountWidth) + u' ');
}

void printInvoicesSummary(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.printSeparatorLine();
    driver.println(QString());
    printTitle(driver, QObject::tr("INVOICES SUMMARY"));
    printLines(driver, vocabulary::invoicesSummaryAttributes, attributes);
}

void printCancelledSummary(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    printTitle(driver, QObject::tr("CANCELLED DOC SUMMARY"));
    printLines(driver, vocabulary::cancelledSummaryAttributes, attributes);
    driver.setBold();
    driver.println(QString());
    printCancelledRow(driver, QObject::tr("SERIAL"), QObject::tr("TOTAL"), QObject::tr("TAXRATE"));
    // The cancelled documents follow the two counters as triples, told by their position: their names are
    // anything.
    for (int i = 2; i < attributes.count(); i += 3)
        printCancelledRow(driver, valueAt(attributes, i), valueAt(attributes, i + 1),
                          valueAt(attributes, i + 2));
}

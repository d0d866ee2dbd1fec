// The report of a period: counts, serial ranges, payments and taxes, as the ordering application computed
// them.

#include "columns.h"
#include "documents.h"
#include "printerdriver.h"

#include <QObject>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int valueWidth = 15; ///< what a dotted line leaves free for its value
constexpr int rateWidth = 6;
constexpr int amountWidth = 10;
constexpr int serialWidth = 10;
constexpr int cancelledTotalWidth = 11;

QString right(const QString &text, int width)
{
    return columns::rightJustified(text, width, u' ');
}

QString left(const QString &text, int width)
{
    return columns::leftJustified(text, width, u' ');
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

void printDottedLabel(PrinterDriver &driver, const QString &label)
{
    const int width = qMax<qint64>(0, qint64(driver.settings().paperWidth) - valueWidth);
    driver.print(0, columns::leftJustified(label, width, u'.'));
}

void printDottedLine(PrinterDriver &driver, const QString &label, const QString &value)
{
    printDottedLabel(driver, label);
    driver.println(value);
}

void printSerialRange(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    printDottedLabel(driver, QObject::tr("Serials"));
    driver.print(0, attributes.value("firstserial"_L1));
    driver.print(0, u" - "_s);
    driver.println(attributes.value("lastserial"_L1));
}

/// The text at a position, told by no name; "" behind the last.
QString valueAt(const QXmlAttributes &attributes, int index)
{
    return index < attributes.count() ? attributes.value(index) : QString();
}

void printCancelledRow(PrinterDriver &driver, const QString &serial, const QString &total,
                       const QString &taxRate)
{
    driver.print(0, left(serial, serialWidth));
    driver.print(0, left(total, cancelledTotalWidth));
    driver.println(left(taxRate, serialWidth));
}

} // namespace

void PrinterDriver::printReport(const QString &element, const QXmlAttributes &attributes)
{
    if (!printSections(element, attributes))
        printElement(reportElements, *this, element, attributes);
}

void printReportPeriod(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.setBold();
    driver.setCenterJustify();
    driver.println(QString());
    driver.println(QObject::tr("SUMMARIES"));
    driver.println(QString()); // centred, unlike the one below every other title
    driver.setCharSize();
    driver.print(0, QObject::tr("BeginDate: "));
    driver.println(attributes.value("begindate"_L1));
    driver.print(0, QObject::tr("EndDate: "));
    driver.println(attributes.value("enddate"_L1));
}

void printPrefiscalsSummary(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    printTitle(driver, QObject::tr("PREFISCAL SUMMARY"));
    printDottedLine(driver, QObject::tr("Number"), attributes.value("number"_L1));
    printDottedLine(driver, QObject::tr("TOTAL"), attributes.value("total"_L1));
}

void printReceiptsSummary(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    printTitle(driver, QObject::tr("RECEIPTS SUMMARY"));
    printDottedLine(driver, QObject::tr("Number"), attributes.value("number"_L1));
    printSerialRange(driver, attributes);
    driver.println(QObject::tr("Amount not paid: ") + attributes.value("notPaid"_L1));
    driver.println(QObject::tr("Cash: ") + attributes.value("cash"_L1));
    driver.println(QObject::tr("Credit Card: ") + attributes.value("creditCard"_L1));
    driver.println(QObject::tr("Bancomat: ") + attributes.value("bancomat"_L1));
    driver.println(QObject::tr("Other: ") + attributes.value("other"_L1));
    printDottedLine(driver, QObject::tr("TOTAL"), attributes.value("total"_L1));
    driver.println(QString());
    driver.printSeparatorLine();
    driver.println(right(QObject::tr("TAXRATE"), rateWidth) + u' ' +
                   right(QObject::tr("TAXABLE"), amountWidth) + u' ' +
                   right(QObject::tr("TAX"), amountWidth) + u' ' + right(QObject::tr("AMOUNT"), amountWidth));
}

void printTaxRateRow(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    // The percent sign makes the row one character wider than its header, and a blank ends it: both stay
    // as they are.
    driver.println(right(attributes.value("taxrate"_L1), rateWidth) + "% "_L1 +
                   right(attributes.value("taxable"_L1), amountWidth) + u' ' +
                   right(attributes.value("tax"_L1), amountWidth) + u' ' +
                   right(attributes.value("amount"_L1), amountWidth) + u' ');
}

void printInvoicesSummary(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.printSeparatorLine();
    driver.println(QString());
    printTitle(driver, QObject::tr("INVOICES SUMMARY"));
    printDottedLine(driver, QObject::tr("Number"), attributes.value("number"_L1));
    printSerialRange(driver, attributes);
    printDottedLine(driver, QObject::tr("Taxable"), attributes.value("taxable"_L1));
    printDottedLine(driver, QObject::tr("Tax"), attributes.value("tax"_L1));
    printDottedLine(driver, QObject::tr("TOTAL"), attributes.value("total"_L1));
}

void printCancelledSummary(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    printTitle(driver, QObject::tr("CANCELLED DOC SUMMARY"));
    printDottedLine(driver, QObject::tr("Number"), attributes.value("number"_L1));
    printDottedLine(driver, QObject::tr("TOTAL"), attributes.value("totals"_L1));
    driver.setBold();
    driver.println(QString());
    printCancelledRow(driver, QObject::tr("SERIAL"), QObject::tr("TOTAL"), QObject::tr("TAXRATE"));
    // The cancelled documents follow the two counters as triples, told by their position: their names are
    // anything.
    for (int i = 2; i < attributes.count(); i += 3)
        printCancelledRow(driver, valueAt(attributes, i), valueAt(attributes, i + 1),
                          valueAt(attributes, i + 2));
}

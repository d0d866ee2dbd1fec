// Receipts: one row for each item, or one for each kind of sale.

#include "documents.h"
#include "printerdriver.h"

#include <QObject>

using namespace Qt::Literals::StringLiterals;

void PrinterDriver::printFullOrderReceipt(const QString &element, const QXmlAttributes &attributes)
{
    printDocument(vocabulary::fullReceipt, element, attributes);
}

void PrinterDriver::printAbstractOrderReceipt(const QString &element, const QXmlAttributes &attributes)
{
    printDocument(vocabulary::abstractReceipt, element, attributes);
}

void printReceiptItem(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    const ItemTitles &titles = driver.itemTitles();
    driver.printColumnsHeader(titles.number, titles.description, titles.price, titles.amount);
    driver.println(driver.descriptionRow(attributes.value("number"_L1), attributes.value("name"_L1),
                                         attributes.value("price"_L1), attributes.value("totalPrice"_L1),
                                         u'.', u"qxdpt"_s));
}

void printReceiptSummaryRow(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    // There is no unit price: the row's price is its amount, and the title of the amount column says "Price".
    const ItemTitles &titles = driver.itemTitles();
    driver.printColumnsHeader(titles.number, titles.description, QString(), titles.price);
    driver.println(driver.descriptionRow(attributes.value("number"_L1), attributes.value("name"_L1),
                                         QString(), attributes.value("price"_L1), u'.', u"qxdpt"_s));
}

void printReceiptTotal(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.println(QString());
    printLines(driver, vocabulary::totalAttributes, attributes);
}

void printReceiptNotPaid(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.println(QString());
    printLines(driver, vocabulary::notPaidAttributes, attributes);
}

void printReceiptSummaryNotPaid(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.println(QString());
    // Italian whatever the language of the house, and with three blanks where the full receipt has four: both
    // stay.
    driver.println("   Corrispettivo non pagato: "_L1 + attributes.value("price"_L1));
}

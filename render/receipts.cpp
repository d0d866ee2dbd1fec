// Receipts: one row for each item, or one for each kind of sale.

#include "documents.h"
#include "printerdriver.h"

#include <QObject>

using namespace Qt::Literals::StringLiterals;

void PrinterDriver::printFullOrderReceipt(const QString &element, const QXmlAttributes &attributes)
{
    if (!printSections(element, attributes))
        printElement(fullReceiptElements, *this, element, attributes);
}

void PrinterDriver::printAbstractOrderReceipt(const QString &element, const QXmlAttributes &attributes)
{
    if (!printSections(element, attributes))
        printElement(abstractReceiptElements, *this, element, attributes);
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
    driver.println(driver.descriptionRow(QString(), QObject::tr("TOTAL"), QString(),
                                         attributes.value("price"_L1), u'.', u"qdpt"_s));
}

void printReceiptNotPaid(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.println(QString());
    driver.println(QObject::tr("    Amount not paid: ") + attributes.value("price"_L1));
}

void printReceiptSummaryNotPaid(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.println(QString());
    // Italian whatever the language of the house, and with three blanks where the full receipt has four: both
    // stay.
    driver.println("   Corrispettivo non pagato: "_L1 + attributes.value("price"_L1));
}

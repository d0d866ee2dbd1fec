// Invoices and delivery notes.

#include "documents.h"
#include "printerdriver.h"

#include <QObject>

using namespace Qt::Literals::StringLiterals;

void PrinterDriver::printFullOrderInvoice(const QString &element, const QXmlAttributes &attributes)
{
    printDocument(vocabulary::fullInvoice, element, attributes);
}

void PrinterDriver::printAbstractOrderInvoice(const QString &element, const QXmlAttributes &attributes)
{
    printDocument(vocabulary::abstractInvoice, element, attributes);
}

void PrinterDriver::printFullOrderDelivery(const QString &element, const QXmlAttributes &attributes)
{
    // A delivery note is the order's ticket on other paper, and the customer block is its own.
    if (element == "customer"_L1)
        printCustomerHeader(attributes);
    else
        printPartialOrder(element, attributes);
}

void printInvoiceItem(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    const ItemTitles &titles = driver.itemTitles();
    driver.printColumnsHeader(titles.number, titles.description, titles.price, titles.amount);
    // "qdpt" where the receipt has "qxdpt": an invoice shows no "x".
    driver.println(driver.descriptionRow(attributes.value("number"_L1), attributes.value("name"_L1),
                                         attributes.value("price"_L1), attributes.value("totalPrice"_L1),
                                         u'.', u"qdpt"_s));
}

void printInvoiceTotals(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.setBold();
    driver.println(QString());
    printLines(driver, vocabulary::invoiceTotalsAttributes, attributes);
    driver.setCharSize();
}

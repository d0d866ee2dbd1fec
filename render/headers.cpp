// The head of every document: printer, margin, header lines, company, number, order and customer.

#include "documents.h"
#include "printerdriver.h"

#include <QObject>
#include <QStringTokenizer>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The lines of an address stand in one attribute, between commas. An empty one ends the list, even in the
/// middle.
void printAddress(PrinterDriver &driver, const QString &address)
{
    for (const QStringView line : QStringTokenizer(address, u',')) {
        if (line.isEmpty())
            return;
        driver.println(1, line.trimmed().toString());
    }
}

void printLabelled(PrinterDriver &driver, const QString &label, const QString &value)
{
    driver.print(1, label);
    driver.println(1, value);
}

void printEveryValue(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    for (int i = 0; i < attributes.count(); ++i)
        driver.println(attributes.value(i));
}

} // namespace

bool PrinterDriver::printSections(const QString &element, const QXmlAttributes &attributes)
{
    return printElement(sectionElements, *this, element, attributes);
}

void printPrintersSection(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.storePrinter(attributes);
    driver.initPrinter();
}

void printGeometrySection(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.printGeometry(attributes);
}

void printHeadersSection(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.printHeaders(attributes);
    driver.printPrinterInfo(); // whatever `printHeader` says
}

void printLogoSection(PrinterDriver &driver, const QXmlAttributes &)
{
    driver.printLogo(); // whatever `printLogo` says
}

void printCompanySection(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.printCompanyHeader(attributes);
}

void printReceiptSection(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.printReceiptHeader(attributes);
}

void printInvoiceSection(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.printInvoiceHeader(attributes);
}

void printDeliverySection(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.printDeliveryHeader(attributes);
}

void printOrderInfoSection(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.printOrderInfo(attributes);
}

void printCustomer(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.printCustomerHeader(attributes);
}

void PrinterDriver::printGeometry(const QXmlAttributes &)
{
    if (!documentSettings.printGeometry)
        return;
    const int topMargin = documentValue(u"topMargin"_s).toInt();
    for (int line = 0; line < topMargin; ++line)
        println(QString());
}

void PrinterDriver::printPrinterInfo()
{
    setCenterJustify(); // and so it stays until somebody sets a size
    println(printerName);
    printSeparatorLine();
}

void PrinterDriver::printHeaders(const QXmlAttributes &attributes)
{
    if (!documentSettings.printHeader)
        return;
    printEveryValue(*this, attributes);
    printSeparatorLine();
}

void PrinterDriver::printCompanyHeader(const QXmlAttributes &attributes)
{
    if (!documentSettings.printCompany)
        return;
    setCharSize();
    setCenterJustify();
    printEveryValue(*this, attributes);
    setCharSize();
    printSeparatorLine();
}

void PrinterDriver::printReceiptHeader(const QXmlAttributes &attributes)
{
    println(1, QObject::tr("Serial Number: ") + attributes.value("serialnumber"_L1));
    printSeparatorLine();
}

void PrinterDriver::printInvoiceHeader(const QXmlAttributes &attributes)
{
    printLabelled(*this, QObject::tr("Invoice Number:"), attributes.value("serialnumber"_L1));
    printSeparatorLine();
}

void PrinterDriver::printDeliveryHeader(const QXmlAttributes &attributes)
{
    printLabelled(*this, QObject::tr("Delivery Number:"), attributes.value("serialnumber"_L1));
    printSeparatorLine();
}

void PrinterDriver::printOrderInfo(const QXmlAttributes &attributes)
{
    setCharSize();
    if (documentSettings.printDate)
        printLabelled(*this, QObject::tr("Date:"), attributes.value("date"_L1));
    if (documentSettings.printTime)
        printLabelled(*this, QObject::tr("Time:"), attributes.value("time"_L1));
    if (documentSettings.printTable)
        printLabelled(*this, QObject::tr("Table:"), attributes.value("table"_L1));
    if (documentSettings.printWaiter)
        printLabelled(*this, QObject::tr("Waiter:"), attributes.value("waiter"_L1));
    if (documentSettings.printNote)
        printLabelled(*this, QObject::tr("Note:"), attributes.value("note"_L1));
    if (documentSettings.printCredit) {
        orderCredit = attributes.value("credit"_L1);
        printLabelled(*this, QObject::tr("Credit:"), orderCredit);
    }
    printSeparatorLine();
}

void PrinterDriver::printCustomerHeader(const QXmlAttributes &attributes)
{
    if (!documentSettings.printCustomer)
        return;
    println(QObject::tr("CUSTOMER"));
    println(1, attributes.value("name"_L1));
    if (documentSettings.printBillingAddress)
        printAddress(*this, attributes.value("billingaddress"_L1));
    if (documentSettings.printDeliveryAddress)
        printAddress(*this, attributes.value("deliveryaddress"_L1));
    if (documentSettings.printTelephone)
        printLabelled(*this, QObject::tr("Telephone:"), attributes.value("telephone"_L1));
    if (documentSettings.printLicenseNumber)
        printLabelled(*this, QObject::tr("License Number:"), attributes.value("licensenumber"_L1));
    if (documentSettings.printFiscalCode)
        printLabelled(*this, QObject::tr("Fiscal Code:"), attributes.value("fiscalcode"_L1));
    printSeparatorLine();
}

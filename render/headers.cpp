// The head of every document: printer, margin, header lines, company, number, order and customer.

#include "documents.h"
#include "printerdriver.h"

#include <QObject>

using namespace Qt::Literals::StringLiterals;

namespace {

void printEveryValue(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    for (int i = 0; i < attributes.count(); ++i)
        driver.println(attributes.value(i));
}

} // namespace

bool PrinterDriver::printSections(const QString &element, const QXmlAttributes &attributes)
{
    const vocabulary::Element *section = vocabulary::findElement(vocabulary::sectionElements, element);
    if (section)
        section->print(*this, attributes);
    return section;
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
    if (!DocumentSettings::printGeometry)
        return;
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
    if (!printHeader)
        return;
    printEveryValue(*this, attributes);
    printSeparatorLine();
}

void PrinterDriver::printCompanyHeader(const QXmlAttributes &attributes)
{
    if (!printCompany)
        return;
    setCharSize();
    setCenterJustify();
    printEveryValue(*this, attributes);
    setCharSize();
    printSeparatorLine();
}

void PrinterDriver::printReceiptHeader(const QXmlAttributes &attributes)
{
    printLines(*this, vocabulary::receiptAttributes, attributes);
    printSeparatorLine();
}

void PrinterDriver::printInvoiceHeader(const QXmlAttributes &attributes)
{
    printLines(*this, vocabulary::invoiceAttributes, attributes);
    printSeparatorLine();
}

void PrinterDriver::printDeliveryHeader(const QXmlAttributes &attributes)
{
    printLines(*this, vocabulary::deliveryAttributes, attributes);
    printSeparatorLine();
}

void PrinterDriver::printOrderInfo(const QXmlAttributes &attributes)
{
    setCharSize();
    if (printCredit)
        orderCredit = attributes.value("credit"_L1);
    printLines(*this, vocabulary::orderInfoAttributes, attributes);
    printSeparatorLine();
}

void PrinterDriver::printCustomerHeader(const QXmlAttributes &attributes)
{
    if (!printCustomer)
        return;
    println(QObject::tr("CUSTOMER"));
    printLines(*this, vocabulary::customerAttributes, attributes);
    printSeparatorLine();
}

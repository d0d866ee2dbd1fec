// Fiscal receipts: which element becomes which command of the cash register.

#include "columns.h"
#include "documents.h"
#include "printerdriver.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// How much of a description the register takes, in characters.
int descriptionWidth(PrinterDriver &driver)
{
    const int width = driver.settings().descriptionWidth;
    return width == 0 ? static_cast<int>(driver.getPaperWidth()) : width;
}

} // namespace

void PrinterDriver::printFullOrderFiscal(const QString &element, const QXmlAttributes &attributes)
{
    printDocument(vocabulary::fullFiscal, element, attributes);
}

void PrinterDriver::printAbstractOrderFiscal(const QString &element, const QXmlAttributes &attributes)
{
    printDocument(vocabulary::abstractFiscal, element, attributes);
}

void printFiscalItem(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.printRowFiscal(attributes.value("department"_L1), attributes.value("number"_L1),
                          columns::cut(attributes.value("name"_L1), descriptionWidth(driver)),
                          attributes.value("price"_L1));
}

void printFiscalSummaryRow(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.printRowFiscal(attributes.value("department"_L1), u"1"_s, attributes.value("name"_L1),
                          attributes.value("price"_L1));
}

void printFiscalTotal(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.printRowFiscal(u"total"_s, attributes);
}

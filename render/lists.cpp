// The list of items sold, and a customer's statement of account.

#include "documents.h"
#include "printerdriver.h"

#include <QObject>

using namespace Qt::Literals::StringLiterals;

void PrinterDriver::printSold(const QString &element, const QXmlAttributes &attributes)
{
    printDocument(vocabulary::soldList, element, attributes);
}

void PrinterDriver::printStatementOfAccount(const QString &element, const QXmlAttributes &attributes)
{
    printDocument(vocabulary::statementOfAccount, element, attributes);
}

void printSoldItem(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.setBold();
    driver.println(driver.descriptionRow(attributes.value("quantity"_L1), attributes.value("description"_L1),
                                         QString(), attributes.value("amount"_L1), u'.', u"qxdpt"_s));
    driver.setCharSize();
}

void printStatementTitles(PrinterDriver &driver, const QXmlAttributes &)
{
    driver.setBold();
    driver.println(driver.descriptionRow(QObject::tr("Date"), QObject::tr("Description"),
                                         QObject::tr("Amount"), QString(), u' ', u"date-amount-type"_s));
    driver.reset();
}

void printStatementRow(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    // The kind of movement is a word of the job, and its own key in the catalogue.
    const QString type = QObject::tr(attributes.value("type"_L1).toUtf8().constData());
    driver.println(driver.descriptionRow(attributes.value("date"_L1) + ": "_L1, type,
                                         attributes.value("amount"_L1), QString(), u'.',
                                         u"date-amount-type"_s));
}

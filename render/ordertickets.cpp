// Order tickets: what the kitchen prepares, and the priced list of a whole order.

#include "documents.h"
#include "printerdriver.h"

#include <QObject>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A variant of the dish above it: "+ Onions", "- Onions", "2 Onions". No number, or one that is not, takes
/// the ingredient away.
QString variantDescription(const QXmlAttributes &attributes)
{
    const QString quantity = attributes.value("quantity"_L1);
    const double number = quantity.toDouble();
    QString sign = quantity;
    if (number == -1 || number == 0 || std::isnan(number)) // the toolkit takes the word "nan" for a number
        sign = u"-"_s;
    else if (number == 1)
        sign = u"+"_s;
    return sign + u' ' + attributes.value("name"_L1);
}

void printTicketRow(PrinterDriver &driver, const QXmlAttributes &attributes, const QString &description)
{
    driver.println(driver.descriptionRow(attributes.value("number"_L1), description, QString(), QString(),
                                         u'.', u"qd"_s));
}

void printPricedRow(PrinterDriver &driver, const QXmlAttributes &attributes, const QString &description)
{
    driver.println(driver.descriptionRow(attributes.value("number"_L1), description,
                                         attributes.value("price"_L1), attributes.value("totalPrice"_L1),
                                         u'.', u"qdpt"_s));
}

} // namespace

void PrinterDriver::printPartialOrder(const QString &element, const QXmlAttributes &attributes)
{
    // A ticket has no column titles. They would stand above the order information, and that is a header
    // section.
    printDocument(vocabulary::partialOrder, element, attributes);
}

void PrinterDriver::printFullOrder(const QString &element, const QXmlAttributes &attributes)
{
    printDocument(vocabulary::fullOrder, element, attributes);
}

void printTicketItem(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.setCharSize();
    printTicketRow(driver, attributes, attributes.value("name"_L1));
}

void printTicketOtherItem(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.setCharSize(1); // lasts for the variants below it
    printTicketRow(driver, attributes, attributes.value("name"_L1));
}

void printTicketVariant(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    printTicketRow(driver, attributes, variantDescription(attributes));
}

void printPricedItem(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    const QString name = attributes.value("name"_L1);
    if (name.startsWith(u'='))
        return; // neither a row nor the titles above it
    const ItemTitles &titles = driver.itemTitles();
    driver.printColumnsHeader(titles.number, titles.description, titles.price, titles.amount);
    printPricedRow(driver, attributes, name);
}

void printPricedVariant(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    printPricedRow(driver, attributes, variantDescription(attributes));
}

void printPricedTotal(PrinterDriver &driver, const QXmlAttributes &attributes)
{
    driver.println(QString());
    driver.setBold(); // and not switched off: the total is the last line
    printLines(driver, vocabulary::totalAttributes, attributes);
}

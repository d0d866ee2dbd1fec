// The commands of the cash register. A sale ends with CR LF, a closing command with LF alone. Both are relied
// upon as they are.

#include "companyprinterdriver.h"
#include "money.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A closing command is sent for every value but zero; one that is not a number counts as sent.
bool isZero(const QString &value)
{
    bool isNumber = false;
    return value.toDouble(&isNumber) == 0 && isNumber;
}

QString sale(const QString &department, const QString &quantity, const QString &description,
             const QString &cents)
{
    return u'"' + description + u'"' + quantity + u'*' + cents + u'H' + department + u'R';
}

} // namespace

void CompanyPrinterDriver::printRowFiscal(const QString &department, const QString &quantity,
                                          const QString &description, const QString &price)
{
    const double amount = money::parse(price);
    if (amount >= 0 || std::isnan(amount))
        write(sale(department, quantity, description, money::format(amount * 100.0)) + "\r\n"_L1);
    else // a refund: the register takes no description with it
        write(u'=' + money::format(-amount * 100.0) + "H4M\r\n"_L1);
}

void CompanyPrinterDriver::printRowFiscal(const QString &department, const QString &quantity,
                                          const QString &description, const QString &price,
                                          const QString &modifier)
{
    QString suffix = modifier + (modifier.startsWith(u'-') ? "*5M"_L1 : "*1M"_L1);
    suffix.replace(u',', u'.');
    // No refund here: a negative price goes out with its sign.
    write(sale(department, quantity, description, money::toCents(price)) + suffix + "\r\n"_L1);
}

void CompanyPrinterDriver::printRowFiscal(const QString &name, const QXmlAttributes &attributes)
{
    if (name != "total"_L1)
        return;
    const QString discount = money::format(money::parse(attributes.value("discountRate"_L1)));
    const QString price = money::toCents(attributes.value("price"_L1));
    const QString creditCard = money::toCents(attributes.value("creditCard"_L1));
    const QString cheque = money::toCents(attributes.value("cheque"_L1));
    const QString notPaid = money::toCents(attributes.value("notPaid"_L1));
    // Only what is left unpaid is taken off. The cash line carries the whole paid total even when card or
    // cheque lines follow. That is relied upon.
    const QString cash = money::format(price.toDouble() - notPaid.toDouble());

    if (!isZero(discount))
        write(u'=' + discount + "* 2M\n"_L1); // the blank belongs to the command
    if (!isZero(cash))
        write(cash + "H1T\n"_L1);
    if (!isZero(creditCard))
        write(creditCard + "H3T\n"_L1);
    if (!isZero(cheque))
        write(cheque + "H2T\n"_L1);
    if (!isZero(notPaid))
        write(notPaid + "H5T\n"_L1);
}

#include "money.h"

namespace money {

double parse(const QString &text)
{
    QString withPoint = text;
    return withPoint.replace(u',', u'.').toDouble();
}

QString format(double value)
{
    // 15 digits, not the shortest text that reads back as the same number: 4.35 * 100 is 435 cents, not
    // 434.99999999999994.
    constexpr int significantDigits = 15;
    return QString::number(value, 'g', significantDigits);
}

QString toCents(const QString &text)
{
    return format(parse(text) * 100.0);
}

} // namespace money

#pragma once

#include <QString>

/// Amounts as a cash register takes them.
namespace money {

/// The number in `text`, which has a point or a comma before its decimals; 0 when it is none.
double parse(const QString &text);

/// `value` with up to 15 significant digits, "." as the decimal separator, and an exponent from 1e+15 on.
QString format(double value);

/// The amount in `text`, currency units, in cents. Not rounded: "12,345" gives "1234.5".
QString toCents(const QString &text);

} // namespace money

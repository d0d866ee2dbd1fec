#include "plainnumber.h"

#include <algorithm>
#include <cmath>

namespace check {

namespace {

constexpr double halfACent = 0.005;
constexpr double roundingOfBinary = 1e-6;
constexpr qsizetype mostDigits = 12;

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool isPoint(QChar character)
{
    return character == u'.' || character == u',';
}

// So few digits are exact in binary, and so is every sum of them below.

double valueOf(QStringView digits)
{
    double value = 0;
    for (const QChar digit : digits)
        value = 10 * value + (digit.unicode() - u'0');
    return value;
}

double tenToThe(qsizetype power)
{
    double value = 1;
    for (; power > 0; --power)
        value *= 10;
    return value;
}

} // namespace

bool isAllDigits(QStringView text)
{
    return !text.isEmpty() && std::ranges::all_of(text, isDigit);
}

std::optional<double> plainNumber(QStringView text)
{
    const bool isNegative = text.startsWith(u'-');
    const QStringView number = text.sliced(isNegative ? 1 : 0);
    const qsizetype point = std::ranges::find_if(number, isPoint) - number.begin();
    const QStringView decimals = number.mid(point + 1);
    const bool isPlain = number.size() <= mostDigits && isAllDigits(number.first(point)) &&
                         (point == number.size() || isAllDigits(decimals));
    if (!isPlain)
        return std::nullopt;
    const double ten = tenToThe(decimals.size());
    const double value = (valueOf(number.first(point)) * ten + valueOf(decimals)) / ten;
    return isNegative ? -value : value;
}

bool areDifferent(double left, double right)
{
    return std::abs(left - right) > halfACent + roundingOfBinary;
}

QString amountText(double amount)
{
    return QString::number(amount, 'f', 2);
}

} // namespace check

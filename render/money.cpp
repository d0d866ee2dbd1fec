#include "money.h"

#include <array>
#include <charconv>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace money {

double parse(const QString &text)
{
    QString withPoint = text;
    return withPoint.replace(u',', u'.').toDouble();
}

QString format(double value)
{
    // 15 digits, not the shortest text that reads back as the same number: 4.35 * 100 is 435 cents, not
    // 434.99999999999994. By the standard library, because QString::number rounds the exact half up where
    // "%.15g" rounds it to even; and not by printf, whose decimal separator is the locale's.
    constexpr int significantDigits = 15;
    if (std::isnan(value))
        return u"nan"_s; // without the sign that a difference of infinities leaves on it
    std::array<char, 32> text;
    const auto [end, error] =
        std::to_chars(text.begin(), text.end(), value, std::chars_format::general, significantDigits);
    Q_ASSERT(error == std::errc());
    return QString::fromLatin1(text.data(), end - text.data());
}

QString toCents(const QString &text)
{
    return format(parse(text) * 100.0);
}

} // namespace money

#pragma once

#include <QString>

#include <optional>

/// Numbers in texts of a job, for those who reckon with them.
namespace check {

bool isAllDigits(QStringView text);

/// The number in a text of digits with a point or a comma before its decimals, and perhaps a minus; nothing
/// for any other text, and for more digits than an amount of money has: how other people write numbers is not
/// for us to guess.
std::optional<double> plainNumber(QStringView text);

/// Whether the amounts differ by more than the rounding to cents.
bool areDifferent(double left, double right);

/// An amount as messages show it: with a point and two decimals.
QString amountText(double amount);

} // namespace check

#include "sums.h"

#include "plainnumber.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

/// The figures of a row. A member is nothing where the row has no such figure, or no plain number for it.
struct Figures
{
    const vocabulary::Attribute *amountReader = nullptr; ///< null when the element has no amount
    std::optional<double> quantity;
    std::optional<double> price;
    std::optional<double> amount;
};

std::optional<double> numberOf(const JobElement &element, const vocabulary::Attribute *attribute)
{
    return attribute ? plainNumber(element.value(*attribute)) : std::nullopt;
}

/// The attribute of that type which comes first; null when the element has none.
const vocabulary::Attribute *firstOf(const JobElement &element, vocabulary::AttributeType type)
{
    const auto &known = element.vocabulary.attributes;
    const auto found = std::ranges::find(known, type, &vocabulary::Attribute::type);
    return found == known.end() ? nullptr : &*found;
}

Figures figuresOf(const JobElement &element)
{
    const vocabulary::Attribute *amount = firstOf(element, vocabulary::Amount);
    return {.amountReader = amount,
            .quantity = numberOf(element, firstOf(element, vocabulary::Quantity)),
            .price = numberOf(element, firstOf(element, vocabulary::UnitPrice)),
            .amount = numberOf(element, amount)};
}

/// What a row adds to the total.
std::optional<double> contributionOf(const Figures &row)
{
    if (row.amountReader)
        return row.amount;
    if (row.price && *row.price < 0)
        return row.price; // the register takes a reduction once
    return row.price && row.quantity ? std::optional(*row.price * *row.quantity) : std::nullopt;
}

/// Quantity times price against the row's amount.
void checkProduct(const JobElement &element, const Figures &row, FindingSink &sink)
{
    const double product = *row.price * *row.quantity;
    if (!row.amount || !areDifferent(product, *row.amount))
        return;
    sink.take({named("row-sum"), element.tag.valueOf(element.numberOf(*row.amountReader)),
               u"%1 times %2 is %3, not %4"_s.arg(QString::number(*row.quantity), amountText(*row.price),
                                                  amountText(product), amountText(*row.amount)),
               QString()});
}

/// A reduction, which the register takes once.
void checkReduction(const JobElement &element, const Figures &row, FindingSink &sink)
{
    const double product = *row.price * *row.quantity;
    if (!element.isCommand || *row.price >= 0 || !areDifferent(*row.price, product))
        return;
    sink.take({named("row-sum"), element.tag.place(),
               u"the register takes a reduction once: %1, not %2"_s.arg(amountText(*row.price),
                                                                        amountText(product)),
               u"give the whole reduction as its price, with number=\"1\""_s});
}

std::optional<double> numberOf(const JobElement &element, QLatin1StringView name)
{
    const auto &known = element.vocabulary.attributes;
    const auto found = std::ranges::find(known, name, &vocabulary::Attribute::name);
    return found == known.end() ? std::nullopt : numberOf(element, &*found);
}

/// Taxable amount and tax against their sum, which comes last where an element has all three.
void checkTax(const JobElement &element, FindingSink &sink)
{
    const auto taxable = numberOf(element, "taxable"_L1);
    const auto tax = numberOf(element, "tax"_L1);
    if (!taxable || !tax)
        return;
    const vocabulary::Attribute &last = element.vocabulary.attributes.back();
    const auto sum = numberOf(element, &last);
    if (sum && areDifferent(*taxable + *tax, *sum))
        sink.take({named("total-sum"), element.tag.valueOf(element.numberOf(last)),
                   u"taxable amount and tax are %1 together, not %2"_s.arg(amountText(*taxable + *tax),
                                                                           amountText(*sum)),
                   QString()});
}

/// The attribute that holds the total of a document; -1 when the element has none.
int totalOf(const JobElement &element)
{
    if (!element.vocabulary.name.startsWith("total"_L1))
        return -1;
    const int total = element.attributes.index("total"_L1);
    return total >= 0 ? total : element.attributes.index("price"_L1);
}

/// Whether the total is the sum of the rows: as it is, with the discount taken off, or with the tax put on.
bool isTotalOf(const JobElement &element, double sum, double total)
{
    const double discount = numberOf(element, "discountRate"_L1).value_or(0) / 100;
    const auto taxable = numberOf(element, "taxable"_L1);
    return !areDifferent(sum, total) || !areDifferent(sum * (1 - discount), total) ||
           (taxable && !areDifferent(sum, *taxable));
}

} // namespace

void Sums::check(const JobElement &element, Part part, FindingSink &sink)
{
    checkTax(element, sink);
    if (part == Part::Row && !element.rows.isEmpty())
        checkRow(element, sink);
    else if (const int number = totalOf(element); part == Part::Total && number >= 0)
        checkTotal(element, number, sink);
}

void Sums::checkRow(const JobElement &element, FindingSink &sink)
{
    const Figures row = figuresOf(element);
    if (row.price && row.quantity) {
        checkProduct(element, row, sink);
        checkReduction(element, row, sink);
    }
    const auto amount = contributionOf(row);
    sum = sum && amount ? std::optional(*sum + *amount) : std::nullopt;
    hasRow = true;
}

void Sums::checkTotal(const JobElement &element, int number, FindingSink &sink) const
{
    const auto total = plainNumber(element.attributes.value(number));
    if (!hasRow || !sum || !total || isTotalOf(element, *sum, *total))
        return;
    sink.take({named("total-sum"), element.tag.valueOf(number),
               u"the rows add up to %1, not %2"_s.arg(amountText(*sum), amountText(*total)), QString()});
}

} // namespace check

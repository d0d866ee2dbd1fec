#include "registernumbers.h"

#include "money.h"
#include "plainnumber.h"

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

bool isSale(const JobElement &element)
{
    return std::ranges::any_of(element.rows, [](const QString &row) { return row.startsWith(u'"'); });
}

/// Whether the text goes into the register's command as it stands.
bool isCopied(vocabulary::AttributeType type)
{
    return type == vocabulary::Department || type == vocabulary::Quantity;
}

/// Department and quantity of a sale.
void checkCopied(const JobElement &element, int number, vocabulary::AttributeType type, FindingSink &sink)
{
    const QString text = element.attributes.value(number);
    const bool isNumber =
        type == vocabulary::Department ? isAllDigits(text) : plainNumber(text) && !text.startsWith(u'-');
    if (!isNumber)
        sink.take({named("not-a-number"), element.tag.valueOf(number),
                   u"%1 is no number, and goes into the register's command as it is"_s.arg(quoted(text)),
                   u"write digits"_s});
}

bool isAmount(const QString &text, const QString &sent)
{
    bool isNumber = plainNumber(text).has_value();
    if (!isNumber)
        QString(text).replace(u',', u'.').toDouble(&isNumber);
    return isNumber && plainNumber(sent);
}

/// Amounts, which are sent in cents, and rates.
void checkConverted(const JobElement &element, int number, vocabulary::AttributeType type, FindingSink &sink)
{
    const QString text = element.attributes.value(number);
    const bool isRate = type == vocabulary::Rate;
    const QString sent = isRate ? money::format(money::parse(text)) : money::toCents(text);
    if (!isAmount(text, sent))
        sink.take({named("not-a-number"), element.tag.valueOf(number),
                   u"%1 is no amount, and the register is sent %2"_s.arg(quoted(text), sent),
                   u"write digits, with a point or a comma before the cents"_s});
    else if (!isRate && sent.contains(u'.'))
        sink.take({named("lost-cents"), element.tag.valueOf(number),
                   u"%1 has fractions of a cent, and the register is sent %2"_s.arg(quoted(text), sent),
                   u"round it to cents"_s});
}

void checkCommandNumber(const JobElement &element, int number, const vocabulary::Attribute &reader,
                        FindingSink &sink)
{
    const bool mayBeEmpty = reader.whenMissing == vocabulary::WhenMissing::PrintsLess;
    if (isCopied(reader.type)) {
        if (isSale(element)) // a reduction has neither
            checkCopied(element, number, reader.type, sink);
    } else if (!mayBeEmpty || !element.attributes.value(number).isEmpty()) {
        checkConverted(element, number, reader.type, sink);
    }
}

/// A variant's quantity becomes its sign.
void checkSign(const JobElement &element, int number, FindingSink &sink)
{
    const QString text = element.attributes.value(number);
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (!isNumber || std::isnan(value))
        sink.take({named("not-a-number"), element.tag.valueOf(number),
                   u"%1 is no number, and the paper shows \"-\": without"_s.arg(quoted(text)),
                   u"write 1 or -1, or a number with a point before its decimals"_s});
}

} // namespace

void checkNumbers(const JobElement &element, FindingSink &sink)
{
    for (int number = 0; number < element.attributes.count(); ++number) {
        const vocabulary::Attribute *reader = element.readerOf(number);
        if (!reader || reader->reading != vocabulary::Reading::AsNumber)
            continue;
        if (element.isCommand)
            checkCommandNumber(element, number, *reader, sink);
        else
            checkSign(element, number, sink);
    }
}

} // namespace check

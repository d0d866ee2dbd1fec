#include "printedtexts.h"

#include "companyprinterdriver.h"
#include "lines.h"

#include <QObject>

#include <algorithm>
#include <string_view>

using namespace Qt::Literals::StringLiterals;

namespace check {

namespace {

/// As many descriptions as are compared with each other: more than any menu has, and no more memory.
constexpr qsizetype mostDescriptions = 10'000;

constexpr QStringView replacedWord = CompanyPrinterDriver::replacedWord;

/// The toolkit's search prepares itself for longer rows than there are.
bool holds(QStringView row, QStringView text)
{
    return std::u16string_view(row.utf16(), row.size()).find({text.utf16(), size_t(text.size())}) !=
           std::u16string_view::npos;
}

bool isOnPaper(const JobElement &element, QStringView text)
{
    return std::ranges::any_of(element.rows, [text](const QString &row) { return holds(row, text); });
}

/// How much of `text` is on the paper, from its beginning.
qsizetype lengthOnPaper(const JobElement &element, QStringView text)
{
    if (isOnPaper(element, text))
        return text.size();
    qsizetype least = 0;
    qsizetype most = text.size() - 1;
    while (least < most) {
        const qsizetype middle = (least + most + 1) / 2;
        if (isOnPaper(element, text.first(middle)))
            least = middle;
        else
            most = middle - 1;
    }
    return least;
}

/// Whether the printer put its own word in the place of one of the text.
bool isReplaced(const JobElement &element, QStringView text)
{
    const qsizetype at = text.indexOf(replacedWord);
    return at >= 0 &&
           isOnPaper(element, text.first(at).toString() + CompanyPrinterDriver::replacement.toString());
}

/// `text`, or its translation where that is what was printed: a kind of movement is a word of the catalogue.
QString printedFor(const JobElement &element, const QString &text)
{
    if (isOnPaper(element, text))
        return text;
    const QString translated = QObject::tr(text.toUtf8().constData());
    if (translated == text)
        return text;
    return lengthOnPaper(element, translated) > lengthOnPaper(element, text) ? translated : text;
}

/// The first part of an address that is not on the paper; "" when all are. Parts are printed in their order.
QString lostPart(const JobElement &element, QStringView address)
{
    auto row = element.rows.begin();
    bool isEnded = false;
    while (!address.isEmpty()) {
        const qsizetype comma = address.indexOf(u',');
        const QStringView part = comma < 0 ? address : address.first(comma);
        const QStringView line = part.trimmed();
        isEnded = isEnded || part.isEmpty();
        row =
            std::find_if(row, element.rows.end(), [line](const QString &text) { return holds(text, line); });
        if (!line.isEmpty() && (isEnded || row == element.rows.end()))
            return line.toString();
        address = address.mid(part.size() + 1);
    }
    return {};
}

Finding absence(const JobElement &element, const QString &name, const QString &text, Place place)
{
    if (isReplaced(element, text))
        return {named("replaced-word"), place,
                u"the word %1 is printed as %2"_s.arg(replacedWord, CompanyPrinterDriver::replacement),
                u"write it in other letters, such as \"Totale\""_s};
    if (element.isCommand)
        return {named("reduction"), place,
                u"the register takes a reduction without its %1 %2"_s.arg(name, quoted(text)), QString()};
    return {named("not-printed"), place, u"%1 of \"%2\" is not on the paper"_s.arg(quoted(text), name),
            u"the paper shows %1"_s.arg(quoted(element.rows.last()))};
}

void checkAddress(const JobElement &element, int number, const QString &name, FindingSink &sink)
{
    const QString address = element.attributes.value(number);
    const QString lost = lostPart(element, address);
    const Place place = element.tag.valueOf(number);
    if (lost.isEmpty())
        return;
    if (isReplaced(element, lost))
        return sink.take(absence(element, name, lost, place));
    sink.take({named("address-end"), place,
               u"%1 is not printed: an address ends at its first empty part"_s.arg(quoted(lost)),
               u"leave out one of the two commas"_s});
}

/// Whether it has a description, and an amount that is not empty.
bool isPricedItem(const JobElement &element)
{
    const auto &known = element.vocabulary.attributes;
    const auto isPriced = [&](const vocabulary::Attribute &attribute) {
        const bool isMoney = attribute.type == vocabulary::UnitPrice || attribute.type == vocabulary::Amount;
        return isMoney && !element.value(attribute).isEmpty();
    };
    return std::ranges::find(known, vocabulary::Description, &vocabulary::Attribute::type) != known.end() &&
           std::ranges::any_of(known, isPriced);
}

/// Whether the attribute is one whose text should be on the paper: of several of a name the first is.
bool isToPrint(const JobElement &element, int number, const vocabulary::Attribute &reader)
{
    return element.isOn(reader) && reader.reading == vocabulary::Reading::AsText &&
           reader.whenMissing != vocabulary::WhenMissing::ChangesNothing &&
           (isPositional(reader) || element.numberOf(reader) == number);
}

} // namespace

void PrintedTexts::check(const JobElement &element, FindingSink &sink)
{
    if (element.rows.isEmpty() && isPricedItem(element))
        sink.take({named("dropped-item"), element.tag.place(),
                   u"the item is not printed, and its price is not either"_s,
                   u"only the heading of a course begins with \"=\""_s});
    if (element.rows.isEmpty() || element.isCrowded())
        return;
    for (int number = 0; number < element.attributes.count(); ++number) {
        const vocabulary::Attribute *reader = element.readerOf(number);
        if (reader && isToPrint(element, number, *reader))
            checkText(element, number, *reader, sink);
    }
}

void PrintedTexts::checkText(const JobElement &element, int number, const vocabulary::Attribute &reader,
                             FindingSink &sink)
{
    const QString text = element.attributes.value(number);
    if (reader.type == vocabulary::Description)
        checkDescription(element, number, sink);
    else if (reader.printLine == line::address)
        checkAddress(element, number, reader.name, sink);
    else if (!isOnPaper(element, text))
        sink.take(absence(element, reader.name, text, element.tag.valueOf(number)));
}

void PrintedTexts::checkDescription(const JobElement &element, int number, FindingSink &sink)
{
    const QString text = printedFor(element, element.attributes.value(number));
    const QStringView printed = QStringView(text).first(lengthOnPaper(element, text));
    const bool isWhole = printed.size() == text.size();
    const auto place = [&] { return element.tag.valueOf(number); };
    if (!isWhole && (printed.isEmpty() || isReplaced(element, text)))
        return sink.take(absence(element, element.attributes.qName(number), text, place()));
    if (!isWhole && sink.wants(Severity::Note))
        sink.take({named("cut-description"), place(), u"%1 is cut to %2"_s.arg(quoted(text), quoted(printed)),
                   QString()});
    if (!text.isEmpty() && isTwin(text, printed))
        sink.take({named("same-after-cut"), place(),
                   u"%1 and another item are both printed as %2"_s.arg(quoted(text), quoted(printed)),
                   u"shorten the descriptions so that they differ"_s});
}

/// Whether another description was printed as the same text.
bool PrintedTexts::isTwin(const QString &text, QStringView printed)
{
    const size_t hash = qHash(text);
    const size_t known = descriptions.value(qHash(printed), hash);
    if (known == hash && descriptions.size() < mostDescriptions)
        descriptions.insert(qHash(printed), hash);
    return known != hash;
}

} // namespace check

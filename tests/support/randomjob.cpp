#include "randomjob.h"

#include "printmethods.h"

#include <random>
#include <span>

using namespace Qt::Literals::StringLiterals;
using vocabulary::Attribute;
using vocabulary::AttributeType;
using vocabulary::Element;
using vocabulary::PrintMethod;

namespace {

/// The standard fixes this generator to the bit, but not its distributions. Of two throws in one expression
/// it does not say which comes first, so no expression has two.
class Dice
{
public:
    explicit Dice(quint32 seed) : engine(seed) {}

    int below(int bound) { return static_cast<int>(engine() % static_cast<quint32>(bound)); }
    int between(int least, int most) { return least + below(most - least + 1); }
    bool chance(int percent) { return below(100) < percent; }
    template <typename Range>
    const auto &oneOf(const Range &range)
    {
        return *(std::begin(range) + below(static_cast<int>(std::size(range))));
    }
    template <typename Range>
    void shuffle(Range &range)
    {
        for (int i = static_cast<int>(range.size()) - 1; i > 0; --i)
            range.swapItemsAt(i, below(i + 1));
    }

private:
    std::mt19937 engine;
};

const QStringList words{u"Pizza"_s,
                        u"Caffè"_s,
                        u"Acqua"_s,
                        u"di"_s,
                        u"alla"_s,
                        u"con"_s,
                        u"Tagliatelle"_s,
                        u"ragù"_s,
                        u"1/2"_s,
                        u"Menù"_s,
                        u"TOTALE"_s,
                        u"TOTALETOTALE"_s,
                        u"TOT"_s,
                        u"ALE"_s,
                        u"totale"_s,
                        u"50%"_s,
                        u"d'oca"_s,
                        u"= Secondi"_s,
                        u"-"_s,
                        u"A"_s,
                        u"Ñandú"_s,
                        u"Straße"_s,
                        u"&"_s,
                        u"<b>"_s,
                        u"Via Roma 1, 20100 Milano"_s,
                        u"a,,b"_s,
                        u", "_s,
                        u"Rindfleischetikettierungsüberwachungsaufgabenübertragungsgesetz"_s,
                        u"\u00a0"_s};
const QStringList foreignWords{u"寿司"_s,         u"Борщ"_s, u"🍕"_s, u"👩‍🍳"_s, u"Cafe\u0301"_s,
                               u"全角ラーメン"_s, u"שלום"_s, u"ﬁ"_s, u"\u200b"_s,      u"€"_s};
const QStringList controlTexts{u"\""_s, u"Bar \"Roma\""_s, u"one\ntwo"_s, u"\r"_s,
                               u"\t"_s, u"\u001b@"_s,      u"\"@\nJ\n"_s};
/// Numbers as nobody writes them, and what is nearly one.
const QStringList oddTexts{u""_s,        u" "_s,     u"x"_s,       u"nan"_s,     u"NaN"_s,     u"-nan"_s,
                           u"inf"_s,     u"-INF"_s,  u"+inf"_s,    u"1e15"_s,    u"1e0"_s,     u"1e400"_s,
                           u"-1e-400"_s, u"1e"_s,    u"0x10"_s,    u" 1 "_s,     u"\u00a01"_s, u"1 000"_s,
                           u".5"_s,      u"5."_s,    u"."_s,       u"-0"_s,      u"+1"_s,      u"1,0"_s,
                           u"--1"_s,     u"1,2,3"_s, u"0.00001"_s, u"1.234,50"_s};
const QStringList movementTypes{u"Payment"_s, u"Invoice"_s, u"Receipt"_s};

/// A text for an attribute.
class Texts
{
public:
    Texts(Dice &source, const RandomJobOptions &wanted) : dice(source), options(wanted) {}

    QString of(const Attribute &attribute)
    {
        if (options.gaps && dice.chance(4))
            return dice.oneOf(oddTexts);
        return ofType(attribute.type);
    }

private:
    QString ofType(AttributeType type)
    {
        switch (type) {
        case AttributeType::Text:
        case AttributeType::Description:
            return sentence();
        case AttributeType::Date:
            return dice.oneOf(QStringList{u"14/03/2026"_s, u"2026-03-14"_s, u"14 marzo 2026"_s});
        case AttributeType::Time:
            return dice.oneOf(QStringList{u"22:20"_s, u"9.05"_s});
        case AttributeType::Serial:
            return QString::number(dice.between(1, 99999));
        case AttributeType::Quantity:
            return quantity();
        case AttributeType::UnitPrice:
        case AttributeType::Amount:
            return amount();
        case AttributeType::Rate:
            return dice.oneOf(QStringList{u"10"_s, u"22"_s, u"4"_s, u"7,5"_s, u"12.5"_s, u"0"_s});
        case AttributeType::Department:
            return QString::number(dice.between(1, 9));
        }
        return {};
    }

    QString sentence()
    {
        QStringList text;
        for (int i = dice.between(1, dice.chance(10) ? 12 : 4); i > 0; --i)
            text += word();
        return text.join(dice.chance(95) ? u" "_s : u""_s);
    }

    QString word()
    {
        if (options.controls && dice.chance(2))
            return dice.oneOf(controlTexts);
        if (options.beyondLatin1 && dice.chance(6))
            return dice.oneOf(foreignWords);
        return dice.chance(5) ? dice.oneOf(movementTypes) : dice.oneOf(words);
    }

    QString quantity()
    {
        if (dice.chance(20))
            return dice.oneOf(
                QStringList{u"-1"_s, u"0"_s, u"1,5"_s, u"0.25"_s, u"+1"_s, u"1.0"_s, u"1234"_s});
        return QString::number(dice.between(1, 12));
    }

    QString amount()
    {
        const QChar point = dice.chance(50) ? u',' : u'.';
        const int most = dice.chance(10) ? 10'000'000 : 100;
        QString text = QString::number(dice.below(most)) + point;
        text += QString::number(dice.below(100)).rightJustified(2, u'0');
        if (dice.chance(5))
            text += QString::number(dice.below(1000)); // fractions of a cent
        if (options.gaps && dice.chance(3))
            text = "EUR "_L1 + text;
        return dice.chance(6) ? u'-' + text : text;
    }

    Dice &dice;
    const RandomJobOptions &options;
};

QString escaped(const QString &text)
{
    QString xml;
    for (const QChar c : text) {
        if (c == u'"' || c == u'<' || c == u'&' || c == u'\n' || c == u'\r' || c == u'\t')
            xml += "&#"_L1 + QString::number(c.unicode()) + u';';
        else
            xml += c;
    }
    return xml;
}

/// Writes one job.
class JobWriter
{
public:
    JobWriter(quint32 seed, const RandomJobOptions &wanted)
        : dice(seed), options(wanted), texts(dice, options)
    {
    }

    QByteArray write()
    {
        xml = u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<job>\n"_s;
        if (options.strangers && dice.chance(20))
            writeStranger(); // in front of the first method
        for (int i = dice.between(1, options.mostDocuments); i > 0; --i)
            writeDocument();
        return (xml + "</job>\n"_L1).toUtf8();
    }

private:
    const PrintMethod &method()
    {
        if (options.methods.isEmpty())
            return dice.oneOf(vocabulary::printMethods);
        return *vocabulary::findPrintMethod(dice.oneOf(options.methods));
    }

    void writeDocument()
    {
        const PrintMethod &chosen = method();
        const bool isKnown = !options.strangers || !dice.chance(2);
        xml += "<method name=\""_L1 + (isKnown ? chosen.name : "printMenu"_L1) + "\"/>\n"_L1;
        for (int i = dice.below(options.mostElements + 1); i > 0; --i)
            writePiece(chosen);
    }

    void writePiece(const PrintMethod &chosen)
    {
        if (options.strangers && dice.chance(8)) {
            writeStranger();
            return;
        }
        const bool isSection = chosen.document.hasSections && dice.chance(35);
        const auto elements = isSection ? std::span(vocabulary::sectionElements) : chosen.document.elements;
        if (!elements.empty())
            writeElement(dice.oneOf(elements));
    }

    /// An element of any method, or of none.
    void writeStranger()
    {
        const PrintMethod &any = dice.oneOf(vocabulary::printMethods);
        if (any.document.elements.empty() || dice.chance(30))
            xml += dice.oneOf(QStringList{u"<Receipe name=\"a\"/>"_s, u"<order/>"_s, u"<!-- total -->"_s,
                                          u"<page><row name=\"b\">text</row></page>"_s}) +
                   u'\n';
        else
            writeElement(dice.oneOf(any.document.elements));
    }

    void writeElement(const Element &element)
    {
        QStringList attributes = namedAttributes(element);
        if (options.strangers && dice.chance(10))
            attributes += attributeText("colour"_L1, vocabulary::methodAttributes[0]);
        if (element.attributes.empty() || !element.attributes.back().name.isEmpty())
            dice.shuffle(attributes); // unless a position means something
        attributes += attributesByPosition(element);
        const QString tag = element.name + attributes.join(u""_s);
        xml += dice.chance(90) ? u'<' + tag + "/>\n"_L1 : u'<' + tag + ">\n</"_L1 + element.name + ">\n"_L1;
    }

    QStringList namedAttributes(const Element &element)
    {
        QStringList list;
        for (const Attribute &attribute : element.attributes) {
            if (!attribute.name.isEmpty() && !(options.gaps && dice.chance(12)))
                list += attributeText(attribute.name, attribute);
        }
        return list;
    }

    QStringList attributesByPosition(const Element &element)
    {
        QStringList list;
        for (int rounds = dice.below(5); rounds > 0; --rounds) {
            for (const Attribute &attribute : element.attributes) {
                if (attribute.name.isEmpty() && !(options.gaps && dice.chance(4)))
                    list += attributeText(u"text%1"_s.arg(list.size()), attribute);
            }
        }
        return list;
    }

    QString attributeText(const QString &name, const Attribute &attribute)
    {
        return u' ' + name + "=\""_L1 + escaped(texts.of(attribute)) + u'"';
    }

    Dice dice;
    const RandomJobOptions options;
    Texts texts;
    QString xml;
};

/// Writes one configuration.
class ConfigurationWriter
{
public:
    ConfigurationWriter(quint32 seed, const RandomConfigurationOptions &options)
        : dice(seed), isSensible(options.sensible),
          widths(options.extreme ? oddCounts + extremeWidths : oddCounts)
    {
    }

    QByteArray write()
    {
        QString text = u"palvestrin:\n{\n"_s;
        for (const vocabulary::DocumentKind &kind : vocabulary::documentKinds) {
            if (isSensible || !dice.chance(10))
                text += "    "_L1 + kind.block + ":\n    {\n"_L1 + settings() + "    };\n\n"_L1;
        }
        return (text + "};\n"_L1).toLatin1();
    }

private:
    QString settings()
    {
        QString text;
        for (const vocabulary::DocumentSetting &setting : vocabulary::documentSettings) {
            if (isSensible || !dice.chance(20))
                text += u"        %1 = \"%2\";\n"_s.arg(setting.name, value(setting));
        }
        return text;
    }

    QString value(const vocabulary::DocumentSetting &setting)
    {
        switch (setting.kind) {
        case vocabulary::ValueKind::Flag:
            return isSensible || dice.chance(90) ? dice.oneOf(flags) : dice.oneOf(oddFlags);
        case vocabulary::ValueKind::Count:
            return isSensible || dice.chance(90) ? QString::number(dice.between(0, 8))
                                                 : dice.oneOf(oddCounts);
        case vocabulary::ValueKind::Width:
            return isSensible || dice.chance(90) ? QString::number(dice.between(32, 64)) : dice.oneOf(widths);
        default:
            return u"plain"_s;
        }
    }

    // On more often than off: what is off prints nothing that could go wrong.
    const QStringList flags{u"true"_s, u"true"_s, u"true"_s, u"false"_s};
    const QStringList oddFlags{u"True"_s, u""_s, u" true"_s, u"1"_s};
    const QStringList oddCounts{u"0"_s,  u"-3"_s, u"abc"_s, u" 8 "_s,         u"8 cm"_s, u"07"_s,
                                u"24"_s, u"12"_s, u"120"_s, u"99999999999"_s, u"2.5"_s,  u""_s};

    const QStringList extremeWidths{u"3000000"_s, u"2147483647"_s, u"2147483648"_s, u"-2147483648"_s,
                                    u"+40"_s};

    Dice dice;
    const bool isSensible;
    const QStringList widths; ///< odd ones
};

} // namespace

QByteArray randomJob(quint32 seed, const RandomJobOptions &options)
{
    return JobWriter(seed, options).write();
}

QByteArray randomConfiguration(quint32 seed, const RandomConfigurationOptions &options)
{
    return ConfigurationWriter(seed, options).write();
}

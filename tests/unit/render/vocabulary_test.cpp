// What the tables say of elements, attributes and settings, held against what the renderer does.

#include "capturedoutput.h"
#include "companyprinterdriver.h"
#include "documentelements.h"
#include "memoryfile.h"
#include "printmethods.h"
#include "pvconfiguration.h"
#include "temporaryhome.h"

#include <QHash>
#include <QTest>

#include <algorithm>
#include <map>

using namespace Qt::Literals::StringLiterals;
using vocabulary::Attribute;
using vocabulary::AttributeType;
using vocabulary::DocumentSetting;
using vocabulary::Element;
using vocabulary::PrintMethod;
using vocabulary::Reading;
using vocabulary::ValueKind;
using vocabulary::WhenMissing;

namespace {

using Texts = QList<std::pair<QString, QString>>; ///< attributes and their values, in the order of the job

/// Settings by their whole keys, where they are not as in the house that prints everything.
using Changes = std::map<QString, QString>;

/// A house that prints everything, on paper with room for it.
QString valueInTheHouse(const DocumentSetting &setting)
{
    static const QHash<QString, QString> lengths{{u"quantityFieldWidth"_s, u"3"_s},
                                                 {u"priceFieldWidth"_s, u"8"_s},
                                                 {u"totalPriceFieldWidth"_s, u"8"_s},
                                                 {u"paperWidth"_s, u"40"_s},
                                                 {u"topMargin"_s, u"2"_s},
                                                 {u"descriptionWidth"_s, u"24"_s}};
    return lengths.value(setting.name, u"true"_s);
}

/// Values that move whatever a setting can move.
QStringList valuesToTry(const DocumentSetting &setting)
{
    switch (setting.kind) {
    case ValueKind::Flag:
        return {u"false"_s};
    case ValueKind::Count:
    case ValueKind::Width:
        return {u"0"_s, u"1"_s, u"9"_s, u"33"_s, u"70"_s, u"-3"_s};
    default:
        return {u"7"_s, u"qdpt"_s};
    }
}

QString keyOf(const PrintMethod &method, QLatin1StringView setting)
{
    return vocabulary::findDocumentKind(QString(method.kind))->path() + setting;
}

/// A printer with a configuration of its own.
class HousePrinter : public CompanyPrinterDriver
{
public:
    HousePrinter(const QString &fileName, PVConfiguration &house) : CompanyPrinterDriver(fileName)
    {
        configuration = &house;
    }

    void element(const QString &name, const Texts &attributes)
    {
        QXmlAttributes list;
        for (const auto &[attribute, value] : attributes)
            list.append(attribute, QString(), attribute, value);
        startElement(QString(), name, name, list);
    }
};

/// Every attribute of an element, the unnamed ones once, with a short text that counts where a number is
/// read.
Texts allTexts(const Element &element)
{
    Texts texts;
    for (const Attribute &row : element.attributes) {
        const QString name = row.name.isEmpty() ? u"any%1"_s.arg(texts.size()) : QString(row.name);
        texts.emplaceBack(name,
                          row.reading == Reading::AsNumber ? QString::number(7 + texts.size()) : u"Ab"_s);
    }
    return texts;
}

Texts with(Texts texts, qsizetype index, const QString &value)
{
    texts[index].second = value;
    return texts;
}

Texts without(Texts texts, qsizetype index)
{
    texts.removeAt(index);
    return texts;
}

bool takesPositions(const Element &element)
{
    return !element.attributes.empty() && element.attributes.back().name.isEmpty();
}

/// Every name of an attribute, and some that no element knows.
QStringList attributeNames()
{
    QStringList names{u"colour"_s, u"Name"_s, u"PRICE"_s, u"any0"_s, u"id"_s};
    for (const PrintMethod &method : vocabulary::printMethods) {
        for (const Element *element : elementsOf(method.document)) {
            for (const Attribute &row : element->attributes)
                names += row.name;
        }
    }
    names.removeAll(QString());
    names.removeDuplicates();
    return names;
}

/// The elements of all documents; of those with the same name the first.
std::map<QString, const Element *> elementsByName()
{
    std::map<QString, const Element *> elements;
    for (const PrintMethod &method : vocabulary::printMethods) {
        for (const Element *element : elementsOf(method.document))
            elements.try_emplace(element->name, element);
    }
    return elements;
}

QByteArray told(const PrintMethod &method, const Element &element, const QString &what)
{
    return (method.name + ' '_L1 + element.name + ' '_L1 + what).toLatin1();
}

} // namespace

class VocabularyTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home;
    std::map<Changes, std::unique_ptr<PVConfiguration>> houses;

    PVConfiguration &house(const Changes &changes)
    {
        std::unique_ptr<PVConfiguration> &known = houses[changes];
        if (known)
            return *known;
        QString text = u"palvestrin: {\n"_s;
        for (const vocabulary::DocumentKind &kind : vocabulary::documentKinds) {
            text += kind.block + ": {\n"_L1;
            for (const DocumentSetting &setting : vocabulary::documentSettings) {
                const auto change = changes.find(kind.path() + setting.name);
                text += setting.name + " = \""_L1 +
                        (change == changes.end() ? valueInTheHouse(setting) : change->second) + "\";\n"_L1;
            }
            text += "};\n"_L1;
        }
        known = std::make_unique<PVConfiguration>();
        known->readFile(MemoryFile((text + "};\n"_L1).toLatin1()).path(), u"cfg"_s);
        return *known;
    }

    using Piece = std::pair<QString, Texts>;

    QByteArray paperOf(const PrintMethod &method, const QList<Piece> &pieces, const Changes &changes)
    {
        const MemoryFile file;
        {
            HousePrinter printer(file.path(), house(changes));
            printer.element(u"method"_s, {{u"name"_s, method.name}});
            for (const auto &[element, texts] : pieces)
                printer.element(element, texts);
            printer.endDocument();
        }
        return file.content();
    }

    /// The paper of a job with one element. The printer's name stands below it where there are sections.
    QByteArray paper(const PrintMethod &method, const QString &element, const Texts &texts,
                     const Changes &changes = {})
    {
        return paperOf(method, {{element, texts}, {u"headers"_s, {}}}, changes);
    }
    QByteArray paper(const PrintMethod &method, const Element &element, const Texts &texts,
                     const Changes &changes = {})
    {
        return paper(method, QString(element.name), texts, changes);
    }

    /// Calls `check` with every attribute of every element of the method that is being tested.
    template <typename Check>
    void forEveryAttribute(Check check)
    {
        const PrintMethod &method = methodOfTheRow();
        for (const Element *element : elementsOf(method.document)) {
            for (qsizetype i = 0; i < qsizetype(element->attributes.size()); ++i)
                check(method, *element, i, element->attributes[i]);
        }
    }

    static void addMethods()
    {
        QTest::addColumn<int>("method");
        for (int i = 0; i < int(std::size(vocabulary::printMethods)); ++i)
            QTest::newRow(vocabulary::printMethods[i].name.data()) << i;
    }

    static const PrintMethod &methodOfTheRow()
    {
        QFETCH(int, method);
        return vocabulary::printMethods[method];
    }

private Q_SLOTS:
    void initTestCase() { home.configure("palvestrin: { };"); }

    void namesAreUnique_data() { addMethods(); }
    void namesAreUnique()
    {
        QStringList names;
        for (const Element *element : elementsOf(methodOfTheRow().document)) {
            names += element->name;
            QStringList attributes;
            for (const Attribute &row : element->attributes) {
                if (!row.name.isEmpty())
                    attributes += row.name;
            }
            QCOMPARE(attributes.removeDuplicates(), 0);
        }
        QCOMPARE(names.removeDuplicates(), 0);
    }

    void titlesAreOfAnElementOfTheSameDocument_data() { addMethods(); }
    void titlesAreOfAnElementOfTheSameDocument()
    {
        const vocabulary::Document &document = methodOfTheRow().document;
        for (const Element *element : elementsOf(document)) {
            if (!element->titles.isEmpty())
                QVERIFY(vocabulary::findElement(document.elements, element->titles));
        }
    }

    void everyKindIsKnown()
    {
        for (const PrintMethod &method : vocabulary::printMethods)
            QVERIFY2(vocabulary::findDocumentKind(QString(method.kind)), method.name.data());
    }

    void elementsThatNoTableNamesPrintNothing_data() { addMethods(); }
    void elementsThatNoTableNamesPrintNothing()
    {
        const PrintMethod &method = methodOfTheRow();
        const QByteArray nothing = paper(method, u"unknown"_s, {});
        for (const auto &[name, element] : elementsByName()) {
            if (!elementOf(method.document, name))
                QCOMPARE(paper(method, name, allTexts(*element)), nothing);
        }
        for (const QString &name : {u"Receipe"_s, u"TOTAL"_s, u"item"_s, u""_s})
            QCOMPARE(paper(method, name, {{u"name"_s, u"Ab"_s}, {u"price"_s, u"7"_s}}), nothing);
    }

    void elementsThatATableNamesPrint_data() { addMethods(); }
    void elementsThatATableNamesPrint()
    {
        const PrintMethod &method = methodOfTheRow();
        const QByteArray nothing = paper(method, u"unknown"_s, {});
        for (const Element *element : elementsOf(method.document)) {
            const bool prints = element->name != "logo"_L1; // which this printer has no way to print
            QVERIFY2((paper(method, *element, allTexts(*element)) != nothing) == prints,
                     told(method, *element, u"prints"_s));
        }
    }

    void listedAttributesChangeThePaper_data() { addMethods(); }
    void listedAttributesChangeThePaper()
    {
        forEveryAttribute([&](auto &method, auto &element, qsizetype i, const Attribute &row) {
            const Texts all = allTexts(element);
            const bool changes = paper(method, element, all) != paper(method, element, with(all, i, u"2"_s));
            QVERIFY2(changes == (row.whenMissing != WhenMissing::ChangesNothing),
                     told(method, element, row.name));
        });
    }

    void otherAttributesNeverDo_data() { addMethods(); }
    void otherAttributesNeverDo()
    {
        const PrintMethod &method = methodOfTheRow();
        for (const Element *element : elementsOf(method.document)) {
            if (takesPositions(*element))
                continue; // every attribute is listed
            const Texts all = allTexts(*element);
            const QByteArray full = paper(method, *element, all);
            const QByteArray empty = paper(method, *element, {});
            for (const QString &name : attributeNames()) {
                if (std::ranges::find(element->attributes, name, &Attribute::name) !=
                    element->attributes.end())
                    continue;
                const Texts number{{name, u"7"_s}};
                const Texts word{{name, u"Ab"_s}};
                const QByteArray attribute = told(method, *element, name);
                QVERIFY2(paper(method, *element, all + number) == full, attribute);
                QVERIFY2(paper(method, *element, word + all) == full, attribute);
                QVERIFY2(paper(method, *element, number) == empty, attribute);
                QVERIFY2(paper(method, *element, word) == empty, attribute);
            }
        }
    }

    void attributesWithoutANamePrintInTheirOrderAgainAndAgain_data() { addMethods(); }
    void attributesWithoutANamePrintInTheirOrderAgainAndAgain()
    {
        const PrintMethod &method = methodOfTheRow();
        for (const Element *element : elementsOf(method.document)) {
            if (!takesPositions(*element))
                continue;
            Texts texts = allTexts(*element);
            for (int i = 0; i < 6; ++i)
                texts.emplaceBack(u"name%1"_s.arg(5 - i), u"text%1"_s.arg(i));
            const QByteArray output = paper(method, *element, texts);
            qsizetype place = 0;
            for (int i = 0; i < 6; ++i) {
                place = output.indexOf("text" + QByteArray::number(i), place);
                QVERIFY2(place >= 0, told(method, *element, u"text%1"_s.arg(i)));
            }
        }
    }

    void missingAttributesDoWhatTheirRowsSay_data() { addMethods(); }
    void missingAttributesDoWhatTheirRowsSay()
    {
        forEveryAttribute([&](auto &method, auto &element, qsizetype i, const Attribute &row) {
            Texts all = allTexts(element);
            if (row.name.isEmpty())
                all.resize(i + 1); // so that none takes the place of the one that is taken out
            const QByteArray full = paper(method, element, all);
            const QByteArray gap = paper(method, element, without(all, i));
            const QByteArray zero = paper(method, element, with(all, i, u"0"_s));
            const QByteArray attribute = told(method, element, row.name);
            switch (row.whenMissing) {
            case WhenMissing::LeavesHole:
                QVERIFY2(gap != full && gap.count('\n') == full.count('\n'), attribute);
                break;
            case WhenMissing::PrintsLess:
                QVERIFY2(gap.count('\n') < full.count('\n'), attribute);
                break;
            case WhenMissing::CountsAsZero:
                QVERIFY2(gap != full && gap == zero, attribute);
                break;
            case WhenMissing::ChangesNothing:
                QVERIFY2(gap == full, attribute);
                break;
            case WhenMissing::EndsJob:
                QFAIL("only the method ends the job");
            }
        });
    }

    void aMissingMethodNameEndsTheJob()
    {
        QCOMPARE(vocabulary::methodElement.attributes.size(), size_t(1));
        QVERIFY(vocabulary::methodElement.attributes[0].whenMissing == WhenMissing::EndsJob);
        const MemoryFile file;
        HousePrinter printer(file.path(), house({}));
        const CapturedOutput message;
        QVERIFY(!printer.startElement({}, {}, vocabulary::methodElement.name, {}));
    }

    void whatIsNoNumberCountsAsZeroWhereOneIsRead_data() { addMethods(); }
    void whatIsNoNumberCountsAsZeroWhereOneIsRead()
    {
        forEveryAttribute([&](auto &method, auto &element, qsizetype i, const Attribute &row) {
            const Texts all = allTexts(element);
            const QByteArray words = paper(method, element, with(all, i, u"words"_s));
            const QByteArray zero = paper(method, element, with(all, i, u"0"_s));
            // A number that leaves a hole is one that goes to the register as it stands.
            const bool isComputed =
                row.reading == Reading::AsNumber && row.whenMissing != WhenMissing::LeavesHole;
            const bool isUnseen = row.whenMissing == WhenMissing::ChangesNothing;
            QVERIFY2((words == zero) == (isComputed || isUnseen), told(method, element, row.name));
        });
    }

    void onlyDescriptionsAreCut_data() { addMethods(); }
    void onlyDescriptionsAreCut()
    {
        forEveryAttribute([&](auto &method, auto &element, qsizetype i, const Attribute &row) {
            if (row.reading == Reading::AsNumber || row.whenMissing == WhenMissing::ChangesNothing)
                return;
            const QString text = u"a text that is longer than every column and than all of the paper"_s;
            const bool isWhole =
                paper(method, element, with(allTexts(element), i, text)).contains(text.toLatin1());
            QVERIFY2(isWhole == (row.type != AttributeType::Description), told(method, element, row.name));
        });
    }

    void aFlagThatIsOffTakesItsTextsAway_data() { addMethods(); }
    void aFlagThatIsOffTakesItsTextsAway()
    {
        forEveryAttribute([&](auto &method, auto &element, qsizetype i, const Attribute &row) {
            if (!row.flag && !element.flag)
                return;
            const QString flag = nameOfFlag(row.flag ? row.flag : element.flag);
            const Changes off{{keyOf(method, QLatin1StringView(flag.toLatin1())), u"false"_s}};
            const Texts all = allTexts(element);
            const QByteArray attribute = told(method, element, row.name + " with "_L1 + flag);
            QVERIFY2(paper(method, element, with(all, i, u"text"_s)).contains("text"), attribute);
            QVERIFY2(!paper(method, element, with(all, i, u"text"_s), off).contains("text"), attribute);
        });
    }

    void anElementWhoseFlagIsOffPrintsNothing_data() { addMethods(); }
    void anElementWhoseFlagIsOffPrintsNothing()
    {
        const PrintMethod &method = methodOfTheRow();
        for (const Element *element : elementsOf(method.document)) {
            if (!element->flag)
                continue;
            const QString flag = nameOfFlag(element->flag);
            const Changes off{{keyOf(method, QLatin1StringView(flag.toLatin1())), u"false"_s}};
            QVERIFY2(paper(method, *element, allTexts(*element), off) == paper(method, u"unknown"_s, {}, off),
                     told(method, *element, flag));
        }
    }

    void settingsThatAreConsultedChangeThePaperAndOthersNeverDo_data() { addMethods(); }
    void settingsThatAreConsultedChangeThePaperAndOthersNeverDo()
    {
        const PrintMethod &method = methodOfTheRow();
        for (const Element *element : elementsOf(method.document)) {
            for (const DocumentSetting &setting : vocabulary::documentSettings)
                QVERIFY2(changesThePaper(method, *element, setting) == consults(*element, setting),
                         told(method, *element, setting.name));
        }
    }

    void aMethodConsultsWhatItsElementsDo_data() { addMethods(); }
    void aMethodConsultsWhatItsElementsDo()
    {
        const PrintMethod &method = methodOfTheRow();
        for (const DocumentSetting &setting : vocabulary::documentSettings) {
            const auto elements = elementsOf(method.document);
            QCOMPARE(consults(method.document, setting),
                     std::ranges::any_of(elements, [&](const Element *e) { return consults(*e, setting); }));
        }
    }

    void theBlocksOfOtherKindsAreNeverConsulted_data() { addMethods(); }
    void theBlocksOfOtherKindsAreNeverConsulted()
    {
        const PrintMethod &method = methodOfTheRow();
        Changes others;
        for (const vocabulary::DocumentKind &kind : vocabulary::documentKinds) {
            for (const DocumentSetting &setting : vocabulary::documentSettings) {
                if (kind.name != method.kind)
                    others.emplace(kind.path() + setting.name, valuesToTry(setting).last());
            }
        }
        for (const Element *element : elementsOf(method.document)) {
            const Texts all = allTexts(*element);
            QVERIFY2(paper(method, *element, all, others) == paper(method, *element, all),
                     told(method, *element, {}));
        }
    }

private:
    /// Whether some value of the setting moves something on the paper, of short texts or of long ones.
    bool changesThePaper(const PrintMethod &method, const Element &element, const DocumentSetting &setting)
    {
        Texts longTexts = allTexts(element);
        for (auto &[name, value] : longTexts) {
            if (value == "Ab"_L1)
                value = u"a text that is cut where the paper is narrow"_s;
        }
        for (const Texts &texts : {allTexts(element), longTexts}) {
            const Piece piece{element.name, texts};
            const QByteArray usual = paperOf(method, {piece}, {});
            for (const QString &value : valuesToTry(setting)) {
                if (paperOf(method, {piece}, {{keyOf(method, setting.name), value}}) != usual)
                    return true;
            }
        }
        return false;
    }
};

QTEST_GUILESS_MAIN(VocabularyTest)
#include "vocabulary_test.moc"

#include "placedsource.h"
#include "starttag.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using check::Place;

class StartTagTest : public QObject
{
    Q_OBJECT

private:
    static void comparePlace(Place actual, Place expected)
    {
        QCOMPARE(actual.line, expected.line);
        QCOMPARE(actual.column, expected.column);
    }

private Q_SLOTS:
    void attributesAndTheirPlaces()
    {
        const QString text = u"<receipe number=\"4\"\n  name = 'Caff\u00e8'price=\"1\"/"_s;
        const check::StartTag tag(text, {7, 3});
        const auto &list = tag.attributes();
        QCOMPARE(list.size(), size_t(3));
        QCOMPARE(list[0].name.toString(), u"number"_s);
        QCOMPARE(list[1].value.toString(), u"Caff\u00e8"_s);
        QCOMPARE(list[2].name.toString(), u"price"_s);
        comparePlace(tag.place(), {7, 3});
        comparePlace(tag.nameOf(0), {7, 12});
        comparePlace(tag.valueOf(0), {7, 20});
        comparePlace(tag.nameOf(1), {8, 3});
        comparePlace(tag.valueOf(1), {8, 11});
        comparePlace(tag.nameOf(2), {8, 17});
    }

    /// The reader does not count them, and nobody calls them attributes.
    void declarationsOfNamespacesAreNoAttributes()
    {
        const QString text = u"<a xmlns=\"x\" b=\"1\" xmlns:n='y' c=\"2\">"_s;
        const check::StartTag tag(text, {1, 1});
        comparePlace(tag.nameOf(0), {1, 14});
        comparePlace(tag.nameOf(1), {1, 32});
    }

    void charactersBehindReferences()
    {
        const QString text = u"<a b=\"x&amp;y&#10;&none;z\"/"_s;
        const check::StartTag tag(text, {1, 1});
        comparePlace(tag.characterOf(0, 0), {1, 7});  // x
        comparePlace(tag.characterOf(0, 1), {1, 8});  // &amp;
        comparePlace(tag.characterOf(0, 2), {1, 13}); // y
        comparePlace(tag.characterOf(0, 3), {1, 14}); // the line feed
    }

    void charactersOutsideTheBasicPlaneCountOnce()
    {
        const QString text = u"<a b=\"\U0001F355\U0001F355\" c=\"1\"/"_s;
        comparePlace(check::StartTag(text, {1, 1}).nameOf(1), {1, 11});
    }

    /// What an entity stands for is written elsewhere.
    void withoutTextThePlaceIsTheTags()
    {
        const QString nothing;
        const check::StartTag tag(nothing, {3, 4});
        comparePlace(tag.nameOf(0), {3, 4});
        comparePlace(tag.characterOf(2, 5), {3, 4});
    }

    void brokenTagsEnd_data()
    {
        QTest::addColumn<QString>("text");
        for (const QString &text : {u"<"_s, u"<a b"_s, u"<a b="_s, u"<a b=\""_s, u"<a b=\"1"_s,
                                    u"<a b=1 c>"_s, u"<a =\"1\""_s, u"<a b=\"&\" c=\"&;\""_s})
            QTest::newRow(qPrintable(text)) << text;
    }
    void brokenTagsEnd()
    {
        QFETCH(QString, text);
        const check::StartTag tag(text, {1, 1});
        for (int number = 0; number < 4; ++number)
            QVERIFY(tag.characterOf(number, 9).column <= text.size() + 1);
    }
};

QTEST_GUILESS_MAIN(StartTagTest)
#include "starttag_test.moc"

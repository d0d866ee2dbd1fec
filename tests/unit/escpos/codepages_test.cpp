#include "codepages.h"
#include "profiles.h"

#include <QTest>

#include <iconv.h>
#include <set>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What the C library makes of the byte; noCharacter for what it has no character for, and for control
/// characters, which no printer prints.
char16_t characterOfTheCLibrary(const char *encoding, unsigned char byte)
{
    const iconv_t converter = iconv_open("UTF-16LE", encoding);
    if (converter == iconv_t(-1)) // NOLINT(performance-no-int-to-ptr): that is how it says so
        qFatal("the C library does not know %s", encoding);
    char in = char(byte);
    char16_t out = CodePage::noCharacter;
    char *from = &in;
    char *to = reinterpret_cast<char *>(&out);
    std::size_t inLeft = 1;
    std::size_t outLeft = sizeof out;
    const bool isCharacter = iconv(converter, &from, &inLeft, &to, &outLeft) != std::size_t(-1);
    iconv_close(converter);
    const bool isControl = out >= 0x80 && out < 0xA0;
    return isCharacter && !isControl ? out : CodePage::noCharacter;
}

} // namespace

class CodePagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agreeWithTheCLibrary_data()
    {
        QTest::addColumn<int>("number");
        for (const CodePage &page : codePages())
            QTest::newRow(page.name.data()) << page.number;
    }
    void agreeWithTheCLibrary()
    {
        QFETCH(int, number);
        const CodePage &page = *findCodePage(number);
        QCOMPARE(page.high.size(), std::size_t(128));
        const QByteArray name = QByteArray(page.name.data()).replace("Windows-", "CP");
        for (int byte = CodePage::firstHigh; byte <= 0xFF; ++byte)
            QCOMPARE(page.characterOf(byte), characterOfTheCLibrary(name.constData(), byte));
    }

    void everyCharacterLeadsBackToItsByte()
    {
        for (const CodePage &page : codePages()) {
            for (int byte = 0x20; byte <= 0xFF; ++byte) {
                const char16_t character = page.characterOf(byte);
                if (byte != 0x7F && character != CodePage::noCharacter)
                    QCOMPARE(page.byteOf(character), byte);
            }
        }
    }

    void theLettersThatBreakElsewhere()
    {
        QCOMPARE(findCodePage(19)->byteOf(u'€'), 0xD5);
        QCOMPARE(findCodePage(16)->byteOf(u'€'), 0x80);
        QCOMPARE(findCodePage(40)->byteOf(u'€'), 0xA4);
        QCOMPARE(findCodePage(18)->byteOf(u'ł'), 0x88);
        QCOMPARE(findCodePage(39)->byteOf(u'ł'), 0xB3);
        QCOMPARE(findCodePage(16)->byteOf(u'œ'), 0x9C);
        QCOMPARE(findCodePage(40)->byteOf(u'œ'), 0xBD);
        QCOMPARE(findCodePage(0)->byteOf(u'€'), -1);
        QCOMPARE(findCodePage(0)->byteOf(CodePage::noCharacter), -1);
    }

    void internationalSetsReplaceTwelveCharacters()
    {
        for (int number = 0; number <= 10; ++number)
            QCOMPARE(findInternationalSet(number)->characters.size(), std::size_t(12));
        QVERIFY(!findInternationalSet(11) && !findInternationalSet(-1));
        const CharacterTable german{.page = findCodePage(16), .set = findInternationalSet(2)};
        QCOMPARE(german.characterOf('['), u'Ä');
        QCOMPARE(german.characterOf('~'), u'ß');
        QCOMPARE(german.characterOf('A'), u'A');
        QCOMPARE(german.characterOf(0x80), u'€');
    }

    void unknownNumbersHaveNoPage() { QVERIFY(!findCodePage(1)); }

    void profilesNamePagesThatExist()
    {
        std::set<QString> names;
        for (const Profile &profile : profiles) {
            QVERIFY2(names.insert(QString(profile.name)).second, "two profiles of one name");
            QCOMPARE(findProfile(QString(profile.name)), &profile);
            QVERIFY(profile.columns * 12 <= profile.dots && profile.narrowColumns * 9 <= profile.dots);
            QVERIFY(profile.dots % 8 == 0 && profile.codePages.size() <= 32);
            for (const int number : profile.codePages)
                QVERIFY(findCodePage(number));
        }
        QVERIFY(!findProfile(u"90mm"));
    }
};

QTEST_GUILESS_MAIN(CodePagesTest)
#include "codepages_test.moc"

#include "codepages.h"
#include "letters.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const Profile &profileNamed(const char *name)
{
    return *findProfile(QString::fromLatin1(name));
}

QString printable(const QString &text, const char *profile = "80mm")
{
    LostCharacters lost;
    return Letters(profileNamed(profile)).printable(text, lost);
}

int changesIn(const std::vector<Letters::Letter> &letters, int page)
{
    int changes = 0;
    for (const Letters::Letter &letter : letters) {
        changes += letter.page != page;
        page = letter.page;
    }
    return changes;
}

/// The fewest changes of any choice of pages, by trying all of them.
int fewestChanges(QStringView row, int page, const Profile &profile)
{
    if (row.isEmpty())
        return 0;
    int fewest = 1000;
    for (const int next : profile.codePages) {
        if (findCodePage(next)->byteOf(row.front().unicode()) >= 0)
            fewest = std::min(fewest, (next != page) + fewestChanges(row.sliced(1), next, profile));
    }
    return fewest;
}

QString decoded(const std::vector<Letters::Letter> &letters)
{
    QString text;
    for (const Letters::Letter &letter : letters)
        text += QChar(findCodePage(letter.page)->characterOf(static_cast<unsigned char>(letter.byte)));
    return text;
}

} // namespace

class LettersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noControlCharacterGetsThrough_data()
    {
        QTest::addColumn<int>("control");
        for (int control = 0; control < 0xA0; ++control) {
            if (control < 0x20 || control >= 0x7F)
                QTest::addRow("%02X", control) << control;
        }
    }
    void noControlCharacterGetsThrough()
    {
        QFETCH(int, control);
        for (const Profile &profile : profiles) {
            LostCharacters lost;
            const QString text = u"a"_s + QChar(char16_t(control)) + u"b"_s;
            QCOMPARE(Letters(profile).printable(text, lost), u"ab"_s);
            QVERIFY(lost.isEmpty());
        }
    }

    void whatIsPrinted_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("on80mm");
        QTest::addColumn<QString>("onGeneric");
        QTest::newRow("plain") << u"Caffe 2,50 #@[]{}~"_s << u"Caffe 2,50 #@[]{}~"_s
                               << u"Caffe 2,50 #@[]{}~"_s;
        QTest::newRow("three that break elsewhere") << u"€ ł œ"_s << u"€ ł œ"_s << u"€ ? ?"_s;
        QTest::newRow("accents") << u"caffè più"_s << u"caffè più"_s << u"caffè più"_s;
        QTest::newRow("decomposed accents") << u"caffe\u0300"_s << u"caffè"_s << u"caffè"_s;
        QTest::newRow("an accent that no page has") << u"Ḿǹ"_s << u"Mn"_s << u"Mn"_s;
        QTest::newRow("an accent off, the other kept") << u"ḉ"_s << u"ç"_s << u"ç"_s;
        QTest::newRow("more letters than one") << u"ﬁ…"_s << u"fi…"_s << u"fi..."_s;
        QTest::newRow("cyrillic") << u"борщ"_s << u"борщ"_s << u"????"_s;
        QTest::newRow("wide") << u"寿司x"_s << u"????x"_s << u"????x"_s;
        QTest::newRow("wide with narrow form") << u"Ａb"_s << u"A b"_s << u"A b"_s;
        QTest::newRow("beyond the basic plane") << u"x😀y"_s << u"x??y"_s << u"x??y"_s;
        QTest::newRow("half a pair") << u"x"_s + QChar(0xD83D) + u"y"_s << u"x?y"_s << u"x?y"_s;
        QTest::newRow("blanks of other widths") << u"a\u2003b\u00A0c"_s << u"a b\u00A0c"_s << u"a b\u00A0c"_s;
        QTest::newRow("invisible") << u"a\u200Bb\u2028c\uFEFF\u00ADd"_s << u"abcd"_s << u"abcd"_s;
    }
    void whatIsPrinted()
    {
        QFETCH(QString, text);
        QFETCH(QString, on80mm);
        QFETCH(QString, onGeneric);
        QCOMPARE(printable(text), on80mm);
        QCOMPARE(printable(text, "generic"), onGeneric);
    }

    void whatIsPrintedGoesInAgainUnchanged()
    {
        for (const Profile &profile : profiles) {
            const Letters letters(profile);
            for (char32_t character = 0; character <= 0x2FFFF; character += character < 0x3000 ? 1 : 7) {
                LostCharacters lost;
                const QString once = letters.printable(QString::fromUcs4(&character, 1), lost);
                LostCharacters none;
                QCOMPARE(letters.printable(once, none), once);
                QVERIFY(none.isEmpty());
                QCOMPARE(decoded(letters.spell(once, profile.codePages.front())), once);
            }
        }
    }

    void lostCharactersAreCounted()
    {
        LostCharacters lost;
        const Letters letters(profileNamed("generic"));
        letters.printable(u"ł€œł"_s, lost);
        letters.printable(u"ł è"_s, lost);
        const QMap<char32_t, qint64> expected = {{U'ł', 3}, {U'œ', 1}};
        QCOMPARE(lost.counts, expected);
        QCOMPARE(lost.others, 0);
    }

    void aFloodOfLostCharactersTakesNoMemory()
    {
        LostCharacters lost;
        for (char32_t character = 0x4E00; character < 0x4E00 + 1500; ++character)
            lost.add(character);
        lost.add(0x4E00);
        QCOMPARE(lost.counts.size(), 1000);
        QCOMPARE(lost.counts.first(), 2);
        QCOMPARE(lost.others, 500);
    }

    void aPageIsKeptAsLongAsItHasTheLetters()
    {
        const Letters letters(profileNamed("80mm"));
        const auto pages = [&](const QString &row, int page) {
            QList<int> numbers;
            for (const Letters::Letter &letter : letters.spell(row, page))
                numbers += letter.page;
            return numbers;
        };
        QCOMPARE(pages(u"è €"_s, 19), QList<int>({19, 19, 19}));
        QCOMPARE(pages(u"è €"_s, 0), QList<int>({0, 0, 19}));
        QCOMPARE(pages(u"€ œ"_s, 0), QList<int>({16, 16, 16})); // and not over 19
        QCOMPARE(pages(u"ł€"_s, 19), QList<int>({45, 45}));     // the one page that has both
        QCOMPARE(pages(u"abc"_s, 46), QList<int>({46, 46, 46}));
    }

    void noChoiceOfPagesHasFewerChanges()
    {
        const QString alphabet = u"aè€łœбğőçÆ│Øĳ²"_s;
        QRandomGenerator random(13);
        for (int round = 0; round < 120; ++round) {
            const Profile &profile = profiles[round % std::size(profiles)];
            const Letters letters(profile);
            QString row;
            LostCharacters lost;
            for (int i = 0; i < 4; ++i)
                row += letters.printable(alphabet[random.bounded(int(alphabet.size()))], lost).first(1);
            const int page = profile.codePages[random.bounded(int(profile.codePages.size()))];
            const auto spelled = letters.spell(row, page);
            QCOMPARE(decoded(spelled), row);
            QCOMPARE(changesIn(spelled, page), fewestChanges(row, page, profile));
        }
    }
};

QTEST_GUILESS_MAIN(LettersTest)
#include "letters_test.moc"

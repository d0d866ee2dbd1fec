// What a picture may hold, and how much of a longer stream is kept.

#include "commanderror.h"
#include "picturelimits.h"
#include "samplestrip.h"
#include "stripcollector.h"
#include "wholefile.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

QString complaintOf(const StripCollector &collector)
{
    try {
        collector.strips();
        return {};
    } catch (const CommandError &error) {
        return error.code() == ExitCode::TooLarge ? error.messages().front() : u"another error"_s;
    }
}

} // namespace

class StripCollectorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLastWidthHoldsForAllThatFollow()
    {
        StripCollector collector({40, 24});
        for (int i = 0; i < 3; ++i) {
            collector.beginStrip(paper::StripKind::Paper);
            collector.endStrip();
        }
        QCOMPARE(collector.strips().size(), 3U);
        QCOMPARE(collector.strips()[0].columns, 40);
        QCOMPARE(collector.strips()[1].columns, 24);
        QCOMPARE(collector.strips()[2].columns, 24);
    }

    void linesKeepTheirOrder()
    {
        StripCollector collector({40});
        collector.beginStrip(paper::StripKind::Register);
        collector.row(plainRow(u"100H1T"_s));
        collector.event(paper::Event::Cut);
        collector.remark(u"The register will show 1.00."_s);
        collector.endStrip();
        const Strip &strip = collector.strips().front();
        QCOMPARE(strip.kind, paper::StripKind::Register);
        QCOMPARE(strip.lines.size(), 3U);
        QCOMPARE(std::get<paper::Row>(strip.lines[0]).cells.size(), 6U);
        QCOMPARE(std::get<paper::Event>(strip.lines[1]), paper::Event::Cut);
        QCOMPARE(std::get<QString>(strip.lines[2]), u"The register will show 1.00."_s);
    }

    void piecesOfAPictureAreJoined()
    {
        const paper::Picture piece{.left = 0, .width = 8, .height = 2, .dots = "ab"_ba};
        const paper::Picture besideIt{.left = 8, .width = 8, .height = 1, .dots = "c"_ba};
        StripCollector collector({40});
        collector.beginStrip(paper::StripKind::Paper);
        collector.picture(piece);
        collector.picture(piece);
        collector.picture(besideIt);
        collector.remark(u"and"_s);
        collector.picture(besideIt);
        const Strip &strip = collector.strips().front();
        QCOMPARE(strip.lines.size(), 4U);
        QCOMPARE(std::get<paper::Picture>(strip.lines[0]).height, 4);
        QCOMPARE(std::get<paper::Picture>(strip.lines[0]).dots, "abab"_ba);
        QCOMPARE(std::get<paper::Picture>(strip.lines[1]).dots, "c"_ba);
        QCOMPARE(std::get<paper::Picture>(strip.lines[3]).dots, "c"_ba);
    }

    void anEndlessPictureIsTooLarge()
    {
        StripCollector collector({40});
        collector.beginStrip(paper::StripKind::Paper);
        const paper::Picture piece{.left = 0, .width = 8, .height = 24, .dots = QByteArray(24, 'x')};
        for (int i = 0; i < 10'000; ++i)
            collector.picture(piece);
        QCOMPARE(
            complaintOf(collector),
            u"palvestrin: error: there are 10001 rows and strips, and a picture holds at most 10000; use "
            "\"palvestrin preview --format txt\""_s);
    }

    void asManyRowsAsAPictureHolds()
    {
        StripCollector collector({40});
        collector.beginStrip(paper::StripKind::Paper);
        for (int i = 0; i < 9999; ++i)
            collector.row({});
        QCOMPARE(complaintOf(collector), QString());
        collector.row({});
        QCOMPARE(
            complaintOf(collector),
            u"palvestrin: error: there are 10001 rows and strips, and a picture holds at most 10000; use "
            "\"palvestrin preview --format txt\""_s);
        collector.beginStrip(paper::StripKind::Paper);
        collector.row({});
        QVERIFY(complaintOf(collector).contains(u" 10003 rows"_s));
    }

    void aRowAsWideAsAPicture()
    {
        StripCollector collector({40});
        collector.beginStrip(paper::StripKind::Paper);
        collector.row(plainRow(QString(1000, u'a')));
        QCOMPARE(complaintOf(collector), QString());
        collector.row(plainRow(QString(501, u'日')));
        QCOMPARE(
            complaintOf(collector),
            u"palvestrin: error: the widest row takes 1002 columns, and a picture holds at most 1000; use "
            "\"palvestrin preview --format txt\""_s);
    }

    void theManualTellsTheLimits()
    {
        const QString manual = QString::fromUtf8(contentOf(QStringLiteral(MANUAL)));
        const QString words =
            u"at most %1 rows and strips together, %2 columns in a row, and %3 characters"_s.arg(limits::rows)
                .arg(limits::columns)
                .arg(limits::cells);
        QVERIFY2(manual.contains(words), qPrintable(words));
        const QString pixels =
            u"at most %1 pixels wide and high, and has at most %2 of them"_s.arg(limits::pixels)
                .arg(limits::allPixels);
        QVERIFY2(manual.contains(pixels), qPrintable(pixels));
        QVERIFY(manual.contains(u"from 1, the usual size, to %1"_s.arg(limits::scale)));
    }

    void asManyCharactersAsAPictureHolds()
    {
        StripCollector collector({40});
        collector.beginStrip(paper::StripKind::Paper);
        const paper::Row row = plainRow(QString(1000, u'a'));
        for (int i = 0; i < 1000; ++i)
            collector.row(row);
        QCOMPARE(complaintOf(collector), QString());
        collector.row(plainRow(u"a"_s));
        QCOMPARE(complaintOf(collector),
                 u"palvestrin: error: there are 1000001 characters, and a picture holds at most 1000000; use "
                 "\"palvestrin preview --format txt\""_s);
    }
};

QTEST_GUILESS_MAIN(StripCollectorTest)
#include "stripcollector_test.moc"

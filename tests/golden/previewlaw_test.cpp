#include "goldencase.h"
#include "papertext.h"
#include "program.h"
#include "temporaryhome.h"
#include "visiblediff.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// The law of the preview: its text has the rows of the stream that goes to the printer, cell for cell.
class PreviewLawTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void finishedOutputs_data() { addGoldenCases(); }
    void finishedOutputs()
    {
        const GoldenCase golden = goldenCase();
        const TemporaryHome home;
        verifyPreview(golden, home, golden.filePath(u"expected.out"_s));
    }

    void jobs_data() { addGoldenCases(); }
    void jobs()
    {
        const GoldenCase golden = goldenCase();
        const TemporaryHome home;
        if (!golden.has(u"no-configuration"_s))
            home.configure(golden.configuration());
        verifyPreview(golden, home, golden.filePath(u"job.xml"_s));
    }

private:
    static GoldenCase goldenCase()
    {
        QFETCH(QString, folder);
        return GoldenCase(folder);
    }

    static void verifyPreview(const GoldenCase &golden, const TemporaryHome &home, const QString &file)
    {
        constexpr int done = 0;
        constexpr int unreadable = 4;
        constexpr int broken = 9;
        const QByteArray stream = golden.expectedOutput();
        const QByteArray expected = paperText(stream);
        const ProgramRun run =
            runProgram(QStringLiteral(PALVESTRIN_PROGRAM), {u"preview"_s, u"-o"_s, u"-"_s, file},
                       golden.environment(home.path()), home.path());
        QVERIFY2(run.standardOutput == expected, visibleDiff(expected, run.standardOutput));
        if (stream.isEmpty())
            QCOMPARE(run.exitStatus, unreadable);
        else
            QVERIFY2(run.exitStatus == done || run.exitStatus == broken, run.standardError);
        const bool hasFaults = run.standardError.contains(": error: ");
        QCOMPARE(hasFaults, run.exitStatus != done);
    }
};

QTEST_GUILESS_MAIN(PreviewLawTest)
#include "previewlaw_test.moc"

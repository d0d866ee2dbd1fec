#include "goldencase.h"
#include "program.h"
#include "temporaryhome.h"
#include "visiblediff.h"
#include "wholefile.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class GoldenTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyAreaHasCases()
    {
        QVERIFY(!foldersIn(goldenFolder()).isEmpty());
        for (const QString &area : foldersIn(goldenFolder()))
            QVERIFY2(!foldersIn(goldenFolder() + u'/' + area).isEmpty(),
                     qPrintable(area + u" has no case"_s));
    }

    void rendersAsExpected_data() { addGoldenCases(); }
    void rendersAsExpected()
    {
        QFETCH(QString, folder);
        const GoldenCase golden(folder);
        const QString defect = golden.defect();
        QVERIFY2(defect.isEmpty(), qPrintable(defect));

        const TemporaryHome home;
        if (!golden.has(u"no-configuration"_s))
            home.configure(golden.configuration());
        const QString output = home.filePath(u"output"_s);
        writeFile(output, "what an earlier job left here\n");

        const ProgramRun run =
            runProgram(QStringLiteral(PALVESTRIN_PRINT), {golden.filePath(u"job.xml"_s), output},
                       golden.environment(home.path()));

        QVERIFY2(run.failure.isEmpty(), qPrintable(run.failure));
        QVERIFY2(run.standardError.isEmpty(), "standard error: " + visible(run.standardError));
        if (updatingGolden()) {
            golden.update(contentOf(output),
                          QByteArray(run.standardOutput).replace(home.path().toUtf8(), "@HOME@"));
            return;
        }
        verifySame("output", golden.expectedOutput(), contentOf(output));
        verifySame("standard output", golden.expectedStandardOutput(home.path()), run.standardOutput);
    }

private:
    static void verifySame(const QByteArray &what, const QByteArray &expected, const QByteArray &actual)
    {
        QVERIFY2(expected == actual, what + " differs, " + visibleDiff(expected, actual));
    }
};

QTEST_GUILESS_MAIN(GoldenTest)
#include "golden_test.moc"

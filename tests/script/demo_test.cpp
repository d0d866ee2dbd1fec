// script/demo says what is wrong with its words before it installs, builds or prints anything, and builds
// what it runs.

#include "program.h"
#include "scratchfolder.h"
#include "wholefile.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class DemoTest : public QObject
{
    Q_OBJECT

private:
    const ScratchFolder folder;

    ProgramRun demo(const QStringList &arguments) const
    {
        return runProgram(QStringLiteral(SOURCE_FOLDER "/script/demo"), arguments,
                          {u"PATH="_s + qEnvironmentVariable("PATH")}, folder.path());
    }

private Q_SLOTS:
    /// A backend has the name of the command, too.
    void theCommandIsBuilt_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("line");
        QTest::newRow("demo") << u"demo"_s << u"script/build (.+)"_s;
        QTest::newRow("bench") << u"bench"_s << u"--target (.+) \\\\"_s;
    }
    void theCommandIsBuilt()
    {
        QFETCH(QString, script);
        QFETCH(QString, line);
        const QString text = QString::fromUtf8(contentOf(SOURCE_FOLDER u"/script/"_s + script));
        const QStringList targets = QRegularExpression(line).match(text).captured(1).split(u' ');
        const ProgramRun run =
            runProgram(QStringLiteral(NINJA),
                       QStringList{u"-C"_s, QStringLiteral(BUILD_FOLDER), u"-t"_s, u"commands"_s} + targets,
                       {u"PATH="_s + qEnvironmentVariable("PATH")});
        QCOMPARE(run.failure, QString());
        for (const char *const program : {"palvestrin", "palvestrin-print", "palvestrin-draw"})
            QVERIFY2(run.standardOutput.contains(QByteArray(" -o bin/") + program + ' '), program);
    }

    void wrongWords_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("complaint");
        QTest::newRow("no such file")
            << QStringList{u"nosuch.xml"_s}
            << QByteArray("nosuch.xml: there is no such file; examples/jobs/ has thirteen jobs");
        QTest::newRow("a folder") << QStringList{u"."_s}
                                  << QByteArray(".: there is no such file; examples/jobs/ has thirteen jobs");
        QTest::newRow("two jobs") << QStringList{u"a.xml"_s, u"b.xml"_s}
                                  << QByteArray("one job at a time, not 2");
    }
    void wrongWords()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, complaint);
        const ProgramRun run = demo(arguments);
        QCOMPARE(run.standardError, "script/demo: error: " + complaint + '\n');
        QCOMPARE(run.standardOutput, QByteArray());
        QCOMPARE(run.exitStatus, 2);
        QCOMPARE(folder.names(), QStringList());
    }
};

QTEST_GUILESS_MAIN(DemoTest)
#include "demo_test.moc"

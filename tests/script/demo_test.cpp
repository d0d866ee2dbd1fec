// script/demo says what is wrong with its words before it installs, builds or prints anything.

#include "program.h"
#include "scratchfolder.h"

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

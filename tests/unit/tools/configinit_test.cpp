// palvestrin config init: a file to begin with, that prints, and that replaces nothing unasked.

#include "program.h"
#include "scratchfolder.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class ConfigInitTest : public QObject
{
    Q_OBJECT

private:
    static ProgramRun run(const ScratchFolder &home, const QStringList &words)
    {
        return runProgram(QStringLiteral(PALVESTRIN_PROGRAM), QStringList{u"config"_s} + words,
                          bareEnvironment(home.path()));
    }
    static QByteArray valueOf(const ScratchFolder &home, const QString &key)
    {
        return run(home, {u"get"_s, key}).standardOutput.trimmed();
    }

private Q_SLOTS:
    void theWidthOfThePaper_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QByteArray>("width");
        QTest::newRow("58 mm") << QStringList{u"init"_s, u"--paper"_s, u"58"_s} << QByteArray("30");
        QTest::newRow("80 mm") << QStringList{u"init"_s, u"--paper"_s, u"80"_s} << QByteArray("48");
        QTest::newRow("not given") << QStringList{u"init"_s} << QByteArray("48");
    }
    void theWidthOfThePaper()
    {
        QFETCH(QStringList, words);
        QFETCH(QByteArray, width);
        const ScratchFolder home;
        const ProgramRun result = run(home, words);
        QCOMPARE(result.failure, QString());
        QVERIFY(result.standardError.contains("is ready"));
        for (const QString &block : {u"doc"_s, u"prefiscaldoc"_s, u"receiptdoc"_s, u"invoicedoc"_s,
                                     u"deliverydoc"_s, u"reportdoc"_s, u"solddoc"_s})
            QCOMPARE(valueOf(home, u"palvestrin.%1.paperWidth"_s.arg(block)), width);
    }

    void theKindOfHouse()
    {
        const ScratchFolder home;
        QCOMPARE(run(home, {u"init"_s, u"--preset"_s, u"kitchen"_s}).failure, QString());
        QCOMPARE(valueOf(home, u"palvestrin.doc.printTable"_s), QByteArray("true"));
        QCOMPARE(run(home, {u"init"_s, u"--preset"_s, u"shop"_s, u"--force"_s}).failure, QString());
        QCOMPARE(valueOf(home, u"palvestrin.doc.printTable"_s), QByteArray());
        QCOMPARE(valueOf(home, u"palvestrin.receiptdoc.openCashDrawer"_s), QByteArray("true"));
    }

    void settingsThatAreThereStay()
    {
        const ScratchFolder home;
        const QByteArray mine = "# mine\npalvestrin: { doc: { paperWidth = 20; }; };\n";
        const QString path = home.write(u"mine.conf"_s, mine);
        const ProgramRun refused = run(home, {u"init"_s, u"--file"_s, path});
        QCOMPARE(refused.exitStatus, 5);
        QCOMPARE(QString::fromUtf8(refused.standardError),
                 path + u": error: there are settings already; \"palvestrin config set\" changes them, "
                        u"--force replaces "
                        "them and keeps the file as it was\n"_s);
        QCOMPARE(home.read(u"mine.conf"_s), mine);
        const ProgramRun forced = run(home, {u"init"_s, u"--file"_s, path, u"--force"_s});
        QCOMPARE(forced.failure, QString());
        QCOMPARE(home.read(u"mine.conf.bak.1"_s), mine);
        QVERIFY(home.read(u"mine.conf"_s).contains("paperWidth = \"48\";"));
    }

    void paperThatNobodySells()
    {
        const ScratchFolder home;
        const ProgramRun result = run(home, {u"init"_s, u"--paper"_s, u"70"_s});
        QCOMPARE(result.exitStatus, 2);
        QVERIFY2(result.standardError.startsWith("palvestrin: error: no \"70\" for --paper; give 58 or 80; "),
                 result.standardError);
        QCOMPARE(home.names(), QStringList());
    }

    void aKitchenTicketOnNarrowPaperFits()
    {
        const ScratchFolder home;
        QCOMPARE(run(home, {u"init"_s, u"--paper"_s, u"58"_s}).failure, QString());
        const QString output = home.path(u"output"_s);
        QCOMPARE(
            runProgram(QStringLiteral(PALVESTRIN_PRINT),
                       {QStringLiteral(PALVESTRIN_SOURCE_DIR "/examples/jobs/printPartialOrder.xml"), output},
                       bareEnvironment(home.path()))
                .failure,
            QString());
        const QList<QByteArray> rows = home.read(u"output"_s).split('\n');
        QVERIFY(rows.size() > 10);
        for (const QByteArray &row : rows) {
            if (row.startsWith('"'))
                QVERIFY2(QString::fromUtf8(row).size() <= 32 + 3, row); // quotes and "@"
        }
    }
};

QTEST_GUILESS_MAIN(ConfigInitTest)
#include "configinit_test.moc"

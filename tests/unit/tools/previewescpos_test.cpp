#include "escposbytes.h"
#include "program.h"
#include "temporaryhome.h"
#include "wholefile.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// `palvestrin preview` of what goes to receipt printers.
class PreviewEscPosTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home;

    ProgramRun preview(const QStringList &words) const
    {
        return runProgram(QStringLiteral(PALVESTRIN_PROGRAM), QStringList(u"preview"_s) + words,
                          bareEnvironment(home.path()), home.path());
    }
    static QString shown(const ProgramRun &run) { return QString::fromUtf8(run.standardOutput); }

private Q_SLOTS:
    void initTestCase()
    {
        home.configure("palvestrin: { doc: { paperWidth = 12; quantityFieldWidth = 2; }; };");
        writeFile(home.filePath(u"job.xml"_s),
                  "<job><method name=\"printPartialOrder\"/><receipe number=\"1\" "
                  "name=\"Caff\xC3\xA8 \xE2\x82\xAC\"/></job>");
        writeFile(home.filePath(u"fiscal.xml"_s), "<job><method name=\"printFullOrderFiscal\"/></job>");
        writeFile(home.filePath(u"captured.bin"_s), escpos("1B40 1B6101 'ab' 0A 1D7A 1B7413 D5 0A"));
    }

    void aJobAsAReceiptPrinterPrintsIt()
    {
        const ProgramRun run = preview(
            {u"--device"_s, u"escpos"_s, u"--profile"_s, u"58mm"_s, u"--format"_s, u"txt"_s, u"job.xml"_s});
        QCOMPARE(run.failure, QString());
        QCOMPARE(run.standardError, QByteArray());
        QCOMPARE(shown(run), u" 1 Caffè €\n\n\n\n\n"_s);
    }

    void capturedBytes()
    {
        const ProgramRun run =
            preview({u"--profile"_s, u"58mm"_s, u"--format"_s, u"txt"_s, u"captured.bin"_s});
        QCOMPARE(run.failure, QString());
        QCOMPARE(shown(run), u"               ab\n               €\n"_s);
    }

    void capturedBytesOnATerminal()
    {
        const ProgramRun run = preview({u"--profile"_s, u"58mm"_s, u"captured.bin"_s});
        QCOMPARE(run.failure, QString());
        QVERIFY2(shown(run).contains(u"unknown command 1D 7A at byte 8, skipped"_s), run.standardOutput);
    }

    void bytesAndTheirMeaning()
    {
        const ProgramRun run = preview({u"--hex"_s, u"captured.bin"_s});
        QCOMPARE(run.failure, QString());
        QCOMPARE(shown(run),
                 u"00000000  1B 40                                            initialise\n"
                 "00000002  1B 61 01                                         justify: centre\n"
                 "00000005  61 62                                            \"ab\"\n"
                 "00000007  0A                                               end of the row\n"
                 "00000008  1D 7A                                            unknown command, skipped\n"
                 "0000000A  1B 74 13                                         code page 19, CP858\n"
                 "0000000D  D5                                               \"€\"\n"
                 "0000000E  0A                                               end of the row\n"_s);
        const ProgramRun ofJob = preview({u"--hex"_s, u"--device"_s, u"escpos"_s, u"job.xml"_s});
        QCOMPARE(ofJob.failure, QString());
        QVERIFY(shown(ofJob).startsWith(u"00000000  1B 40 "_s));
    }

    void whatGoesWrong()
    {
        const ProgramRun line = preview({u"--hex"_s, u"job.xml"_s});
        QCOMPARE(line.exitStatus, 2);
        QCOMPARE(line.standardError,
                 QByteArray("job.xml: error: --hex lists what goes to a receipt printer; for a job, "
                            "add --device escpos\n"));
        const ProgramRun fiscal =
            preview({u"--device"_s, u"escpos"_s, u"--format"_s, u"txt"_s, u"fiscal.xml"_s});
        QCOMPARE(fiscal.exitStatus, 3);
        QVERIFY2(fiscal.standardError.startsWith(
                     "fiscal.xml:1:41: error: \"printFullOrderFiscal\" is for a cash register"),
                 fiscal.standardError);
    }
};

QTEST_GUILESS_MAIN(PreviewEscPosTest)
#include "previewescpos_test.moc"

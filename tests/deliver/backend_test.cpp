// The backend by itself, as filters and people may run it: without a print server.

#include "printerprocess.h"
#include "program.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class BackendTest : public QObject
{
    Q_OBJECT

private:
    PrinterProcess printer;
    const ScratchFolder files{};

    static ProgramRun run(const QStringList &words, const QStringList &environment = {})
    {
        return runProgram(QStringLiteral(BACKEND), words, environment);
    }
    QString device() const { return u"DEVICE_URI="_s + QString::fromUtf8(printer.uri("wait=2")); }
    QStringList wordsFor(const QByteArray &content, const QString &title = u"title"_s) const
    {
        return {u"7"_s, u"user"_s, title, u"2"_s, u"job-uuid=urn:uuid:1"_s, files.write(u"job"_s, content)};
    }

private Q_SLOTS:
    void theDevicesAreListed()
    {
        const ProgramRun list = run({});
        QVERIFY2(list.failure.isEmpty(), list.standardError);
        QVERIFY2(list.standardOutput.startsWith(
                     "network palvestrin \"Unknown\" \"Receipt printer that confirms what it "
                     "printed\""),
                 list.standardOutput);
    }

    void wordsAreMissing() { QCOMPARE(run({u"7"_s}).exitStatus, 1); }

    void theAddressIsWrong()
    {
        QCOMPARE(run(wordsFor(ticket(1)), {u"DEVICE_URI=palvestrin:/etc/passwd"_s}).exitStatus, 4);
    }

    void aFileIsPrintedAsOftenAsAskedFor()
    {
        const ProgramRun outcome = run(wordsFor(ticket(2)), {device()});
        QCOMPARE(outcome.exitStatus, 0);
        QVERIFY2(outcome.standardError.contains("PAGE: total 1\nINFO: Printed: the printer confirmed it.\n"),
                 outcome.standardError);
        QCOMPARE(printer.count(lastRow(2)), 2);
    }

    /// Who writes there has made the copies already.
    void standardInputIsPrintedOnce()
    {
        QStringList words = wordsFor(ticket(3));
        words.prepend(QStringLiteral(BACKEND));
        const ProgramRun outcome = runProgram(
            u"sh"_s,
            QStringList{u"-c"_s, u"exec \"$1\" \"$2\" \"$3\" \"$4\" \"$5\" \"$6\" <\"$7\""_s, u"sh"_s} +
                words,
            {device(), u"TMPDIR="_s + files.path()});
        QVERIFY2(outcome.failure.isEmpty(), outcome.standardError);
        QCOMPARE(printer.count(lastRow(3)), 1);
    }

    void anEmptyJobIsSaidToBeEmpty()
    {
        const ProgramRun outcome = run(wordsFor({}), {device()});
        QCOMPARE(outcome.exitStatus, 0);
        QCOMPARE(outcome.standardError,
                 QByteArray("WARNING: The job is empty: there was nothing to print.\n"));
    }

    /// A title is one line of the report, whatever is in it.
    void aTitleSpeaksForNobody()
    {
        printer.habit("reset 200");
        const ProgramRun outcome =
            run(wordsFor(ticket(4), u"table\nSTATE: +toner-empty-error\x1b[2J"_s), {device()});
        QCOMPARE(outcome.exitStatus, 3);
        QVERIFY2(outcome.standardError.contains(
                     "\nERROR: It is unknown whether \"table STATE: +toner-empty-error [2J\" was printed: "),
                 outcome.standardError);
    }

    /// It runs as root, and others may write into the folder above.
    void aFolderThatOthersCanChangeIsNotWritten_data()
    {
        QTest::addColumn<QString>("how");
        QTest::newRow("link") << u"ln -s ../elsewhere cache/palvestrin"_s;
        QTest::newRow("of a group") << u"mkdir -m 770 cache/palvestrin"_s;
    }
    void aFolderThatOthersCanChangeIsNotWritten()
    {
        QFETCH(QString, how);
        const ScratchFolder place;
        const ProgramRun made = runProgram(u"sh"_s, {u"-ec"_s, u"umask 0; mkdir cache elsewhere; "_s + how},
                                           {u"PATH=/usr/bin:/bin"_s}, place.path());
        QVERIFY2(made.failure.isEmpty(), made.standardError);
        const ProgramRun outcome =
            run(wordsFor(ticket(5)), {device(), u"CUPS_CACHEDIR="_s + place.path(u"cache"_s)});
        QCOMPARE(outcome.exitStatus, 7);
        QCOMPARE(outcome.standardError,
                 "ERROR: Not printed yet: the folder " + place.path(u"cache/palvestrin"_s).toUtf8() +
                     " cannot be written, or others can change it. Make room on the disk, "
                     "or give it to root alone.\n");
        QCOMPARE(printer.count(firstRow(5)), 0);
        QVERIFY(QDir(place.path(u"elsewhere"_s)).isEmpty());
    }
};

QTEST_GUILESS_MAIN(BackendTest)
#include "backend_test.moc"

// palvestrin-draw as a process: what it writes, what it says, how it ends.

#include "exitcode.h"
#include "scratchfolder.h"

#include <QProcess>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char receipt[] = "\nj\n\"RICEVUTA\"@\n\"  2 x Caff\xC3\xA8......  3,00\"@\nJ\n";

struct Run
{
    int exitCode = -1; ///< -1 when it did not end by itself
    QByteArray output;
    QByteArray errors;
};

Run runWith(const QByteArray &stream, const QStringList &arguments, const QStringList &environment = {})
{
    QProcess process;
    // Nothing of a session: no display, no folder for run-time files.
    process.setEnvironment(
        QStringList{u"PATH="_s + qEnvironmentVariable("PATH"), u"LC_ALL=C.UTF-8"_s, u"HOME=/nonexistent"_s} +
        environment);
    process.start(QStringLiteral(PALVESTRIN_DRAW), arguments);
    process.write(stream);
    process.closeWriteChannel();
    const bool isOver = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit;
    return {isOver ? process.exitCode() : -1, process.readAllStandardOutput(),
            process.readAllStandardError()};
}

int codeOf(ExitCode code)
{
    return static_cast<int>(code);
}

} // namespace

class DrawProgramTest : public QObject
{
    Q_OBJECT

private:
    const ScratchFolder folder;

    QStringList toFile(const QString &format, const QString &name) const
    {
        return {u"--format"_s, format, u"--output"_s, folder.path(name)};
    }

private Q_SLOTS:
    void drawsEachFormat_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QByteArray>("beginning");
        QTest::newRow("png") << u"png"_s << QByteArray("\x89PNG\r\n");
        QTest::newRow("pdf") << u"pdf"_s << QByteArray("%PDF-1.4\n");
        QTest::newRow("svg") << u"svg"_s << QByteArray("<?xml version=\"1.0\"");
    }
    void drawsEachFormat()
    {
        QFETCH(QString, format);
        QFETCH(QByteArray, beginning);
        const Run toStandardOutput = runWith(receipt, {u"--format"_s, format, u"--output"_s, u"-"_s});
        QCOMPARE(toStandardOutput.errors, QByteArray());
        QCOMPARE(toStandardOutput.exitCode, 0);
        QVERIFY(toStandardOutput.output.startsWith(beginning));

        const Run intoFile = runWith(receipt, toFile(format, format));
        QCOMPARE(intoFile.output + intoFile.errors, QByteArray());
        QCOMPARE(intoFile.exitCode, 0);
        QCOMPARE(folder.read(format), toStandardOutput.output);
    }

    void timeAndPlaceChangeNothing()
    {
        for (const QString &format : {u"png"_s, u"pdf"_s, u"svg"_s}) {
            const QStringList arguments{u"--format"_s, format,       u"--output"_s,
                                        u"-"_s,        u"--title"_s, u"Ricevuta"_s};
            const QByteArray first = runWith(receipt, arguments, {u"TZ=Asia/Tokyo"_s}).output;
            QTest::qWait(1100); // another second
            const Run second = runWith(receipt, arguments, {u"TZ=America/Lima"_s, u"LC_ALL=de_DE.UTF-8"_s});
            QVERIFY(!first.isEmpty());
            QVERIFY2(first == second.output, qPrintable(format));
        }
    }

    void encodingAndColumns()
    {
        const QStringList wanted = {u"--format"_s, u"svg"_s,       u"--output"_s,
                                    u"-"_s,        u"--columns"_s, u"24,40"_s};
        const QByteArray latin = QByteArray(receipt).replace("\xC3\xA8", "\xE8");
        const Run run = runWith(latin, wanted + QStringList{u"--encoding"_s, u"ISO-8859-15"_s});
        QCOMPARE(run.errors, QByteArray());
        QCOMPARE(run.output, runWith(receipt, wanted).output);
        QVERIFY(run.output.contains("Caff\xC3\xA8"));
    }

    void leavesNothingBehind()
    {
        const QString temporary = folder.path(u"tmp"_s);
        QVERIFY(QDir().mkpath(temporary));
        QCOMPARE(runWith(receipt, toFile(u"png"_s, u"a.png"_s), {u"TMPDIR="_s + temporary}).errors,
                 QByteArray());
        QCOMPARE(QDir(temporary).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList());
    }

    void wrongWords_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("complaint");
        const auto row = [](const char *name, const QStringList &arguments, const QByteArray &complaint) {
            QTest::newRow(name) << arguments
                                << "palvestrin: error: " + complaint + "; see \"palvestrin-draw --help\"\n";
        };
        const QStringList png{u"--format"_s, u"png"_s, u"--output"_s, u"x"_s};
        row("nothing", {}, "--format png|pdf|svg is missing");
        row("no output", {u"--format"_s, u"png"_s}, "--output FILE is missing");
        row("another format", {u"--format"_s, u"gif"_s}, "the format \"gif\" is none of png, pdf, svg");
        row("another option", png + QStringList{u"--colour"_s}, "Unknown option 'colour'.");
        row("a file", png + QStringList{u"job.xml"_s},
            "\"job.xml\" is no option; the stream is read on standard input");
        row("scale that is too large", png + QStringList{u"--scale"_s, u"9"_s},
            "--scale takes a number from 1 to 8, not \"9\"");
        row("scale of a PDF", {u"--format"_s, u"pdf"_s, u"--output"_s, u"x"_s, u"--scale"_s, u"2"_s},
            "--scale does not go with pdf, which is as wide as the paper; leave it out");
        row("columns that are none", png + QStringList{u"--columns"_s, u"40,"_s},
            "--columns takes a number from 1 to 1000, not \"\"");
        row("no columns", png + QStringList{u"--columns"_s, u"0"_s},
            "--columns takes a number from 1 to 1000, not \"0\"");
        row("an unknown encoding", png + QStringList{u"--encoding"_s, u"klingon"_s},
            "the encoding \"klingon\" is not known");
    }
    void wrongWords()
    {
        QFETCH(QStringList, arguments);
        const Run run = runWith(receipt, arguments);
        QTEST(run.errors, "complaint");
        QCOMPARE(run.output, QByteArray());
        QCOMPARE(run.exitCode, codeOf(ExitCode::WrongUsage));
    }

    void help()
    {
        const Run run = runWith({}, {u"--help"_s});
        QCOMPARE(run.exitCode, 0);
        for (const char *option :
             {"--format", "--output", "--scale", "--marks", "--columns", "--encoding", "--title"})
            QVERIFY2(run.output.contains(option), option);
    }

    void nothingToDraw()
    {
        folder.write(u"old"_s, "old");
        const Run run = runWith("J\n", toFile(u"png"_s, u"old"_s));
        QCOMPARE(run.errors,
                 QByteArray("palvestrin: error: there is nothing to draw: the stream has no section\n"));
        QCOMPARE(run.exitCode, codeOf(ExitCode::Unreadable));
        QCOMPARE(folder.read(u"old"_s), QByteArray("old"));
    }

    void aSectionWithoutRowsIsBlankPaper()
    {
        const Run run = runWith("\nj\nJ\n", toFile(u"png"_s, u"blank.png"_s));
        QCOMPARE(run.errors, QByteArray());
        QCOMPARE(run.exitCode, 0);
    }

    void brokenStreamsAreDrawnAsFarAsTheyGo()
    {
        const Run run =
            runWith("\nj\n\"Bar \"Roma\"\"@\n\"cut o", {u"--format"_s, u"svg"_s, u"--output"_s, u"-"_s});
        QCOMPARE(run.exitCode, codeOf(ExitCode::Broken));
        QVERIFY2(run.errors.startsWith("standard input:3:6: error: a quote inside a line"), run.errors);
        QVERIFY(run.output.contains(">cut o</text>") || run.output.contains(">cut </text>"));
        QVERIFY(run.output.contains("#ffdf80")); // the mark
    }

    void faultsAreListedUpToANumber()
    {
        const Run run = runWith("\nj\n" + QByteArray("\"a\"b\"@\n").repeated(150) + "J\n",
                                {u"--format"_s, u"svg"_s, u"--output"_s, u"-"_s});
        QCOMPARE(run.errors.count('\n'), 101);
        QVERIFY(run.errors.endsWith("palvestrin: error: 50 more faults were found, which are not listed\n"));
    }

    void aLongStreamIsTooLarge()
    {
        folder.write(u"old"_s, "old");
        const Run run =
            runWith("\nj\n" + QByteArray("\"row\"@\n").repeated(200000) + "J\n", toFile(u"png"_s, u"old"_s));
        QCOMPARE(
            run.errors,
            QByteArray("palvestrin: error: there are 200001 rows and strips, and a picture holds at most "
                       "10000; use \"palvestrin preview --format txt\"\n"));
        QCOMPARE(run.exitCode, codeOf(ExitCode::TooLarge));
        QCOMPARE(folder.read(u"old"_s), QByteArray("old"));
    }

    void missingCharactersAreTold()
    {
        const Run run =
            runWith("\nj\n\"\xEE\x80\x80 a\"@\nJ\n", {u"--format"_s, u"pdf"_s, u"--output"_s, u"-"_s});
        QCOMPARE(
            run.errors,
            QByteArray("palvestrin-draw: warning: no installed font has \xEE\x80\x80, which are drawn as "
                       "boxes; the packages fonts-noto-cjk and fonts-symbola have many characters\n"));
        QCOMPARE(run.exitCode, 0);
    }

    void whereNothingCanBeWritten()
    {
        const Run noFolder = runWith(receipt, toFile(u"png"_s, u"no/such/folder.png"_s));
        QCOMPARE(noFolder.errors,
                 folder.path(u"no/such/folder.png"_s).toUtf8() + ": error: No such file or directory\n");
        QCOMPARE(noFolder.exitCode, codeOf(ExitCode::WriteFailed));

        const Run full = runWith(receipt, {u"--format"_s, u"png"_s, u"--output"_s, u"/dev/full"_s});
        QCOMPARE(full.errors, QByteArray("/dev/full: error: No space left on device\n"));
        QCOMPARE(full.exitCode, codeOf(ExitCode::WriteFailed));
    }

    void aFileIsNamedByItsBytes()
    {
        const QString name = u"\"$(printf 'caff\\350.png')\""_s; // no UTF-8
        const QString draw = "\"$0\" --format png --output "_L1 + name;
        QProcess shell;
        shell.setWorkingDirectory(folder.path());
        shell.setStandardInputFile(folder.write(u"stream"_s, receipt));
        shell.start(u"sh"_s, {u"-c"_s, draw + " && test -s "_L1 + name, QStringLiteral(PALVESTRIN_DRAW)});
        QVERIFY(shell.waitForFinished());
        QCOMPARE(shell.readAllStandardError(), QByteArray());
        QCOMPARE(shell.exitCode(), 0);
    }

    void devicesStayDevices()
    {
        QCOMPARE(runWith(receipt, {u"--format"_s, u"png"_s, u"--output"_s, u"/dev/null"_s}).exitCode, 0);
        QVERIFY(!QFileInfo(u"/dev/null"_s).isFile());
    }
};

QTEST_GUILESS_MAIN(DrawProgramTest)
#include "program_test.moc"

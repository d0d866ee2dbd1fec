#include "madelocale.h"
#include "program.h"
#include "scratchfolder.h"
#include "temporaryhome.h"

#include <QFileInfo>
#include <QTest>

#include <fcntl.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString program = QStringLiteral(PALVESTRIN_PROGRAM);

constexpr char receipt[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<job><method name="printFullOrderReceipt"/><receipt serialnumber="7"/><notPaid price="caffè 5 €"/></job>)";
constexpr char configuration[] = "palvestrin: { receiptdoc: { paperWidth = 36; }; };";

} // namespace

/// Runs the program itself: what "palvestrin preview" shows, what it says, and how it ends.
class PreviewCommandTest : public QObject
{
    Q_OBJECT

private:
    ScratchFolder folder;
    const QString home = folder.path(u"home"_s);
    const QString locales = folder.path(u"locales"_s);

    QStringList environment() const
    {
        return bareEnvironment(home) +
               QStringList{u"LOCPATH="_s + locales, withoutLeakCheck, u"PATH=/usr/bin:/bin"_s};
    }
    ProgramRun run(const QStringList &arguments, const QStringList &moreEnvironment = {}) const
    {
        return runProgram(program, QStringList{u"preview"_s} + arguments, environment() + moreEnvironment,
                          folder.path());
    }
    /// The same with standard input.
    ProgramRun runWith(const QByteArray &input, const QStringList &arguments) const
    {
        folder.write(u"input"_s, input);
        return runProgram(u"/bin/sh"_s,
                          QStringList{u"-c"_s, u"cat input | exec \"$0\" preview \"$@\""_s, program} +
                              arguments,
                          environment(), folder.path());
    }
    void configure(const QByteArray &content) const
    {
        QVERIFY(QDir().mkpath(home + u"/.palvestrin/conf"_s));
        folder.write(u"home/.palvestrin/conf/palvestrin.conf"_s, content);
    }

private Q_SLOTS:
    void initTestCase()
    {
        makeLocale(locales, u"it_IT"_s, u"ISO-8859-15"_s);
        configure("palvestrin: { };");
        folder.write(u"job.xml"_s, receipt);
        folder.write(u"wide.conf"_s, configuration);
        folder.write(u"conf.xml"_s, "<palvestrin><receiptdoc paperWidth='36'/></palvestrin>");
        folder.write(u"output"_s, "\nj\n\"HELLO\"@\n\"WORLD \"@\nJ\n");
        folder.write(u"broken"_s, "\nj\n\"say \"hi\"\"@\n\"cut");
    }

    void rendersJobs()
    {
        const ProgramRun shown = run({u"job.xml"_s});
        QCOMPARE(shown.failure, QString());
        QCOMPARE(shown.standardError, "");
        QCOMPARE(shown.standardOutput, "  ┌────────────────────────────────┐\n"
                                       "  │ Serial Number: 7               │\n"
                                       "  │================================│\n"
                                       "  │                                │\n"
                                       "  │    Amount not paid: caffè 5 €  │\n"
                                       "  └────────────────────────────────┘\n");
    }

    void takesAnotherConfiguration()
    {
        const ProgramRun shown = run({u"--config"_s, u"wide.conf"_s, u"job.xml"_s});
        QCOMPARE(shown.failure, QString());
        QCOMPARE(shown.standardOutput, "  ┌────────────────────────────────────┐\n"
                                       "  │ Serial Number: 7                   │\n"
                                       "  │====================================│\n"
                                       "  │                                    │\n"
                                       "  │    Amount not paid: caffè 5 €      │\n"
                                       "  └────────────────────────────────────┘\n");
        QCOMPARE(QFileInfo(home).dir().entryList({u"*"_s}, QDir::Dirs | QDir::NoDotAndDotDot),
                 (QStringList{u"home"_s, u"locales"_s}));
    }

    void takesThePrintersWidth()
    {
        const ProgramRun shown = run({u"--columns"_s, u"24"_s, u"job.xml"_s});
        QCOMPARE(shown.failure, QString());
        QCOMPARE(shown.standardOutput, "  ┌────────────────────────┐\n"
                                       "  │ Serial Number: 7       │\n"
                                       "  │========================»========\n"
                                       "  │                        │\n"
                                       "  │    Amount not paid: caf»fè 5 €\n"
                                       "  └────────────────────────┘\n");
    }

    void finishedOutputs()
    {
        const ProgramRun shown = run({u"output"_s});
        QCOMPARE(shown.failure, QString());
        QCOMPARE(shown.standardOutput, "  ┌────────────────────────────────┐\n"
                                       "  │HELLO                           │\n"
                                       "  │WORLD                           │\n"
                                       "  └────────────────────────────────┘\n");
    }

    void theWidthOfFinishedOutputs()
    {
        folder.write(u"ruled"_s, "\nj\n\"========================================\"@\n\nj\n\"a\"@\nJ\n");
        const ProgramRun shown = run({u"--config"_s, u"wide.conf"_s, u"ruled"_s});
        QCOMPARE(shown.failure, QString());
        QCOMPARE(shown.standardOutput, "  ┌────────────────────────────────────────┐\n"
                                       "  │========================================│\n"
                                       "  └────────────────────────────────────────┘\n"
                                       "\n"
                                       "  ┌────────────────────────────────────┐\n"
                                       "  │a                                   │\n"
                                       "  └────────────────────────────────────┘\n");
    }

    void standardInput()
    {
        const QByteArray job = runWith(receipt, {u"-o"_s, u"-"_s, u"-"_s}).standardOutput;
        QCOMPARE(job,
                 " Serial Number: 7\n================================\n\n    Amount not paid: caffè 5 €\n");
        const ProgramRun output = runWith("\nj\n\"a\n", {u"-"_s, u"-o"_s, u"-"_s});
        QCOMPARE(output.exitStatus, 9);
        QCOMPARE(output.standardOutput, "a␊\n");
        QCOMPARE(
            output.standardError,
            "standard input:3:3: error: a line break inside a line; the printer may take it for the end of "
            "the "
            "line\n"
            "standard input:4:1: error: the closing J is missing: the job was not read to its end, or its "
            "output was cut off\n");
    }

    void textFiles()
    {
        const ProgramRun shown = run({u"output"_s, u"output"_s, u"-o"_s, u"paper.txt"_s});
        QCOMPARE(shown.failure, QString());
        QCOMPARE(shown.standardOutput + shown.standardError, "");
        QCOMPARE(folder.read(u"paper.txt"_s), "HELLO\nWORLD \n\f\nHELLO\nWORLD \n");
        QCOMPARE(run({u"--format"_s, u"txt"_s, u"output"_s}).standardOutput, "HELLO\nWORLD \n");
        QCOMPARE(run({u"--format"_s, u"txt"_s, u"-o"_s, u"paper"_s, u"output"_s}).failure, QString());
        QCOMPARE(folder.read(u"paper"_s), "HELLO\nWORLD \n");
        QCOMPARE(run({u"output"_s, u"-o"_s, u"PAPER.TXT"_s}).failure, QString());
    }

    void brokenOutputsAreShownAsFarAsTheyGo()
    {
        const ProgramRun shown = run({u"broken"_s});
        QCOMPARE(shown.exitStatus, 9);
        QCOMPARE(shown.standardOutput, "  ┌────────────────────────────────┐\n"
                                       "! │say \"hi\"                        │\n"
                                       "       ^  ^\n"
                                       "! │cut                             │\n"
                                       "     ^\n"
                                       "  └────────────────────────────────┘\n"
                                       "   The output is cut off here.\n");
        QCOMPARE(shown.standardError,
                 "broken:3:6: error: a quote inside a line; the printer takes it for the end of the line\n"
                 "broken:3:9: error: a quote inside a line; the printer takes it for the end of the line\n"
                 "broken:4:5: error: the output ends in the middle of a line\n");
    }

    void faultsOfAJobArePlacesInItsOutput()
    {
        folder.write(u"quoted.xml"_s,
                     "<job><method name='printFullOrderReceipt'/><notPaid price='\"'/></job>");
        const ProgramRun shown = run({u"quoted.xml"_s, u"-o"_s, u"-"_s});
        QCOMPARE(shown.exitStatus, 9);
        QCOMPARE(shown.standardOutput, "\n    Amount not paid: \"\n");
        QCOMPARE(shown.standardError,
                 "quoted.xml, as printed:4:23: error: a quote inside a line; the printer takes "
                 "it for the end of the line\n");
    }

    void manyFaultsAreCounted()
    {
        folder.write(u"many"_s, "\nj\n\"" + QByteArray(150, '"') + "\"@\nJ\n");
        const ProgramRun shown = run({u"many"_s});
        QCOMPARE(shown.exitStatus, 9);
        QCOMPARE(shown.standardError.count('\n'), 101);
        QVERIFY(shown.standardError.endsWith(
            "\npalvestrin: error: 50 more faults were found, which are not listed\n"));
    }

    void passesOnWhatTheRendererSays()
    {
        folder.write(u"unknown.xml"_s, "<job><method name='printReceipt'/></job>");
        const ProgramRun unknown = run({u"unknown.xml"_s});
        QCOMPARE(unknown.exitStatus, 4);
        QCOMPARE(unknown.standardOutput, "");
        QCOMPARE(unknown.standardError, "unknown.xml: note: File Format Not Supported\n"
                                        "unknown.xml: error: it prints nothing; a print job is XML and names "
                                        "a print method that is known\n");
    }

    void severalFilesHaveTitles()
    {
        const ProgramRun shown = run({u"--columns"_s, u"6"_s, u"output"_s, u"output"_s});
        QCOMPARE(shown.failure, QString());
        const QByteArray strip = "  ┌──────┐\n  │HELLO │\n  │WORLD │\n  └──────┘\n";
        QCOMPARE(shown.standardOutput, "output\n" + strip + "\noutput\n" + strip);
    }

    void printersLocale()
    {
        const ProgramRun shown = run({u"--locale"_s, u"it_IT.ISO-8859-15"_s, u"-o"_s, u"-"_s, u"job.xml"_s});
        QCOMPARE(shown.failure, QString());
        QCOMPARE(shown.standardOutput,
                 " Serial Number: 7\n================================\n\n    Amount not paid: caffè 5 €\n");
        folder.write(u"latin9"_s, "\nj\n\"caff\xe8 \xa4\"@\nJ\n");
        QCOMPARE(run({u"latin9"_s, u"--locale"_s, u"it_IT.ISO-8859-15"_s, u"-o"_s, u"-"_s}).standardOutput,
                 "caffè €\n");
        const ProgramRun wrong = run({u"latin9"_s, u"-o"_s, u"-"_s});
        QCOMPARE(wrong.exitStatus, 9);
        QCOMPARE(wrong.standardOutput, "caff\xef\xbf\xbd \xef\xbf\xbd\n");
        QCOMPARE(wrong.standardError,
                 "latin9:3:6: error: bytes that are no character; the output may be in another encoding\n"
                 "latin9:3:8: error: bytes that are no character; the output may be in another encoding\n");
    }

    void charactersThatThePrinterLacks()
    {
        folder.write(u"wide.xml"_s,
                     "<job><method name='printFullOrderReceipt'/><notPaid price='\xe9\xba\xba'/></job>");
        QCOMPARE(run({u"--locale"_s, u"it_IT.ISO-8859-15"_s, u"-o"_s, u"-"_s, u"wide.xml"_s}).standardOutput,
                 "\n    Amount not paid: ?\n");
    }

    void theScreensLocale()
    {
        folder.write(u"accent"_s, "\nj\n\"caffè\"@\nJ\n");
        const QStringList arguments{u"--columns"_s, u"5"_s, u"accent"_s};
        QCOMPARE(run(arguments, {u"LC_ALL=C"_s}).standardOutput, "  +-----+\n  |caff?|\n  +-----+\n");
        QCOMPARE(run(arguments, {u"LC_ALL=it_IT.ISO-8859-15"_s}).standardOutput,
                 "  +-----+\n  |caff\xc3>\xa8\n  +-----+\n"); // read in it, too
        QCOMPARE(run(arguments, {u"LC_ALL=xx_YY.utf8"_s}).standardOutput,
                 "  ┌─────┐\n  │caffè│\n  └─────┘\n");
    }

    void refusals_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArray>("errors");
        const auto row = [](const QStringList &arguments, int code, const QByteArray &errors) {
            QTest::newRow(qPrintable(arguments.join(u' '))) << arguments << code << errors + '\n';
        };
        row({u"nosuch.xml"_s}, 4, "nosuch.xml: error: No such file or directory");
        row({u"."_s}, 4, ".: error: this is a folder; name a file");
        row({u"/dev/null"_s}, 4, "/dev/null: error: the file is empty");
        row({u"wide.conf"_s}, 4,
            "wide.conf: error: this is neither a print job (XML) nor what goes to a printer");
        row({u"--config"_s, u"nosuch.conf"_s, u"job.xml"_s}, 4, "nosuch.conf: error: there is no such file");
        row({u"--config"_s, u"conf.xml"_s, u"job.xml"_s}, 4,
            "conf.xml: error: the renderer reads a configuration as text, and this is XML");
        row({u"--locale"_s, u"xx_YY"_s, u"job.xml"_s}, 2,
            "palvestrin: error: the locale \"xx_YY\" is not installed here; \"locale -a\" lists those that "
            "are");
        row({u"-o"_s, u"x.gif"_s, u"job.xml"_s}, 2,
            "palvestrin: error: the ending of \"x.gif\" tells no format; let it end in .txt, .png, .pdf, "
            ".svg, or "
            "give --format");
        row({u"--format"_s, u"gif"_s, u"job.xml"_s}, 2,
            "palvestrin: error: no \"gif\" for --format; give txt or png or pdf or svg; usage: palvestrin "
            "preview "
            "[--config FILE] [--locale NAME] [-o OUT] [--format txt|png|pdf|svg] [--columns N] "
            "[--scale N] [--marks] [--device line|escpos] [--profile PROFILE] [--hex] FILE...");
        row({u"--columns"_s, u"0"_s, u"job.xml"_s}, 2,
            "palvestrin: error: --columns takes a number from 1 to 1000, not \"0\"");
        row({u"--columns"_s, u"wide"_s, u"job.xml"_s}, 2,
            "palvestrin: error: --columns takes a number from 1 to 1000, not \"wide\"");
        row({u"--scale"_s, u"2"_s, u"job.xml"_s}, 2,
            "palvestrin: error: --scale is for pictures; give an output such as -o ticket.png with it");
        row({u"--marks"_s, u"-o"_s, u"x.txt"_s, u"job.xml"_s}, 2,
            "palvestrin: error: --marks is for terminals and pictures; the text form has the rows alone");
        row({u"-o"_s, u"nofolder/x.txt"_s, u"job.xml"_s}, 7,
            "nofolder/x.txt: error: No such file or directory");
        row({u"--format"_s, u"txt"_s, u"-o"_s, u"/dev/full"_s, u"job.xml"_s}, 7,
            "/dev/full: error: No space left on device");
        row({u"--format"_s, u"txt"_s, u"-o"_s, u"job.xml"_s, u"job.xml"_s}, 5,
            "job.xml: error: this is one of the files to show; name another");
    }
    void refusals()
    {
        QFETCH(const QStringList, arguments);
        const ProgramRun refused = run(arguments);
        QTEST(refused.exitStatus, "code");
        QTEST(refused.standardError, "errors");
        QCOMPARE(refused.standardOutput, "");
        QCOMPARE(folder.read(u"job.xml"_s), receipt);
    }

    void anOutputThatFailsLeavesTheOldOne()
    {
        folder.write(u"old.txt"_s, "old");
        QCOMPARE(run({u"job.xml"_s, u"nosuch.xml"_s, u"-o"_s, u"old.txt"_s}).exitStatus, 4);
        QCOMPARE(folder.read(u"old.txt"_s), "old");
    }

    void namesWithDashesAndBlanks()
    {
        folder.write(u"-style a.xml"_s, receipt);
        QCOMPARE(run({u"-o"_s, u"-"_s, u"--"_s, u"-style a.xml"_s}).standardOutput,
                 " Serial Number: 7\n================================\n\n    Amount not paid: caffè 5 €\n");
    }

    void leavesNothingBehind()
    {
        const QString temporary = folder.path(u"tmp"_s);
        QVERIFY(QDir().mkpath(temporary));
        const QStringList there{u"TMPDIR="_s + temporary};
        QCOMPARE(
            run({u"--config"_s, u"wide.conf"_s, u"job.xml"_s, u"output"_s, u"broken"_s}, there).exitStatus,
            9);
        QCOMPARE(QDir(temporary).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList());
        const ProgramRun nowhere = run({u"job.xml"_s}, {u"TMPDIR=/dev/null"_s});
        QCOMPARE(nowhere.exitStatus, 7);
        QCOMPARE(nowhere.standardError,
                 "job.xml: error: there is no place for what it prints in /dev/null\n");
    }

    void whatIsNotInstalled();
    void handsPicturesOver();
    void tellsHowDrawingEnded();
    void coloursOnATerminal();
    void longOnesArePaged();
    void memoryDoesNotGrow();

private:
    ProgramRun runBeside(const QString &name, const QByteArray &script, const QStringList &arguments) const;
    QByteArray onTerminal(const QStringList &arguments, const QStringList &moreEnvironment,
                          int rows = 24) const;
};

/// Runs a copy of the program that has the renderer, and a script by that name, beside it.
ProgramRun PreviewCommandTest::runBeside(const QString &name, const QByteArray &script,
                                         const QStringList &arguments) const
{
    const QString bin = folder.path(u"bin"_s);
    QDir(bin).removeRecursively();
    const bool isReady = QDir().mkpath(bin) && QFile::copy(program, bin + u"/palvestrin"_s) &&
                         QFile::link(QStringLiteral(PALVESTRIN_PRINT), bin + u"/palvestrin-print"_s);
    if (!isReady)
        qFatal("cannot install a copy of the program");
    const QString path = folder.write(u"bin/"_s + name, script);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return runProgram(bin + u"/palvestrin"_s, QStringList{u"preview"_s} + arguments, environment(),
                      folder.path());
}

void PreviewCommandTest::whatIsNotInstalled()
{
    const ProgramRun undrawn = runBeside(u"other"_s, "#!/bin/sh\n", {u"-o"_s, u"x.png"_s, u"job.xml"_s});
    QCOMPARE(undrawn.exitStatus, 8);
    QCOMPARE(undrawn.standardError,
             "palvestrin: error: the program palvestrin-draw is not installed; install the "
             "package palvestrin-desktop\n");
    QVERIFY(QFile::remove(folder.path(u"bin/palvestrin-print"_s)));
    const ProgramRun unprinted = runProgram(folder.path(u"bin/palvestrin"_s), {u"preview"_s, u"job.xml"_s},
                                            environment(), folder.path());
    QCOMPARE(unprinted.exitStatus, 8);
    QCOMPARE(unprinted.standardError,
             "palvestrin: error: the program palvestrin-print is not installed; install "
             "the package palvestrin-print\n");
    const ProgramRun finished =
        runProgram(folder.path(u"bin/palvestrin"_s), {u"preview"_s, u"-o"_s, u"-"_s, u"output"_s},
                   environment(), folder.path());
    QCOMPARE(finished.standardOutput, "HELLO\nWORLD \n");
}

void PreviewCommandTest::handsPicturesOver()
{
    const QByteArray script = "#!/bin/sh\nfor word; do echo \"<$word>\"; done >words\ncat >stream\n";
    QCOMPARE(runBeside(u"palvestrin-draw"_s, script,
                       {u"-o"_s, u"x.png"_s, u"--config"_s, u"wide.conf"_s, u"--scale"_s, u"3"_s,
                        u"--marks"_s, u"job.xml"_s})
                 .failure,
             QString());
    QCOMPARE(folder.read(u"words"_s),
             "<--format>\n<png>\n<--output>\n<x.png>\n<--encoding>\n<UTF-8>\n<--title>\n"
             "<job.xml>\n<--columns>\n<36>\n<--scale>\n<3>\n<--marks>\n");
    QCOMPARE(folder.read(u"stream"_s),
             "\nj\n\" Serial Number: 7\"@\n\"====================================\"@\n"
             "\"\"@\n\"    Amount not paid: caffè 5 €\"@\nJ\n");

    const ProgramRun several = runBeside(u"palvestrin-draw"_s, script,
                                         {u"--format"_s, u"svg"_s, u"broken"_s, u"job.xml"_s, u"output"_s});
    QCOMPARE(several.exitStatus, 9);
    QCOMPARE(several.standardError,
             "broken:3:6: error: a quote inside a line; the printer takes it for the end of the line\n"
             "broken:3:9: error: a quote inside a line; the printer takes it for the end of the line\n"
             "broken:4:5: error: the output ends in the middle of a line\n");
    QCOMPARE(folder.read(u"words"_s), "<--format>\n<svg>\n<--output>\n<->\n<--encoding>\n<UTF-8>\n<--title>\n"
                                      "<broken>\n<--columns>\n<32,32,32>\n");
    QCOMPARE(folder.read(u"stream"_s),
             "\nj\n\"say \"hi\"\"@\n\"cut\n"
             "\nj\n\" Serial Number: 7\"@\n\"================================\"@\n\"\"@\n"
             "\"    Amount not paid: caffè 5 €\"@\nJ\n"
             "\nj\n\"HELLO\"@\n\"WORLD \"@\nJ\n");

    QCOMPARE(runBeside(u"palvestrin-draw"_s, script,
                       {u"-o"_s, u"x.pdf"_s, u"--columns"_s, u"48"_s, u"--locale"_s, u"it_IT.ISO-8859-15"_s,
                        u"job.xml"_s})
                 .failure,
             QString());
    QCOMPARE(folder.read(u"words"_s), "<--format>\n<pdf>\n<--output>\n<x.pdf>\n<--encoding>\n<ISO-8859-15>\n"
                                      "<--title>\n<job.xml>\n<--columns>\n<48>\n");
}

void PreviewCommandTest::tellsHowDrawingEnded()
{
    const ProgramRun failed = runBeside(
        u"palvestrin-draw"_s, "#!/bin/sh\necho picture\necho 'x.png: error: too large' >&2\nexit 10\n",
        {u"-o"_s, u"x.png"_s, u"job.xml"_s});
    QCOMPARE(failed.exitStatus, 10);
    QCOMPARE(failed.standardOutput, "picture\n");
    QCOMPARE(failed.standardError, "x.png: error: too large\n");
    const ProgramRun killed =
        runBeside(u"palvestrin-draw"_s, "#!/bin/sh\nkill -9 $$\n", {u"-o"_s, u"x.png"_s, u"job.xml"_s});
    QCOMPARE(killed.exitStatus, 4);
    QVERIFY(killed.standardError.endsWith("/palvestrin-draw was ended by signal 9 before it was done\n"));
}

/// What appears on a terminal of 80 columns.
QByteArray PreviewCommandTest::onTerminal(const QStringList &arguments, const QStringList &moreEnvironment,
                                          int rows) const
{
    int ours = -1;
    int theirs = -1;
    winsize size{};
    size.ws_row = static_cast<unsigned short>(rows);
    size.ws_col = 80;
    if (openpty(&ours, &theirs, nullptr, nullptr, &size) != 0)
        qFatal("no terminal to test with");
    QProcess process;
    QProcessEnvironment variables;
    for (const QString &variable : environment() + QStringList{u"TERM=xterm"_s} + moreEnvironment)
        variables.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    process.setProcessEnvironment(variables);
    process.setWorkingDirectory(folder.path());
    process.setChildProcessModifier([theirs] { dup2(theirs, STDOUT_FILENO); });
    process.start(program, QStringList{u"preview"_s} + arguments);
    const bool isDone = process.waitForFinished();
    close(theirs);
    QByteArray shown;
    char piece[4096];
    for (ssize_t count = 0; (count = read(ours, piece, sizeof(piece))) > 0;)
        shown.append(piece, count);
    close(ours);
    return isDone ? shown.replace("\r\n", "\n") : QByteArray("it does not end");
}

void PreviewCommandTest::coloursOnATerminal()
{
    const QStringList arguments{u"--columns"_s, u"6"_s, u"output"_s};
    const QByteArray plain = "  ┌──────┐\n  │HELLO │\n  │WORLD │\n  └──────┘\n";
    const QByteArray coloured = "\033[0;2m  ┌──────┐\033[0m\n"
                                "  \033[0;2m│\033[0mHELLO \033[0;2m│\033[0m\n"
                                "  \033[0;2m│\033[0mWORLD \033[0;2m│\033[0m\n"
                                "\033[0;2m  └──────┘\033[0m\n";
    QCOMPARE(onTerminal(arguments, {}), coloured);
    QCOMPARE(onTerminal(arguments, {u"NO_COLOR="_s}), coloured);
    QCOMPARE(onTerminal(arguments, {u"NO_COLOR=1"_s}), plain);
    QCOMPARE(onTerminal(arguments, {u"TERM=dumb"_s}), plain);
    QCOMPARE(onTerminal({u"-o"_s, u"-"_s, u"output"_s}, {}), "HELLO\nWORLD \n");
}

void PreviewCommandTest::longOnesArePaged()
{
    const QStringList arguments{u"--columns"_s, u"6"_s, u"output"_s};
    const QByteArray paper = "  ┌──────┐\n  │HELLO │\n  │WORLD │\n  └──────┘\n";
    const QStringList pager{u"NO_COLOR=1"_s, u"PAGER=(echo \"$LESS\"; cat) >paged"_s};
    QCOMPARE(onTerminal(arguments, pager, 5), paper);
    QCOMPARE(onTerminal(arguments, pager, 4), "");
    QCOMPARE(folder.read(u"paged"_s), "FRX\n" + paper);
    QCOMPARE(onTerminal(arguments, pager + QStringList{u"LESS=M"_s}, 3), "");
    QCOMPARE(folder.read(u"paged"_s), "M\n" + paper);
    QCOMPARE(onTerminal(arguments, {u"NO_COLOR=1"_s, u"PAGER=cat"_s}, 3), paper);
    QCOMPARE(onTerminal(arguments, {u"NO_COLOR=1"_s, u"PAGER="_s}, 3), paper);
    // Somebody who leaves at once.
    folder.write(u"long"_s, "\nj\n" + QByteArray("\"a\"@\n").repeated(200'000) + "J\n");
    QCOMPARE(onTerminal({u"--columns"_s, u"6"_s, u"long"_s}, {u"NO_COLOR=1"_s, u"PAGER=head -n 2"_s}, 3),
             "  ┌──────┐\n  │a     │\n");
}

void PreviewCommandTest::memoryDoesNotGrow()
{
#if defined(__SANITIZE_ADDRESS__)
    QSKIP("a sanitizer has memory of its own");
#endif
    QByteArray job = "<job><method name='printPartialOrder'/>";
    for (int i = 0; i < 200'000; ++i)
        job += "<receipe quantity='1' name='Pizza'/>";
    folder.write(u"long.xml"_s, job + "</job>");
    // A limit that the program with its libraries keeps, and a copy of the rows would not.
    const QString limited = u"ulimit -v 200000; exec \"$0\" preview \"$@\""_s;
    for (const QString &form : {u"txt"_s, QString()}) {
        const QStringList options = form.isEmpty() ? QStringList() : QStringList{u"--format"_s, form};
        const ProgramRun shown = runProgram(
            u"/bin/sh"_s, QStringList{u"-c"_s, limited, program} + options + QStringList{u"long.xml"_s},
            environment(), folder.path());
        QCOMPARE(shown.failure, QString());
        QVERIFY(shown.standardOutput.count('\n') >= 200'000);
    }
}

QTEST_GUILESS_MAIN(PreviewCommandTest)

#include "previewcommand_test.moc"

#include "program.h"
#include "scratchfolder.h"
#include "temporaryhome.h"
#include "wholefile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString examples = QStringLiteral(PALVESTRIN_SOURCE_DIR) + u"/examples"_s;
const QString exampleConfiguration = examples + u"/home/.palvestrin/conf/palvestrin.conf"_s;

constexpr char misspelled[] = "<job><method name=\"printPartialOrder\"/>\n"
                              "<receipe number=\"1\" nmae=\"Pizza\" name=\"Pizza\" price=\"7,00\"/></job>\n";
constexpr char hostile[] = "<job><method name=\"printPartialOrder\"/>\n"
                           "<receipe number=\"1\" name=\"&#27;[2J&#10;ok\"/></job>\n";

} // namespace

/// Runs the program itself.
class CheckCommandTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home;
    const ScratchFolder folder;

    ProgramRun run(const QStringList &arguments)
    {
        return runProgram(QStringLiteral(PALVESTRIN_PROGRAM), QStringList{u"check"_s} + arguments,
                          bareEnvironment(home.path()), folder.path());
    }

private Q_SLOTS:
    void initTestCase()
    {
        home.configure(contentOf(exampleConfiguration));
        folder.write(u"clean.xml"_s, contentOf(examples + u"/jobs/printPartialOrder.xml"_s));
        folder.write(u"misspelled.xml"_s, misspelled);
        folder.write(u"hostile.xml"_s, hostile);
        folder.write(u"other.conf"_s,
                     "palvestrin:\n{\n    doc:\n    {\n        paperWidth = \"10\";\n    };\n};\n");
        folder.write(u"long.xml"_s, "<job><method name=\"printSold\"/>\n" +
                                        QByteArray("<sold/>\n").repeated(1000) + "</job>");
    }

    void saysNothingOfACleanJob()
    {
        const ProgramRun checked = run({u"clean.xml"_s});
        QCOMPARE(checked.exitStatus, 0);
        QCOMPARE(checked.standardOutput + checked.standardError, QByteArray());
    }

    void warnings()
    {
        const ProgramRun checked = run({u"misspelled.xml"_s});
        QCOMPARE(checked.exitStatus, 11);
        QCOMPARE(checked.standardOutput,
                 "misspelled.xml:2:21: warning: \"nmae\" is no attribute of \"receipe\"; did you mean "
                 "\"name\"? [unknown-attribute]\n");
        QCOMPARE(checked.standardError, QByteArray());
    }

    void notesOnlyWhenAsked()
    {
        QVERIFY(run({u"--verbose"_s, u"misspelled.xml"_s})
                    .standardOutput.endsWith("misspelled.xml:2:47: note: printPartialOrder does not print "
                                             "\"price\" of \"receipe\" [unused-attribute]\n"));
    }

    /// What a job holds must not command the terminal, nor look like another finding.
    void errorsOnOneLineWithoutControls()
    {
        const ProgramRun checked = run({u"hostile.xml"_s});
        QCOMPARE(checked.exitStatus, 12);
        QCOMPARE(checked.standardOutput.count('\n'), 2);
        QVERIFY(!checked.standardOutput.contains('\x1b'));
        QVERIFY(checked.standardOutput.startsWith("hostile.xml:2:27: error: the escape sequence in "
                                                  "\"\\x1b[2J\\nok\" is a command to the printer"));
    }

    void quiet()
    {
        const ProgramRun checked = run({u"--quiet"_s, u"hostile.xml"_s});
        QCOMPARE(checked.exitStatus, 12);
        QCOMPARE(checked.standardOutput + checked.standardError, QByteArray());
    }

    void json()
    {
        const ProgramRun checked = run({u"--json"_s, u"clean.xml"_s, u"misspelled.xml"_s});
        QCOMPARE(checked.exitStatus, 11);
        const QJsonArray array = QJsonDocument::fromJson(checked.standardOutput).array();
        QCOMPARE(array.size(), 1);
        const QJsonObject expected{{u"file"_s, u"misspelled.xml"_s},
                                   {u"line"_s, 2},
                                   {u"column"_s, 21},
                                   {u"severity"_s, u"warning"_s},
                                   {u"id"_s, u"unknown-attribute"_s},
                                   {u"message"_s, u"\"nmae\" is no attribute of \"receipe\""_s},
                                   {u"hint"_s, u"did you mean \"name\"?"_s}};
        QCOMPARE(array.first().toObject(), expected);
        QCOMPARE(run({u"--json"_s, u"clean.xml"_s}).standardOutput, QByteArray("[\n]\n"));
    }

    void aHundredOfACheckUnlessAllAreWanted()
    {
        const ProgramRun some = run({u"long.xml"_s});
        QCOMPARE(some.standardOutput.count('\n'), 100);
        QCOMPARE(some.standardError,
                 "palvestrin: note: long.xml: 900 more of \"unknown-element\" are not shown; "
                 "--all shows them\n");
        const ProgramRun all = run({u"--all"_s, u"long.xml"_s});
        QCOMPARE(all.standardOutput.count('\n'), 1000);
        QCOMPARE(all.standardError, QByteArray());
    }

    void anotherConfiguration()
    {
        const ProgramRun checked = run({u"--config"_s, u"other.conf"_s, u"clean.xml"_s});
        QCOMPARE(checked.exitStatus, 11);
        QVERIFY(checked.standardOutput.contains(" wide, and the paper 10; "));
    }

    void withoutAConfigurationItSaysSo()
    {
        const ProgramRun checked =
            runProgram(QStringLiteral(PALVESTRIN_PROGRAM), {u"check"_s, u"clean.xml"_s},
                       bareEnvironment(folder.path()), folder.path());
        QVERIFY(checked.standardError.contains("jobs are checked with all widths 0 and all settings off"));
        QVERIFY(!checked.standardOutput.contains("FileReader"));
    }

    void whatCannotBeRead()
    {
        const ProgramRun checked = run({u"nothing.xml"_s, u"hostile.xml"_s});
        QCOMPARE(checked.exitStatus, 4);
        QCOMPARE(checked.standardError, "nothing.xml: error: No such file or directory\n");
        QVERIFY(checked.standardOutput.startsWith("hostile.xml:2:27: error"));
        QCOMPARE(run({u"--config"_s, u"nothing.conf"_s, u"clean.xml"_s}).exitStatus, 4);
        QCOMPARE(run({u"."_s}).exitStatus, 4);
    }

    void wrongUsage()
    {
        const ProgramRun checked = run({u"--as"_s, u"ticket"_s, u"clean.xml"_s});
        QCOMPARE(checked.exitStatus, 2);
        QCOMPARE(
            checked.standardError,
            "palvestrin: error: no \"ticket\" for --as; give job or config or output; usage: palvestrin "
            "check "
            "[--config FILE] [--as job|config|output] [--json] [--quiet] [--verbose] [--all] [FILE...]\n");
        QCOMPARE(run({u""_s}).exitStatus, 2);
    }

    void aConfiguration()
    {
        folder.write(u"spoiled.conf"_s, "palvestrin: {\n# tickets\ndoc: { paperWidth = 40; };\n};\n");
        const ProgramRun checked = run({u"spoiled.conf"_s});
        QCOMPARE(checked.exitStatus, 12);
        QCOMPARE(checked.standardOutput,
                 "spoiled.conf:3:1: error: \"# tickets\" is read as part of the name behind it: the block "
                 "\"palvestrin.doc\" is lost; take it out; this form of file has no remarks [remark]\n");
        QCOMPARE(checked.standardError, QByteArray());
        const ProgramRun same = runProgram(QStringLiteral(PALVESTRIN_PROGRAM),
                                           {u"config"_s, u"check"_s, u"--file"_s, u"spoiled.conf"_s},
                                           bareEnvironment(home.path()), folder.path());
        QCOMPARE(same.exitStatus, 12);
        QCOMPARE(same.standardOutput, checked.standardOutput);
    }

    void aConfigurationInXml()
    {
        folder.write(u"xml.conf"_s, "<palvestrin><doc printDate='yes'/></palvestrin>");
        const ProgramRun checked = run({u"xml.conf"_s});
        QCOMPARE(checked.exitStatus, 11);
        QCOMPARE(checked.standardOutput,
                 "xml.conf:1:29: warning: \"yes\" counts as false for palvestrin.doc.printDate; "
                 "give true or false, in small letters [bad-value]\n");
    }

    void anOutput()
    {
        folder.write(u"output"_s, "\nj\n\"Pizza\"@\n");
        const ProgramRun checked = run({u"output"_s});
        QCOMPARE(checked.exitStatus, 12);
        QCOMPARE(checked.standardOutput, "output:4:1: error: the closing J is missing: the job was not read "
                                         "to its end, or its output was cut "
                                         "off [unfinished-output]\n");
        folder.write(u"receipt"_s, "\x1b@Pizza\n\x1b\x01");
        QCOMPARE(run({u"receipt"_s}).standardOutput, "receipt:1:9: warning: no command that is known begins "
                                                     "with the bytes 1b 01; what is behind them would "
                                                     "be printed [unknown-command]\n");
    }

    /// A job whose root is called so passes itself off as a configuration, unless one says what it is.
    void asSomethingElse()
    {
        folder.write(u"disguised.xml"_s, "<palvestrin><method name=\"printPartialOrder\"/>"
                                         "<receipe number=\"1\" name=\"&#27;[2J\"/></palvestrin>");
        QVERIFY(!run({u"disguised.xml"_s}).standardOutput.contains("[escape-sequence]"));
        QVERIFY(run({u"--as"_s, u"job"_s, u"disguised.xml"_s}).standardOutput.contains("[escape-sequence]"));
        QVERIFY(run({u"--as"_s, u"output"_s, u"clean.xml"_s}).standardOutput.contains("[broken-output]"));
        QVERIFY(
            run({u"--as"_s, u"config"_s, u"misspelled.xml"_s}).standardOutput.contains("[unknown-block]"));
    }

    void whatIsNoneOfThem()
    {
        folder.write(u"letter.txt"_s, "Dear printer,\n");
        const ProgramRun checked = run({u"letter.txt"_s});
        QCOMPARE(checked.exitStatus, 12);
        QCOMPARE(checked.standardOutput.count('\n'), 1);
    }

    void severalFilesInOneArray()
    {
        const QJsonArray array =
            QJsonDocument::fromJson(run({u"--json"_s, u"spoiled.conf"_s, u"misspelled.xml"_s}).standardOutput)
                .array();
        QCOMPARE(array.size(), 2);
        QCOMPARE(array[0].toObject()[u"file"].toString(), u"spoiled.conf"_s);
        QCOMPARE(array[1].toObject()[u"file"].toString(), u"misspelled.xml"_s);
    }

    void aJobWhateverItLooksLike()
    {
        folder.write(u"text.xml"_s, "no job at all");
        const ProgramRun checked = run({u"--as"_s, u"job"_s, u"text.xml"_s});
        QCOMPARE(checked.exitStatus, 12);
        QVERIFY(checked.standardOutput.startsWith("text.xml:1:1: error: this is no XML"));
    }

    void standardInput()
    {
        const ProgramRun checked = runProgram(
            u"/bin/sh"_s, {u"-c"_s, QStringLiteral(PALVESTRIN_PROGRAM " check - < misspelled.xml")},
            bareEnvironment(home.path()) << u"PATH=/bin"_s, folder.path());
        QCOMPARE(checked.exitStatus, 11);
        QVERIFY(checked.standardOutput.startsWith("-:2:21: warning: "));
    }
};

/// Without a FILE the user's own configuration is checked, and the machine with it.
class UserConfigurationTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home;

    ProgramRun run(const QStringList &words, const QString &locale = u"C.UTF-8"_s)
    {
        return runProgram(QStringLiteral(PALVESTRIN_PROGRAM), words,
                          {u"HOME="_s + home.path(), u"LC_ALL="_s + locale}, home.path());
    }
    QByteArray lines(const QStringList &words, const QString &locale = u"C.UTF-8"_s)
    {
        return run(words, locale).standardOutput.replace(home.path().toUtf8(), "HOME");
    }
    void configure(const QByteArray &language, const QByteArray &log)
    {
        home.configure("palvestrin: {\nlanguage: { basedir = \"" + language + "\"; file = \"/\"; };\n" +
                       "logger: { basedir = \"" + log +
                       "\"; filename = \"a.log\"; type = \"APPEND\"; };\n};\n");
    }

private Q_SLOTS:
    void init() { QFile::remove(home.configurationPath()); }

    void withoutOne()
    {
        for (const QStringList &words : {QStringList{u"check"_s}, QStringList{u"config"_s, u"check"_s}}) {
            const ProgramRun checked = run(words);
            QCOMPARE(checked.exitStatus, 4);
            QCOMPARE(checked.standardOutput, QByteArray());
            QVERIFY(checked.standardError.endsWith(
                "palvestrin.conf: error: there is no such file; \"palvestrin config set\" makes it\n"));
        }
    }

    void theLog()
    {
        const QByteArray there = home.path().toUtf8();
        configure(there, there + "/gone");
        const QByteArray finding =
            "HOME/.palvestrin/conf/palvestrin.conf:3:21: warning: the file \"HOME/gone/a.log\" cannot be "
            "written: there "
            "is no log; make the folder, or correct palvestrin.logger.basedir and palvestrin.logger.filename "
            "[no-log]\n";
        QCOMPARE(lines({u"check"_s}), finding);
        QCOMPARE(lines({u"config"_s, u"check"_s}), finding);
        QCOMPARE(run({u"check"_s}).exitStatus, 11);
        QCOMPARE(lines({u"check"_s, home.configurationPath()}), QByteArray()); // it may be another machine's

        configure(there, there + "/.palvestrin/conf/palvestrin.conf");
        QVERIFY(lines({u"check"_s}).contains("[no-log]"));
        configure(there, there);
        QCOMPARE(lines({u"check"_s}), QByteArray());
        QDir(home.path()).mkpath(u"a.log"_s);
        QVERIFY(lines({u"check"_s}).contains("[no-log]"));
        QDir(home.path()).rmdir(u"a.log"_s);
    }

    void theCatalogue()
    {
        configure(home.path().toUtf8(), home.path().toUtf8());
        QCOMPARE(lines({u"check"_s}, u"en_GB.UTF-8"_s), QByteArray());
        QCOMPARE(lines({u"check"_s}, u"it_IT.UTF-8"_s),
                 "HOME/.palvestrin/conf/palvestrin.conf:2:" + QByteArray::number(34 + home.path().size()) +
                     ": warning: there is no catalogue for the language of this run at \"HOME\" followed by "
                     "\"/\": the "
                     "labels are English; correct palvestrin.language.basedir, or install the catalogue "
                     "[no-catalogue]\n");
        configure(TRANSLATIONS_FOLDER, home.path().toUtf8());
        QCOMPARE(lines({u"check"_s}, u"it_IT.UTF-8"_s), QByteArray());
    }

    void itIsReadAsText()
    {
        home.configure("<palvestrin><doc paperWidth='40'/></palvestrin>");
        const ProgramRun checked = run({u"config"_s, u"check"_s});
        QCOMPARE(checked.exitStatus, 12);
        QVERIFY(checked.standardOutput.contains("and the programs read this file as text"));
    }
};

int main(int argc, char **argv)
{
    CheckCommandTest ofFiles;
    UserConfigurationTest ofUser;
    const int failed = QTest::qExec(&ofFiles, argc, argv);
    return failed + QTest::qExec(&ofUser, argc, argv);
}
#include "checkcommand_test.moc"

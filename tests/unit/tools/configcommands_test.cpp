#include "scratchfolder.h"
#include "temporaryhome.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

#include <linux/capability.h>
#include <list>
#include <sys/prctl.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char example[] = R"(palvestrin: 
{
    logger: 
    {
        level = "INFO";
        filename = "palvestrin.log";
    };

    receiptdoc: 
    {
        paperWidth = "40";
    };

};

)";

struct Result
{
    int code = -1;
    QByteArray output;
    QByteArray errors;
};

} // namespace

/// Runs the program itself: what it prints, how it ends, what the file holds afterwards.
class ConfigCommandsTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home; ///< nothing here may touch the home of whoever runs the tests

    static Result run(const QStringList &arguments)
    {
        QProcess process;
        process.start(QStringLiteral(PALVESTRIN_PROGRAM), QStringList{u"config"_s} + arguments);
        if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
            return {};
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }
    /// The same with "--file FILE" behind the command.
    static Result runOn(const QString &file, QStringList arguments)
    {
        arguments.insert(1, u"--file"_s);
        arguments.insert(2, file);
        return run(arguments);
    }

private Q_SLOTS:
    void worksOnTheUsersFile()
    {
        QCOMPARE(run({u"set"_s, u"palvestrin.db.dbname"_s, u"shop"_s}).code, 0);
        QFile file(home.configurationPath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(),
                 "palvestrin: \n{\n    db: \n    {\n        dbname = \"shop\";\n    };\n\n};\n\n");
        const Result got = run({u"get"_s, u"palvestrin.db.dbname"_s});
        QCOMPARE(got.code, 0);
        QCOMPARE(got.output, "shop\n");
    }

    void setKeepsEverythingElse()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c.conf"_s, example);
        QCOMPARE(runOn(path, {u"set"_s, u"palvestrin.logger.level"_s, u"DEBUG"_s}).code, 0);
        QCOMPARE(folder.read(u"c.conf"_s), QByteArray(example).replace("INFO", "DEBUG"));
        QCOMPARE(folder.read(u"c.conf.bak"_s), example);
        const QStringList both{u"c.conf"_s, u"c.conf.bak"_s};
        QCOMPARE(folder.names(), both);
    }

    void settingWhatIsSetWritesNothing()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c.conf"_s, example);
        QCOMPARE(runOn(path, {u"set"_s, u"palvestrin.logger.level"_s, u"INFO"_s}).code, 0);
        QCOMPARE(folder.names(), QStringList{u"c.conf"_s});
    }

    void valuesAreStoredAsLatin1()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c.conf"_s, "");
        QCOMPARE(runOn(path, {u"set"_s, u"palvestrin.db.dbname"_s, u"caff\u00e8"_s}).code, 0);
        QCOMPARE(folder.read(u"c.conf"_s),
                 "palvestrin: \n{\n    db: \n    {\n        dbname = \"caff\xe8\";\n    };\n\n};\n\n");
        QCOMPARE(runOn(path, {u"get"_s, u"palvestrin.db.dbname"_s}).output, "caff\xc3\xa8\n");
    }

    void setsTheXmlForm()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c.xml"_s, "<palvestrin z='1'><db dbname='shop'/></palvestrin>");
        QCOMPARE(runOn(path, {u"set"_s, u"palvestrin.db.hostname"_s, u"caff\u00e8"_s}).code, 0);
        QCOMPARE(folder.read(u"c.xml"_s),
                 "\n<palvestrin\n    z = \"1\">\n\n    <db\n        dbname = \"shop\"\n"
                 "        hostname = \"caff\xc3\xa8\">\n    </db>\n</palvestrin>\n");
        const Result refused = runOn(path, {u"set"_s, u"palvestrin.db.password"_s, u"a<b"_s});
        QCOMPARE(refused.code, 3);
        QCOMPARE(refused.errors,
                 path.toUtf8() +
                     ": error: \"palvestrin\" would not survive: the XML form has no room for pairs outside "
                     "the first block, names that are no XML names, and '\"', '<', '&' and line breaks in "
                     "values\n");
    }

    void unsets()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c.conf"_s, example);
        QCOMPARE(runOn(path, {u"unset"_s, u"palvestrin.receiptdoc.paperWidth"_s}).code, 0);
        QCOMPARE(folder.read(u"c.conf"_s), "palvestrin: \n{\n    logger: \n    {\n        level = \"INFO\";\n"
                                           "        filename = \"palvestrin.log\";\n    };\n\n};\n\n");
        const Result again = runOn(path, {u"unset"_s, u"palvestrin.receiptdoc.paperWidth"_s});
        QCOMPARE(again.code, 1);
        QCOMPARE(again.errors, path.toUtf8() + ": error: \"palvestrin.receiptdoc.paperWidth\" is not set\n");
        QCOMPARE(folder.read(u"c.conf.bak"_s), example);
    }

    void refusals_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArray>("errors");
        const auto row = [](const QStringList &arguments, int code, const QByteArray &errors) {
            QTest::newRow(qPrintable(arguments.join(u' ')))
                << arguments << code << "palvestrin: error: " + errors + '\n';
        };
        row({u"set"_s, u"palvestrin.logger.levl"_s, u"INFO"_s}, 3,
            "no program reads \"palvestrin.logger.levl\"; did you mean \"palvestrin.logger.level\"?");
        row({u"set"_s, u"my.own.key"_s, u"1"_s}, 3,
            "no program reads \"my.own.key\"; \"palvestrin config list\" lists the known ones");
        row({u"set"_s, u"palvestrin.receiptdoc.printDate"_s, u"True"_s}, 3,
            "\"True\" is no value for palvestrin.receiptdoc.printDate; give true or false, in small letters");
        row({u"set"_s, u"palvestrin.db.dbname"_s, u"a;b"_s}, 3, "a value cannot hold ';'; leave it out");
        row({u"set"_s, u"--unchecked"_s, u"nodots"_s, u"v"_s}, 3,
            "\"nodots\" is no key; a key is two or more names of letters, digits, '_' and '-', with dots "
            "between");
        row({u"get"_s, u"palvestrin.db.host"_s}, 3,
            "no program reads \"palvestrin.db.host\"; did you mean \"palvestrin.db.hostname\"?");
    }
    void refusals()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, code);
        QFETCH(QByteArray, errors);
        const Result result = run(arguments);
        QCOMPARE(result.errors, errors);
        QCOMPARE(result.code, code);
        QCOMPARE(result.output, "");
    }

    void uncheckedStoresWhatNobodyKnows()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c.conf"_s, "p:{k=v;};");
        QCOMPARE(runOn(path, {u"set"_s, u"--unchecked"_s, u"p.mine"_s, u"1"_s}).code, 0);
        QCOMPARE(folder.read(u"c.conf"_s), "p: \n{\n    k = \"v\";\n    mine = \"1\";\n};\n\n");
        QCOMPARE(runOn(path, {u"get"_s, u"p.mine"_s}).output, "1\n");
    }

    void whatWritingWouldLoseIsNamedAndKept()
    {
        const ScratchFolder folder;
        const QByteArray content =
            "palvestrin: {\n  logger: { level = INFO; # loud\n  };\n};\nold: { a = 1; };\n";
        const QString path = folder.write(u"c.conf"_s, content);
        const QByteArray file = path.toUtf8();
        const QByteArray losses = file +
                                  ":2:27: error: writing would lose \"# loud\", which belongs to no setting; "
                                  "take it out, or give --force\n" +
                                  file +
                                  ":5:1: error: writing would lose block \"old\": only the first top-level "
                                  "block is read and written; "
                                  "take it out, or give --force\n";
        for (const QStringList &arguments : {QStringList{u"set"_s, u"palvestrin.logger.level"_s, u"DEBUG"_s},
                                             QStringList{u"unset"_s, u"palvestrin.logger.level"_s}}) {
            const Result refused = runOn(path, arguments);
            QCOMPARE(refused.errors, losses);
            QCOMPARE(refused.code, 5);
        }
        QCOMPARE(folder.read(u"c.conf"_s), content);
        QCOMPARE(folder.names(), QStringList{u"c.conf"_s});

        const Result forced = runOn(path, {u"set"_s, u"--force"_s, u"palvestrin.logger.level"_s, u"DEBUG"_s});
        QCOMPARE(forced.code, 0);
        QCOMPARE(forced.errors, "palvestrin: note: the file as it was is kept as " + file + ".bak.1\n");
        const QByteArray written =
            "palvestrin: \n{\n    logger: \n    {\n        level = \"DEBUG\";\n    };\n\n};\n\n";
        QCOMPARE(folder.read(u"c.conf"_s), written);

        // No later change takes the kept file away, forced or not.
        QCOMPARE(runOn(path, {u"set"_s, u"palvestrin.logger.level"_s, u"INFO"_s}).code, 0);
        folder.write(u"c.conf"_s, written + "# another remark\n");
        QCOMPARE(runOn(path, {u"set"_s, u"--force"_s, u"palvestrin.logger.level"_s, u"FATAL"_s}).code, 0);
        QCOMPARE(folder.read(u"c.conf.bak.1"_s), content);
        QCOMPARE(folder.read(u"c.conf.bak.2"_s), written + "# another remark\n");
        QCOMPARE(folder.read(u"c.conf.bak"_s), written);
    }

    void aRemarkInFrontHidesTheBlock()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c.conf"_s, "# mine\npalvestrin: { logger: { level = INFO; }; };");
        const Result result = runOn(path, {u"set"_s, u"--force"_s, u"palvestrin.logger.level"_s, u"DEBUG"_s});
        QCOMPARE(result.code, 3);
        QCOMPARE(result.errors,
                 path.toUtf8() + ": error: \"palvestrin.logger.level\" would never be found, for the first "
                                 "block is \"# mine palvestrin\"; move the block \"palvestrin\" to the "
                                 "front, without text before its name\n");
        QCOMPARE(runOn(path, {u"list"_s, u"palvestrin.logger.level"_s}).output,
                 "palvestrin.logger.level is not set, counts as DEBUG\n"
                 "    least level written: DEBUG, INFO, WARNING, ERROR or FATAL, in any case; when missing: "
                 "DEBUG\n"
                 "    read by: logger\n"
                 "# mine palvestrin.logger.level = INFO\n"
                 "    no program reads this; did you mean palvestrin.logger.level?\n");
    }

    void lists()
    {
        const ScratchFolder folder;
        const QString path =
            folder.write(u"c.conf"_s, "palvestrin: { receiptdoc: { paperWidth = wide; papreRows = 3; }; };");
        const Result list = runOn(path, {u"list"_s, u"palvestrin.receiptdoc.pap"_s});
        QCOMPARE(list.code, 0);
        QCOMPARE(list.output,
                 "palvestrin.receiptdoc.paperWidth = wide, counts as 32\n"
                 "    characters of a line; when missing: 32, the printer's own width; the same for 0\n"
                 "    consulted by: printFullOrderReceipt, printAbstractOrderReceipt\n"
                 "palvestrin.receiptdoc.paperRows is not set, counts as 0\n"
                 "    rows of a page; a receipt printer fills up the last one; when missing: 0\n"
                 "    read by: receipt printer\n"
                 "palvestrin.receiptdoc.papreRows = 3\n"
                 "    no program reads this; did you mean palvestrin.receiptdoc.paperRows?\n");
    }

    void listsAsJson()
    {
        const ScratchFolder folder;
        const QString path =
            folder.write(u"c.conf"_s, "palvestrin: { reportdoc: { paperWidth = 40; x = 1; }; };");
        const QJsonArray keys =
            QJsonDocument::fromJson(runOn(path, {u"list"_s, u"--json"_s, u"palvestrin.reportdoc."_s}).output)
                .array();
        QCOMPARE(keys.size(), qsizetype(27)); // 26 settings and the unknown one
        const auto find = [&keys](const QString &key) {
            for (const auto &value : keys) {
                if (value[u"key"_s].toString() == key)
                    return value.toObject();
            }
            return QJsonObject();
        };
        const QJsonObject expected{
            {u"key"_s, u"palvestrin.reportdoc.paperWidth"_s},
            {u"known"_s, true},
            {u"value"_s, u"40"_s},
            {u"effective"_s, u"40"_s},
            {u"meaning"_s, u"characters of a line"_s},
            {u"whenMissing"_s, u"32, the printer's own width; the same for 0"_s},
            {u"readBy"_s, u"printing"_s},
            {u"printMethods"_s, QJsonArray{u"printReport"_s, u"printStatementOfAccount"_s}}};
        QCOMPARE(find(u"palvestrin.reportdoc.paperWidth"_s), expected);
        QVERIFY(find(u"palvestrin.reportdoc.printDate"_s)[u"value"_s].isNull());
        const QJsonObject unknown{
            {u"key"_s, u"palvestrin.reportdoc.x"_s},
            {u"known"_s, false},
            {u"value"_s, u"1"_s},
            {u"objection"_s, u"no program reads this; did you mean palvestrin.reportdoc.style?"_s}};
        QCOMPARE(find(u"palvestrin.reportdoc.x"_s), unknown);
    }

    void aMistypedPrefixIsTold()
    {
        const Result result = run({u"list"_s, u"palvestrin.loger.level"_s});
        QCOMPARE(result.code, 3);
        QVERIFY(result.errors.endsWith(
            "palvestrin: error: no program reads \"palvestrin.loger.level\"; did you mean "
            "\"palvestrin.logger.level\"?\n"));
        QCOMPARE(result.output, "");
    }

    void aReadErrorIsNotTheEndOfTheFile()
    {
        const Result result = runOn(u"/proc/self/mem"_s, {u"list"_s}); // a regular file that gives an error
        QCOMPARE(result.code, 4);
        QCOMPARE(result.errors, "/proc/self/mem: error: Input/output error\n");
        QCOMPARE(result.output, "");
    }

    void aFolderThatMayNotBeEnteredIsNotAMissingFile()
    {
        const ScratchFolder folder;
        QVERIFY(QDir(folder.path()).mkdir(u"closed"_s));
        QVERIFY(QFile::setPermissions(folder.path(u"closed"_s), {}));
        const QString path = folder.path(u"closed/c.conf"_s);
        QProcess process;
        process.setChildProcessModifier(
            [] { // root may enter every folder, unless it starts without this right
                prctl(PR_CAPBSET_DROP, CAP_DAC_READ_SEARCH);
                prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE);
            });
        process.start(QStringLiteral(PALVESTRIN_PROGRAM), {u"config"_s, u"list"_s, u"--file"_s, path});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.readAllStandardError(), path.toUtf8() + ": error: Permission denied\n");
        QCOMPARE(process.exitCode(), 4);
    }

    /// As in a container or a rescue system.
    void worksWithoutProc()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c.conf"_s, example);
        const auto withoutProc = [](const QStringList &arguments) {
            QProcess process;
            process.start(u"unshare"_s, QStringList{u"-rm"_s, u"sh"_s, u"-c"_s,
                                                    u"mount -t tmpfs none /proc && exec \"$@\""_s, u"sh"_s,
                                                    QStringLiteral(PALVESTRIN_PROGRAM)} +
                                            arguments);
            process.waitForFinished();
            return Result{process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                          process.readAllStandardOutput(), process.readAllStandardError()};
        };
        if (withoutProc({u"--version"_s}).code != 0)
            QSKIP("this machine lets nobody hide /proc, or a sanitizer needs it");
        const Result set =
            withoutProc({u"config"_s, u"set"_s, u"--file"_s, path, u"palvestrin.logger.level"_s, u"DEBUG"_s});
        QCOMPARE(set.errors, "");
        QCOMPARE(set.code, 0);
        QCOMPARE(folder.read(u"c.conf"_s), QByteArray(example).replace("INFO", "DEBUG"));
    }

    void whatIsNoFileIsNotRead()
    {
        const ScratchFolder folder;
        for (const QString &path : {folder.path(), u"/dev/null"_s}) {
            const Result result = runOn(path, {u"show"_s});
            QCOMPARE(result.code, 4);
            QCOMPARE(result.errors, path.toUtf8() + ": error: it is no regular file; give one\n");
        }
    }

    void listsTheNames()
    {
        QCOMPARE(run({u"list"_s, u"--names"_s, u"palvestrin.logger"_s}).output,
                 "palvestrin.logger.level\npalvestrin.logger.basedir\npalvestrin.logger.filename\npalvestrin."
                 "logger.type\n");
    }

    void unsetInAMissingFileMakesNoFolder()
    {
        const ScratchFolder folder;
        const QString path = folder.path(u"a/b/c.conf"_s);
        const Result result = runOn(path, {u"unset"_s, u"palvestrin.db.dbname"_s});
        QCOMPARE(result.code, 4);
        QCOMPARE(result.errors,
                 path.toUtf8() + ": error: there is no such file; \"palvestrin config set\" makes it\n");
        QVERIFY(folder.names().isEmpty());
    }

    void unsettingTheLastKeyKeepsTheXmlForm()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c.xml"_s, "<palvestrin><db dbname='shop'/></palvestrin>");
        QCOMPARE(runOn(path, {u"unset"_s, u"palvestrin.db.dbname"_s}).code, 0);
        QCOMPARE(folder.read(u"c.xml"_s), "\n<palvestrin>\n</palvestrin>\n");
        QCOMPARE(runOn(path, {u"set"_s, u"palvestrin.db.dbname"_s, u"bar"_s}).code, 0);
        QCOMPARE(folder.read(u"c.xml"_s),
                 "\n<palvestrin>\n\n    <db\n        dbname = \"bar\">\n    </db>\n</palvestrin>\n");
    }

    void theUsersFileInXmlIsNotTakenAsRead()
    {
        const TemporaryHome xmlHome;
        const QByteArray content = "<palvestrin><db dbname='shop'/></palvestrin>\n";
        xmlHome.configure(content);
        const QString path = xmlHome.configurationPath();
        const QByteArray file = path.toUtf8();
        const QByteArray reason = "the programs read this file as text, and it is XML";
        const QByteArray note = "palvestrin: note: " + file + ": " + reason + '\n';
        const Result got = run({u"get"_s, u"palvestrin.db.dbname"_s});
        QCOMPARE(got.output, "shop\n");
        QCOMPARE(got.errors, note);
        QCOMPARE(run({u"list"_s, u"palvestrin.db.dbname"_s}).errors, note);
        QCOMPARE(run({u"show"_s}).errors, note);
        QCOMPARE(runOn(path, {u"get"_s, u"palvestrin.db.dbname"_s}).errors, "");

        for (const QStringList &arguments :
             {QStringList{u"set"_s, u"palvestrin.db.dbname"_s, u"bar"_s},
              QStringList{u"unset"_s, u"palvestrin.db.dbname"_s}, QStringList{u"edit"_s}}) {
            const Result refused = run(arguments);
            QCOMPARE(refused.code, 4);
            QCOMPARE(refused.errors,
                     file + ": error: " + reason +
                         "; make it text: palvestrin config convert --to cfg --force --output " + file + ' ' +
                         file + '\n');
        }
        QCOMPARE(runOn(path, {u"get"_s, u"palvestrin.db.dbname"_s}).output, "shop\n");

        QCOMPARE(run({u"convert"_s, u"--to"_s, u"cfg"_s, u"--force"_s, u"--output"_s, path, path}).code, 0);
        QCOMPARE(run({u"set"_s, u"palvestrin.db.dbname"_s, u"bar"_s}).code, 0);
        const Result now = run({u"get"_s, u"palvestrin.db.dbname"_s});
        QCOMPARE(now.output, "bar\n");
        QCOMPARE(now.errors, "");
    }

    /// The command that a refusal suggests is given to a shell as it stands.
    void theSuggestedConversionWorksAsPrinted_data()
    {
        QTest::addColumn<QString>("homeName");
        QTest::newRow("a plain home") << u"home"_s;
        QTest::newRow("blanks") << u"my  home"_s;
        QTest::newRow("quotes") << u"it's \"home\""_s;
        QTest::newRow("what a shell would take for its own") << u"$HOME `id`;a&b*(c)\\"_s;
        QTest::newRow("a letter with an accent") << u"citt\u00e0"_s;
    }
    void theSuggestedConversionWorksAsPrinted()
    {
        QFETCH(QString, homeName);
        const ScratchFolder folder;
        const QString conf = homeName + u"/.palvestrin/conf/"_s;
        QVERIFY(QDir(folder.path()).mkpath(conf));
        folder.write(conf + u"palvestrin.conf"_s, "<palvestrin><db dbname='shop'/></palvestrin>");
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, folder.path(homeName));
        environment.insert(u"PATH"_s, QFileInfo(QStringLiteral(PALVESTRIN_PROGRAM)).path());
        const auto inShell = [&environment](const QString &line) {
            QProcess shell;
            shell.setProcessEnvironment(environment);
            shell.start(u"/bin/sh"_s, {u"-c"_s, line});
            shell.waitForFinished();
            return Result{shell.exitCode(), shell.readAllStandardOutput(), shell.readAllStandardError()};
        };
        const Result refused = inShell(u"palvestrin config set palvestrin.db.dbname bar"_s);
        QCOMPARE(refused.code, 4);
        const QString message = QString::fromUtf8(refused.errors).trimmed();
        const QString before = u"make it text: "_s;
        QVERIFY2(message.contains(before), qPrintable(message));

        const Result suggested = inShell(message.sliced(message.indexOf(before) + before.size()));
        QCOMPARE(suggested.errors, "palvestrin: note: the file as it was is kept as " +
                                       folder.path(conf).toUtf8() + "palvestrin.conf.bak.1\n");
        QCOMPARE(suggested.code, 0);
        QCOMPARE(folder.read(conf + u"palvestrin.conf"_s),
                 "palvestrin: \n{\n    db: \n    {\n        dbname = \"shop\";\n    };\n\n};\n\n");
        QCOMPARE(inShell(u"palvestrin config set palvestrin.db.dbname bar"_s).code, 0);
    }

    void aForcedConversionTellsWhatItLoses()
    {
        const ScratchFolder folder;
        const QString path =
            folder.write(u"c.xml"_s, "<palvestrin>\n  <!-- mine -->\n  <db dbname='5 \xe2\x82\xac'/>\n"
                                     "</palvestrin>\n");
        const Result forced = run({u"convert"_s, u"--to"_s, u"cfg"_s, u"--force"_s, path});
        QCOMPARE(forced.code, 0);
        QCOMPARE(forced.output,
                 "palvestrin: \n{\n    db: \n    {\n        dbname = \"5 ?\";\n    };\n\n};\n\n");
        QCOMPARE(forced.errors, path.toUtf8() + ":2:3: note: lost: the remark \"mine\"\n" +
                                    "palvestrin: note: " + path.toUtf8() +
                                    ": \"palvestrin.db.dbname\" does not survive\n");
    }

    void aLineBehindARemarkIsNotLeftWithoutAWord()
    {
        const ScratchFolder folder;
        const QString path = folder.write(
            u"c.conf"_s, "palvestrin: {\n  logger: {\n    # loud\n    level = INFO;\n  };\n};\n");
        const QByteArray file = path.toUtf8();
        const QByteArray why =
            " note: this line sets nothing: \"# loud\" in front of \"level\" is read as part "
            "of that name; remove that text and this line\n";
        const Result nothing = runOn(path, {u"unset"_s, u"palvestrin.logger.level"_s});
        QCOMPARE(nothing.code, 1);
        QCOMPARE(nothing.errors,
                 file + ":4:5:" + why + file + ": error: \"palvestrin.logger.level\" is not set\n");

        const Result set = runOn(path, {u"set"_s, u"palvestrin.logger.level"_s, u"DEBUG"_s});
        QCOMPARE(set.code, 0);
        QCOMPARE(set.output, "");
        QCOMPARE(folder.read(u"c.conf"_s), "palvestrin: \n{\n    logger: \n    {\n        # loud\n"
                                           "    level = \"INFO\";\n        level = \"DEBUG\";\n"
                                           "    };\n\n};\n\n");
        QCOMPARE(set.errors, file + ":6:5:" + why);

        const Result unset = runOn(path, {u"unset"_s, u"palvestrin.logger.level"_s});
        QCOMPARE(unset.code, 0);
        QCOMPARE(unset.errors, file + ":6:5:" + why);

        // What the note advises mends it.
        QCOMPARE(runOn(path, {u"set"_s, u"palvestrin.logger.type"_s, u"APPEND"_s}).code, 0);
        folder.write(u"c.conf"_s,
                     folder.read(u"c.conf"_s).replace("        # loud\n    level = \"INFO\";\n", ""));
        const Result mended = runOn(path, {u"set"_s, u"palvestrin.logger.level"_s, u"DEBUG"_s});
        QCOMPARE(mended.errors, "");
        QCOMPARE(mended.code, 0);
    }

    void aLineInAValueIsNotLeftWithoutAWord()
    {
        const ScratchFolder folder;
        const QString path = folder.write(
            u"c.conf"_s, "palvestrin: {\n  logger: {\n    type = APPEND\n    level = INFO;\n  };\n};\n");
        const Result set = runOn(path, {u"set"_s, u"palvestrin.logger.level"_s, u"DEBUG"_s});
        QCOMPARE(set.code, 0);
        QCOMPARE(set.errors, path.toUtf8() +
                                 ":6:5: note: this line sets nothing: it is read as part of the value of "
                                 "\"type\"; put a \";\" behind that value and remove this line\n");
        QCOMPARE(folder.read(u"c.conf"_s), "palvestrin: \n{\n    logger: \n    {\n        type = \"APPEND\n"
                                           "    level = INFO\";\n        level = \"DEBUG\";\n"
                                           "    };\n\n};\n\n");
        // What the note advises mends it.
        folder.write(u"c.conf"_s,
                     folder.read(u"c.conf"_s).replace("APPEND\n    level = INFO\";\n", "APPEND;\n"));
        QCOMPARE(runOn(path, {u"get"_s, u"palvestrin.logger.type"_s}).output, "APPEND\n");
        QCOMPARE(runOn(path, {u"get"_s, u"palvestrin.logger.level"_s}).output, "DEBUG\n");
    }

    void aMissingFile()
    {
        const ScratchFolder folder;
        const QString path = folder.path(u"absent.conf"_s);
        const QByteArray file = path.toUtf8();
        const Result got = runOn(path, {u"get"_s, u"palvestrin.logger.level"_s});
        QCOMPARE(got.code, 1);
        QCOMPARE(got.output, "");
        QCOMPARE(got.errors, file + ": error: \"palvestrin.logger.level\" is not set; that means: DEBUG\n");
        const Result list = runOn(path, {u"list"_s, u"palvestrin.db.dbname"_s});
        QCOMPARE(list.code, 0);
        QCOMPARE(list.errors, "palvestrin: note: there is no file " + file + "; nothing is set\n");
        const Result show = runOn(path, {u"show"_s});
        QCOMPARE(show.code, 4);
        QCOMPARE(show.errors, file + ": error: there is no such file; \"palvestrin config set\" makes it\n");
        QVERIFY(folder.names().isEmpty());
    }

    void blocksSoDeepThatTheirIndentationHidesThemAreNotWritten()
    {
        const ScratchFolder folder;
        const QByteArray content =
            "palvestrin:{" + QByteArray("a:{").repeated(600) + "k=v;" + QByteArray("};").repeated(600) + "};";
        const QString path = folder.write(u"c.conf"_s, content);
        const Result result = runOn(path, {u"set"_s, u"--force"_s, u"palvestrin.db.dbname"_s, u"shop"_s});
        QCOMPARE(result.code, 3);
        QVERIFY(result.errors.contains(" would not survive: the text form has no room for "));
        QCOMPARE(folder.read(u"c.conf"_s), content);
        QCOMPARE(folder.names(), QStringList{u"c.conf"_s});
    }

    void brokenXmlIsNotTouched()
    {
        const ScratchFolder folder;
        const QByteArray content = "<palvestrin>\n  <db dbname='shop'>\n</palvestrin>\n";
        const QString path = folder.write(u"c.xml"_s, content);
        for (const QStringList &arguments :
             {QStringList{u"get"_s, u"palvestrin.db.dbname"_s},
              QStringList{u"set"_s, u"--force"_s, u"palvestrin.db.dbname"_s, u"x"_s},
              QStringList{u"show"_s}}) {
            const Result result = runOn(path, arguments);
            QCOMPARE(result.code, 4);
            QCOMPARE(result.errors, path.toUtf8() +
                                        ":3:14: error: Opening and ending tag mismatch; nothing is found in "
                                        "XML that is not well-formed\n");
        }
        QCOMPARE(folder.read(u"c.xml"_s), content);
    }

    void xmlThatBeginsWithARemarkIsNotTouched()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c.xml"_s, "<!-- mine -->\n<palvestrin/>\n");
        const Result result = runOn(path, {u"set"_s, u"--force"_s, u"palvestrin.db.dbname"_s, u"x"_s});
        QCOMPARE(result.code, 4);
        QCOMPARE(result.errors, path.toUtf8() +
                                    ":1:1: error: nothing is found in an XML file that begins with a "
                                    "declaration or a remark; remove what stands before the first element\n");
        QCOMPARE(folder.read(u"c.xml"_s), "<!-- mine -->\n<palvestrin/>\n");
    }

    void convertsBothWays()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c.conf"_s, example);
        const QByteArray xml =
            "\n<palvestrin>\n\n    <logger\n        level = \"INFO\"\n        filename = "
            "\"palvestrin.log\">\n    </logger>\n\n    <receiptdoc\n        paperWidth = \"40\">\n"
            "    </receiptdoc>\n</palvestrin>\n";
        QCOMPARE(run({u"convert"_s, u"--to"_s, u"xml"_s, path}).output, xml);
        const QString xmlPath = folder.path(u"c.xml"_s);
        QCOMPARE(run({u"convert"_s, u"--to"_s, u"xml"_s, u"--output"_s, xmlPath, path}).code, 0);
        QCOMPARE(folder.read(u"c.xml"_s), xml);
        QCOMPARE(run({u"convert"_s, u"--to"_s, u"cfg"_s, xmlPath}).output, example);
        QCOMPARE(folder.read(u"c.conf"_s), example);
    }

    void convertReplacesNoFileUnaskedAndKeepsIt()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c.conf"_s, example);
        const QString other = folder.write(u"other"_s, "mine\n");
        for (const QString &output : {path, other}) {
            const Result refused = run({u"convert"_s, u"--to"_s, u"xml"_s, u"--output"_s, output, path});
            QCOMPARE(refused.code, 5);
            QCOMPARE(refused.errors, output.toUtf8() + ": error: it is there already; give another name, or "
                                                       "--force, which keeps it as a backup\n");
        }
        QCOMPARE(folder.read(u"c.conf"_s), example);
        QCOMPARE(folder.read(u"other"_s), "mine\n");

        for (const QString &output : {path, other}) {
            const Result forced =
                run({u"convert"_s, u"--to"_s, u"xml"_s, u"--force"_s, u"--output"_s, output, path});
            QCOMPARE(forced.code, 0);
            QCOMPARE(forced.errors,
                     "palvestrin: note: the file as it was is kept as " + output.toUtf8() + ".bak.1\n");
        }
        QVERIFY(folder.read(u"c.conf"_s).startsWith("\n<palvestrin>\n"));
        QCOMPARE(folder.read(u"c.conf.bak.1"_s), example);
        QCOMPARE(folder.read(u"other"_s), folder.read(u"c.conf"_s));
        QCOMPARE(folder.read(u"other.bak.1"_s), "mine\n");
    }

    void convertsOnlyWhatTheOtherFormHolds()
    {
        const ScratchFolder folder;
        const QByteArray textForm = "the text form has no room for ';' and '\"', characters outside Latin-1, "
                                    "and more than 2044 bytes\n";
        for (const QByteArray value : {"a;b", "a&quot;b", "\xe2\x82\xac"}) {
            const QString path = folder.write(u"c.xml"_s, "<p><q k='" + value + "'/></p>");
            const Result refused = run({u"convert"_s, u"--to"_s, u"cfg"_s, path});
            QCOMPARE(refused.code, 3);
            QCOMPARE(refused.output, "");
            QCOMPARE(refused.errors, path.toUtf8() + ": error: \"p.q.k\" would not survive: " + textForm);
        }
        const QString text = folder.write(u"c.conf"_s, "top=1;p:{k=v;};");
        QCOMPARE(run({u"convert"_s, u"--to"_s, u"xml"_s, text}).code, 3);
        const Result forced = run({u"convert"_s, u"--to"_s, u"xml"_s, u"--force"_s, text});
        QCOMPARE(forced.code, 0);
        QCOMPARE(forced.output, "top = \"1\";\n\n<p\n    k = \"v\">\n</p>\n");
    }

    void aFullDiskLeavesTheOldFile()
    {
        const ScratchFolder folder;
        const QByteArray content = "palvestrin: \n{\n    k = \"" + QByteArray(1500, 'v') + "\";\n};\n\n";
        const QString path = folder.write(u"c.conf"_s, content);
        QProcess shell; // a file may have 512 bytes here
        shell.start(u"sh"_s, {u"-c"_s, u"ulimit -f 1; trap '' XFSZ; exec \"$@\""_s, u"sh"_s,
                              QStringLiteral(PALVESTRIN_PROGRAM), u"config"_s, u"set"_s, u"--file"_s, path,
                              u"palvestrin.db.dbname"_s, u"shop"_s});
        QVERIFY(shell.waitForFinished());
        QCOMPARE(shell.exitCode(), 7);
        QCOMPARE(folder.read(u"c.conf"_s), content);
        QCOMPARE(folder.names(), QStringList{u"c.conf"_s});
    }

    void aFullOutputIsTold()
    {
        QProcess shell;
        shell.start(u"sh"_s, {u"-c"_s, u"exec \"$0\" config list --names >/dev/full"_s,
                              QStringLiteral(PALVESTRIN_PROGRAM)});
        QVERIFY(shell.waitForFinished());
        QCOMPARE(shell.exitCode(), 7);
        QCOMPARE(shell.readAllStandardError(), "palvestrin: error: standard output cannot be written\n");
    }

    void writersAtOnceDoNotMix()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c.conf"_s, example);
        constexpr int writers = 12;
        std::list<QProcess> processes;
        for (int i = 0; i < writers; ++i)
            processes.emplace_back().start(QStringLiteral(PALVESTRIN_PROGRAM),
                                           {u"config"_s, u"set"_s, u"--unchecked"_s, u"--file"_s, path,
                                            u"palvestrin.writer.number%1"_s.arg(i),
                                            QString(2000, QChar(u'a' + i))});
        QByteArray expected;
        int i = 0;
        for (QProcess &process : processes) {
            QVERIFY(process.waitForFinished());
            if (process.exitCode() == 0) {
                const QString key = u"palvestrin.writer.number%1"_s.arg(i);
                QCOMPARE(runOn(path, {u"get"_s, key}).output, QByteArray(2000, char('a' + i)) + '\n');
            } else {
                QCOMPARE(process.exitCode(), 6);
                QCOMPARE(process.readAllStandardError(),
                         path.toUtf8() +
                             ": error: another program is writing this file; try again when it is done\n");
            }
            ++i;
        }
        QCOMPARE(runOn(path, {u"get"_s, u"palvestrin.logger.level"_s}).output, "INFO\n");
    }

    /// Kills the writer at moments spread over its work, many times.
    void aKilledWriterLeavesTheOldFileOrTheNewOne()
    {
        const ScratchFolder folder;
        QByteArray content = "palvestrin: \n{\n";
        for (int i = 0; i < 3000; ++i)
            content += "    key" + QByteArray::number(i) + " = \"" + QByteArray(50, 'v') + "\";\n";
        content += "    logger: \n    {\n        level = \"INFO\";\n    };\n\n};\n\n";
        const QByteArray changed = QByteArray(content).replace("INFO", "FATAL");
        const QString path = folder.path(u"c.conf"_s);
        const QString newPath =
            folder.path(u".c.conf.new"_s); // there from the first to the last moment of the work
        const QStringList arguments{u"config"_s, u"set"_s, u"--file"_s, path, u"palvestrin.logger.level"_s,
                                    u"FATAL"_s};
        const auto startWork = [&](QProcess &process) {
            folder.write(u"c.conf"_s, content);
            process.start(QStringLiteral(PALVESTRIN_PROGRAM), arguments);
            if (!process.waitForStarted())
                return false;
            while (!QFile::exists(newPath) && folder.read(u"c.conf"_s) == content)
                QThread::usleep(100);
            return true;
        };

        QProcess undisturbed;
        QVERIFY(startWork(undisturbed));
        QElapsedTimer timer;
        timer.start();
        QVERIFY(undisturbed.waitForFinished());
        const qint64 workingTime = timer.nsecsElapsed() / 1000;
        QCOMPARE(folder.read(u"c.conf"_s), changed);

        constexpr int rounds = 150;
        int old = 0;
        int halfWritten = 0;
        for (int round = 0; round < rounds; ++round) {
            QProcess process;
            QVERIFY(startWork(process));
            QThread::usleep(workingTime * round / rounds);
            process.kill();
            QVERIFY(process.waitForFinished());
            const QByteArray now = folder.read(u"c.conf"_s);
            QVERIFY2(now == content || now == changed,
                     qPrintable(u"round %1: %2 bytes"_s.arg(round).arg(now.size())));
            old += now == content;
            halfWritten += QFile::remove(newPath);
            QCOMPARE(folder.read(u"c.conf.bak"_s), content);
        }
        qInfo("%d rounds: old file %d, new file %d; killed at work %d", rounds, old, rounds - old,
              halfWritten);
        QVERIFY(halfWritten > rounds / 10);
        // Whatever lies about, the next writer is not kept out, and takes it away.
        folder.write(u"c.conf"_s, content);
        folder.write(u".c.conf.new"_s, content.first(content.size() / 2));
        folder.write(u".c.conf.bak.new"_s, content.first(content.size() / 2));
        QCOMPARE(QProcess::execute(QStringLiteral(PALVESTRIN_PROGRAM), arguments), 0);
        QCOMPARE(folder.read(u"c.conf"_s), changed);
        const QStringList both{u"c.conf"_s, u"c.conf.bak"_s};
        QCOMPARE(folder.names(), both);
    }

    void withoutADisplayEditSaysSo()
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString &variable : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
            environment.remove(variable);
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(PALVESTRIN_PROGRAM), {u"config"_s, u"edit"_s});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 2);
        QCOMPARE(process.readAllStandardError(),
                 "palvestrin: error: there is no display for a window; use \"palvestrin config set\"\n");
    }
};

QTEST_GUILESS_MAIN(ConfigCommandsTest)
#include "configcommands_test.moc"

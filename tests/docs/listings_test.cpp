// The commands and programs of the documents, run as they stand there.

#include "markdown.h"
#include "program.h"
#include "scratchfolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString programs = QFileInfo(QStringLiteral(PALVESTRIN_PRINT)).path();

/// A listing with the places that exist here.
QString placed(QString listing, const QString &home)
{
    return listing.replace("/usr/bin/palvestrin-print"_L1, QStringLiteral(PALVESTRIN_PRINT))
        .replace("/usr/share/palvestrin/translations"_L1, QStringLiteral(BUILT_CATALOGUES))
        .replace("/srv/shop"_L1, home);
}

/// Runs a command in the folder, which is HOME, too.
ProgramRun runIn(const ScratchFolder &folder, const QString &command, const QStringList &arguments,
                 const QString &locale = u"C.UTF-8"_s)
{
    return runProgram(command, arguments,
                      {u"HOME="_s + folder.path(), u"LC_ALL="_s + locale, u"TMPDIR="_s + folder.path(),
                       u"PATH="_s + programs + u":/usr/bin:/bin"_s},
                      folder.path());
}

ProgramRun runShell(const ScratchFolder &folder, const QString &commands)
{
    return runIn(folder, u"sh"_s, {u"-ec"_s, placed(commands, folder.path())});
}

QList<markdown::Block> blocksOf(const QString &document, const QString &kind)
{
    QList<markdown::Block> blocks = markdown::blocksOf(markdown::document(document));
    blocks.removeIf([&](const markdown::Block &block) { return block.kind != kind; });
    return blocks;
}

void configureTheKitchen(const ScratchFolder &folder)
{
    for (const QString &setting : {u"paperWidth 40"_s, u"quantityFieldWidth 3"_s, u"printWaiter true"_s})
        QCOMPARE(runShell(folder, u"palvestrin config set palvestrin.doc."_s + setting).failure, QString());
}

/// What the waiter's line says.
QByteArray waiterLine(const ScratchFolder &folder, const QString &locale)
{
    folder.write(u"job.xml"_s, "<job><method name=\"printPartialOrder\"/><orderinfo waiter=\"Eva\"/></job>");
    runIn(folder, QStringLiteral(PALVESTRIN_PRINT), {u"job.xml"_s, u"paper"_s}, locale);
    return folder.read(u"paper"_s).split('\n').value(2);
}

} // namespace

class ListingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// The commands one after the other, and what stands below them.
    void quickstart()
    {
        const ScratchFolder folder;
        QByteArray output;
        int commands = 0;
        for (const markdown::Block &block : markdown::blocksOf(markdown::document(u"docs/quickstart.md"_s))) {
            if (block.kind == "text"_L1) {
                QCOMPARE(QString::fromUtf8(output).split(u'\n'), block.text.split(u'\n'));
                continue;
            }
            const ProgramRun run = runShell(folder, block.text);
            QVERIFY2(run.failure.isEmpty() && run.standardError.isEmpty(), run.standardError);
            output = run.standardOutput;
            ++commands;
        }
        QCOMPARE(commands, 5);
    }

    void whatIsSentToPrinters()
    {
        const ScratchFolder folder;
        configureTheKitchen(folder);
        folder.write(u"job.xml"_s, "<job><method name=\"printPartialOrder\"/><receipe name=\"Pane\"/></job>");
        const QString commands = blocksOf(u"docs/printers.md"_s, u"sh"_s).at(0).text;
        const QByteArrayList beginnings = {"\nj\n\"", "\x1b@"};
        for (qsizetype i = 0; i < beginnings.size(); ++i) {
            const ProgramRun run = runShell(folder, commands.split(u'\n')[i]);
            QVERIFY2(run.failure.isEmpty() && run.standardError.isEmpty(), run.standardError);
            QVERIFY(folder.read(u"paper.txt"_s).startsWith(beginnings[i]));
        }
        const ProgramRun plain = runShell(folder, u"palvestrin preview --format txt -o - job.xml"_s);
        QVERIFY(markdown::document(u"docs/printers.md"_s).contains("--format txt -o - job.xml"_L1));
        QCOMPARE(plain.standardOutput, "    Pane" + QByteArray(30, ' ') + '\n');
    }

    void catalogues()
    {
        QStringList listed;
        for (const QStringList &row : markdown::tableOf(
                 markdown::sectionOf(markdown::document(u"docs/languages.md"_s), u"## The catalogues"_s)))
            listed += row[1];
        QStringList built = QDir(QStringLiteral(BUILT_CATALOGUES)).entryList({u"palvestrin_??_??.qm"_s});
        built += u"none"_s;
        QCOMPARE(QSet<QString>(listed.begin(), listed.end()), QSet<QString>(built.begin(), built.end()));
    }

    void languageBlocks_data()
    {
        QTest::addColumn<int>("block");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QByteArray>("line");
        const QByteArray italian = "\" Cameriere: Eva\"@";
        QTest::newRow("of the locale") << 0 << u"it_IT.UTF-8"_s << italian;
        QTest::newRow("of another country") << 0 << u"it_CH.UTF-8"_s << italian;
        QTest::newRow("of no locale") << 0 << u"C"_s << QByteArray("\" Waiter: Eva\"@");
        QTest::newRow("of the house") << 1 << u"de_DE.UTF-8"_s << italian;
    }
    void languageBlocks()
    {
        QFETCH(int, block);
        QFETCH(QString, locale);
        const ScratchFolder folder;
        const QString text = blocksOf(u"docs/languages.md"_s, u"conf"_s).at(block).text;
        QDir(folder.path()).mkpath(u".palvestrin/conf"_s);
        folder.write(u".palvestrin/conf/palvestrin.conf"_s, placed(text, folder.path()).toLatin1());
        configureTheKitchen(folder);
        QTEST(waiterLine(folder, locale), "line");
    }

    void languageCommands()
    {
        const ScratchFolder folder;
        configureTheKitchen(folder);
        QCOMPARE(waiterLine(folder, u"C"_s), QByteArray("\" Waiter: Eva\"@"));
        for (const markdown::Block &block : blocksOf(u"docs/languages.md"_s, u"sh"_s)) {
            const ProgramRun run = runShell(folder, block.text);
            QVERIFY2(run.failure.isEmpty() && run.standardError.isEmpty(), run.standardError);
            const bool isCorrected = block.heading == "correct-a-word"_L1;
            QCOMPARE(waiterLine(folder, u"C"_s),
                     isCorrected ? QByteArray("\" Serve: Eva\"@") : QByteArray("\" Cameriere: Eva\"@"));
        }
    }

    void theProgramsOfTheIntegration_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("command");
        QTest::newRow("Python") << u"python"_s << u"ticket.py"_s << u"/usr/bin/python3"_s;
        QTest::newRow("PHP") << u"php"_s << u"ticket.php"_s << u"php"_s;
        QTest::newRow("Java") << u"java"_s << u"PrintTicket.java"_s << u"java"_s;
        QTest::newRow("shell") << u"sh"_s << u"ticket.sh"_s << u"sh"_s;
    }
    void theProgramsOfTheIntegration()
    {
        QFETCH(QString, kind);
        QFETCH(QString, file);
        QFETCH(QString, command);
        const ScratchFolder folder;
        const QList<markdown::Block> listings = blocksOf(u"docs/integration.md"_s, kind);
        QCOMPARE(listings.size(), 1);
        folder.write(file, placed(listings[0].text, folder.path()).toUtf8());

        const ProgramRun unconfigured = runIn(folder, command, {file});
        QVERIFY2(
            unconfigured.standardOutput.startsWith("not printed: Error in the method FileReader::open") ||
                unconfigured.standardError.startsWith("not printed: Error in the method FileReader::open"),
            unconfigured.standardOutput + unconfigured.standardError);
        QCOMPARE(unconfigured.exitStatus, 1);

        configureTheKitchen(folder);
        const ProgramRun run = runIn(folder, command, {file});
        QVERIFY2(run.failure.isEmpty(), run.standardOutput + run.standardError);
        QCOMPARE(run.standardOutput, "printed\n");
        QString paper = blocksOf(u"docs/integration.md"_s, u"stream"_s)[0].text.remove(u'\n');
        QCOMPARE(QString::fromUtf8(folder.read(u"paper.txt"_s)), paper.replace(u'␊', u'\n'));
    }

    /// A program that takes the output for whole when it is not would be no use.
    void aTornOutputIsTold_data() { theProgramsOfTheIntegration_data(); }
    void aTornOutputIsTold()
    {
        QFETCH(QString, kind);
        QFETCH(QString, file);
        QFETCH(QString, command);
        const ScratchFolder folder;
        const QString printer = folder.write(u"torn"_s, "#!/bin/sh\nprintf '\\nj\\n\"  1 Fi' >\"$2\"\n");
        QVERIFY(QFile::setPermissions(printer, QFile::ReadOwner | QFile::ExeOwner));
        QString listing = blocksOf(u"docs/integration.md"_s, kind)[0].text;
        listing.replace("/usr/bin/palvestrin-print"_L1, printer);
        folder.write(file, listing.toUtf8());
        const ProgramRun run = runIn(folder, command, {file});
        QVERIFY((run.standardOutput + run.standardError).startsWith("not printed: "));
        QCOMPARE(run.exitStatus, 1);
    }

    void theChangelogBeginsWithThisVersion()
    {
        const QString changelog = markdown::document(u"CHANGELOG.md"_s);
        const qsizetype newest = changelog.indexOf("\n## "_L1);
        QVERIFY(changelog.sliced(newest).startsWith(QStringLiteral("\n## " PROJECT_VERSION "\n")));
    }
};

QTEST_GUILESS_MAIN(ListingsTest)
#include "listings_test.moc"

// The toolkit's own command-line options, and what a start without them does not load.

#include "program.h"
#include "temporaryhome.h"
#include "wholefile.h"

#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString program = QStringLiteral(PALVESTRIN_PRINT);
const QString consumedWords = QStringLiteral(CONSUMED_WORDS);

constexpr char unableToOpen[] = "PrintManager::printAbstractOrder(...): Unable To Open File\n";

/// A job that says which file it stands in.
QByteArray jobIn(const QString &file)
{
    return R"(<job><method name="printFullOrderFiscal"/><receipe name=")" + file.toUtf8() +
           R"(" department="1" number="1" price="1"/></job>)";
}

QByteArray paperOf(const QString &file)
{
    return "\n\"" + file.toUtf8() + "\"1*100H1R\r\n";
}

/// A GUI program makes itself a folder for run-time files where it is told of none, and leaves it.
QStringList guiEnvironment(const QString &home)
{
    return bareEnvironment(home) + QStringList{u"XDG_RUNTIME_DIR="_s + home};
}

QByteArrayList guiLibrariesIn(const QByteArray &text)
{
    QByteArrayList found;
    for (const char *library : {"libQt6Gui", "libQt6Widgets", "libX11", "libxcb", "libGL", "libfontconfig"}) {
        if (text.contains(library))
            found.append(library);
    }
    return found;
}

} // namespace

class ApplicationTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home;

    /// What stands in a running program's memory while it waits for its job.
    QByteArray mapsOfAWaitingStart(const QStringList &moreWords)
    {
        const QString fifo = home.filePath(u"fifo"_s);
        QFile::remove(fifo);
        if (mkfifo(fifo.toUtf8().constData(), 0600) != 0)
            qFatal("cannot make a named pipe");
        QProcess process;
        process.setEnvironment(guiEnvironment(home.path()));
        process.start(program, QStringList{fifo, home.filePath(u"out"_s)} + moreWords);

        // Opens as soon as the program has opened its end, which is the last thing before it reads.
        int writer = -1;
        const auto open = [&] {
            writer = ::open(fifo.toUtf8().constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
            return writer >= 0;
        };
        if (!QTest::qWaitFor(open, 30'000))
            return {};
        const QByteArray maps = contentOf(u"/proc/%1/maps"_s.arg(process.processId()));
        const QByteArray job = jobIn(u"fifo"_s);
        const bool written = write(writer, job.constData(), size_t(job.size())) == job.size();
        ::close(writer);
        const bool printed =
            process.waitForFinished() && written && contentOf(home.filePath(u"out"_s)) == paperOf(u"fifo"_s);
        return printed ? maps : QByteArray();
    }

    /// The first two words that a QApplication leaves. The bool is false when it could not be made.
    std::pair<bool, QList<QByteArray>> wordsLeftOf(const QStringList &words)
    {
        const ProgramRun run = runProgram(
            consumedWords, words, guiEnvironment(home.path()) + QStringList{u"QT_QPA_PLATFORM=minimal"_s});
        const QList<QByteArray> lines = run.standardOutput.split('\n');
        return {run.failure.isEmpty() && lines.size() == 3, lines.first(qMin<qsizetype>(2, lines.size()))};
    }

private Q_SLOTS:
    void initTestCase() { home.configure("palvestrin: { };"); }

    void thePlainProgramLinksNoGuiLibrary()
    {
        const ProgramRun run = runProgram(u"ldd"_s, {program}, {u"PATH="_s + qEnvironmentVariable("PATH")});
        QCOMPARE(run.failure, QString());
        QVERIFY(run.standardOutput.contains("libQt6Core.so"));
        QCOMPARE(guiLibrariesIn(run.standardOutput), QByteArrayList());
    }

    void aPlainStartLoadsNoGuiLibrary()
    {
        const QByteArray maps = mapsOfAWaitingStart({});
        QVERIFY(maps.contains("libQt6Core.so"));
        QCOMPARE(guiLibrariesIn(maps), QByteArrayList());
    }

    void norDoesOneWithAThirdWord()
    {
        const QByteArray maps = mapsOfAWaitingStart({u"style"_s});
        QVERIFY(maps.contains("libQt6Core.so"));
        QCOMPARE(guiLibrariesIn(maps), QByteArrayList());
    }

    void aStartWithAnOptionDoes()
    {
        const QByteArray maps = mapsOfAWaitingStart({u"-reverse"_s});
        QVERIFY(guiLibrariesIn(maps).contains("libQt6Widgets"));
    }

    void optionsAreConsumedAsByAGuiProgram_data()
    {
        QTest::addColumn<QStringList>("words");
        const auto add = [](const QStringList &words) {
            QTest::newRow(qPrintable(words.join(u' '))) << words;
        };
        const auto addAlone = [&](const QString &option) {
            add({option, u"job"_s});
            add({u"job"_s, option});
            add({option, u"job"_s, u"out"_s});
            add({u"job"_s, option, u"out"_s});
            add({u"job"_s, u"out"_s, option});
        };
        const auto addWithValue = [&](const QString &option, const QString &value) {
            add({option, value});
            add({option, value, u"job"_s});
            add({u"job"_s, option, value});
            add({option, u"job"_s, value});
        };
        for (const QString &option : {u"-style"_s, u"--style"_s, u"-style=fusion"_s, u"-reverse"_s,
                                      u"-stylesheet"_s, u"-session"_s, u"-unknown"_s, u"-"_s, u"--"_s})
            addAlone(option);
        addWithValue(u"-style"_s, u"fusion"_s);
        addWithValue(u"--style"_s, u"fusion"_s);
        addWithValue(u"-stylesheet"_s, u"x"_s);
        addWithValue(u"-session"_s, u"a"_s);
        addWithValue(u"-unknown"_s, u"x"_s);
        // Any other word behind it would be a platform that is not there, and that ends a GUI program.
        add({u"-platform"_s, u"minimal"_s});
        add({u"-platform"_s, u"minimal"_s, u"job"_s});
        add({u"job"_s, u"-platform"_s, u"minimal"_s});
        add({u"job"_s, u"out"_s, u"-platform"_s});
        add({u"--platform"_s, u"minimal"_s, u"job"_s});
        add({u"-reverse"_s, u"-reverse"_s, u"job"_s});
        add({u"job"_s, u""_s, u"-reverse"_s});
    }
    void optionsAreConsumedAsByAGuiProgram()
    {
        QFETCH(const QStringList, words);
        const auto [made, left] = wordsLeftOf(words);
        QVERIFY(made);

        // Every word is a file with a job of its own, so that whichever is read and written shows.
        const QTemporaryDir folder;
        QMap<QString, QByteArray> expected;
        for (const QString &word : words) {
            if (!word.isEmpty())
                expected[word] = jobIn(word);
        }
        for (const auto &[word, job] : expected.asKeyValueRange())
            writeFile(folder.filePath(word), job);
        const QString input = QString::fromUtf8(left[0]);
        const QString output = QString::fromUtf8(left[1]);
        const bool hasOutput = output != "(null)"_L1 && !output.isEmpty();
        if (hasOutput)
            expected[output] = expected.contains(input) && input != output ? paperOf(input) : QByteArray();

        const ProgramRun run = runProgram(program, words, guiEnvironment(home.path()), folder.path());
        QCOMPARE(run.failure, QString());
        QCOMPARE(run.standardError, QByteArray());
        QCOMPARE(run.standardOutput, hasOutput ? QByteArray() : QByteArray(unableToOpen));
        QMap<QString, QByteArray> files;
        for (const QString &name : QDir(folder.path()).entryList(QDir::Files | QDir::Hidden))
            files[name] = contentOf(folder.filePath(name));
        QCOMPARE(files, expected);
    }

    void noPlatformOfTheUsersIsTheMinimalOne_data()
    {
        QTest::addColumn<QStringList>("variables");
        QTest::newRow("none") << QStringList();
        QTest::newRow("an empty one") << QStringList{u"QT_QPA_PLATFORM="_s};
        QTest::newRow("the user's") << QStringList{u"QT_QPA_PLATFORM=offscreen"_s};
    }
    void noPlatformOfTheUsersIsTheMinimalOne()
    {
        QFETCH(const QStringList, variables);
        const QTemporaryDir folder;
        writeFile(folder.filePath(u"job"_s), jobIn(u"job"_s));
        const ProgramRun run = runProgram(program, {u"job"_s, u"out"_s, u"-reverse"_s},
                                          guiEnvironment(home.path()) + variables, folder.path());
        QCOMPARE(run.failure, QString());
        QCOMPARE(run.standardOutput + run.standardError, QByteArray());
        QCOMPARE(contentOf(folder.filePath(u"out"_s)), paperOf(u"job"_s));
    }

    /// Taken for files, the words would be "-reverse" as the job and the job as the output.
    void withoutItsModuleAnOptionTouchesNothing()
    {
        const QTemporaryDir folder;
        const QString alone = folder.filePath(u"palvestrin-print"_s);
        QVERIFY(QFile::copy(program, alone));
        writeFile(folder.filePath(u"job"_s), jobIn(u"job"_s));
        const ProgramRun run = runProgram(alone, {u"-reverse"_s, u"job"_s, u"out"_s},
                                          guiEnvironment(home.path()), folder.path());
        QCOMPARE(run.failure, QString());
        QCOMPARE(run.standardOutput, QByteArray());
        QCOMPARE(run.standardError,
                 "palvestrin-print: words that begin with \"-\" need the package palvestrin-desktop\n");
        QCOMPARE(contentOf(folder.filePath(u"job"_s)), jobIn(u"job"_s));
        QVERIFY(!QFile::exists(folder.filePath(u"out"_s)));
    }

    void withoutItsModuleAPlainStartPrints()
    {
        const QTemporaryDir folder;
        const QString alone = folder.filePath(u"palvestrin-print"_s);
        QVERIFY(QFile::copy(program, alone));
        writeFile(folder.filePath(u"job"_s), jobIn(u"job"_s));
        const ProgramRun run =
            runProgram(alone, {u"job"_s, u"out"_s}, guiEnvironment(home.path()), folder.path());
        QCOMPARE(run.failure + QString::fromUtf8(run.standardOutput + run.standardError), QString());
        QCOMPARE(contentOf(folder.filePath(u"out"_s)), paperOf(u"job"_s));
    }
};

QTEST_GUILESS_MAIN(ApplicationTest)
#include "application_test.moc"

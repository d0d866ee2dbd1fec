// The toolkit's own command-line options: the table against a real program with windows, and the renderer.

#include "program.h"
#include "temporaryhome.h"
#include "toolkitoptions.h"
#include "wholefile.h"

#include <QLibraryInfo>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString program = QStringLiteral(PALVESTRIN_PRINT);
const QString consumedWords = QStringLiteral(CONSUMED_WORDS);

constexpr char unableToOpen[] = "PrintManager::printAbstractOrder(...): Unable To Open File\n";

using Words = QByteArrayList;

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

QByteArray nameOf(const ToolkitOption &option)
{
    return QByteArray(option.name.data(), qsizetype(option.name.size()));
}

/// A value that the option accepts. A platform that is not there ends a program with windows.
QByteArray valueOf(const ToolkitOption &option)
{
    return option.name == "-platform" ? "minimal" : "x";
}

/// Every way to write an option, whether the toolkit takes it so or not.
QByteArrayList spellings(const ToolkitOption &option)
{
    const QByteArray name = nameOf(option);
    return {name,
            '-' + name,
            "--" + name,
            name + '=',
            name + '=' + valueOf(option),
            '-' + name + '=' + valueOf(option),
            name + 'x',
            name.chopped(1),
            name.toUpper()};
}

/// What the table leaves of a command line, in the words of the program with windows.
QByteArray leftByTheTable(Words words)
{
    char name[] = "palvestrin-print";
    std::vector<char *> places = {name};
    for (QByteArray &word : words)
        places.push_back(word.data());
    places.push_back(nullptr);
    int count = int(words.size()) + 1;
    dropToolkitOptions(count, places.data());

    QByteArrayList answer = {QByteArray::number(count - 1)};
    for (qsizetype i = 1; i <= words.size(); ++i)
        answer << (places[std::size_t(i)] ? places[std::size_t(i)] : "(null)");
    return answer.join('\t');
}

} // namespace

class ToolkitOptionsTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home;

    /// What a program with windows leaves of each command line; an empty answer where it does not start.
    QByteArrayList leftByTheToolkit(const QList<Words> &commandLines) const
    {
        QByteArray questions;
        for (const Words &words : commandLines)
            questions += words.join('\t') + '\n';
        QProcess process;
        QStringList environment = bareEnvironment(home.path());
        // It makes itself a folder for run-time files where it is told of none, and leaves it.
        environment << u"XDG_RUNTIME_DIR="_s + home.path() << u"QT_QPA_PLATFORM=minimal"_s;
        process.setEnvironment(environment);
        process.start(consumedWords);
        process.write(questions);
        process.closeWriteChannel();
        if (!process.waitForFinished(120'000))
            process.kill();
        return process.readAllStandardOutput().split('\n').mid(0, commandLines.size());
    }

    void compareWithTheToolkit(const QList<Words> &commandLines) const
    {
        QByteArrayList answers = leftByTheToolkit(commandLines);
        QCOMPARE(answers.size(), commandLines.size());
        for (qsizetype i = 0; i < answers.size(); ++i) {
            if (leftByTheTable(commandLines[i]) != answers[i])
                QFAIL((commandLines[i].join(' ') + ": the toolkit leaves " + answers[i].replace('\t', ' ') +
                       ", the table " + leftByTheTable(commandLines[i]).replace('\t', ' '))
                          .constData());
        }
    }

    /// In a folder in which every word is a file with a job of its own, so that whichever is read and written
    /// shows.
    ProgramRun runAmongJobs(const QStringList &words, const QTemporaryDir &folder,
                            const QStringList &environment = {}) const
    {
        for (const QString &word : words) {
            if (!word.isEmpty())
                writeFile(folder.filePath(word), jobIn(word));
        }
        return runProgram(program, words, bareEnvironment(home.path()) + environment, folder.path());
    }

    /// What stands in a running program's memory while it waits for its job.
    QByteArray mapsOfAWaitingStart(const QStringList &moreWords) const
    {
        const QString fifo = home.filePath(u"fifo"_s);
        QFile::remove(fifo);
        if (mkfifo(fifo.toUtf8().constData(), 0600) != 0)
            qFatal("cannot make a named pipe");
        QProcess process;
        process.setEnvironment(bareEnvironment(home.path()));
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

private Q_SLOTS:
    void initTestCase() { home.configure("palvestrin: { };"); }

    // The table

    void everyOptionIsTakenAsTheToolkitTakesIt_data()
    {
        QTest::addColumn<int>("row");
        for (int row = 0; row < int(std::size(toolkitOptions)); ++row)
            QTest::newRow(nameOf(toolkitOptions[row]).constData()) << row;
    }
    void everyOptionIsTakenAsTheToolkitTakesIt()
    {
        QFETCH(const int, row);
        const ToolkitOption &option = toolkitOptions[row];
        const QByteArray value = valueOf(option);
        QList<Words> commandLines;
        for (const QByteArray &word : spellings(option)) {
            commandLines << Words{word} << Words{word, value, "b"} << Words{"a", word}
                         << Words{"a", word, value} << Words{"a", "b", word} << Words{word, word};
            // Where its value is missing, any other word is one.
            if (option.name != "-platform")
                commandLines << Words{word, ""} << Words{word, "-reverse", "b"};
        }
        if (option.name == "-platform") // its own name is no platform
            commandLines.removeIf(
                [](const Words &words) { return words.size() == 2 && words[0] == words[1]; });
        compareWithTheToolkit(commandLines);
        // Nor is it in the table for nothing.
        QVERIFY(leftByTheTable({nameOf(option), value}) != "2\t" + nameOf(option) + '\t' + value);
    }

    void theOrderOfThePassesIsTheToolkits()
    {
        QList<Words> commandLines;
        for (const ToolkitOption &one : toolkitOptions) {
            for (const ToolkitOption &other : toolkitOptions) {
                commandLines << Words{nameOf(one), nameOf(other), valueOf(other), "b"};
                if (one.name != "-platform" && other.name != "-platform")
                    commandLines << Words{nameOf(one), nameOf(other), "b"};
            }
        }
        // A platform that is not there ends a program with windows, so it cannot be asked.
        commandLines.removeIf([](const Words &words) {
            const qsizetype first = words.indexOf("-platform");
            return first >= 0 && first + 1 < words.size() && words[first + 1] != "minimal";
        });
        QVERIFY(commandLines.size() > 400);
        compareWithTheToolkit(commandLines);
    }

    void anyWordsInAnyOrder()
    {
        QList<Words> pieces;
        for (const char *word : {"a", "b", "", "-", "--", "-unknown", "-third", "-display"})
            pieces << Words{word};
        pieces << Words{"-platform", "minimal"} << Words{"--platform", "minimal"};
        for (const ToolkitOption &option : toolkitOptions) {
            const QByteArray name = nameOf(option);
            if (option.name != "-platform")
                pieces << Words{name} << Words{'-' + name} << Words{name + "=x"};
        }
        QRandomGenerator random(2026);
        QList<Words> commandLines(500);
        for (Words &words : commandLines) {
            for (int piece = random.bounded(1, 5); piece > 0; --piece)
                words += pieces[random.bounded(pieces.size())];
        }
        compareWithTheToolkit(commandLines);
    }

    /// Whatever the toolkit compares a word of the command line with stands in its libraries.
    void theTableIsComplete()
    {
        static const QRegularExpression option(u"-[a-z][a-z_-]{2,30}=?(?=\\x00)"_s);
        QSet<QByteArray> words;
        for (const QString &library : {u"Core"_s, u"Gui"_s, u"Widgets"_s}) {
            const QString path =
                QLibraryInfo::path(QLibraryInfo::LibrariesPath) + "/libQt6"_L1 + library + ".so.6"_L1;
            auto matches = option.globalMatch(QString::fromLatin1(contentOf(path)));
            while (matches.hasNext())
                words += matches.next().captured().toLatin1();
        }
        for (const ToolkitOption &known : toolkitOptions)
            QVERIFY2(words.contains(nameOf(known)), nameOf(known).constData());
        words.remove("-platform");
        QList<Words> commandLines;
        for (const QByteArray &word : words)
            commandLines << Words{word} << Words{word, "x", "b"};
        compareWithTheToolkit(commandLines);
    }

    void otherWordsStay_data()
    {
        QTest::addColumn<QByteArray>("word");
        for (const char *word :
             {"-third", "--third", "-", "--", "---style", "-styles", "-Style", "style", "-display",
              "-geometry", "-title", "-icon", "-name", "-reverse=x", "-platform=minimal"})
            QTest::newRow(word) << QByteArray(word);
    }
    void otherWordsStay()
    {
        QFETCH(const QByteArray, word);
        QCOMPARE(leftByTheTable({word, "a", "b"}), "3\t" + word + "\ta\tb");
        QCOMPARE(leftByTheTable({"a", "b", word}), "3\ta\tb\t" + word);
        compareWithTheToolkit({Words{word, "a", "b"}, Words{"a", word, "b"}, Words{"a", "b", word}});
    }

    void whatIsLeftMovesUp()
    {
        QCOMPARE(leftByTheTable({"-reverse", "a", "b"}), "2\ta\tb\t(null)");
        QCOMPARE(leftByTheTable({"-style", "fusion", "a"}), "1\ta\t(null)\ta");
        QCOMPARE(leftByTheTable({"a", "b", "-style"}), "3\ta\tb\t-style");
        QCOMPARE(leftByTheTable({"a", "b", "-platform"}), "2\ta\tb\t(null)");
        QCOMPARE(leftByTheTable({"--style=fusion", "a", "b"}), "2\ta\tb\t(null)");
        QCOMPARE(leftByTheTable({"-style", "-platform", "minimal"}), "1\t-style\t(null)\tminimal");
        QCOMPARE(leftByTheTable({"-platform", "minimal"}), "0\t(null)\tminimal");
    }

    // The renderer

    void aThirdWordNeverCostsATicket_data()
    {
        QTest::addColumn<QString>("third");
        for (const char *word : {"-third", "--third", "-", "--", "-x", "-display", "-help", "--version"})
            QTest::newRow(word) << QString::fromLatin1(word);
        for (const ToolkitOption &option : toolkitOptions) {
            const QByteArray name = nameOf(option);
            for (const QByteArray &word : {name, '-' + name, name + "=x"})
                QTest::newRow(word.constData()) << QString::fromLatin1(word);
        }
    }
    void aThirdWordNeverCostsATicket()
    {
        QFETCH(const QString, third);
        const QTemporaryDir folder;
        writeFile(folder.filePath(u"in.xml"_s), jobIn(u"in.xml"_s));
        const ProgramRun run =
            runProgram(program, {u"in.xml"_s, u"out"_s, third}, bareEnvironment(home.path()), folder.path());
        QCOMPARE(run.failure, QString());
        QCOMPARE(run.standardOutput + run.standardError, QByteArray());
        QCOMPARE(contentOf(folder.filePath(u"out"_s)), QByteArray("\n\"in.xml\"1*100H1R\r\n"));
    }

    void theRendererReadsAndWritesWhatIsLeft_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QString>("input"); // "" for one that cannot be opened
        QTest::addColumn<QString>("output");
        const auto add = [](const QStringList &words, const QString &input, const QString &output) {
            QTest::newRow(qPrintable(words.join(u' '))) << words << input << output;
        };
        add({u"-reverse"_s, u"job"_s, u"out"_s}, u"job"_s, u"out"_s);
        add({u"job"_s, u"-reverse"_s, u"out"_s}, u"job"_s, u"out"_s);
        add({u"--style=fusion"_s, u"job"_s, u"out"_s}, u"job"_s, u"out"_s);
        add({u"-style"_s, u"fusion"_s, u"job"_s}, u"job"_s, u""_s);
        add({u"job"_s, u"-style"_s, u"fusion"_s}, u"job"_s, u""_s);
        add({u"job"_s, u"-style"_s}, u"job"_s, u"-style"_s);
        add({u"-style"_s, u"job"_s}, u""_s, u"job"_s);
        add({u"-platform"_s, u"nosuch"_s, u"job"_s}, u"job"_s, u""_s);
        add({u"job"_s, u"out"_s, u"-platform"_s}, u"job"_s, u"out"_s);
        add({u"job"_s, u"-qmljsdebugger"_s}, u"job"_s, u"-qmljsdebugger"_s);
        add({u"-unknown"_s, u"out"_s}, u"-unknown"_s, u"out"_s);
        add({u"job"_s, u""_s, u"-reverse"_s}, u"job"_s, u""_s);
    }
    void theRendererReadsAndWritesWhatIsLeft()
    {
        QFETCH(const QStringList, words);
        QFETCH(const QString, input);
        QFETCH(const QString, output);
        const QTemporaryDir folder;
        const ProgramRun run = runAmongJobs(words, folder);
        QCOMPARE(run.failure, QString());
        QCOMPARE(run.standardError, QByteArray());
        QCOMPARE(run.standardOutput, output.isEmpty() ? QByteArray(unableToOpen) : QByteArray());

        for (const QString &name : QDir(folder.path()).entryList(QDir::Files | QDir::Hidden)) {
            const QByteArray paper = input.isEmpty() ? QByteArray() : paperOf(input);
            QCOMPARE(contentOf(folder.filePath(name)), name == output ? paper : jobIn(name));
        }
    }

    void aPlatformThatIsNotThereIsNoMatter_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::newRow("no option") << QStringList{u"job"_s, u"out"_s};
        QTest::newRow("an option") << QStringList{u"job"_s, u"out"_s, u"-reverse"_s};
        QTest::newRow("another word") << QStringList{u"job"_s, u"out"_s, u"-third"_s};
    }
    void aPlatformThatIsNotThereIsNoMatter()
    {
        QFETCH(const QStringList, words);
        const QTemporaryDir folder;
        const ProgramRun run = runAmongJobs(
            words, folder, {u"QT_QPA_PLATFORM=nosuch"_s, u"QT_QPA_PLATFORM_PLUGIN_PATH=/nowhere"_s});
        QCOMPARE(run.failure, QString());
        QCOMPARE(run.standardOutput + run.standardError, QByteArray());
        QCOMPARE(contentOf(folder.filePath(u"out"_s)), paperOf(u"job"_s));
    }

    void noStartLoadsAGuiLibrary_data()
    {
        QTest::addColumn<QStringList>("moreWords");
        QTest::newRow("plain") << QStringList();
        QTest::newRow("a third word") << QStringList{u"style"_s};
        QTest::newRow("an option") << QStringList{u"-reverse"_s};
    }
    void noStartLoadsAGuiLibrary()
    {
        QFETCH(const QStringList, moreWords);
        const QByteArray maps = mapsOfAWaitingStart(moreWords);
        QVERIFY(maps.contains("libQt6Core.so"));
        for (const char *library :
             {"libQt6Gui", "libQt6Widgets", "libX11", "libxcb", "libGL", "libfontconfig"})
            QVERIFY2(!maps.contains(library), library);
    }
};

QTEST_GUILESS_MAIN(ToolkitOptionsTest)
#include "toolkitoptions_test.moc"

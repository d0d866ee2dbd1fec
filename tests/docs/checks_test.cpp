// docs/checks.md against the table of checks, and every entry against the programs.

#include "checks.h"
#include "program.h"
#include "temporaryhome.h"
#include "wholefile.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString source = QStringLiteral(PALVESTRIN_SOURCE_DIR);

/// One entry of the document: a heading, texts, and blocks of spoiled file, paper, findings and mended file.
struct Entry
{
    QString id;
    QString text;
    QList<QPair<QString, QString>> blocks; ///< language and content

    QString block(const QString &language, qsizetype number = 0) const
    {
        for (const auto &[name, content] : blocks) {
            if (name == language && number-- == 0)
                return content;
        }
        return {};
    }
    QString spoiled() const { return blocks.first().second; }
    QString mended() const { return blocks.last().second; }
    /// Of a configuration: the job whose paper shows what it does, "" where the reader's view shows it.
    QString job() const
    {
        const bool hasJob = blocks.first().first == "conf"_L1 && blocks.value(1).first == "xml"_L1;
        return hasJob ? blocks[1].second : QString();
    }
    bool isOfUser() const { return text.contains("As the user's own configuration:"_L1); }
};

Entry entryOf(const QString &section)
{
    static const QRegularExpression fence(u"^```(\\w+)\\n(.*?)^```$"_s,
                                          QRegularExpression::MultilineOption |
                                              QRegularExpression::DotMatchesEverythingOption);
    Entry entry{section.section(u'`', 0, 0), section, {}};
    for (const QRegularExpressionMatch &match : fence.globalMatch(section))
        entry.blocks += qMakePair(match.captured(1), match.captured(2));
    return entry;
}

QList<Entry> entries()
{
    QStringList sections = QString::fromUtf8(contentOf(source + u"/docs/checks.md"_s)).split(u"\n### `"_s);
    sections.removeFirst();
    QList<Entry> list;
    for (const QString &section : sections)
        list += entryOf(section.section(u"\n## "_s, 0, 0));
    return list;
}

/// What control characters look like in the document.
QString visible(const QString &line)
{
    QString text;
    for (const QChar character : line) {
        if (character.category() == QChar::Other_Control)
            text += "\\x"_L1 + QString::number(character.unicode(), 16).rightJustified(2, u'0');
        else
            text += character;
    }
    return text;
}

/// A file of the document as bytes: "\xe8" is one, and "{v*3}" is "vvv". Configurations are in Latin-1.
QByteArray bytesOf(const QString &text, check::Subject subject)
{
    static const QRegularExpression byte(u"\\\\x([0-9a-f]{2})"_s);
    static const QRegularExpression repeated(u"\\{(.)\\*(\\d+)\\}"_s);
    QString written = text;
    for (QRegularExpressionMatch match; (match = repeated.match(written)).hasMatch();)
        written.replace(match.captured(0), match.captured(1).repeated(match.captured(2).toInt()));
    QByteArray bytes = subject == check::Subject::Configuration ? written.toLatin1() : written.toUtf8();
    for (QRegularExpressionMatch match; (match = byte.match(QString::fromLatin1(bytes))).hasMatch();)
        bytes.replace(match.captured(0).toLatin1(), QByteArray::fromHex(match.captured(1).toLatin1()));
    return bytes;
}

QString wordOf(check::Severity severity)
{
    if (severity == check::Severity::Note)
        return u"Note"_s;
    return severity == check::Severity::Warning ? u"Warning"_s : u"Error"_s;
}

} // namespace

class ChecksTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home;
    const QByteArray example = contentOf(source + u"/examples/home/.palvestrin/conf/palvestrin.conf"_s);

    void makeLocale(const QString &locale)
    {
        QProcess::execute(u"localedef"_s, {u"-i"_s, locale.section(u'.', 0, 0), u"-f"_s,
                                           locale.section(u'.', 1), home.filePath(locale)});
    }

    /// The example configuration, with the settings that the entry asks for.
    void configure(const Entry &entry)
    {
        QByteArray configuration = example;
        static const QRegularExpression setting(u"With `palvestrin\\.(\\w+)\\.(\\w+) = \"(.*)\"`:"_s);
        const QRegularExpressionMatch match = setting.match(entry.text);
        if (match.hasMatch()) {
            const qsizetype block = configuration.indexOf("    " + match.captured(1).toLatin1() + ":");
            const qsizetype key = configuration.indexOf(match.captured(2).toLatin1() + " = \"", block);
            const qsizetype value = configuration.indexOf('"', key) + 1;
            configuration.replace(value, configuration.indexOf('"', value) - value,
                                  match.captured(3).toLatin1());
        }
        home.configure(configuration);
    }

    QStringList environment(const Entry &entry)
    {
        static const QRegularExpression setting(u"In the locale `(.*)`:"_s);
        const QString locale = setting.match(entry.text).captured(1);
        if (locale.isEmpty())
            return bareEnvironment(home.path());
        makeLocale(locale);
        return {u"HOME="_s + home.path(), u"LOCPATH="_s + home.path(), u"LC_ALL="_s + locale};
    }

    /// What `palvestrin` prints on standard output, run in the home.
    QByteArray output(const Entry &entry, const QStringList &words)
    {
        return runProgram(QStringLiteral(PALVESTRIN_PROGRAM), words, environment(entry), home.path())
            .standardOutput;
    }

    /// The findings, notes left out unless they are what the entry is about.
    QString findings(const Entry &entry, const QString &file)
    {
        const QStringList words{u"check"_s, u"--verbose"_s};
        const QString found =
            QString::fromUtf8(output(entry, entry.isOfUser() ? words : words + QStringList{file}));
        QString lines;
        for (const QString &line : found.split(u'\n', Qt::SkipEmptyParts)) {
            if (!line.contains(": note: "_L1) || line.endsWith(u"[%1]"_s.arg(entry.id)))
                lines += QString(line).replace(home.path(), u"~"_s) + u'\n';
        }
        return lines;
    }

    /// The configuration as the programs read it, without the name of the file.
    QString asRead(const Entry &entry)
    {
        const QStringList words{u"config"_s, u"show"_s, u"--file"_s, u"palvestrin.conf"_s};
        return QString::fromUtf8(output(entry, words)).section(u'\n', 1);
    }

    void checkJob(const Entry &entry)
    {
        configure(entry);
        writeFile(home.filePath(u"job.xml"_s), bytesOf(entry.spoiled(), check::Subject::Job));
        QCOMPARE(findings(entry, u"job.xml"_s), entry.block(u"console"_s));
        QCOMPARE(paper(entry), entry.block(u"text"_s));
        writeFile(home.filePath(u"job.xml"_s), bytesOf(entry.mended(), check::Subject::Job));
        QCOMPARE(findings(entry, u"job.xml"_s), QString());
    }

    void useConfiguration(const QString &text)
    {
        const QByteArray bytes = bytesOf(text, check::Subject::Configuration);
        home.configure(bytes);
        writeFile(home.filePath(u"palvestrin.conf"_s), bytes);
    }

    void checkConfiguration(const Entry &entry)
    {
        useConfiguration(entry.spoiled());
        QCOMPARE(findings(entry, u"palvestrin.conf"_s), entry.block(u"console"_s));
        writeFile(home.filePath(u"job.xml"_s), bytesOf(entry.job(), check::Subject::Job));
        QCOMPARE(entry.job().isEmpty() ? asRead(entry) : paper(entry),
                 QString::fromUtf8(bytesOf(entry.block(u"text"_s), check::Subject::Job)));
        useConfiguration(entry.mended());
        QCOMPARE(findings(entry, u"palvestrin.conf"_s), QString());
    }

    void checkOutput(const Entry &entry)
    {
        writeFile(home.filePath(u"output"_s), bytesOf(entry.spoiled(), check::Subject::Output));
        QCOMPARE(findings(entry, u"output"_s), entry.block(u"console"_s));
        QCOMPARE(previewed(entry), entry.block(u"text"_s));
        writeFile(home.filePath(u"output"_s), bytesOf(entry.mended(), check::Subject::Output));
        QCOMPARE(findings(entry, u"output"_s), QString());
    }

    /// What stands on the paper, without blanks at the ends of lines, and without empty lines.
    QString previewed(const Entry &entry)
    {
        const QStringList words{u"preview"_s, u"--format"_s, u"txt"_s, u"output"_s};
        QString lines;
        for (QString line : QString::fromUtf8(output(entry, words)).split(u'\n')) {
            while (line.endsWith(u' '))
                line.chop(1);
            lines += line.isEmpty() ? QString() : line + u'\n';
        }
        return lines;
    }

    /// The rows as a document shows them: without quotes, brackets, and blanks at the end.
    QString paper(const Entry &entry)
    {
        runProgram(QStringLiteral(PALVESTRIN_PRINT), {u"job.xml"_s, u"paper"_s}, environment(entry),
                   home.path());
        QString text;
        for (QString line :
             QString::fromUtf8(contentOf(home.filePath(u"paper"_s))).remove(u'\r').split(u'\n')) {
            if (line.isEmpty() || line == "j"_L1 || line == "J"_L1)
                continue;
            if (line.startsWith(u'"') && line.endsWith("\"@"_L1))
                line = line.sliced(1).chopped(2);
            while (line.endsWith(u' '))
                line.chop(1);
            text += visible(line) + u'\n';
        }
        return text;
    }

private Q_SLOTS:
    void everyCheckHasItsEntry()
    {
        QStringList documented;
        for (const Entry &entry : entries())
            documented += entry.id;
        QStringList known;
        for (const check::Check &check : check::checks)
            known += check.id;
        QCOMPARE(documented, known);
    }

    void entry_data()
    {
        QTest::addColumn<int>("number");
        int number = 0;
        for (const Entry &entry : entries())
            QTest::newRow(qPrintable(entry.id)) << number++;
    }
    void entry()
    {
        QFETCH(int, number);
        const Entry entry = entries().at(number);
        const check::Check &row = check::checks[number];
        QVERIFY(entry.text.contains(u"\n%1: %2.\n"_s.arg(wordOf(row.severity), row.title)));
        QVERIFY(entry.block(u"console"_s).contains(u"[%1]\n"_s.arg(entry.id)));
        switch (row.subject) {
        case check::Subject::Job:
            return checkJob(entry);
        case check::Subject::Configuration:
            return checkConfiguration(entry);
        case check::Subject::Output:
            return checkOutput(entry);
        }
    }

    void theGateOfSecurityMd_data()
    {
        QTest::addColumn<QByteArray>("job");
        QTest::addColumn<bool>("prints");
        const QByteArray head = "<job><method name=\"printPartialOrder\"/><receipe number=\"1\" name=\"Pizza";
        QTest::newRow("clean") << head + "\"/></job>" << true;
        QTest::newRow("warnings") << head + "\" nmae=\"Roma\"/></job>" << true;
        QTest::newRow("a command") << head + "&quot;@&#10;J\"/></job>" << false;
        QTest::newRow("no job") << head << false;
        QTest::newRow("nothing") << QByteArray() << false;
        QTest::newRow("a command in a job that passes itself off as a configuration")
            << QByteArray(head).replace("<job>", "<palvestrin>") + "&quot;@&#10;J\"/></palvestrin>" << false;
    }
    void theGateOfSecurityMd()
    {
        QFETCH(QByteArray, job);
        QFETCH(bool, prints);
        home.configure(example);
        const QString document = QString::fromUtf8(contentOf(source + u"/SECURITY.md"_s));
        const QString recipe = document.section(u"```sh\n"_s, 1).section(u"```"_s, 0, 0);
        QVERIFY(recipe.contains("palvestrin check"_L1));
        writeFile(home.filePath(u"job.xml"_s), job);
        QFile::remove(home.filePath(u"paper.txt"_s));
        const QString programs = QFileInfo(QStringLiteral(PALVESTRIN_PROGRAM)).path();
        const ProgramRun run = runProgram(u"/bin/sh"_s, {u"-c"_s, recipe},
                                          bareEnvironment(home.path()) << u"PATH="_s + programs, home.path());
        QCOMPARE(QFile::exists(home.filePath(u"paper.txt"_s)), prints);
        QCOMPARE(run.standardOutput.isEmpty(), prints);
    }
};

QTEST_GUILESS_MAIN(ChecksTest)
#include "checks_test.moc"

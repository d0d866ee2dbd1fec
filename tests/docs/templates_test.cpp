// The templates of the documents against the program: both print the same jobs, and every byte is compared.

#include "cataloguefile.h"
#include "companyprinterdriver.h"
#include "configuredhome.h"
#include "program.h"
#include "randomjob.h"
#include "rounds.h"
#include "templatepaper.h"
#include "wholefile.h"

#include <QCoreApplication>
#include <QTest>
#include <QTranslator>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

using namespace Qt::Literals::StringLiterals;
using paper_template::Documents;
using paper_template::Paper;
using paper_template::Statement;

namespace {

using Catalogue = QHash<QString, QString>;

/// The words of a catalogue's source, those of the documents only.
Catalogue wordsOf(const QString &locale)
{
    Catalogue words;
    for (const CatalogueEntry &entry :
         readCatalogue(QStringLiteral(CATALOGUE_SOURCES "/palvestrin_%1.ts").arg(locale))) {
        if (entry.context == "QObject"_L1 && entry.finished)
            words[entry.source] = entry.translation;
    }
    return words;
}

QByteArray configurationOf(quint32 seed)
{
    RandomConfigurationOptions options;
    options.extreme = true;
    return randomConfiguration(seed, options);
}

/// The first line in which the two are not the same, as either has it.
QByteArray difference(quint32 seed, const QByteArray &byTemplates, const QByteArray &printed)
{
    const QList<QByteArray> expected = byTemplates.split('\n');
    const QList<QByteArray> actual = printed.split('\n');
    qsizetype line = 0;
    while (line < expected.size() && line < actual.size() && expected[line] == actual[line])
        ++line;
    return "seed " + QByteArray::number(seed) + ", line " + QByteArray::number(line + 1) +
           "\nby the templates: " + expected.value(line) + "\nprinted:          " + actual.value(line);
}

/// Every line of the templates, those within others too.
QList<const Statement *> allOf(const std::vector<Statement> &lines)
{
    QList<const Statement *> all;
    for (const Statement &line : lines)
        all += QList{&line} + allOf(line.body);
    return all;
}

QList<const Statement *> allOf(const Documents &documents)
{
    QList<const Statement *> all;
    for (const std::vector<Statement> &lines : documents.templates)
        all += allOf(lines);
    for (const paper_template::Definition &definition : documents.definitions)
        all += allOf(definition.lines);
    return all;
}

} // namespace

class TemplatesTest : public QObject
{
    Q_OBJECT

private:
    const ConfiguredHome home;
    const Documents documents = Documents::read();
    QSet<const Statement *> visited;

    QByteArray byTemplates(const QByteArray &job, const QByteArray &configuration, const Catalogue &catalogue)
    {
        Paper paper(documents, configuration, catalogue);
        const QByteArray bytes = paper.print(job);
        visited += paper.visited();
        return bytes;
    }

    /// What the renderer makes of the job in this process: a thousand jobs take a second or two.
    QByteArray printed(const QByteArray &job, const QByteArray &configuration) const
    {
        home.configure(configuration);
        const QString path = home.filePath(u"output"_s);
        {
            CompanyPrinterDriver printer(path);
            QXmlInputSource source;
            source.setData(job);
            QXmlSimpleReader reader;
            reader.setContentHandler(&printer);
            reader.parse(source);
        }
        return contentOf(path);
    }

    /// What the program itself makes of it.
    QByteArray printedByTheProgram(quint32 seed) const
    {
        home.configure(configurationOf(seed));
        writeFile(home.filePath(u"job.xml"_s), randomJob(seed));
        runProgram(QStringLiteral(PALVESTRIN_PRINT), {u"job.xml"_s, u"paper"_s}, bareEnvironment(home.path()),
                   home.path());
        return contentOf(home.filePath(u"paper"_s));
    }

private Q_SLOTS:
    void theTemplatesPrintWhatTheRendererPrints_data()
    {
        QTest::addColumn<QString>("locale"); // "" for no catalogue
        QTest::addColumn<quint32>("firstSeed");
        QTest::newRow("English") << QString() << 0U;
        QTest::newRow("Italian") << u"it_IT"_s << 10000U;
        QTest::newRow("German") << u"de_DE"_s << 20000U;
        QTest::newRow("French") << u"fr_FR"_s << 30000U;
        QTest::newRow("Spanish") << u"es_ES"_s << 40000U;
    }
    void theTemplatesPrintWhatTheRendererPrints()
    {
        QFETCH(QString, locale);
        QFETCH(quint32, firstSeed);
        constexpr quint32 jobs = rounds(600);
        QTranslator translator;
        const Catalogue catalogue = locale.isEmpty() ? Catalogue() : wordsOf(locale);
        if (!locale.isEmpty()) {
            QVERIFY(translator.load(QStringLiteral(BUILT_CATALOGUES "/palvestrin_") + locale));
            QVERIFY(QCoreApplication::installTranslator(&translator) && !catalogue.isEmpty());
        }
        for (quint32 seed = firstSeed; seed < firstSeed + jobs; ++seed) {
            const QByteArray job = randomJob(seed);
            const QByteArray expected = byTemplates(job, configurationOf(seed), catalogue);
            const QByteArray actual = printed(job, configurationOf(seed));
            QVERIFY2(expected == actual, difference(seed, expected, actual));
        }
    }

    void theTemplatesPrintWhatTheProgramPrints()
    {
        constexpr quint32 jobs = rounds(100);
        for (quint32 seed = 50000; seed < 50000 + jobs; ++seed) {
            const QByteArray expected = byTemplates(randomJob(seed), configurationOf(seed), {});
            const QByteArray actual = printedByTheProgram(seed);
            QVERIFY2(expected == actual, difference(seed, expected, actual));
        }
    }

    void theFrameOfAJobWithoutAMethod()
    {
        const QByteArray job = "<job><total price=\"1\"/></job>";
        QCOMPARE(byTemplates(job, {}, {}), QByteArray("J\n"));
        QCOMPARE(printed(job, {}), QByteArray("J\n"));
    }

    void theWidestRow_data()
    {
        QTest::addColumn<QByteArray>("paperWidth");
        QTest::addColumn<qsizetype>("bytes"); // of the number, its rule and what frames them
        QTest::newRow("filled") << QByteArray("1000000") << qsizetype(1'000'000 + 22 + 9);
        QTest::newRow("not filled") << QByteArray("1000001") << qsizetype(22 + 9);
    }
    void theWidestRow()
    {
        QFETCH(QByteArray, paperWidth);
        const QByteArray job = "<job><method name=\"printSold\"/><invoice serialnumber=\"1\"/></job>";
        const QByteArray configuration =
            "palvestrin: { solddoc: { paperWidth = \"" + paperWidth + "\"; }; };";
        const QByteArray paper = byTemplates(job, configuration, {});
        QCOMPARE(paper, printed(job, configuration));
        QTEST(paper.size(), "bytes");
    }

    /// No line of a template is left that no job has gone through. Comes behind the jobs.
    void everyLineOfTheTemplatesWasPrinted()
    {
        const QList<const Statement *> all = allOf(documents);
        QVERIFY(all.size() > 150);
        for (const Statement *line : all)
            QVERIFY2(visited.contains(line), qPrintable(line->words.join(u' ')));
    }
};

QTEST_GUILESS_MAIN(TemplatesTest)
#include "templates_test.moc"

// The law of the pictures: the rows of the stream, the text form, the text of the PDF and that of the SVG are
// the same, cell for cell.

#include "papertext.h"
#include "picture.h"
#include "picturetext.h"
#include "program.h"
#include "randomjob.h"
#include "streamreader.h"
#include "stripcollector.h"
#include "temporaryhome.h"
#include "textpainter.h"
#include "wholefile.h"

#include <QTest>

#include <sstream>

using namespace Qt::Literals::StringLiterals;

namespace {

/// One stream, and the columns of its paper.
struct Case
{
    QString name;
    QByteArray stream;
    int columns = 40;
};

std::vector<Strip> stripsOf(const Case &sample)
{
    StripCollector collector({sample.columns});
    paper::StreamReader reader("UTF-8", collector, [](const paper::Fault &) {});
    reader.read(sample.stream);
    reader.finish();
    return collector.strips();
}

QByteArray textFormOf(const Case &sample)
{
    std::ostringstream text;
    paper::TextPainter painter(text);
    paper::StreamReader reader("UTF-8", painter, [](const paper::Fault &) {});
    reader.read(sample.stream);
    reader.finish();
    return QByteArray::fromStdString(text.str());
}

/// The rows of a strip, as the text form has them.
QString textOf(const Strip &strip)
{
    QString text;
    for (const Strip::Line &line : strip.lines) {
        if (const auto *row = std::get_if<paper::Row>(&line)) {
            for (const paper::Cell &cell : row->cells)
                text += QString::fromUcs4(&cell.character, 1);
            text += u'\n';
        }
    }
    return text;
}

Grid gridOf(const Strip &strip)
{
    Grid grid;
    for (const Strip::Line &line : strip.lines) {
        if (const auto *row = std::get_if<paper::Row>(&line))
            grid.push_back(gridRow(*row));
    }
    return grid;
}

/// The first row in which they differ; empty when there is none.
QString difference(const Grid &expected, const Grid &actual)
{
    for (size_t i = 0; i < std::max(expected.size(), actual.size()); ++i) {
        const QStringList one = i < expected.size() ? expected[i] : QStringList();
        const QStringList other = i < actual.size() ? actual[i] : QStringList();
        if (one != other)
            return u"row %1 is\n  %2\nand should be\n  %3"_s.arg(i).arg(other.join(u'|'), one.join(u'|'));
    }
    return {};
}

Grid withoutEmptyRows(Grid grid)
{
    while (!grid.empty() && grid.back().isEmpty())
        grid.pop_back();
    return grid;
}

} // namespace

class SameRowsTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home;

    QByteArray printed(const QByteArray &job, const QByteArray &configuration) const
    {
        home.configure(configuration);
        writeFile(home.filePath(u"job.xml"_s), job);
        const ProgramRun run = runProgram(QStringLiteral(PALVESTRIN_PRINT), {u"job.xml"_s, u"out"_s},
                                          bareEnvironment(home.path()), home.path());
        return run.failure.isEmpty() ? contentOf(home.filePath(u"out"_s)) : run.failure.toUtf8();
    }

    /// Draws all strips into one PDF and each into an SVG: few processes, and the same pages.
    static void verifySameRows(const std::vector<Case> &cases)
    {
        std::vector<Strip> strips;
        QStringList names;
        for (const Case &sample : cases) {
            QStringList text;
            for (const Strip &strip : stripsOf(sample)) {
                text += textOf(strip);
                names += sample.name;
                strips.push_back(strip);
            }
            const QByteArray inStream = paperText(sample.stream);
            QVERIFY2(textFormOf(sample) == inStream, qPrintable(sample.name));
            QVERIFY2(text.join("\f\n"_L1).toUtf8() == inStream, qPrintable(sample.name));
        }
        verifyPictures(strips, names);
    }
    static void verifyPictures(const std::vector<Strip> &strips, const QStringList &names)
    {
        const std::vector<Grid> pages = gridsInPdf(pdfPicture(strips, {}), strips);
        QCOMPARE(pages.size(), strips.size());
        for (size_t i = 0; i < strips.size(); ++i) {
            const Grid grid = gridOf(strips[i]);
            const Grid drawn = gridInSvg(svgPicture({strips[i]}, {}), strips[i]);
            const QString inSvg = difference(withoutEmptyRows(grid), drawn);
            QVERIFY2(inSvg.isEmpty(), qPrintable("SVG of "_L1 + names[int(i)] + ": "_L1 + inSvg));
            const QString inPdf = difference(asWordsTell(grid), asWordsTell(pages[i]));
            QVERIFY2(inPdf.isEmpty(), qPrintable("PDF of "_L1 + names[int(i)] + ": "_L1 + inPdf));
        }
    }

private Q_SLOTS:
    void examples()
    {
        const QDir folder(QStringLiteral(EXAMPLE_FOLDER));
        const QByteArray configuration =
            contentOf(folder.filePath(u"home/.palvestrin/conf/palvestrin.conf"_s));
        std::vector<Case> cases;
        for (const QString &name : QDir(folder.filePath(u"jobs"_s)).entryList({u"*.xml"_s}))
            cases.push_back({name, printed(contentOf(folder.filePath("jobs/"_L1 + name)), configuration)});
        QCOMPARE(cases.size(), 13u);
        verifySameRows(cases);
    }

    void goldenCases()
    {
        const QDir folder(QStringLiteral(GOLDEN_FOLDER));
        std::vector<Case> cases;
        for (const QString &area : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            for (const QString &name :
                 QDir(folder.filePath(area)).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
                const QString path = area + u'/' + name;
                cases.push_back({path, contentOf(folder.filePath(path + "/expected.out"_L1))});
            }
        }
        QVERIFY(cases.size() > 100);
        verifySameRows(cases);
    }

    void randomJobs()
    {
        constexpr quint32 count = 80;
        std::vector<Case> cases;
        for (quint32 seed = 0; seed < count; ++seed) {
            const QByteArray job = randomJob(seed);
            if (job.contains(
                    "&#34;@&#10;")) // a text that ends its own line: what follows is anybody's reading
                continue;
            const int columns = 24 + int(seed % 41);
            cases.push_back({u"job %1"_s.arg(seed), printed(job, randomConfiguration(seed)), columns});
        }
        QVERIFY(cases.size() > count / 2);
        verifySameRows(cases);
    }
};

QTEST_MAIN(SameRowsTest)
#include "samerows_test.moc"

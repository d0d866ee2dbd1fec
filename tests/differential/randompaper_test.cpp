#include "companyprinterdriver.h"
#include "configuredhome.h"
#include "papertext.h"
#include "program.h"
#include "randomjob.h"
#include "streamreader.h"
#include "textpainter.h"
#include "wholefile.h"

#include <QTest>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include <algorithm>
#include <sstream>

using namespace Qt::Literals::StringLiterals;

/// The law of the preview, on jobs that nobody thought of: its text has the rows of the stream, cell for
/// cell.
class RandomPaperTest : public QObject
{
    Q_OBJECT

private:
    const ConfiguredHome home;

    /// What the renderer makes of the job, under the configuration of the same seed.
    QByteArray streamOf(quint32 seed, const QByteArray &job) const
    {
        home.configure(randomConfiguration(seed));
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

    /// Whether a text of the job would end its own line: what follows on the paper then is anybody's reading.
    static bool isForged(const QByteArray &job) { return job.contains("&#34;@&#10;"); }

private Q_SLOTS:
    void textHasTheRowsOfTheStream()
    {
        constexpr quint32 jobs = 3000;
        int whole = 0;
        int broken = 0;
        int forged = 0;
        for (quint32 seed = 0; seed < jobs; ++seed) {
            const QByteArray job = randomJob(seed);
            const QByteArray stream = streamOf(seed, job);
            std::ostringstream text;
            paper::TextPainter painter(text);
            bool hasFaults = false;
            paper::StreamReader reader("UTF-8", painter,
                                       [&hasFaults](const paper::Fault &) { hasFaults = true; });
            reader.read(stream);
            reader.finish();
            const QByteArray what = "seed " + QByteArray::number(seed) + ":\n" + stream;
            const bool isRight = isForged(job) || QByteArray::fromStdString(text.str()) == paperText(stream);
            QVERIFY2(isRight, what);
            ++(isForged(job) ? forged : hasFaults ? broken : whole);
        }
        QVERIFY2(whole > 600 && broken > 600 && forged < 1000, // enough of either kind
                 qPrintable(u"%1 whole, %2 broken, %3 forged"_s.arg(whole).arg(broken).arg(forged)));
    }

    void theCommandKeepsTheLaw()
    {
        constexpr quint32 jobs = 100;
        for (quint32 seed = 0; seed < jobs; ++seed) {
            const QByteArray job = randomJob(seed);
            const QByteArray stream = streamOf(seed, job);
            writeFile(home.filePath(u"job.xml"_s), job);
            const ProgramRun run = runProgram(QStringLiteral(PALVESTRIN_PROGRAM),
                                              {u"preview"_s, u"-o"_s, u"-"_s, home.filePath(u"job.xml"_s)},
                                              bareEnvironment(home.path()));
            const bool isRight = isForged(job) || run.standardOutput == paperText(stream);
            QVERIFY2(isRight, "seed " + QByteArray::number(seed));
        }
    }
};

QTEST_GUILESS_MAIN(RandomPaperTest)
#include "randompaper_test.moc"

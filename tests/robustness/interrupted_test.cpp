// Runs that do not end by themselves. Whatever stands in the output then is a beginning of the right bytes.
// The renderer is the real program.

#include "rendererprocess.h"
#include "temporaryhome.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray rows(int first, int count)
{
    QByteArray text;
    for (int i = first; i < first + count; ++i)
        text += "<receipe description=\"" + QByteArray::number(i) + "\"/>";
    return text;
}

const QByteArray head = "<job><method name=\"printSold\"/>";

} // namespace

class InterruptedTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home;

    QString inputPath() const { return home.filePath(u"job.xml"_s); }
    QString outputPath() const { return home.filePath(u"output"_s); }

    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private Q_SLOTS:
    void initTestCase() { home.configure("palvestrin: { solddoc: { }; };"); }

    void killedAtAnyMoment()
    {
        constexpr int moments = 200;
        QFile job(inputPath());
        QVERIFY(job.open(QIODevice::WriteOnly));
        job.write(head + rows(0, 20'000) + "</job>");
        job.close();
        QElapsedTimer timer;
        timer.start();
        QVERIFY(render(inputPath(), outputPath()).hasExited);
        const auto wholeRun = std::chrono::nanoseconds(timer.nsecsElapsed());
        const QByteArray whole = read(outputPath());
        QVERIFY(whole.endsWith("\nJ\n"));

        int inTheMiddle = 0;
        for (int i = 0; i < moments; ++i) {
            QFile::remove(outputPath());
            RendererProcess renderer(inputPath(), outputPath());
            std::this_thread::sleep_for(wholeRun * QRandomGenerator::global()->generateDouble());
            renderer.send(SIGKILL);
            renderer.wait(100);
            const QByteArray printed = read(outputPath());
            QVERIFY(whole.startsWith(printed));
            if (!printed.isEmpty() && printed != whole)
                ++inTheMiddle;
        }
        QVERIFY(inTheMiddle > 0); // else the moments were ill chosen, and nothing was shown
    }

    /// A job through a pipe whose writer never ends it: the renderer waits, and costs nothing while it does.
    void jobThatNeverEnds()
    {
        QFile::remove(inputPath());
        QFile::remove(outputPath());
        QCOMPARE(mkfifo(QFile::encodeName(inputPath()).constData(), 0600), 0);
        RendererProcess renderer(inputPath(), outputPath());
        QFile pipe(inputPath());
        QVERIFY(pipe.open(QIODevice::WriteOnly | QIODevice::Unbuffered)); // waits for the renderer
        const QByteArray text = head + rows(0, 2000);
        QCOMPARE(pipe.write(text), text.size());
        QTRY_VERIFY(!read(outputPath()).isEmpty());

        const double before = renderer.processorSeconds();
        QTest::qWait(1000);
        QVERIFY(renderer.processorSeconds() - before < 0.05);
        renderer.send(SIGTERM);
        QVERIFY(!renderer.wait(100).hasExited);

        QByteArray whole = "\nj\n";
        for (int i = 0; i < 2000; ++i)
            whole += "\" x " + QByteArray::number(i).leftJustified(29, '.') + "\"@\n";
        QVERIFY(whole.startsWith(read(outputPath())));
    }

    /// An entity that names a pipe with nobody at its other end: opening it would wait for ever.
    void entityOfAPipe_data()
    {
        QTest::addColumn<QByteArray>("documentType");
        QTest::addColumn<QByteArray>("reference");
        const QByteArray path = QFile::encodeName(home.filePath(u"entity"_s));
        QTest::newRow("general") << QByteArray("job [<!ENTITY e SYSTEM \"" + path + "\">]")
                                 << QByteArray("&e;");
        QTest::newRow("general, as an address")
            << QByteArray("job [<!ENTITY e SYSTEM \"file://" + path + "\">]") << QByteArray("&e;");
        QTest::newRow("parameter") << QByteArray("job [<!ENTITY % e SYSTEM \"" + path + "\"> %e;]")
                                   << QByteArray();
        QTest::newRow("document type") << QByteArray("job SYSTEM \"" + path + "\"") << QByteArray();
        QTest::newRow("public document type")
            << QByteArray("job PUBLIC \"-//x\" \"" + path + "\"") << QByteArray();
    }

    void entityOfAPipe()
    {
        QFETCH(QByteArray, documentType);
        QFETCH(QByteArray, reference);
        const QString entity = home.filePath(u"entity"_s);
        QFile::remove(entity);
        QCOMPARE(mkfifo(QFile::encodeName(entity).constData(), 0600), 0);
        QFile::remove(inputPath());
        QFile job(inputPath());
        QVERIFY(job.open(QIODevice::WriteOnly));
        job.write("<!DOCTYPE " + documentType + '>' + head + reference + rows(7, 1) + "</job>");
        job.close();

        const Ending ending = RendererProcess(inputPath(), outputPath()).wait(20);
        QVERIFY(!ending.wasTooSlow);
        QVERIFY(ending.hasExited);
        QCOMPARE(read(outputPath()), QByteArray("\nj\n\" x 7............................\"@\nJ\n"));
    }
};

QTEST_GUILESS_MAIN(InterruptedTest)
#include "interrupted_test.moc"

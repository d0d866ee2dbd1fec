#include "program.h"
#include "temporaryhome.h"
#include "visiblediff.h"
#include "wholefile.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char configuration[] = R"(palvestrin: {
    doc: {
        quantityFieldWidth = 3;
        paperWidth = 40;
        printHeader = true;
    };
    reportdoc: {
        paperWidth = 40;
    };
};
)";
constexpr char firstRow[] = "\nj\n\"  1 Pizza                             \"@\n";
constexpr char secondRow[] = "\"  2 Beer                              \"@\n";

/// A ticket of two dishes with `between` in between.
QByteArray ticket(const QByteArray &between)
{
    return R"(<job><method name="printPartialOrder"/><receipe number="1" name="Pizza"/>)" + between +
           R"(<receipe number="2" name="Beer"/></job>)";
}

/// Elements in one another, `depth` of them.
QByteArray nested(int depth)
{
    return QByteArray("<x>").repeated(depth) + QByteArray("</x>").repeated(depth);
}

QByteArray inParentheses(int depth)
{
    return QByteArray(depth, '(') + "a" + QByteArray(depth, ')');
}

} // namespace

/// Jobs that are too large to stand in a folder: how deep, how wide and how long a job may be.
class GeneratedJobsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void renders_data()
    {
        QTest::addColumn<QByteArray>("job");
        QTest::addColumn<QByteArray>("paper");
        depthRows();
        lengthRows();
    }
    void renders()
    {
        QFETCH(QByteArray, job);
        QFETCH(QByteArray, paper);
        const TemporaryHome home;
        home.configure(configuration);
        const QString output = home.filePath(u"output"_s);
        writeFile(home.filePath(u"job.xml"_s), job);
        const ProgramRun run =
            runProgram(QStringLiteral(PALVESTRIN_PRINT), {home.filePath(u"job.xml"_s), output},
                       bareEnvironment(home.path()));
        QVERIFY2(run.failure.isEmpty(), qPrintable(run.failure));
        QCOMPARE(run.standardOutput + run.standardError, QByteArray());
        const QByteArray diff = visibleDiff(paper, contentOf(output));
        QVERIFY2(diff.isEmpty(), diff.left(2000));
    }

private:
    static void row(const char *name, const QByteArray &job, const QByteArray &paper)
    {
        QTest::newRow(name) << job << paper;
    }

    // Deeper than 1000 elements, the root counted, a job ends like a malformed one: paper kept, no closer.
    static void depthRows()
    {
        const QByteArray whole = QByteArray(firstRow) + secondRow + "J\n";
        row("1000 elements deep", ticket(nested(999)), whole);
        row("1000 elements deep again and again", ticket(nested(999).repeated(5)), whole);
        row("1001 elements deep", ticket(nested(1000)), firstRow);
        row("100000 elements deep", ticket(nested(100000)), firstRow);
        row("100000 elements never closed", ticket(QByteArray("<x>").repeated(100000)), firstRow);
        row("5000 elements side by side", ticket(QByteArray("<x></x>").repeated(5000)), whole);

        const auto doctype = [](int depth) {
            return "<!DOCTYPE job [<!ELEMENT job " + inParentheses(depth) + ">]>" + ticket({});
        };
        row("20 groups deep", doctype(20), whole);
        row("200000 groups deep", doctype(200000), {});
        row("200000 groups never closed", "<!DOCTYPE job [<!ELEMENT job " + QByteArray(200000, '('), {});
        row("200000 parentheses between elements", ticket(QByteArray(200000, '(')), whole);
    }

    static void lengthRows()
    {
        const QByteArray start = R"(<job><method name="printPartialOrder"/>)";
        const QByteArray headersEnd = "\"" + QByteArray(40, '=') + "\"@\n\"" + QByteArray(17, ' ') +
                                      "\"@\n\"" + QByteArray(40, '=') + "\"@\nJ\n";
        const auto header = [&](const char *name, const QByteArray &value) {
            row(name, start + "<headers a=\"" + value + "\"/></job>",
                "\nj\n\"" + value + "\"@\n" + headersEnd);
        };
        header("value of 1000000 letters", QByteArray(1000000, 'a'));
        header("value of 5000 open parentheses", QByteArray(5000, '('));
        // Every letter falls at every distance from the end of a block, whatever the reader's block size is.
        header("letters of one to four bytes", QByteArray("aè€🍕").repeated(50000));

        row("20000 dishes",
            start + QByteArray(R"(<receipe number="1" name="Caffè 🍕"/>)").repeated(20000) + "</job>",
            "\nj\n" + ("\"  1 Caffè 🍕" + QByteArray(27, ' ') + "\"@\n").repeated(20000) + "J\n");
    }
};

QTEST_GUILESS_MAIN(GeneratedJobsTest)
#include "generatedjobs_test.moc"

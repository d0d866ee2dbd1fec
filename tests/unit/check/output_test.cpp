// What is wrong with finished outputs.

#include "finding.h"
#include "output.h"
#include "wholefile.h"

#include <QBuffer>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

class Findings : public check::FindingSink
{
public:
    explicit Findings(QByteArray stream, const QByteArray &encoding = "UTF-8")
    {
        QBuffer buffer(&stream);
        buffer.open(QIODevice::ReadOnly);
        check::checkOutput(buffer, encoding, *this);
    }
    void take(const check::Finding &finding) override
    {
        lines += u"%1:%2: "_s.arg(finding.place.line).arg(finding.place.column).toUtf8() +
                 finding.message.toUtf8() + " [" + finding.check->id.data() + "]\n";
    }
    QByteArray lines;
};

} // namespace

class OutputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void found_data()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<QByteArray>("lines");
        const auto row = [](const char *name, const QByteArray &stream, const QByteArray &lines) {
            QTest::newRow(name) << stream << lines;
        };
        row("a ticket", "\nj\n\"Caff\xc3\xa8\"@\nJ\n", "");
        row("two documents", "\nj\n\"a\"@\n\nj\n\"b\"@\nJ\n", "");
        row("register commands", "\n\"Pizza\"3*650H2R\r\n", "");
        row("no J", "\nj\n\"a\"@\n",
            "4:1: the closing J is missing: the job was not read to its end, or its output was cut off "
            "[unfinished-output]\n");
        row("the middle of a line", "\nj\n\"a\"@\n\"Pizz",
            "4:6: the output ends in the middle of a line [unfinished-output]\n");
        row("the middle of a command", "\n\"Pizza\"3*6",
            "2:11: the output ends in the middle of a line [unfinished-output]\n");
        row("no opening", "\"a\"@\nJ\n",
            "1:1: a line outside of any section: the opening is missing [broken-output]\n");
        row("no empty line", "j\n\"a\"@\nJ\n",
            "1:1: an opening j without the empty line in front of it [broken-output]\n");
        row("a quote in a text", "\nj\n\"12\" pizza\"@\nJ\n",
            "3:4: a quote inside a line; the printer takes it for the end of the line [broken-output]\n");
        row("no line", "\nj\nhello\nJ\n",
            "3:1: neither a line of the printer nor a command [broken-output]\n");
        row("commands of a receipt printer", "\x1b@Pizza\n\x1dV\x41\x03", "");
        row("an unknown command", "\x1b@Pizza\n\x1b\x01x\n",
            "1:9: no command that is known begins with the bytes 1b 01 [unknown-command]\n");
        row("a command that ends early",
            "\x1b@Pizza\n\x1d"
            "V",
            "1:9: the output ends in the middle of the command 1d 56 [unfinished-output]\n");
    }
    void found()
    {
        QFETCH(QByteArray, stream);
        QTEST(Findings(stream).lines, "lines");
    }

    void theEncodingIsTheLocales()
    {
        const QByteArray stream = "\nj\n\"Caff\xe8\"@\nJ\n";
        QCOMPARE(Findings(stream, "ISO-8859-15").lines, QByteArray());
        QVERIFY(Findings(stream, "UTF-8").lines.startsWith("3:6: "));
    }
};

QTEST_GUILESS_MAIN(OutputTest)
#include "output_test.moc"

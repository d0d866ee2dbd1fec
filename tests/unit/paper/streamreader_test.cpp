#include "recordingpainter.h"

#include <QTest>

/// What is read from the output of the renderer, and from outputs that something happened to.
class StreamReaderTest : public QObject
{
    Q_OBJECT

private:
    static void addColumns()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<QByteArray>("record");
        QTest::addColumn<QByteArray>("faults");
    }
    /// Checks the row of data, whole and in pieces of every small size.
    static void verifyRow()
    {
        QFETCH(const QByteArray, stream);
        QTEST(readingOf(stream).record, "record");
        QTEST(readingOf(stream).faults, "faults");
        for (const qsizetype piece : {1, 2, 3, 7}) {
            QTEST(readingOf(stream, "UTF-8", piece).record, "record");
            QTEST(readingOf(stream, "UTF-8", piece).faults, "faults");
        }
    }

private Q_SLOTS:
    void wholeStreams_data();
    void wholeStreams() { verifyRow(); }
    void brokenStreams_data();
    void brokenStreams() { verifyRow(); }
    void registerCommands_data();
    void registerCommands() { verifyRow(); }
    void encodings_data();
    void encodings();
    void aLineWithoutEndTakesNoMemory();
};

void StreamReaderTest::wholeStreams_data()
{
    addColumns();
    QTest::newRow("one section") << QByteArray("\nj\n\"HELLO\"@\n\"WORLD\"@\nJ\n")
                                 << QByteArray("paper\n|HELLO|\n|WORLD|\nend\n") << QByteArray();
    QTest::newRow("blanks are kept, empty lines too")
        << QByteArray("\nj\n\"               ABCD\"@\n\"\"@\n\"a  \"@\nJ\n")
        << QByteArray("paper\n|               ABCD|\n||\n|a  |\nend\n") << QByteArray();
    QTest::newRow("several openings, one closing")
        << QByteArray("\nj\n\"a\"@\n\nj\n\"b\"@\nJ\n") << QByteArray("paper\n|a|\nend\npaper\n|b|\nend\n")
        << QByteArray();
    QTest::newRow("sections without lines")
        << QByteArray("\nj\n\nj\nJ\n") << QByteArray("paper\nend\npaper\nend\n") << QByteArray();
    QTest::newRow("job without a method") << QByteArray("J\n") << QByteArray() << QByteArray();
    QTest::newRow("nothing at all") << QByteArray() << QByteArray() << QByteArray();
    QTest::newRow("register without commands")
        << QByteArray("\n") << QByteArray("register\nend\n") << QByteArray();
    QTest::newRow("two registers without commands")
        << QByteArray("\n\n") << QByteArray("register\nend\nregister\nend\n") << QByteArray();
    QTest::newRow("register without commands, then paper")
        << QByteArray("\n\nj\n\"a\"@\nJ\n") << QByteArray("register\nend\npaper\n|a|\nend\n") << QByteArray();
    QTest::newRow("register, then paper")
        << QByteArray("\n500H1T\n\nj\n\"a\"@\nJ\n")
        << QByteArray(
               "register\n|500H1T| cash: 5.00\nremark: The register will show 0.00. Settled by cash 5.00: "
               "5.00 more than the sum.\nend\npaper\n|a|\nend\n")
        << QByteArray();
    QTest::newRow("paper, then register: no closing")
        << QByteArray("\nj\n\"a\"@\n\n\"Food\"1*500H1R\r\n500H1T\n")
        << QByteArray(
               "paper\n|a|\nend\nregister\n|\"Food\"1*500H1R| sale: 1 x Food at 5.00, department 1\n"
               "|500H1T| cash: 5.00\nremark: The register will show 5.00. Settled by cash 5.00.\nend\n")
        << QByteArray();
    QTest::newRow("a line among the commands, without its opening quote")
        << QByteArray("\n500H1T\nHELLO\"@\n\"WORLD\"@\n\"@\n")
        << QByteArray(
               "register\n|500H1T| cash: 5.00\n|HELLO|\n|WORLD|\n||\nremark: The register will show 0.00. "
               "Settled by cash 5.00: 5.00 more than the sum.\nend\n")
        << QByteArray();
    QTest::newRow("one output behind another")
        << QByteArray("\nj\n\"a\"@\nJ\n\nj\n\"b\"@\nJ\n") << QByteArray("paper\n|a|\nend\npaper\n|b|\nend\n")
        << QByteArray();
    QTest::newRow("letters that are commands elsewhere")
        << QByteArray("\nj\n\"j\"@\n\"J\"@\nJ\n") << QByteArray("paper\n|j|\n|J|\nend\n") << QByteArray();
    QTest::newRow("at signs and half a line's end")
        << QByteArray("\nj\n\"a@b.it @\"@\nJ\n") << QByteArray("paper\n|a@b.it @|\nend\n") << QByteArray();
    QTest::newRow("any character")
        << QByteArray("\nj\n\"Caff\xc3\xa8 \xe2\x82\xac \xf0\x9f\x8d\x95 \xef\xbf\xbd \xef\xbb\xbf\"@\nJ\n")
        << QByteArray("paper\n|Caff\xc3\xa8 \xe2\x82\xac \xf0\x9f\x8d\x95 \xef\xbf\xbd \xef\xbb\xbf|\nend\n")
        << QByteArray();
}

void StreamReaderTest::brokenStreams_data()
{
    const QByteArray quote = "a quote inside a line; the printer takes it for the end of the line\n";
    const QByteArray lineBreak =
        "a line break inside a line; the printer may take it for the end of the line\n";
    const QByteArray noClosing =
        "the closing J is missing: the job was not read to its end, or its output was cut off\n";
    const QByteArray cutOff = "remark: The output is cut off here.\n";
    addColumns();
    QTest::newRow("quotes inside a line")
        << QByteArray("\nj\n\"say \"hi\"\"@\nJ\n") << QByteArray("paper\n|say [\"]hi[\"]|\nend\n")
        << QByteArray("3:6: " + quote + "3:9: " + quote);
    QTest::newRow("a quote and an at sign inside a line")
        << QByteArray("\nj\n\"\"@\"@\nJ\n") << QByteArray("paper\n|[\"]@|\nend\n")
        << QByteArray("3:2: " + quote);
    QTest::newRow("columns count characters")
        << QByteArray("\nj\n\"\xf0\x9f\x8d\x95\xc3\xa8\"\"@\nJ\n")
        << QByteArray("paper\n|\xf0\x9f\x8d\x95\xc3\xa8[\"]|\nend\n") << QByteArray("3:4: " + quote);
    QTest::newRow("a line break inside a line")
        << QByteArray("\nj\n\"one\ntwo\"@\n\"three\"@\nJ\n")
        << QByteArray("paper\n|one[\xe2\x90\x8a]|\n|two|\n|three|\nend\n") << QByteArray("3:5: " + lineBreak);
    QTest::newRow("a line break in front of a quote")
        << QByteArray("\nj\n\"one\n\"two\"@\nJ\n")
        << QByteArray("paper\n|one[\xe2\x90\x8a]|\n|[\"]two|\nend\n")
        << QByteArray("3:5: " + lineBreak + "4:1: " + quote);
    QTest::newRow("empty lines inside a line")
        << QByteArray("\nj\n\"\n\nj\"@\nJ\n")
        << QByteArray("paper\n|[\xe2\x90\x8a]|\n|[\xe2\x90\x8a]|\n|j|\nend\n")
        << QByteArray("3:2: " + lineBreak + "4:1: " + lineBreak);
    QTest::newRow("a line break at the end of a text")
        << QByteArray("\nj\n\"one\n\"@\nJ\n") << QByteArray("paper\n|one[\xe2\x90\x8a]|\n||\nend\n")
        << QByteArray("3:5: " + lineBreak);
    QTest::newRow("commands inside a line")
        << QByteArray("\nj\n\"a\nJ\nj\nb\"@\nJ\n")
        << QByteArray("paper\n|a[\xe2\x90\x8a]|\n|J[\xe2\x90\x8a]|\n|j[\xe2\x90\x8a]|\n|b|\nend\n")
        << QByteArray("3:3: " + lineBreak + "4:2: " + lineBreak + "5:2: " + lineBreak);
    QTest::newRow("control characters")
        << QByteArray("\nj\n\"A\x01\x1b@\tB\x7f\xc2\x85\"@\nJ\n")
        << QByteArray(
               "paper\n|A[\xe2\x90\x81][\xe2\x90\x9b]@[\xe2\x90\x89]B[\xe2\x90\xa1][\xef\xbf\xbd]|\nend\n")
        << QByteArray(
               "3:3: the control character U+0001 inside a line; the printer may take it for a command\n"
               "3:4: the control character U+001B inside a line; the printer may take it for a command\n"
               "3:6: the control character U+0009 inside a line; the printer may take it for a command\n"
               "3:8: the control character U+007F inside a line; the printer may take it for a command\n"
               "3:9: the control character U+0085 inside a line; the printer may take it for a command\n");
    QTest::newRow("a carriage return and a line break")
        << QByteArray("\nj\n\"one\r\ntwo\"@\nJ\n")
        << QByteArray("paper\n|one[\xe2\x90\x8d][\xe2\x90\x8a]|\n|two|\nend\n")
        << QByteArray(
               "3:5: the control character U+000D inside a line; the printer may take it for a command\n"
               "3:6: " +
               lineBreak);
    QTest::newRow("wrong bytes")
        << QByteArray("\nj\n\"caff\xe8 \xc3\"@\nJ\n")
        << QByteArray("paper\n|caff[\xef\xbf\xbd] [\xef\xbf\xbd]|\nend\n")
        << QByteArray("3:6: bytes that are no character; the output may be in another encoding\n"
                      "3:8: bytes that are no character; the output may be in another encoding\n");
    QTest::newRow("half a character at the very end")
        << QByteArray("\nj\n\"a\xf0\x9f") << "paper\n|a[\xef\xbf\xbd]|\n" + cutOff + "end\n"
        << QByteArray("3:3: bytes that are no character; the output may be in another encoding\n"
                      "3:4: the output ends in the middle of a line\n");
    QTest::newRow("no closing") << QByteArray("\nj\n\"a\"@\n") << "paper\n|a|\n" + cutOff + "end\n"
                                << "4:1: " + noClosing;
    QTest::newRow("cut off in the middle of a line")
        << QByteArray("\nj\n\"HEL") << "paper\n|HE[L]|\n" + cutOff + "end\n"
        << QByteArray("3:5: the output ends in the middle of a line\n");
    QTest::newRow("cut off behind the opening quote")
        << QByteArray("\nj\n\"") << "paper\n||\n" + cutOff + "end\n"
        << QByteArray("3:2: the output ends in the middle of a line\n");
    QTest::newRow("cut off in front of the line feed")
        << QByteArray("\nj\n\"HELLO\"@") << "paper\n|HELL[O]|\n" + cutOff + "end\n"
        << QByteArray("3:9: the output ends in the middle of a line\n");
    QTest::newRow("cut off behind the J") << QByteArray("\nj\n\"a\"@\nJ") << QByteArray("paper\n|a|\nend\n")
                                          << QByteArray("4:2: the output ends in the middle of a line\n");
    QTest::newRow("cut off behind a line break of the text")
        << QByteArray("\nj\n\"one\n") << "paper\n|one[\xe2\x90\x8a]|\n" + cutOff + "end\n"
        << "3:5: " + lineBreak + "4:1: " + noClosing;
    QTest::newRow("cut off behind an empty line of the text")
        << QByteArray("\nj\n\"one\n\n") << "paper\n|one[\xe2\x90\x8a]|\n|[\xe2\x90\x8a]|\n" + cutOff + "end\n"
        << "3:5: " + lineBreak + "4:1: " + lineBreak + "5:1: " + noClosing;
    QTest::newRow("the next output begins in the middle of a line")
        << QByteArray("\nj\n\"HEL\n\nj\n\"a\"@\nJ\n")
        << QByteArray("paper\n|HEL[\xe2\x90\x8a]|\nend\npaper\n|a|\nend\n") << "3:5: " + lineBreak;
    QTest::newRow("the beginning is missing")
        << QByteArray("LLO\"@\n\"WORLD\"@\nJ\n") << QByteArray("paper\n|LLO|\n|WORLD|\nend\n")
        << QByteArray("1:1: a line outside of any section: the opening is missing\n"
                      "1:1: a line without its opening quote\n");
    QTest::newRow("an opening without the empty line")
        << QByteArray("j\n\"a\"@\nJ\n") << QByteArray("paper\n|a|\nend\n")
        << QByteArray("1:1: an opening j without the empty line in front of it\n");
    QTest::newRow("a line behind the end")
        << QByteArray("\nj\nJ\n\"a\"@\nJ\n") << QByteArray("paper\nend\npaper\n|a|\nend\n")
        << QByteArray("4:1: a line outside of any section: the opening is missing\n");
    QTest::newRow("a second closing") << QByteArray("\nj\nJ\nJ\n") << QByteArray("paper\nend\n")
                                      << QByteArray("4:1: a closing J without a section to close\n");
    QTest::newRow("a closing behind commands") << QByteArray("\nJ\n") << QByteArray("register\nend\n")
                                               << QByteArray("2:1: a closing J without a section to close\n");
    QTest::newRow("text that is no line")
        << QByteArray("\nj\nhi\n\"a\"@\nJ\n") << QByteArray("paper\n|[h][i]|\n|a|\nend\n")
        << QByteArray("3:1: neither a line of the printer nor a command\n");
}

void StreamReaderTest::registerCommands_data()
{
    addColumns();
    QTest::newRow("the whole of a receipt")
        << QByteArray("\n\"PIZZA\"3*650H2R\r\n=150H4M\r\n=10* 2M\n1600H1T\n500H3T\n300H2T\n200H5T\n")
        << QByteArray(
               "register\n"
               "|\"PIZZA\"3*650H2R| sale: 3 x PIZZA at 6.50 = 19.50, department 2\n"
               "|=150H4M| reduction: 1.50\n"
               "|=10* 2M| discount: 10 %\n"
               "|1600H1T| cash: 16.00\n"
               "|500H3T| credit card: 5.00\n"
               "|300H2T| cheque: 3.00\n"
               "|200H5T| not paid: 2.00\n"
               "remark: The register will show 16.20: sales 19.50, less reductions 1.50, less discount "
               "1.80. Settled by cash 16.00, credit card 5.00, cheque 3.00, not paid 2.00: 9.80 more than "
               "the sum.\nend\n")
        << QByteArray();
    QTest::newRow("modifiers")
        << QByteArray("\n\"WATER\"2*100H1R-10*5M\r\n\"WINE\"1*1000H1R5.5*1M\r\n\"BEER\"1*300H1R*1M\r\n")
        << QByteArray(
               "register\n"
               "|\"WATER\"2*100H1R-10*5M| sale: 2 x WATER at 1.00, less 10 % = 1.80, department 1\n"
               "|\"WINE\"1*1000H1R5.5*1M| sale: 1 x WINE at 10.00, plus 5.5 % = 10.55, department 1\n"
               "|\"BEER\"1*300H1R*1M| sale: 1 x BEER at 3.00, with a modifier that is no number = no "
               "number, department 1\n"
               "remark: The register will show 12.35. Not counted: 1 command that could not be read.\nend\n")
        << QByteArray();
    QTest::newRow("parts of a cent") << QByteArray(
                                            "\n\"A\"2*1234.5H1R\r\n\"B\"1*1e-05H1R\r\n\"C\"1*1e+17H1R\r\n")
                                     << QByteArray(
                                            "register\n"
                                            "|\"A\"2*1234.5H1R| sale: 2 x A at 12.345 = 24.69, department 1\n"
                                            "|\"B\"1*1e-05H1R| sale: 1 x B at 1e-07, department 1\n"
                                            "|\"C\"1*1e+17H1R| sale: 1 x C at 1e+15, department 1\n"
                                            "remark: The register will show 1.00000000000002e+15.\nend\n")
                                     << QByteArray();
    QTest::newRow("nothing given")
        << QByteArray("\n\"\"*0HR\r\n")
        << QByteArray(
               "register\n|\"\"*0HR| sale: no quantity x an item without a name at 0.00 = no number, no "
               "department\n"
               "remark: The register will show 0.00. Not counted: 1 command that could not be read.\nend\n")
        << QByteArray();
    QTest::newRow("no numbers")
        << QByteArray("\n\"A\"1*nanH1R\r\n\"B\"two*500H1R\r\nnanH1T\n")
        << QByteArray("register\n"
                      "|\"A\"1*nanH1R| sale: 1 x A at no number, department 1\n"
                      "|\"B\"two*500H1R| sale: two x B at 5.00 = no number, department 1\n"
                      "|nanH1T| cash: no number\n"
                      "remark: The register will show 0.00. Not counted: 3 commands that could not be read.\n"
                      "end\n")
        << QByteArray();
    QTest::newRow("below zero and paid in part")
        << QByteArray("\n\"A\"1,5*1000H 02,5R\r\n=-10* 2M\n-500H1T\n")
        << QByteArray(
               "register\n"
               "|\"A\"1,5*1000H 02,5R| sale: 1,5 x A at 10.00 = 15.00, department  02,5\n"
               "|=-10* 2M| discount: -10 %\n"
               "|-500H1T| cash: -5.00\n"
               "remark: The register will show 16.50: sales 15.00, less discount -1.50. Settled by cash "
               "-5.00: 21.50 less than the sum.\nend\n")
        << QByteArray();
    QTest::newRow("quotes in a description")
        << QByteArray("\n\"Il \"TOTALE\" caff\xc3\xa8\"1*100H1R\r\n")
        << QByteArray(
               "register\n|\"Il [\"]TOTALE[\"] caff\xc3\xa8\"1*100H1R| sale: 1 x Il \"TOTALE\" caff\xc3\xa8 "
               "at 1.00, department 1\nremark: The register will show 1.00.\nend\n")
        << QByteArray("2:5: a quote inside a line; the printer takes it for the end of the line\n"
                      "2:12: a quote inside a line; the printer takes it for the end of the line\n");
    QTest::newRow("a line break in a description")
        << QByteArray("\n\"PIZ\nZA\"3*650H2R\r\n500H1T\n")
        << QByteArray(
               "register\n|\"PIZ[\xe2\x90\x8a]|\n|ZA\"3*650H2R| sale: 3 x ZA at 6.50 = 19.50, department 2\n"
               "|500H1T| cash: 5.00\n"
               "remark: The register will show 19.50. Settled by cash 5.00: 14.50 less than the sum.\nend\n")
        << QByteArray("2:5: a line break inside a line; the printer may take it for the end of the line\n");
    QTest::newRow("line breaks behind a description")
        << QByteArray("\n\"\"*100H\r\nR\r\n500H1T\n")
        << QByteArray(
               "register\n|\"\"*100H[\xe2\x90\x8d][\xe2\x90\x8a]|\n|R|\n|500H1T| cash: 5.00\n"
               "remark: The register will show 0.00. Settled by cash 5.00: 5.00 more than the sum. Not "
               "counted: 1 command that could not be read.\nend\n")
        << QByteArray(
               "2:8: the control character U+000D inside a line; the printer may take it for a command\n"
               "2:9: a line break inside a line; the printer may take it for the end of the line\n");
    QTest::newRow("an escape in a description")
        << QByteArray("\n\"A\x1bp\"1*100H1R\r\n")
        << QByteArray(
               "register\n|\"A[\xe2\x90\x9b]p\"1*100H1R| sale: 1 x A\xe2\x90\x9bp at 1.00, department 1\n"
               "remark: The register will show 1.00.\nend\n")
        << QByteArray(
               "2:3: the control character U+001B inside a line; the printer may take it for a command\n");
    QTest::newRow("carriage returns in the wrong places")
        << QByteArray("\n\"A\"1*100H1R\n100H1T\r\n")
        << QByteArray("register\n|\"A\"1*100H1[R]| sale: 1 x A at 1.00, department 1\n|100H1[T]| cash: 1.00\n"
                      "remark: The register will show 1.00. Settled by cash 1.00.\nend\n")
        << QByteArray("2:12: the carriage return at the end of the command is missing\n"
                      "3:7: a carriage return where the register expects none\n");
    QTest::newRow("no command")
        << QByteArray("\nhello\n500H9T\r\n")
        << QByteArray(
               "register\n|[h][e][l][l][o]|\n|[5][0][0][H][9][T]|\nremark: The register will show 0.00. Not "
               "counted: 2 commands that could not be read.\nend\n")
        << QByteArray("2:1: no command of the register\n3:1: no command of the register\n");
    QTest::newRow("cut off in a command")
        << QByteArray("\n\"PIZZA\"3*650H2R\r\n16")
        << QByteArray(
               "register\n|\"PIZZA\"3*650H2R| sale: 3 x PIZZA at 6.50 = 19.50, department 2\n|[1][6]|\n"
               "remark: The output is cut off here.\n"
               "remark: The register will show 19.50. Not counted: 1 command that could not be read.\nend\n")
        << QByteArray("3:1: no command of the register\n3:3: the output ends in the middle of a line\n");
    QTest::newRow("the opening is missing")
        << QByteArray("\"A\"1*100H1R\r\n")
        << QByteArray(
               "register\n|\"A\"1*100H1R| sale: 1 x A at 1.00, department 1\nremark: The register will show "
               "1.00.\nend\n")
        << QByteArray("1:1: a line outside of any section: the opening is missing\n");
}

void StreamReaderTest::encodings_data()
{
    QTest::addColumn<QByteArray>("encoding");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<QByteArray>("faults");
    const auto wrong = [](int column) {
        return "3:" + QByteArray::number(column) +
               ": bytes that are no character; the output may be in another encoding\n";
    };
    QTest::newRow("Latin-9") << QByteArray("ISO-8859-15") << QByteArray("caff\xe8 \xa4 \xbd")
                             << QByteArray("caff\xc3\xa8 \xe2\x82\xac \xc5\x93") << QByteArray();
    QTest::newRow("Japanese") << QByteArray("EUC-JP") << QByteArray("\xa4\xa2\"")
                              << QByteArray("\xe3\x81\x82[\"]")
                              << QByteArray(
                                     "3:3: a quote inside a line; the printer takes it for the end of the "
                                     "line\n");
    QTest::newRow("wrong bytes in Greek") << QByteArray("ISO-8859-7") << QByteArray("\xe1\xff")
                                          << QByteArray("\xce\xb1[\xef\xbf\xbd]") << wrong(3);
    QTest::newRow("beyond ASCII") << QByteArray("ANSI_X3.4-1968") << QByteArray("a\xe8")
                                  << QByteArray("a[\xef\xbf\xbd]") << wrong(3);
    QTest::newRow("unknown encoding counts as UTF-8")
        << QByteArray("no-such-encoding") << QByteArray("\xc3\xa8") << QByteArray("\xc3\xa8") << QByteArray();
}

void StreamReaderTest::encodings()
{
    QFETCH(const QByteArray, encoding);
    QFETCH(const QByteArray, text);
    QFETCH(const QByteArray, row);
    const Reading reading = readingOf("\nj\n\"" + text + "\"@\nJ\n", encoding);
    QCOMPARE(reading.record, "paper\n|" + row + "|\nend\n");
    QTEST(reading.faults, "faults");
}

void StreamReaderTest::aLineWithoutEndTakesNoMemory()
{
    qint64 rows = 0;
    qsizetype cells = 0;
    struct CountingPainter : RecordingPainter
    {
        CountingPainter(qint64 &rowCount, qsizetype &cellCount) : rows(rowCount), cells(cellCount) {}
        void row(const paper::Row &row) override
        {
            ++rows;
            cells = row.cells.size();
        }
        qint64 &rows;
        qsizetype &cells;
    } painter(rows, cells);
    QList<paper::Fault> faults;
    paper::StreamReader reader("UTF-8", painter, [&faults](const paper::Fault &fault) { faults += fault; });
    reader.read("\nj\n\"");
    const QByteArray piece(65536, 'x');
    for (int i = 0; i < 1000; ++i)
        reader.read(piece);
    reader.read("\"@\n\"next\"@\nJ\n");
    reader.finish();
    QCOMPARE(rows, 2);
    QCOMPARE(cells, 4);
    QCOMPARE(faults.size(), 1);
    QCOMPARE(faults.first().line, 3);
    QCOMPARE(faults.first().column, 1'000'001);
    QCOMPARE(faults.first().what,
             QStringLiteral("a line of more than 1000000 bytes; what is beyond is left out"));
}

QTEST_APPLESS_MAIN(StreamReaderTest)

#include "streamreader_test.moc"

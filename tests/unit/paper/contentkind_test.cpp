#include "contentkind.h"

#include <QTest>

using paper::ContentKind;

/// Jobs and finished outputs are told apart by what they hold.
class ContentKindTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsByContent_data();
    void tellsByContent();
};

void ContentKindTest::tellsByContent_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<ContentKind>("kind");
    const auto row = [](const char *name, const QByteArray &content, ContentKind kind) {
        QTest::newRow(name) << content << kind;
    };
    row("XML with declaration", "<?xml version=\"1.0\"?><job/>", ContentKind::Job);
    row("XML without", "<job>", ContentKind::Job);
    row("remark first", "<!-- a ticket -->\n<job/>", ContentKind::Job);
    row("byte order mark", "\xef\xbb\xbf<job/>", ContentKind::Job);
    row("UTF-16, big end first", QByteArray("\xfe\xff\0<\0j", 6), ContentKind::Job);
    row("UTF-16, little end first", QByteArray("\xff\xfe<\0j\0", 6), ContentKind::Job);
    row("UTF-16 without a mark", QByteArray("\0<\0j", 4), ContentKind::Job);
    row("UTF-32", QByteArray("\xff\xfe\0\0<\0\0\0", 8), ContentKind::Job);
    row("blanks first", " \r\n\t<job/>", ContentKind::Job);

    row("receipt printer", "\x1b@\x1c.", ContentKind::ReceiptPrinter);
    row("receipt printer, blanks and zeros first", QByteArray("\0\0  \n\x1d!\1", 8),
        ContentKind::ReceiptPrinter);
    row("text first", "Caff\x8a\r\n\x1b@", ContentKind::ReceiptPrinter);
    row("another picture", "\x89PNG\r\n\x1a\n\x1b", ContentKind::Neither);
    row("section", "\nj\n\"HELLO\"@\nJ\n", ContentKind::Output);
    row("only a closing", "J\n", ContentKind::Output);
    row("register", "\n\"PIZZA\"3*650H2R\r\n", ContentKind::Output);
    row("register, paid only", "\n1600H1T\n", ContentKind::Output);
    row("register, a reduction first", "\n=150H4M\r\n", ContentKind::Output);
    row("register without commands", "\n", ContentKind::Output);
    row("several of them", "\n\n\nj\n", ContentKind::Output);
    row("a line without its opening quote", "\nHELLO\"@\n", ContentKind::Output);
    row("the beginning is missing", "LLO\"@\n\"WORLD\"@\nJ\n", ContentKind::Output);
    row("only a beginning", "\nj", ContentKind::Output);
    row("text that looks like an element", "\nj\n\"<job/>\"@\nJ\n", ContentKind::Output);

    row("empty", "", ContentKind::Neither);
    row("text", "hello\n", ContentKind::Neither);
    row("text behind an empty line", "\nhello\n", ContentKind::Neither);
    row("configuration", "palvestrin:\n{\n};\n", ContentKind::Neither);
    row("JSON", "{ \"job\": 1 }\n", ContentKind::Neither);
    row("picture", QByteArray("\x89PNG\r\n\x1a\n\0\0", 10), ContentKind::Neither);
    row("blanks alone", "  \n", ContentKind::Neither);
}

void ContentKindTest::tellsByContent()
{
    QFETCH(const QByteArray, content);
    QTEST(paper::contentKind(content), "kind");
}

QTEST_APPLESS_MAIN(ContentKindTest)

#include "contentkind_test.moc"

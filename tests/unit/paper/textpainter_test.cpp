#include "streamreader.h"
#include "textpainter.h"

#include <QTest>

#include <sstream>

/// The text form: the rows of the paper and nothing else.
class TextPainterTest : public QObject
{
    Q_OBJECT

private:
    static QByteArray textOf(const QByteArray &stream, const QByteArray &encoding = "UTF-8")
    {
        std::ostringstream text;
        paper::TextPainter painter(text);
        paper::StreamReader reader(encoding, painter, [](const paper::Fault &) {});
        reader.read(stream);
        reader.finish();
        return QByteArray::fromStdString(text.str());
    }

private Q_SLOTS:
    void rowsOneALine()
    {
        QCOMPARE(textOf("\nj\n\"HELLO  \"@\n\"\"@\n\"  WORLD\"@\nJ\n"), "HELLO  \n\n  WORLD\n");
    }

    void sectionsAreSeparated()
    {
        QCOMPARE(textOf("\nj\n\"a\"@\n\nj\n\n500H1T\n\nj\n\"b\"@\nJ\n"), "a\n\f\n\f\n500H1T\n\f\nb\n");
        QCOMPARE(textOf("J\n"), "");
    }

    void registerCommandsAsTheyAreSent()
    {
        QCOMPARE(textOf("\n\"PIZZA\"3*650H2R\r\n=10* 2M\n"), "\"PIZZA\"3*650H2R\n=10* 2M\n");
    }

    void alwaysUtf8()
    {
        QCOMPARE(textOf("\nj\n\"\xe8\xa4\"@\nJ\n", "ISO-8859-15"), "\xc3\xa8\xe2\x82\xac\n");
        QCOMPARE(textOf("\nj\n\"\xef\xbb\xbf\"@\nJ\n"), "\xef\xbb\xbf\n"); // a mark at the front too
        QCOMPARE(textOf("\nj\n\"\x7f\x01\xdf\xbf\xe0\xa0\x80\xf0\x9f\x8d\x95\"@\nJ\n"),
                 "\xe2\x90\xa1\xe2\x90\x81\xdf\xbf\xe0\xa0\x80\xf0\x9f\x8d\x95\n");
    }

    void noRowLooksLikeASeparator()
    {
        QCOMPARE(textOf("\nj\n\"\f\"@\n\"a\nb\"@\nJ\n"), "\xe2\x90\x8c\na\xe2\x90\x8a\nb\n");
    }
};

QTEST_APPLESS_MAIN(TextPainterTest)

#include "textpainter_test.moc"

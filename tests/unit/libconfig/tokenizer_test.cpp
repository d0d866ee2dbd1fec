#include "exampleconfig.h"
#include "tokenizer.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <iterator>
#include <sstream>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using libconfig::Token;
using libconfig::Tokenizer;
using libconfig::TokenKind;

namespace {

constexpr std::pair<TokenKind, const char *> kindNames[] = {
    {TokenKind::BlockName, "BlockName"},
    {TokenKind::Colon, "Colon"},
    {TokenKind::BeforeBrace, "BeforeBrace"},
    {TokenKind::OpenBrace, "OpenBrace"},
    {TokenKind::Key, "Key"},
    {TokenKind::Equals, "Equals"},
    {TokenKind::Value, "Value"},
    {TokenKind::Semicolon, "Semicolon"},
    {TokenKind::Stray, "Stray"},
    {TokenKind::CloseBrace, "CloseBrace"},
    {TokenKind::BehindBrace, "BehindBrace"},
    {TokenKind::Unread, "Unread"},
};

QByteArray nameOf(TokenKind kind)
{
    const auto *row = std::find_if(std::begin(kindNames), std::end(kindNames),
                                   [kind](const auto &candidate) { return candidate.first == kind; });
    return row == std::end(kindNames) ? "unknown" : row->second;
}

/// Writes down the place, the kind and the text of every piece but white space, and puts the bytes of all
/// together again.
class Record : public libconfig::TokenListener
{
public:
    void token(const Token &token) override
    {
        bytes += token.bytes.toByteArray();
        size += token.size;
        const libconfig::Position at = token.textAt();
        if (!token.isBlank() || token.kind == TokenKind::Value)
            pieces += QByteArray::number(at.line) + ':' + QByteArray::number(at.column) + ' ' +
                      nameOf(token.kind) + ' ' + token.bytes.trimmed().toByteArray() + '\n';
    }

    QByteArray bytes;
    qint64 size = 0;
    QByteArray pieces;
};

Record recordOf(const QByteArray &content)
{
    Record record;
    libconfig::tokenize(content, record);
    return record;
}

} // namespace

class TokenizerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pieces_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("pieces");
        const auto row = [](const char *name, const QByteArray &content, const QByteArray &pieces) {
            QTest::newRow(name) << content << pieces;
        };
        row("nothing", "", "");
        row("white space", " \n\t\r\n", "");
        row("a pair", "k = v;",
            "1:1 Key k\n"
            "1:3 Equals =\n"
            "1:5 Value v\n"
            "1:6 Semicolon ;\n");
        row("the usual layout", "p: \n{\n    k = \"v\";\n};\n",
            "1:1 BlockName p\n"
            "1:2 Colon :\n"
            "2:1 OpenBrace {\n"
            "3:5 Key k\n"
            "3:7 Equals =\n"
            "3:9 Value \"v\"\n"
            "3:12 Semicolon ;\n"
            "4:1 CloseBrace }\n"
            "4:2 Semicolon ;\n");
        row("crammed, in one line", "p:{q:{m=;};};",
            "1:1 BlockName p\n"
            "1:2 Colon :\n"
            "1:3 OpenBrace {\n"
            "1:4 BlockName q\n"
            "1:5 Colon :\n"
            "1:6 OpenBrace {\n"
            "1:7 Key m\n"
            "1:8 Equals =\n"
            "1:9 Value \n"
            "1:9 Semicolon ;\n"
            "1:10 CloseBrace }\n"
            "1:11 Semicolon ;\n"
            "1:12 CloseBrace }\n"
            "1:13 Semicolon ;\n");
        row("a remark belongs to the key behind it", "# note\n    level = INFO;",
            "1:1 Key # note\n    level\n"
            "2:11 Equals =\n"
            "2:13 Value INFO\n"
            "2:17 Semicolon ;\n");
        row("a remark behind everything belongs to nothing", "k=v;\n# the end\n",
            "1:1 Key k\n"
            "1:2 Equals =\n"
            "1:3 Value v\n"
            "1:4 Semicolon ;\n"
            "2:1 Stray # the end\n");
        row("a remark in front of a brace belongs to nothing", "p:{# one\n};",
            "1:1 BlockName p\n"
            "1:2 Colon :\n"
            "1:3 OpenBrace {\n"
            "1:4 Stray # one\n"
            "2:1 CloseBrace }\n"
            "2:2 Semicolon ;\n");
        row("text between a name and its brace", "p: // = note\n{};",
            "1:1 BlockName p\n"
            "1:2 Colon :\n"
            "1:4 BeforeBrace // = note\n"
            "2:1 OpenBrace {\n"
            "2:2 CloseBrace }\n"
            "2:3 Semicolon ;\n");
        row("a missing semicolon behind a value", "a = \"1\"\nb = \"2\";",
            "1:1 Key a\n"
            "1:3 Equals =\n"
            "1:5 Value \"1\"\nb = \"2\"\n"
            "2:8 Semicolon ;\n");
        row("a missing semicolon behind a brace", "p:{a=1;}\nb=2;c=3;",
            "1:1 BlockName p\n"
            "1:2 Colon :\n"
            "1:3 OpenBrace {\n"
            "1:4 Key a\n"
            "1:5 Equals =\n"
            "1:6 Value 1\n"
            "1:7 Semicolon ;\n"
            "1:8 CloseBrace }\n"
            "2:1 BehindBrace b=2\n"
            "2:4 Semicolon ;\n"
            "2:5 Key c\n"
            "2:6 Equals =\n"
            "2:7 Value 3\n"
            "2:8 Semicolon ;\n");
        row("a missing brace", "p: k = v;",
            "1:1 BlockName p\n"
            "1:2 Colon :\n"
            "1:4 BeforeBrace k = v;\n");
        row("a brace that closes nothing", "} rest;\nk = v;",
            "1:1 CloseBrace }\n"
            "1:3 BehindBrace rest\n"
            "1:7 Semicolon ;\n"
            "2:1 Unread k = v;\n");
        row("delimiters inside a value", "k = {a}:b=c\n;",
            "1:1 Key k\n"
            "1:3 Equals =\n"
            "1:5 Value {a}:b=c\n"
            "2:1 Semicolon ;\n");
        row("the end inside a key", "k=v; m",
            "1:1 Key k\n"
            "1:2 Equals =\n"
            "1:3 Value v\n"
            "1:4 Semicolon ;\n"
            "1:6 Stray m\n");
        row("the end inside a value", "k = v",
            "1:1 Key k\n"
            "1:3 Equals =\n"
            "1:5 Value v\n");
        row("the end behind a brace", "p:{} ",
            "1:1 BlockName p\n"
            "1:2 Colon :\n"
            "1:3 OpenBrace {\n"
            "1:4 CloseBrace }\n");
        row("a byte order mark belongs to the first name", "\xef\xbb\xbfp:{};",
            "1:1 BlockName \xef\xbb\xbfp\n"
            "1:5 Colon :\n"
            "1:6 OpenBrace {\n"
            "1:7 CloseBrace }\n"
            "1:8 Semicolon ;\n");
        row("columns are bytes", "\xc3\xa8=\xe8;\xa0=1;",
            "1:1 Key \xc3\xa8\n"
            "1:3 Equals =\n"
            "1:4 Value \xe8\n"
            "1:5 Semicolon ;\n"
            "1:6 Key \xa0\n"
            "1:7 Equals =\n"
            "1:8 Value 1\n"
            "1:9 Semicolon ;\n");
        row("carriage returns are columns", "a=1;\r\nb=2;",
            "1:1 Key a\n"
            "1:2 Equals =\n"
            "1:3 Value 1\n"
            "1:4 Semicolon ;\n"
            "2:1 Key b\n"
            "2:2 Equals =\n"
            "2:3 Value 2\n"
            "2:4 Semicolon ;\n");
    }
    void pieces()
    {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, pieces);
        QCOMPARE(recordOf(content).pieces, pieces);
        QCOMPARE(recordOf(content).bytes, content);
    }

    void blocksTooDeepAreUnread()
    {
        const QByteArray pieces = recordOf(QByteArray("a:{").repeated(1001) + "k=v;").pieces;
        QVERIFY2(pieces.endsWith("1:3001 BlockName a\n"
                                 "1:3002 Colon :\n"
                                 "1:3003 OpenBrace {\n"
                                 "1:3004 Unread k=v;\n"),
                 pieces.last(100).constData());
        const QByteArray deepest = recordOf(QByteArray("a:{").repeated(1000) + "k=v;").pieces;
        QVERIFY2(deepest.endsWith("1:3001 Key k\n"
                                  "1:3002 Equals =\n"
                                  "1:3003 Value v\n"
                                  "1:3004 Semicolon ;\n"),
                 deepest.last(100).constData());
    }

    /// The promise on which everything stands that tells people of their file: no byte goes unmentioned.
    void thePiecesAreTheFile()
    {
        QRandomGenerator random(20070903);
        const QByteArrayView letters("ab:={}; \"\n#\r\xe8");
        for (int round = 0; round < 5000; ++round) {
            QByteArray content = round % 2 ? QByteArray(example) : QByteArray();
            for (int i = random.bounded(40); i > 0; --i)
                content.insert(random.bounded(int(content.size()) + 1),
                               random.bounded(20) ? letters[random.bounded(int(letters.size()))] : '\0');
            const Record record = recordOf(content);
            QCOMPARE(record.bytes, content);
            QCOMPARE(record.size, content.size());
        }
    }

    /// Places that people are shown lead back to the bytes.
    void placesLeadToTheBytes()
    {
        const QByteArray content = "p: {\n  # one\n\n  k = \"a\nb\";\n} stray\n ; q: \n {";
        class Check : public libconfig::TokenListener
        {
        public:
            explicit Check(const QByteArray &of) : lines(of.split('\n')) {}
            void token(const Token &token) override
            {
                for (qsizetype i = 0; i < token.bytes.size(); ++i, ++checked) {
                    const libconfig::Position at = token.positionOf(i);
                    const QByteArray line = lines.value(at.line - 1) + '\n';
                    QCOMPARE(line.mid(at.column - 1, 1), QByteArray(1, token.bytes[i]));
                }
            }
            const QList<QByteArray> lines;
            qsizetype checked = 0;
        };
        Check check(content);
        libconfig::tokenize(content, check);
        QCOMPARE(check.checked, content.size());
    }

    void namesAndValuesAreThoseOfTheReader()
    {
        const auto token = [](QByteArrayView bytes) {
            return Token{TokenKind::Value, {}, bytes, bytes.size()};
        };
        QCOMPARE(token(" \t a b \n").name(), u"a b"_s);
        QCOMPARE(token("\xa0 \xe8").name(), u"\u00a0 \u00e8"_s);
        QCOMPARE(token(" \" a\"b \" ").value(), u" ab "_s);
        const QByteArray fits = " " + QByteArray(2046, 'n');
        QCOMPARE(token(fits).name(), QString(2046, u'n'));
        QVERIFY(!token(fits).isCut());
        QCOMPARE(token(fits + 'n').name(), QString(2046, u'n'));
        QVERIFY(token(fits + 'n').isCut());
    }

    /// A file of one endless piece must not fill the memory.
    void aStreamIsKeptInPart()
    {
        class Longest : public libconfig::TokenListener
        {
        public:
            void token(const Token &token) override
            {
                size += token.size;
                kept = std::max(kept, token.bytes.size());
            }
            qint64 size = 0;
            qsizetype kept = 0;
        };
        const std::string content = "a:" + std::string(5000, ' ') + "{k=" + std::string(3000, 'v') + ";" +
                                    std::string(4000, '#') + "} " + std::string(6000, '#');
        std::istringstream stream(content);
        Longest longest;
        QCOMPARE(int(Tokenizer(stream, longest).readFile()), int(Tokenizer::End::File));
        QCOMPARE(longest.size, qint64(content.size()));
        QCOMPARE(longest.kept, qsizetype(2047));
    }

    void readingStopsBehindTheBlock()
    {
        std::istringstream stream("k = v; q: { m = w; }; } ; next");
        Record record;
        QCOMPARE(int(Tokenizer(stream, record).readBlock()), int(Tokenizer::End::Brace));
        QCOMPARE(record.bytes, "k = v; q: { m = w; }; } ;");
        QCOMPARE(char(stream.get()), ' ');
        QCOMPARE(char(stream.get()), 'n');
    }

    void readingTellsWhatEndedIt()
    {
        const auto file = [](const char *content) {
            std::istringstream stream(content);
            Record record;
            return Tokenizer(stream, record).readFile();
        };
        const auto block = [](const char *content) {
            std::istringstream stream(content);
            Record record;
            return Tokenizer(stream, record).readBlock();
        };
        QVERIFY(file("p: { k = v; };") == Tokenizer::End::File);
        QVERIFY(file("p: { k = v;") == Tokenizer::End::File);
        QVERIFY(file("} ; k = v;") == Tokenizer::End::Brace);
        QVERIFY(file("p: { }; }") == Tokenizer::End::Brace);
        QVERIFY(block("k = v; }; k = w;") == Tokenizer::End::Brace);
        QVERIFY(block("k = v; }") == Tokenizer::End::Brace);
        QVERIFY(block("k = v;") == Tokenizer::End::File);
        QVERIFY(block("q: { };") == Tokenizer::End::File);
    }

    void skippedIsWhatTheReaderDrops()
    {
        QByteArray skipped;
        for (const auto &[kind, name] : kindNames) {
            if (libconfig::isSkipped(kind))
                skipped += QByteArray(name) + ' ';
        }
        QCOMPARE(skipped, "BeforeBrace Stray BehindBrace Unread ");
    }

    void textsAreQuotedForMessages()
    {
        QCOMPARE(libconfig::quoted("  a\n\t b "), u"\"a b\""_s);
        QCOMPARE(libconfig::quoted("\xe8"), u"\"\u00e8\""_s);
        QCOMPARE(libconfig::quoted(QByteArray(40, 'a')), u'"' + QString(40, u'a') + u'"');
        QCOMPARE(libconfig::quoted(QByteArray(41, 'a')), u'"' + QString(40, u'a') + "...\""_L1);
    }
};

QTEST_GUILESS_MAIN(TokenizerTest)
#include "tokenizer_test.moc"

// Jobs that attack the renderer, or are broken: what each prints, and that none costs more memory and time
// than its row allows. The renderer is the real program.

#include "rendererprocess.h"
#include "temporaryhome.h"

#include <QTest>

#include <algorithm>
#include <functional>
#include <sys/resource.h>

using namespace Qt::Literals::StringLiterals;

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool isSanitized = true;
#elif defined(__has_feature)
constexpr bool isSanitized = __has_feature(address_sanitizer);
#else
constexpr bool isSanitized = false;
#endif
// A row's time holds for what restaurants run; a debug build only has to end.
#ifdef QT_NO_DEBUG
constexpr bool isOptimised = true;
#else
constexpr bool isOptimised = false;
#endif

constexpr qsizetype million = 1'000'000;

// The job of most rows begins and ends so; what it prints in between is the row's business.
const QByteArray head = "<job><method name=\"printFullOrderReceipt\"/>";
const QByteArray tail = "<total price=\"1\"/></job>";
const QByteArray opened = "\nj\n";
const QByteArray total = "\"\"@\n\"    TOTAL.......................       1\"@\n";
const QByteArray titles = "\"Num Description            Price  Amount\"@\n";
const QByteArray closed = "J\n";
const QByteArray wholeJob = opened + total + closed;

QByteArray times(qsizetype count, const QByteArray &text)
{
    return text.repeated(count);
}

/// `count` texts, each made from its number.
QByteArray numbered(int count, const std::function<QByteArray(QByteArray)> &make)
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
        text += make(QByteArray::number(i));
    return text;
}

QByteArray withDocumentType(const QByteArray &declarations, const QByteArray &content = {})
{
    return "<!DOCTYPE job [" + declarations + "]>" + head + content + tail;
}

/// Ten entities, `first` among them, each of which refers ten times to the one before or behind it.
QByteArray tenfoldEntities(bool backwards, const QByteArray &first, const QByteArray &kind = "",
                           const QByteArray &reference = "&")
{
    QByteArrayList declarations = {"<!ENTITY " + kind + "a0 \"" + first + "\">"};
    for (int i = 1; i < 10; ++i)
        declarations.append("<!ENTITY " + kind + 'a' + QByteArray::number(i) + " \"" +
                            times(10, reference + 'a' + QByteArray::number(i - 1) + ';') + "\">");
    if (backwards)
        std::reverse(declarations.begin(), declarations.end());
    return declarations.join();
}

QByteArray parentheses(int depth)
{
    return "<!ELEMENT job " + times(depth, "(") + 'a' + times(depth, ")") + '>';
}

QByteArray utf16(const QByteArray &job, bool bigEndian)
{
    QByteArray bytes;
    for (const char c : job)
        bytes += bigEndian ? QByteArray(1, '\0') + c : c + QByteArray(1, '\0');
    return bytes;
}

struct Job
{
    QByteArray text;
    QByteArray printed;
    /// Address space, in MiB, that the renderer may use. With nothing to do it needs about 100.
    int mebibytes = 160;
    int processorSeconds = 10;
};

constexpr int twoCopiesOfFiftyMegabytes = 400; ///< in 16-bit characters, and one more while they are made

struct Row
{
    const char *name;
    Job (*make)(); ///< one at a time: some are large
};

const Row rows[] = {
    // Depth and size.
    {"nested 1,000,000 deep",
     [] {
         return Job{head + times(million, "<a>") + times(million, "</a>") + tail, opened};
     }},
    {"nested as deep as may be",
     [] {
         return Job{head + times(999, "<a>") + times(999, "</a>") + tail, wholeJob};
     }},
    {"nested one deeper",
     [] {
         return Job{head + times(1000, "<a>") + times(1000, "</a>") + tail, opened};
     }},
    {"an attribute of 50 MB",
     [] {
         return Job{head + "<receipe name=\"" + times(50 * million, "x") + "\"/>" + tail,
                    opened + titles + "\"    x xxxxxxxxxxxxxxxxxx........        \"@\n" + total + closed,
                    twoCopiesOfFiftyMegabytes};
     }},
    {"1,000,000 attributes",
     [] {
         return Job{head + "<receipe" + numbered(million, [](auto n) { return " a" + n + "=\"v\""; }) + "/>" +
                        tail,
                    opened + titles + "\"    x ..........................        \"@\n" + total + closed,
                    twoCopiesOfFiftyMegabytes};
     }},
    {"one attribute 1,000,000 times",
     [] {
         return Job{head + "<receipe" + times(million, " name=\"v\"") + "/>" + tail,
                    opened + titles + "\"    x v.........................        \"@\n" + total + closed,
                    twoCopiesOfFiftyMegabytes};
     }},
    {"an address of 50 MB of commas",
     [] {
         return Job{head + "<customer name=\"A\" billingaddress=\"" + times(50 * million, ",") + "\"/>" +
                        tail,
                    opened + "\"CUSTOMER\"@\n\" A\"@\n\"========================================\"@\n" +
                        total + closed,
                    twoCopiesOfFiftyMegabytes};
     }},
    {"an address of 500,000 lines",
     [] {
         return Job{head + "<customer name=\"A\" billingaddress=\"" + times(500'000, "b,") + "\"/>" + tail,
                    opened + "\"CUSTOMER\"@\n\" A\"@\n" + times(500'000, "\" b\"@\n") +
                        "\"========================================\"@\n" + total + closed};
     }},
    {"2,000,000 small elements",
     [] {
         return Job{head + times(2 * million, "<b/>") + tail, wholeJob};
     }},
    {"100,000 methods",
     [] {
         return Job{"<job>" + times(100'000, "<method name=\"printFullOrderReceipt\"/>") + tail,
                    times(100'000, opened) + total + closed};
     }},
    {"a comment of 50 MB",
     [] {
         return Job{head + "<!--" + times(50 * million, "x") + "-->" + tail, wholeJob,
                    twoCopiesOfFiftyMegabytes};
     }},
    {"1,000,000 comments",
     [] {
         return Job{head + times(million, "<!-- -->") + tail, wholeJob};
     }},
    {"a comment of 10 MB before everything",
     [] {
         return Job{"<!--" + times(10 * million, "x") + "-->" + head + tail, wholeJob};
     }},
    {"a processing instruction of 50 MB",
     [] {
         return Job{head + "<?t " + times(50 * million, "x") + "?>" + tail, wholeJob,
                    twoCopiesOfFiftyMegabytes};
     }},
    {"character data of 50 MB",
     [] {
         return Job{head + "<![CDATA[" + times(50 * million, "x") + "]]>" + tail, wholeJob,
                    twoCopiesOfFiftyMegabytes};
     }},
    {"text of 50 MB",
     [] {
         return Job{head + times(50 * million, "x") + tail, wholeJob, twoCopiesOfFiftyMegabytes};
     }},
    {"an element name of 5 MB",
     [] {
         return Job{head + '<' + times(5 * million, "x") + "/>" + tail, wholeJob};
     }},
    {"an attribute name of 5 MB",
     [] {
         return Job{head + "<a " + times(5 * million, "x") + "=\"1\"/>" + tail, wholeJob};
     }},
    {"an entity name of 5 MB",
     [] {
         return Job{head + '&' + times(5 * million, "x") + ';' + tail, wholeJob};
     }},
    {"a public identifier of 5 MB",
     [] {
         return Job{"<!DOCTYPE job PUBLIC \"" + times(5 * million, "x") + "\" \"y\">" + head + tail,
                    wholeJob};
     }},
    {"an encoding name of 5 MB",
     [] {
         return Job{"<?xml version=\"1.0\" encoding=\"" + times(5 * million, "x") + "\"?>" + head + tail,
                    wholeJob};
     }},
    {"50 MB of anything",
     [] {
         return Job{times(50 * million, "x"), ""};
     }},

    // Namespaces. The reader's work at an end tag grows with the square of the prefixes.
    {"20,000 namespaces in scope of 20,000 elements",
     [] {
         return Job{head + "<a" + numbered(20'000, [](auto n) { return " xmlns:a" + n + "=\"v\""; }) + '>' +
                        times(20'000, "<b/>") + "</a>" + tail,
                    opened};
     }},
    {"twenty namespaces",
     [] {
         return Job{head + "<a" + numbered(20, [](auto n) { return " xmlns:a" + n + "=\"v\""; }) + '>' +
                        times(20'000, "<b/>") + "</a>" + tail,
                    wholeJob};
     }},
    {"three hundred namespaces around a long receipt",
     [] {
         return Job{head + "<a" + numbered(300, [](auto n) { return " xmlns:a" + n + "=\"v\""; }) + '>' +
                        times(2'000, "<b/>") + "</a>" + tail,
                    wholeJob};
     }},
    {"three hundred namespaces, each around the next",
     [] {
         const QByteArray begin = numbered(300, [](auto n) { return "<a xmlns:a" + n + "=\"v\">"; });
         return Job{head + begin + times(300, "</a>") + tail, wholeJob};
     }},
    {"20,000 namespaces, one at each of 20,000 elements in turn",
     [] {
         return Job{head + numbered(20'000, [](auto n) { return "<a xmlns:a" + n + "=\"v\"/>"; }) + tail,
                    wholeJob};
     }},
    {"1,000 namespaces in scope of 20,000 elements",
     [] {
         return Job{head + "<a" + numbered(1'000, [](auto n) { return " xmlns:a" + n + "=\"v\""; }) + '>' +
                        times(20'000, "<b/>") + "</a>" + tail,
                    opened};
     }},
    {"one namespace declared 100,000 times",
     [] {
         return Job{head + times(100'000, "<a xmlns:b=\"v\" xmlns=\"w\"/>") + tail, wholeJob};
     }},
    {"a name of 1,000,000 colons",
     [] {
         return Job{head + '<' + times(million, "a:") + "b/>" + tail, wholeJob};
     }},

    // Entities.
    {"entities within reason",
     [] {
         return Job{
             withDocumentType("<!ENTITY firm \"Rossi &amp; &who;\"><!ENTITY who \"Figli&#33;\">",
                              "<customer name=\"&firm;\"/>"),
             opened + "\"CUSTOMER\"@\n\" Rossi & Figli!\"@\n\"========================================\"@\n" +
                 total + closed};
     }},
    {"tenfold entities",
     [] {
         return Job{withDocumentType(tenfoldEntities(false, "lol"), "<total price=\"&a9;\"/>"), ""};
     }},
    {"tenfold entities, last one first",
     [] {
         return Job{withDocumentType(tenfoldEntities(true, "lol"), "<total price=\"&a9;\"/>"), ""};
     }},
    {"tenfold entities in the text",
     [] {
         return Job{withDocumentType(tenfoldEntities(true, "lol"), "&a9;"), ""};
     }},
    {"tenfold empty entities",
     [] {
         return Job{withDocumentType(tenfoldEntities(true, ""), "&a9;"), ""};
     }},
    {"tenfold entities in reverse",
     [] {
         // Past the toolkit's own check, which goes by the order of the names.
         QByteArray declarations;
         for (char c = 'z'; c > 'q'; --c)
             declarations +=
                 QByteArray("<!ENTITY ") + char(c - 1) + " \"" + times(10, QByteArray("&") + c + ';') + "\">";
         return Job{withDocumentType("<!ENTITY z \"lol\">" + declarations, "<total price=\"&q;\"/>"), ""};
     }},
    {"tenfold entities, each before what it refers to",
     [] {
         QByteArray declarations = "<!ENTITY q \"lol\">";
         for (char c = 'r'; c <= 'z'; ++c)
             declarations.prepend(QByteArray("<!ENTITY ") + c + " \"" +
                                  times(10, QByteArray("&") + char(c - 1) + ';') + "\">");
         return Job{withDocumentType(declarations, "<total price=\"&z;\"/>"), ""};
     }},
    {"tenfold elements in entities",
     [] {
         return Job{withDocumentType(tenfoldEntities(true, "<total price='2'/>"), "&a9;"), ""};
     }},
    {"tenfold parameter entities",
     [] {
         return Job{withDocumentType(tenfoldEntities(false, "<!-- x -->", "% ", "&#37;") + "%a9;"), ""};
     }},
    {"tenfold parameter entities, last one first",
     [] {
         return Job{withDocumentType(tenfoldEntities(true, "<!-- x -->", "% ", "&#37;") + "%a9;"), ""};
     }},
    {"100 kB, 10,000 times, in an attribute",
     [] {
         return Job{withDocumentType("<!ENTITY a \"" + times(100'000, "x") + "\">",
                                     "<total price=\"" + times(10'000, "&a;") + "\"/>"),
                    opened};
     }},
    {"100 kB, 10,000 times, in the text",
     [] {
         return Job{withDocumentType("<!ENTITY a \"" + times(100'000, "x") + "\">", times(10'000, "&a;")),
                    opened};
     }},
    {"as much as entities may stand for",
     [] {
         return Job{withDocumentType("<!ENTITY a \"" + times(100'000, "x") + "\">",
                                     "<other price=\"" + times(199, "&a;") + "\"/>"),
                    wholeJob, twoCopiesOfFiftyMegabytes};
     }},
    {"1,000,000 undeclared entities",
     [] {
         return Job{head + times(million, "&u;") + tail, wholeJob};
     }},
    {"100,000 entities",
     [] {
         return Job{withDocumentType(numbered(100'000, [](auto n) { return "<!ENTITY a" + n + " \"x\">"; })),
                    ""};
     }},
    {"1,000 entities",
     [] {
         return Job{withDocumentType(numbered(1000, [](auto n) { return "<!ENTITY a" + n + " \"x\">"; })),
                    wholeJob};
     }},
    {"a chain of 999 entities",
     [] {
         return Job{withDocumentType("<!ENTITY a999 \"x\">" +
                                         numbered(999,
                                                  [](auto n) {
                                                      return "<!ENTITY a" + n + " \"&a" +
                                                             QByteArray::number(n.toInt() + 1) + ";\">";
                                                  }),
                                     "&a0;<customer name=\"&a0;\"/>"),
                    opened + "\"CUSTOMER\"@\n\" x\"@\n\"========================================\"@\n" +
                        total + closed};
     }},
    {"an entity in itself",
     [] {
         return Job{withDocumentType("<!ENTITY a \"&b;\"><!ENTITY b \"&a;\">", "<total price=\"&a;\"/>"),
                    opened};
     }},
    {"a parameter entity in itself",
     [] {
         return Job{withDocumentType("<!ENTITY % a \"&#37;b;\"><!ENTITY % b \"&#37;a;\">%a;"), ""};
     }},
    {"a file in the text",
     [] {
         return Job{withDocumentType("<!ENTITY a SYSTEM \"/etc/passwd\">", "&a;"), wholeJob};
     }},
    {"a file in an attribute",
     [] {
         return Job{withDocumentType("<!ENTITY a SYSTEM \"/etc/passwd\">", "<total price=\"&a;\"/>"), opened};
     }},

    // Document types. The reader recurses for each parenthesis.
    {"200,000 parentheses",
     [] {
         return Job{withDocumentType(parentheses(200'000)), ""};
     }},
    {"5,000,000 parentheses",
     [] {
         return Job{withDocumentType(parentheses(5 * million)), ""};
     }},
    {"1,000 parentheses",
     [] {
         return Job{withDocumentType(parentheses(1000)), wholeJob};
     }},
    {"1,001 parentheses",
     [] {
         return Job{withDocumentType(parentheses(1001)), ""};
     }},
    {"parentheses that close where the reader's buffer ends",
     [] {
         // Each kilobyte closes one and opens two, the closing one first.
         constexpr int buffer = 1024;
         QByteArray job = "<!DOCTYPE job [<!ELEMENT job ((";
         job += times(buffer - job.size(), "a");
         job += times(1500, ")|((" + times(buffer - 4, "a")) + times(1502, ")") + ">]>" + head + tail;
         return Job{job, ""};
     }},
    {"1,001 parentheses in a comment",
     [] {
         return Job{"<!-- <a> " + times(1001, "(") + " -->" + head + tail, wholeJob};
     }},
    {"1,001 parentheses in a processing instruction",
     [] {
         return Job{"<?xml version=\"1.0\"?><?note <a> & %b; " + times(1001, "(") + "?>" + head + tail,
                    wholeJob};
     }},
    {"1,001 parentheses behind a document type",
     [] {
         return Job{"<!DOCTYPE job SYSTEM \"x\"><!-- <a> " + times(1001, "(") + " -->" + head + tail,
                    wholeJob};
     }},
    {"1,001 parentheses behind a document type with declarations",
     [] {
         return Job{"<!DOCTYPE job [<!ELEMENT job (a)>]><?note <a> " + times(1001, "(") + "?>" + head + tail,
                    wholeJob};
     }},
    {"1,001 parentheses in a comment of a document type",
     [] {
         return Job{withDocumentType("<!-- " + times(1001, "(") + " -->"), wholeJob};
     }},
    {"1,001 parentheses in a processing instruction of a document type",
     [] {
         return Job{withDocumentType(" <?note " + times(1001, "(") + "?>"), wholeJob};
     }},
    {"parentheses behind what is a comment in quotes only",
     [] {
         return Job{withDocumentType("<!ENTITY a \"<!--\">" + parentheses(200'000)), ""};
     }},
    {"parentheses behind what is an instruction in quotes only",
     [] {
         return Job{withDocumentType("<!ENTITY % a \"<?b?>&#60;!ELEMENT job " + times(200'000, "(") + 'a' +
                                     times(200'000, ")") + "&#62;\">%a;"),
                    ""};
     }},
    {"parentheses behind a declaration that an entity begins",
     [] {
         return Job{withDocumentType("<!ENTITY % a \"<!ELEMENT job \"><!-- -->%a;" + times(200'000, "(") +
                                     'a' + times(200'000, ")") + '>'),
                    ""};
     }},
    {"parentheses behind a comment that an entity begins",
     [] {
         return Job{withDocumentType("<!ENTITY % a \"<!-- \">%a; -->" + parentheses(200'000)), ""};
     }},
    {"parentheses behind a comment with an element",
     [] {
         return Job{"<!-- <a> -->" + withDocumentType(parentheses(200'000)), ""};
     }},
    {"parentheses behind a comment that closes them",
     [] {
         return Job{"<!-- " + times(200'000, ")") + " -->" + withDocumentType(parentheses(200'000)), ""};
     }},
    {"parentheses in a parameter entity",
     [] {
         return Job{withDocumentType("<!ENTITY % p \"" + times(200'000, "(") + "\"><!ELEMENT job %p;a>"), ""};
     }},
    {"parentheses in a parameter entity, written as references to a character",
     [] {
         return Job{withDocumentType("<!ENTITY % p \"<!ELEMENT job " + times(200'000, "&#40;") + 'a' +
                                     times(200'000, "&#41;") + ">\">%p;"),
                    ""};
     }},
    {"parentheses in 300 parameter entities",
     [] {
         // Each entity stays below the limit, and a comment closes its parentheses.
         return Job{withDocumentType(numbered(300,
                                              [](auto n) {
                                                  return "<!ENTITY % p" + n + " \"" + times(900, "(") +
                                                         "\"><!-- " + times(900, ")") + " -->";
                                              }) +
                                     "<!ENTITY % q \"<!ELEMENT job " +
                                     numbered(300, [](auto n) { return "&#37;p" + n + ';'; }) + "a>\">%q;"),
                    ""};
     }},
    {"1,000,000 alternatives",
     [] {
         return Job{withDocumentType("<!ELEMENT job (#PCDATA|" + times(million, "a|") + "b)*>"), wholeJob};
     }},
    {"1,000,000 attribute values",
     [] {
         return Job{withDocumentType("<!ATTLIST job a (" + times(million, "a|") + "b) \"a\">"), wholeJob};
     }},
    {"1,000,000 ignored sections",
     [] {
         return Job{withDocumentType(times(million, "<![IGNORE[") + times(million, "]]>")), ""};
     }},
    {"100,000 notations",
     [] {
         return Job{withDocumentType(
                        numbered(100'000, [](auto n) { return "<!NOTATION n" + n + " SYSTEM \"x\">"; })),
                    wholeJob};
     }},

    // Encodings.
    {"UTF-16, little-endian, marked",
     [] {
         return Job{"\xff\xfe" + utf16(head + tail, false), wholeJob};
     }},
    {"UTF-16, big-endian, marked",
     [] {
         return Job{"\xfe\xff" + utf16(head + tail, true), wholeJob};
     }},
    {"UTF-16, little-endian, unmarked",
     [] {
         return Job{utf16(head + tail, false), wholeJob};
     }},
    {"UTF-16, big-endian, unmarked",
     [] {
         return Job{utf16(head + tail, true), wholeJob};
     }},
    {"UTF-8, marked",
     [] {
         return Job{"\xef\xbb\xbf" + head + tail, wholeJob};
     }},
    {"UTF-16, half a character at the end",
     [] {
         return Job{"\xff\xfe" + utf16(head + tail, false) + 'x', wholeJob};
     }},
    {"an unknown encoding",
     [] {
         return Job{"<?xml version=\"1.0\" encoding=\"klingon\"?>" + head + tail, wholeJob};
     }},
    {"no UTF-16, though declared so",
     [] {
         return Job{"<?xml version=\"1.0\" encoding=\"UTF-16\"?>" + head + tail, ""};
     }},
    {"no UTF-8, though declared so",
     [] {
         return Job{"<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + head + "<total price=\"\xe8\"/>" + tail,
                    opened + "\"\"@\n\"    TOTAL.......................       \xef\xbf\xbd\"@\n" + total +
                        closed};
     }},
    {"Latin-9, declared so",
     [] {
         return Job{"<?xml version=\"1.0\" encoding=\"ISO-8859-15\"?>" + head + "<total price=\"\xa4\"/>" +
                        tail,
                    opened + "\"\"@\n\"    TOTAL.......................       \u20ac\"@\n" + total + closed};
     }},
    {"a character cut off at the end",
     [] {
         return Job{head + "<total price=\"1\"/>\xe2\x82", opened + total};
     }},
    {"a character cut off in an attribute",
     [] {
         return Job{head + "<total price=\"\xe2\x82", opened};
     }},

    // Broken.
    {"nothing",
     [] {
         return Job{"", ""};
     }},
    {"one NUL byte",
     [] {
         return Job{QByteArray(1, '\0'), ""};
     }},
    {"1,000,000 NUL bytes",
     [] {
         return Job{QByteArray(million, '\0'), ""};
     }},
    {"NUL bytes behind the job",
     [] {
         return Job{head + tail + QByteArray(100, '\0'), opened + total};
     }},
    {"a NUL byte in an attribute",
     [] {
         return Job{head + "<total price=\"1" + QByteArray(1, '\0') + "2\"/>" + tail,
                    opened + "\"\"@\n\"    TOTAL.......................     1" + QByteArray(1, '\0') +
                        "2\"@\n" + total + closed};
     }},
    {"a NUL byte in the text",
     [] {
         return Job{head + QByteArray(1, '\0') + tail, wholeJob};
     }},
    {"a job that breaks off",
     [] {
         return Job{head + "<total price=\"1\"/><tot", opened + total};
     }},
    {"text that is no job",
     [] {
         return Job{"Buon giorno!", ""};
     }},
    {"1,000,000 '<'",
     [] {
         return Job{times(million, "<"), ""};
     }},
};

} // namespace

class HostileTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home;

    QString inputPath() const { return home.filePath(u"job.xml"_s); }
    QString outputPath() const { return home.filePath(u"output"_s); }

    void writeJob(const QByteArray &job) const
    {
        QFile file(inputPath());
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        QCOMPARE(file.write(job), job.size());
    }

    static void addRows()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < int(std::size(rows)); ++i)
            QTest::newRow(rows[i].name) << i;
    }

    static void limitMemory(int mebibytes)
    {
        if (isSanitized)
            return; // the sanitizers reserve terabytes
        const rlim_t bytes = rlim_t(mebibytes) << 20;
        const rlimit limit = {bytes, bytes};
        setrlimit(RLIMIT_AS, &limit);
    }

    QByteArray printed() const
    {
        QFile file(outputPath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no output file");
    }

private Q_SLOTS:
    void initTestCase()
    {
        home.configure("palvestrin: { receiptdoc: { quantityFieldWidth = 3; priceFieldWidth = 8;"
                       " totalPriceFieldWidth = 8; paperWidth = 40; printCustomer = true;"
                       " printBillingAddress = true; }; };");
    }

    void jobs_data() { addRows(); }

    void jobs()
    {
        QFETCH(int, index);
        const Job job = rows[index].make();
        writeJob(job.text);

        const Ending ending = render(inputPath(), outputPath(), [&job] { limitMemory(job.mebibytes); });
        QVERIFY(!ending.wasTooSlow);
        QVERIFY(ending.hasExited);
        QCOMPARE(ending.exitStatus, 0);
        QVERIFY2(!isOptimised || ending.processorSeconds < job.processorSeconds,
                 QByteArray::number(ending.processorSeconds).constData());
        QCOMPARE(ending.standardOutput, QByteArray());
        QCOMPARE(ending.standardError, QByteArray());
        QCOMPARE(printed().left(2000), job.printed.left(2000)); // what a person can read, first
        QVERIFY(printed() == job.printed);
    }

    void checkedJobs_data() { addRows(); }

    /// The check of a job takes what the renderer takes, twice.
    void checkedJobs()
    {
        if (isSanitized)
            QSKIP("the sanitizers would take minutes; the fuzzing corpus is checked under them");
        QFETCH(int, index);
        const Job job = rows[index].make();
        writeJob(job.text);

        const QByteArrayList command{PALVESTRIN_PROGRAM,  "check", "--as", "job", "--quiet",
                                     inputPath().toUtf8()};
        constexpr int patience = 200;
        const Ending ending =
            RendererProcess(command, [&job] { limitMemory(2 * job.mebibytes); }).wait(patience);
        QVERIFY(!ending.wasTooSlow);
        QVERIFY(ending.hasExited);
        QVERIFY2(ending.exitStatus == 0 || ending.exitStatus == 11 || ending.exitStatus == 12,
                 QByteArray::number(ending.exitStatus).constData());
        QVERIFY2(!isOptimised || ending.processorSeconds < 2 * job.processorSeconds,
                 QByteArray::number(ending.processorSeconds).constData());
        QCOMPARE(ending.standardOutput + ending.standardError, QByteArray());
    }

    /// Characters of two, three and four bytes, on every side of the end of the reader's buffer.
    void charactersAcrossTheBuffer()
    {
        constexpr int buffer = 1024;
        const QByteArray price = "\u00e8\u20ac\U0001f355";
        const QByteArray element = "<total price=\"";
        for (int before = 0; before <= price.size(); ++before) {
            const QByteArray comment = times(buffer - head.size() - 7 - element.size() - before, "x");
            const QByteArray start = head + "<!--" + comment + "-->" + element;
            QCOMPARE(start.size(), buffer - before);
            writeJob(start + price + "\"/></job>");
            QVERIFY(render(inputPath(), outputPath()).hasExited);
            QCOMPARE(printed(),
                     opened + "\"\"@\n\"    TOTAL.......................     " + price + "\"@\n" + closed);
        }
    }
};

QTEST_GUILESS_MAIN(HostileTest)
#include "hostile_test.moc"

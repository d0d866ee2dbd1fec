#include "collectedfindings.h"
#include "pvconfiguration.h"
#include "wholefile.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString examples = QStringLiteral(PALVESTRIN_SOURCE_DIR) + u"/examples"_s;
constexpr char mark[] = "\xc2\xa6"; // a broken bar stands where the finding is to be

QByteArray exampleJob(const QString &method)
{
    return contentOf(examples + u"/jobs/"_s + method + u".xml"_s);
}

/// The example with something else in the place of what stands there once.
QByteArray spoiledJob(const QString &method, const QByteArray &from, const QByteArray &to)
{
    QByteArray job = exampleJob(method);
    if (job.count(from) != 1)
        qFatal("\"%s\" stands %d times in the example", from.constData(), int(job.count(from)));
    return job.replace(from, to);
}

/// Takes the mark out of `job`; where it stood.
check::Place takeMark(QByteArray &job)
{
    const qsizetype at = job.indexOf(mark);
    job.remove(at, 2);
    const QByteArray before = job.first(at);
    const qsizetype lineBegin = before.lastIndexOf('\n') + 1;
    return {before.count('\n') + 1, QString::fromUtf8(before.sliced(lineBegin)).size() + 1};
}

} // namespace

/// Examples that are spoiled in one place: the check names that line and that column.
class SpoiledJobsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<PVConfiguration> configuration;

    static QByteArray example() { return contentOf(examples + u"/home/.palvestrin/conf/palvestrin.conf"_s); }

private Q_SLOTS:
    void initTestCase()
    {
        configuration = std::make_unique<PVConfiguration>(example(), u"palvestrin.conf"_s);
    }

    void unspoiled_data()
    {
        QTest::addColumn<QByteArray>("job");
        const QDir folder(examples + u"/jobs"_s);
        for (const QString &name : folder.entryList(QDir::Files))
            QTest::newRow(qPrintable(name)) << contentOf(folder.filePath(name));
    }
    void unspoiled()
    {
        QFETCH(QByteArray, job);
        const CollectedFindings findings = findingsOf(job, *configuration);
        QVERIFY2(findings.ids().isEmpty(), qPrintable(findings.asText()));
    }

    void spoiled_data();
    void spoiled()
    {
        QFETCH(QByteArray, job);
        QFETCH(QString, id);
        QFETCH(QString, says);
        QFETCH(QStringList, others);
        const check::Place place = takeMark(job);
        const CollectedFindings findings = findingsOf(job, *configuration);
        const check::Finding *finding = findings.find(id, place);
        QVERIFY2(finding, qPrintable(u"expected at %1:%2, found:\n"_s.arg(place.line).arg(place.column) +
                                     findings.asText()));
        QVERIFY2((finding->message + "; "_L1 + finding->hint).contains(says), qPrintable(findings.asText()));
        QStringList all = others;
        if (finding->check->severity > check::Severity::Note)
            all += id;
        all.sort();
        QCOMPARE(findings.ids(), all);
    }

    void harmless_data();
    void harmless();
    void columnsWithoutRoom();
};

void SpoiledJobsTest::spoiled_data()
{
    QTest::addColumn<QByteArray>("job");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("says");
    QTest::addColumn<QStringList>("others");
    QString method;
    QSet<QString> ids{u"not-printed"_s, u"unprintable"_s}; // which need other settings, or another locale
    const auto row = [&](const QString &id, const QByteArray &from, const QByteArray &to, const QString &says,
                         const QStringList &others = {}) {
        ids += id;
        QTest::addRow("%s: %s", qPrintable(id), to.first(qMin<qsizetype>(to.size(), 80)).constData())
            << spoiledJob(method, from, to) << id << says << others;
    };

    method = u"printFullOrderReceipt"_s;

    // The text.
    row(u"malformed"_s, "<notPaid price=\"12,00\"/>\n</job>", "<notPaid price=\"12,00\">\n¦</job>",
        u"tag mismatch"_s);
    row(u"malformed"_s, "name=\"Caffè\" price=\"1,50\"", "name=\"Caffè price=\"¦1,50\"", u"no XML"_s);
    row(u"malformed"_s, "\"Caffè\"", "\"¦<Caffè\"", u"nothing behind it is printed"_s);
    row(u"malformed"_s, "\"Caffè\"", "\"Caffè &¦ Amaro\"", u"letter is expected"_s);
    row(u"malformed"_s, "<notPaid price=\"12,00\"/>\n</job>\n", "<notPaid price=\"12,00\"/¦>",
        u"end of file"_s);
    row(u"limit"_s, "<notPaid price=\"12,00\"/>",
        QByteArray("<a>").repeated(999) + "¦<a>" + QByteArray("</a>").repeated(1000),
        u"elements are nested deeper than 1000"_s, QStringList(999, u"unknown-element"_s));
    row(u"limit"_s, "<job>",
        "<!DOCTYPE job [<!ENTITY a \"Ha ha ha! \">\n<!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;\">\n"
        "<!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;\">\n<!ENTITY d \"&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;\">\n"
        "<!ENTITY e \"&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;\"¦>\n]><job>",
        u"an entity stands for too much text"_s);
    row(u"not-xml"_s, "<!-- Table 12", "<!-- ¦\x01 Table 12", u"other programs"_s);
    row(u"undeclared-entity"_s, "\"Caffè\"", "\"Caff¦&eacute;\"",
        u"\"&eacute;\" is declared nowhere and vanishes: \"Caff\""_s);
    row(u"undeclared-entity"_s, "<notPaid", "¦&nbsp;<notPaid", u"\"&nbsp;\" is declared nowhere"_s);
    row(u"stray-byte"_s, "\"Caffè\"", "\"Caff¦\xe8\"", u"no text in the job's encoding"_s);
    row(u"repeated-attribute"_s, "number=\"4\" name=\"Caffè\"", "number=\"4\" ¦number=\"5\" name=\"Caffè\"",
        u"\"number\" is given twice: \"4\" and \"5\""_s);
    row(u"text-ignored"_s, "<total price=\"92,00\"/>", "<total price=\"92,00\">\n  ¦92,00</total>",
        u"\"92,00\" stands between tags"_s);
    row(u"text-ignored"_s, "<total price=\"92,00\"/>",
        "<total price=\"92,00\">  <![CDATA[  ]]> <?note two\nlines?> ¦92,00</total>",
        u"\"92,00\" stands between tags"_s);
    row(u"text-ignored"_s, "<total price=\"92,00\"/>", "<total price=\"92,00\">  <![CDATA[ ¦92,00]]></total>",
        u"\"92,00\" stands between tags"_s);
    row(u"undeclared-entity"_s, "<total price=\"92,00\"/>",
        "<total price=\"92,00\"><!-- <paid --> ¦&euro; </total>", u"\"&euro;\" is declared nowhere"_s);
    row(u"text-ignored"_s, "<total price=\"92,00\"/>", "<total price=\"92,00\"> &euro; ¦92,00</total>",
        u"\"92,00\" stands between tags"_s, {u"undeclared-entity"_s});

    // Commands to the printer.
    row(u"quote"_s, "\"Caffè\"", "'Caffè ¦\"Roma\"'", u"ends the line early"_s);
    row(u"quote"_s, "\"Caffè\"", "\"A¦&quot;@&#10;J\"", u"\"A\"@\nJ\""_s, {u"line-break"_s});
    row(u"line-break"_s, "\"Caffè\"", "\"Caffè¦&#10;Roma\"", u"the line break"_s);
    row(u"line-break"_s, "Via Senza Nome 7", "Via Senza¦\n Nome 7", u"write a blank"_s);
    row(u"escape-sequence"_s, "waiter=\"Noè\"", "waiter=\"Noè¦&#27;@\"", u"command to the printer"_s);
    row(u"control-character"_s, "table=\"12\"", "table=\"1¦&#9;2\"", u"U+0009"_s);
    row(u"control-character"_s, "table=\"12\"", "table=\"1¦&#127;2\"", u"U+007F"_s);

    // The vocabulary.
    row(u"no-method"_s, "<job>\n  <method name=\"printFullOrderReceipt\"/>\n", "¦<job>\n",
        u"prints nothing"_s, QStringList(19, u"before-method"_s));
    row(u"unknown-method"_s, "\"printFullOrderReceipt\"", "\"¦printfullorderreceipt\"",
        u"did you mean \"printFullOrderReceipt\"?"_s);
    row(u"unknown-method"_s, "<method name=\"printFullOrderReceipt\"/>", "¦<method/>",
        u"the method has no name, and the job ends here; there are printPartialOrder"_s);
    row(u"unknown-method"_s, "<method name=\"printFullOrderReceipt\"/>",
        "¦<method nmae=\"printFullOrderReceipt\"/>", u"the method has no name"_s, {u"unknown-attribute"_s});
    row(u"unknown-attribute"_s, "<method name", "<method ¦kind=\"receipt\" name",
        u"\"kind\" is no attribute of \"method\"; it takes name"_s);
    row(u"before-method"_s, "<method ", "¦<logo/><method ", u"\"logo\" stands in front"_s);
    row(u"unknown-element"_s, "<total ", "¦<Total ", u"did you mean \"total\"?"_s);
    row(u"unknown-element"_s, "<notPaid ", "¦<notpayed ", u"did you mean \"notPaid\"?"_s);
    row(u"ignored-element"_s, "<receipe number=\"1\" name=\"+ Mozz", "¦<variant number=\"1\" name=\"+ Mozz",
        u"printFullOrderReceipt prints no \"variant\""_s, {u"total-sum"_s});
    row(u"unknown-attribute"_s, "price=\"1,50\"", "¦pirce=\"1,50\"", u"did you mean \"price\"?"_s);
    row(u"unknown-attribute"_s, "serialnumber", "¦serialNumber", u"did you mean \"serialnumber\"?"_s);
    row(u"missing-attribute"_s, "<receipe number=\"4\" name=\"Caffè\" price=\"1,50\"",
        "¦<receipe number=\"4\" name=\"Caffè\"", u"\"receipe\" has no \"price\""_s);
    row(u"missing-attribute"_s, "<orderinfo date=\"14/03/2026\" ", "¦<orderinfo ", u"no \"date\""_s);
    row(u"no-printer-name"_s,
        "<printers name=\"Cassa\" charsize=\"1\" ipaddress=\"192.0.2.20\" port=\"9100\"/>\n  <geometry/>\n  "
        "<headers",
        "<geometry/>\n  ¦<headers", u"put <printers name=\"...\"/> in front"_s);
    row(u"wrong-order"_s, "<total price=\"92,00\"/>\n",
        "<total price=\"92,00\"/>\n¦<receipe number=\"1\" name=\"Amaro\" price=\"2,00\" "
        "totalPrice=\"2,00\"/>\n",
        u"behind the total"_s);
    row(u"wrong-order"_s, "<total price=\"92,00\"/>\n",
        "<total price=\"92,00\"/>\n¦<receipt serialnumber=\"1041\"/>\n", u"behind the rows"_s);
    row(u"missing-titles"_s, "  <notPaid price=\"12,00\"/>\n",
        "<method name=\"printFullOrderInvoice\"/>\n"
        "¦<receipe number=\"1\" name=\"Amaro\" price=\"2,00\" totalPrice=\"2,00\"/>",
        u"column titles are missing"_s);
    row(u"switched-off"_s, "name=\"Ada Inventata\" telephone", "name=\"Ada Inventata\" ¦telephone",
        u"palvestrin.receiptdoc.printTelephone = \"true\" prints it"_s);

    // The paper.
    row(u"over-the-edge"_s, "name=\"Caffè\" price=\"1,50\"", "name=\"Caffè\" price=\"¦1,50 a tazza\"",
        u"is 44 wide, and the paper 40"_s);
    row(u"over-the-edge"_s, "\"Via Senza Nome 7\"", "\"¦Via Senza Nome 7, nel vicolo dietro la chiesa\"",
        u"the paper 40"_s);
    row(u"same-after-cut"_s, "\"Pizza Margherita\"", "\"¦Gnocchi di zucca con ricotta\"",
        u"both printed as \"Gnocchi di zucca c\""_s);
    row(u"replaced-word"_s, "\"Caffè\"", "\"¦TOTALE\"", u"SOMMA"_s);
    row(u"replaced-word"_s, "\"Caffè\"", "\"¦Caffè TOTALE, e poi la grappa\"", u"SOMMA"_s);
    row(u"replaced-word"_s, "<headers title", "<printers name=\"TOTALE\"/>¦<headers title",
        u"replaces the word TOTALE"_s);
    row(u"cut-description"_s, "\"Gnocchi di", "\"¦Gnocchi di", u"cut to \"Gnocchi di zucca c\""_s);

    // Amounts.
    row(u"row-sum"_s, "totalPrice=\"6,00\"", "totalPrice=\"¦6,50\"", u"4 times 1.50 is 6.00, not 6.50"_s,
        {u"total-sum"_s});
    row(u"total-sum"_s, "<total price=\"92,00\"/>", "<total price=\"¦29,00\"/>",
        u"the rows add up to 92.00, not 29.00"_s);

    method = u"printFullOrder"_s;
    row(u"dropped-item"_s, "<receipe number=\"\" name=\"= Secondi\"/>",
        "¦<receipe number=\"1\" name=\"= Amaro\" price=\"2,00\" totalPrice=\"2,00\"/>", u"not printed"_s);
    row(u"missing-attribute"_s, "<variant number=\"1\" quantity=\"-1\" name=\"Cipolla\"",
        "¦<variant number=\"1\" name=\"Cipolla\"", u"it counts as 0"_s);
    row(u"not-a-number"_s, "quantity=\"-1\"", "quantity=\"¦1,5\"", u"the paper shows \"-\""_s);

    method = u"printPartialOrder"_s;
    row(u"unused-attribute"_s, "name=\"Baccalà alla griglia\"",
        "name=\"Baccalà alla griglia\" ¦price=\"16,00\"", u"printPartialOrder does not print \"price\""_s);

    method = u"printAbstractOrder"_s;
    row(u"empty-document"_s, "  <method", "  ¦<method", u"prints an empty document"_s);

    method = u"printFullOrderDelivery"_s;
    row(u"address-end"_s, "deliveryaddress=\"Sala Civica, ", "deliveryaddress=\"¦Sala Civica,, ",
        u"\"Viale Immaginario 3\" is not printed"_s);

    method = u"printFullOrderFiscal"_s;
    row(u"ignored-element"_s, "<total", "¦<headers title=\"x\"/><total",
        u"printFullOrderFiscal prints no \"headers\""_s);
    row(u"quote"_s, "\"Caffè\"", "'¦\"Caffè\"'", u"ends the command early"_s);
    row(u"line-break"_s, "\"Caffè\"", "\"Caffè¦&#13;&#10;=100H4M\"", u"taken for the next one"_s);
    row(u"not-a-number"_s, "number=\"4\" name=\"Caffè\"", "number=\"¦4*1H9R\" name=\"Caffè\"",
        u"into the register's command"_s);
    row(u"not-a-number"_s, "price=\"92,00\"", "price=\"¦€ 92,00\"", u"the register is sent 0"_s);
    row(u"missing-attribute"_s, "<receipe department=\"1\" number=\"4\" name=\"Caffè\"",
        "¦<receipe number=\"4\" name=\"Caffè\"", u"its place in the command stays empty"_s);
    row(u"lost-cents"_s, "notPaid=\"12,00\"", "notPaid=\"¦12,005\"", u"1200.5"_s);
    row(u"reduction"_s, "<total price=\"92,00\"",
        "<receipe department=\"1\" number=\"1\" name=\"¦Sconto\" price=\"-2,00\"/>\n<total price=\"90,00\"",
        u"without its name \"Sconto\""_s);
    row(u"row-sum"_s, "<total price=\"92,00\"",
        "¦<receipe department=\"1\" number=\"2\" name=\"Sconto\" price=\"-2,00\"/>\n<total price=\"90,00\"",
        u"takes a reduction once"_s);

    method = u"printFullOrderInvoice"_s;
    row(u"total-sum"_s, "tax=\"18,00\" total=\"198,00\"", "tax=\"19,00\" total=\"¦198,00\"",
        u"199.00 together, not 198.00"_s);

    method = u"printReport"_s;
    row(u"missing-attribute"_s, " total1=\"15,50\" taxrate1=\"10\"", " ¦total1=\"15,50\"", u"not complete"_s);
    row(u"wrong-order"_s, "number=\"1\" totals=\"15,50\" serial1=\"1042\"",
        "number=\"1\" serial1=\"1042\" ¦totals=\"15,50\"", u"taken for a part of the table"_s,
        {u"not-printed"_s});
    row(u"over-the-edge"_s, "taxable=\"163,64\"", "taxable=\"¦163,64 senza bevande\"", u"is 50 wide"_s);
    row(u"wrong-order"_s, "  <receiptssummary number=\"2\"",
        "<taxrate_item taxrate=\"4\" taxable=\"1,00\" tax=\"0,04\" amount=\"1,04\"/>\n  ¦<receiptssummary "
        "number=\"2\"",
        u"prints the titles of \"taxrate_item\""_s);

    method = u"printStatementOfAccount"_s;
    row(u"wrong-order"_s, "<statement_list/>\n",
        "<statement date=\"28/02/2026\" type=\"Payment\" amount=\"1,00\"/>\n¦<statement_list/>\n",
        u"put it in front of the first \"statement\""_s);

    for (const check::Check &check : check::checks) {
        if (check.subject == check::Subject::Job && !ids.contains(check.id))
            qFatal("no example is spoiled for %s", check.id.data());
    }
}

void SpoiledJobsTest::harmless_data()
{
    QTest::addColumn<QByteArray>("job");
    const auto row = [](const char *name, const QString &method, const QByteArray &from,
                        const QByteArray &to) { QTest::newRow(name) << spoiledJob(method, from, to); };
    row("prices without the tax", u"printFullOrderInvoice"_s,
        "taxable=\"180,00\" taxrate=\"10%\" tax=\"18,00\" total=\"198,00\"",
        "taxable=\"198,00\" taxrate=\"10%\" tax=\"19,80\" total=\"217,80\"");
    row("a total with a discount", u"printFullOrderFiscal"_s, "<total price=\"92,00\"",
        "<total discountRate=\"10\" price=\"82,80\"");
    row("a row weighed by the gram", u"printFullOrderReceipt"_s,
        "number=\"4\" name=\"Caffè\" price=\"1,50\" totalPrice=\"6,00\"",
        "number=\"0,5\" name=\"Caffè\" price=\"12,01\" totalPrice=\"6,00\"");
    row("sections behind the rows that print nothing", u"printFullOrderReceipt"_s, "<total price=\"92,00\"/>",
        "<total price=\"92,00\"/><printers name=\"Bar\"/><logo/>");
    row("a replaced word behind the cut", u"printFullOrderReceipt"_s, "Gnocchi di zucca con burro, salvia",
        "Gnocchi di zucca con TOTALE, salvia");
    row("a cut through a replaced word", u"printFullOrderReceipt"_s, "Gnocchi di zucca con burro, salvia",
        "Gnocchi di zucTOTALE, salvia");
    row("titles again for a second list", u"printStatementOfAccount"_s, "type=\"Balance\" amount=\"12,00\"/>",
        "type=\"Balance\" amount=\"12,00\"/><statement_list/>");
    row("a list without titles", u"printStatementOfAccount"_s, "<statement_list/>", "");
    row("control characters that are not printed", u"printPartialOrder"_s, "name=\"Baccalà alla griglia\"",
        "name=\"Baccalà alla griglia\" price=\"1&#10;2\"");
    row("a word of the catalogue", u"printStatementOfAccount"_s, "type=\"Balance\"", "type=\"Saldo\"");
}

/// What looks odd, prints as it is meant.
void SpoiledJobsTest::harmless()
{
    QFETCH(QByteArray, job);
    const CollectedFindings findings = findingsOf(job, *configuration);
    QVERIFY2(findings.ids().isEmpty(), qPrintable(findings.asText()));
}

void SpoiledJobsTest::columnsWithoutRoom()
{
    PVConfiguration narrow(QByteArray(example()).replace("paperWidth = \"40\"", "paperWidth = \"22\""),
                           u"palvestrin.conf"_s);
    QByteArray job = "<job><method name=\"printFullOrderReceipt\"/>\n"
                     "<receipe number=\"4\" name=\"¦Caffè\" price=\"1,50\" totalPrice=\"6,00\"/></job>";
    const check::Place place = takeMark(job);
    const CollectedFindings findings = findingsOf(job, narrow);
    QCOMPARE(findings.ids(), QStringList{u"not-printed"_s});
    QVERIFY2(findings.find(u"not-printed"_s, place), qPrintable(findings.asText()));
}

QTEST_GUILESS_MAIN(SpoiledJobsTest)
#include "spoiledjobs_test.moc"

// What holds for every job on every printer.

#include "capturedoutput.h"
#include "companyprinterdriver.h"
#include "configuredhome.h"
#include "decoder.h"
#include "escposprinter.h"
#include "randomjob.h"
#include "rounds.h"
#include "witnessprinter.h"

#include <QBuffer>
#include <QDir>
#include <QTest>
#include <QXmlSimpleReader>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int randomJobs = rounds(2000);

/// The methods that a receipt printer prints.
QStringList methods()
{
    QStringList names;
    for (const vocabulary::PrintMethod &method : vocabulary::printMethods) {
        if (method.kind != "fiscal"_L1)
            names += method.name;
    }
    return names;
}

void read(const QByteArray &job, PrinterDriver &printer)
{
    QBuffer device;
    device.setData(job);
    QXmlInputSource source(&device);
    QXmlSimpleReader reader;
    reader.setContentHandler(&printer);
    reader.parse(source);
}

QByteArray rendered(const QByteArray &job, const Profile &profile)
{
    return printedOn(profile, [&](TestEscPosPrinter &printer) { read(job, printer); });
}

PaperRecord recorded(const QByteArray &bytes, const Profile &profile)
{
    PaperRecord record;
    Decoder decoder(record, profile, Decoder::Width::Any);
    decoder.take(bytes);
    decoder.end();
    return record;
}

QStringList decoded(const QByteArray &bytes, const Profile &profile)
{
    return recorded(bytes, profile).lines;
}

QStringList witnessed(const QByteArray &job, const Profile &profile)
{
    WitnessPrinter witness(profile);
    read(job, witness);
    return witness.paper.lines;
}

/// The line printer, which also notes which of its rows are centred.
class NotingLinePrinter : public CompanyPrinterDriver
{
public:
    using CompanyPrinterDriver::CompanyPrinterDriver;
    using CompanyPrinterDriver::println;

    void println(unsigned int indent, const QString &text) override
    {
        isCentred += justification == u"center";
        CompanyPrinterDriver::println(indent, text);
    }

    QList<bool> isCentred;
};

QString withoutBlanksInFront(QString row)
{
    while (row.startsWith(u' '))
        row.remove(0, 1);
    return row;
}

/// A job whose every attribute has control characters and whole commands in its text.
class Poison : public QXmlDefaultHandler
{
public:
    explicit Poison(PrinterDriver &target, bool isPoisoned) : printer(target), poisoned(isPoisoned) {}

    bool startDocument() override { return printer.startDocument(); }
    bool endDocument() override { return printer.endDocument(); }
    bool startElement(const QString &uri, const QString &localName, const QString &qName,
                      const QXmlAttributes &attributes) override
    {
        QXmlAttributes poison;
        for (int i = 0; i < attributes.count(); ++i)
            poison.append(attributes.qName(i), QString(), attributes.qName(i),
                          qName == u"method" ? attributes.value(i) : changed(attributes.value(i)));
        return printer.startElement(uri, localName, qName, poison);
    }

private:
    QString changed(QString value)
    {
        static const QString letters = u"@tE!VBpdacJ*vL(k"_s;
        // The letters of commands, and no number, which a control character would make none.
        value.insert(value.size() / 2, u"_"_s + letters[round % letters.size()] + u'_');
        const int control = 1 + round++ % 64; // a zero would end a word that is looked up in the catalogue
        const QChar character(char16_t(control < 0x20 ? control : 0x7F + control - 0x20));
        return poisoned ? value.insert(value.size() / 2, character) : value;
    }

    PrinterDriver &printer;
    const bool poisoned;
    int round = 0;
};

} // namespace

class EscPosLawsTest : public QObject
{
    Q_OBJECT

private:
    const ConfiguredHome home;
    const CapturedOutput messages; ///< of jobs that are broken on purpose

    void verifyRoundTrip(const QByteArray &job, const QByteArray &what)
    {
        for (const Profile &profile : profiles) {
            const QStringList expected = witnessed(job, profile);
            const QStringList actual = decoded(rendered(job, profile), profile);
            for (qsizetype i = 0; i < qMin(expected.size(), actual.size()); ++i)
                QVERIFY2(actual[i] == expected[i], what + " on " + profile.name.data() + ", row " +
                                                       QByteArray::number(i) + ":\n" + actual[i].toUtf8() +
                                                       "\n" + expected[i].toUtf8());
            QVERIFY2(actual.size() == expected.size(), what + " has other rows");
        }
    }

    void verifyLikeTheLinePrinter(const QByteArray &job, const Profile &profile, const QByteArray &what)
    {
        const QString path = home.filePath(u"lines"_s);
        QList<bool> isCentred;
        {
            NotingLinePrinter printer(path);
            read(job, printer);
            isCentred = printer.isCentred;
        }
        QStringList lines = QString::fromUtf8(contentOf(path)).split(u'\n');
        lines.removeIf([](const QString &line) { return !line.startsWith(u'"'); });
        // The line printer feeds nothing, cuts nothing, and prints no copies.
        QStringList rows = recorded(rendered(job, profile), profile).rows;
        QCOMPARE(lines.size(), isCentred.size());
        QVERIFY2(rows.size() >= lines.size(), what + " has fewer rows");
        for (qsizetype i = 0, row = 0; i < lines.size(); ++i, ++row) {
            QString expected = lines[i].sliced(1).chopped(2);
            QString actual = rows[row].replace(u"TOTALE"_s, u"SOMMA"_s);
            if (isCentred[i]) {
                expected = withoutBlanksInFront(expected);
                actual = withoutBlanksInFront(actual);
            }
            QVERIFY2(actual == expected, what + ", row " + QByteArray::number(i) + ":\n" + actual.toUtf8() +
                                             "\n" + expected.toUtf8());
        }
    }

private Q_SLOTS:
    void examplesComeBack()
    {
        home.configure(contentOf(QStringLiteral(EXAMPLES_FOLDER "/home/.palvestrin/conf/palvestrin.conf")));
        const QDir folder(QStringLiteral(EXAMPLES_FOLDER "/jobs"));
        QVERIFY(folder.entryList({u"*.xml"_s}).size() >= 13);
        for (const QString &name : folder.entryList({u"*.xml"_s}))
            verifyRoundTrip(contentOf(folder.filePath(name)), name.toUtf8());
    }

    void goldenJobsComeBack()
    {
        int jobs = 0;
        for (const QString &area :
             QDir(QStringLiteral(GOLDEN_FOLDER)).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            const QDir folder(QStringLiteral(GOLDEN_FOLDER "/") + area);
            for (const QString &name : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
                const QString own = folder.filePath(name + u"/palvestrin.conf"_s);
                const QString shared = folder.filePath(u"palvestrin.conf"_s);
                home.configure(QFile::exists(own)      ? contentOf(own)
                               : QFile::exists(shared) ? contentOf(shared)
                                                       : QByteArray());
                const QString job = folder.filePath(name + u"/job.xml"_s);
                if (!QFile::exists(job))
                    continue;
                verifyRoundTrip(contentOf(job), (area + u'/' + name).toUtf8());
                ++jobs;
            }
        }
        QVERIFY(jobs > 100);
    }

    void randomJobsComeBack()
    {
        RandomJobOptions options;
        options.methods = methods();
        for (quint32 seed = 0; seed < randomJobs; ++seed) {
            home.configure(randomConfiguration(seed, {.sensible = seed % 4 != 0}));
            verifyRoundTrip(randomJob(seed, options), "random job " + QByteArray::number(seed));
            if (QTest::currentTestFailed())
                return;
        }
    }

    void copiesComeBack()
    {
        const QByteArray receipt =
            contentOf(QStringLiteral(EXAMPLES_FOLDER "/jobs/printFullOrderReceipt.xml"));
        home.configure(
            "palvestrin: { receiptdoc: { copyNumber = 3; openCashDrawer = true; printLogo = true; }; };");
        verifyRoundTrip(receipt, "copies of a receipt");
        const QByteArray sold = contentOf(QStringLiteral(EXAMPLES_FOLDER "/jobs/printSold.xml"));
        home.configure("palvestrin: { prefiscaldoc: { copyNumber = 2; }; solddoc: { copyNumber = 5; }; };");
        verifyRoundTrip(sold, "copies of a list");
    }

    void aLogoComesBackDotForDot()
    {
        QByteArray dots;
        for (int y = 0; y < 20; ++y)
            dots += QByteArray(1, char(y)) + QByteArray(1, char(~y));
        writeFile(home.filePath(u"logo.pbm"_s), "P4 16 20 " + dots);
        home.configure("palvestrin: { escpos: { logo = \"" + home.filePath(u"logo.pbm"_s).toUtf8() +
                       "\"; }; receiptdoc: { printLogo = true; }; };");
        const QByteArray job = "<job><method name=\"printFullOrderReceipt\"/><logo/></job>";
        for (const Profile &profile : profiles) {
            const PaperRecord record = recorded(rendered(job, profile), profile);
            QCOMPARE(record.lastPicture.dots, profile.pictures ? dots : QByteArray());
        }
    }

    void rowsAreThoseOfTheLinePrinter()
    {
        RandomJobOptions options;
        options.methods = methods();
        options.mostDocuments = 1;
        options.controls = false;
        options.beyondLatin1 = false;
        const Profile &profile = *findProfile(u"80mm"); // which has every letter of these jobs
        for (quint32 seed = 0; seed < randomJobs; ++seed) {
            home.configure(randomConfiguration(seed, {.sensible = true}));
            const QByteArray job = randomJob(seed, options);
            verifyLikeTheLinePrinter(job, profile, "random job " + QByteArray::number(seed));
            if (QTest::currentTestFailed())
                return;
        }
    }

    void noTextCommandsThePrinter()
    {
        RandomJobOptions options;
        options.methods = methods();
        for (quint32 seed = 0; seed < 300; ++seed) {
            home.configure(randomConfiguration(seed, {.sensible = true}));
            const QByteArray job = randomJob(seed, options);
            for (const Profile &profile : profiles) {
                QList<QByteArray> outputs;
                for (const bool isPoisoned : {false, true}) {
                    outputs += printedOn(profile, [&](TestEscPosPrinter &printer) {
                        Poison poison(printer, isPoisoned);
                        QBuffer device;
                        device.setData(job);
                        QXmlInputSource source(&device);
                        QXmlSimpleReader reader;
                        reader.setContentHandler(&poison);
                        reader.parse(source);
                    });
                }
                QVERIFY2(outputs[0] == outputs[1], "random job " + QByteArray::number(seed));
            }
        }
    }

    void aTornJobLeavesNothingBehind()
    {
        writeFile(home.filePath(u"logo.pbm"_s), "P4 16 4 " + QByteArray(8, '\xAA'));
        const QByteArray settings =
            "receiptdoc: { printLogo = true; openCashDrawer = true; copyNumber = 2; printCompany = true; }; "
            "doc: { paperWidth = 60; };";
        const QByteArray logo = "escpos: { logo = \"" + home.filePath(u"logo.pbm"_s).toUtf8() + "\"; }; ";
        const QByteArray torn =
            "<job><method name=\"printPartialOrder\"/><otherreceipe number=\"1\" name=\"\xC5\x82\"/>"
            "<method name=\"printFullOrderReceipt\"/><logo/><company name=\"\xE2\x82\xAC\"/>"
            "<receipe number=\"1\" name=\"a\" price=\"1\" totalPrice=\"1\"/></job>";
        const QByteArray whole =
            "<job><method name=\"printFullOrder\"/><receipe number=\"2\" name=\"\xC3\xA8\"/></job>";
        for (const QByteArray &configuration : {settings, logo + settings}) {
            home.configure("palvestrin: { " + configuration + " };");
            for (const Profile &profile : profiles) {
                const QByteArray beginning = rendered(torn, profile);
                const QByteArray rest = rendered(whole, profile);
                const QStringList alone = decoded(rest, profile);
                QVERIFY(alone.size() > 1);
                for (qsizetype size = 0; size < beginning.size(); ++size) {
                    const QStringList both = decoded(beginning.first(size) + rest, profile);
                    QVERIFY2(both.size() >= alone.size() && both.last(alone.size()) == alone,
                             "torn after " + QByteArray::number(size) + " on " + profile.name.data());
                }
            }
        }
    }
};

QTEST_GUILESS_MAIN(EscPosLawsTest)
#include "escposlaws_test.moc"

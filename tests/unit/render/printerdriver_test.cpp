#include "capturedoutput.h"
#include "localeoutput.h"
#include "printmethods.h"
#include "testprinter.h"
#include "wholefile.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A second device: plain lines, added to what the file holds.
class PlainPrinter : public PrinterDriver
{
public:
    explicit PlainPrinter(const QString &fileName) : PrinterDriver(fileName, true) {}

    unsigned int getPaperWidth() override { return 24; }
    void setBold() override {}
    void setCharSize() override {}
    void setCharSize(int) override {}
    void setCenterJustify() override {}
    void fullCut() override {}
    void generatePulse() override {}
    void startSection() override { *output << u"[start]\n"_s; }
    void endSection() override { *output << u"[end]\n"_s; }
    void print(unsigned int indent, const QString &text) override { *output << QString(indent, u' ') + text; }
    void println(unsigned int indent, const QString &text) override
    {
        print(indent, text);
        *output << u"\n"_s;
    }
    void println(const QString &text) override { println(0, text); }
    void printLogo() override { *output << u"[logo]\n"_s; }
};

/// A device that asks for the settings by their names, as a driver for a printer with a drawer would.
class SettingsPrinter : public CompanyPrinterDriver
{
public:
    using CompanyPrinterDriver::CompanyPrinterDriver;

    QList<int> counts() const
    {
        return {quantityFieldWidth, priceFieldWidth, totalPriceFieldWidth, paperWidth,
                paperRows,          topMargin,       descriptionWidth};
    }
    QList<bool> flags() const
    {
        return {DocumentSettings::printGeometry,
                printHeader,
                DocumentSettings::printLogo,
                printCompany,
                printDeliveryAddress,
                printTelephone,
                printDate,
                printTime,
                printTable,
                printCustomer,
                printBillingAddress,
                printLicenseNumber,
                printFiscalCode,
                printCredit,
                printWaiter,
                printNote,
                openCashDrawer};
    }
};

QXmlAttributes attribute(const QString &name, const QString &value)
{
    QXmlAttributes list;
    list.append(name, QString(), name, value);
    return list;
}

} // namespace

class PrinterDriverTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home;

    QString outputPath() const { return home.filePath(u"output"_s); }

private Q_SLOTS:
    void initTestCase()
    {
        home.configure(
            "palvestrin: {"
            " prefiscaldoc: { paperWidth = 41; printHeader = true; printDate = True;"
            "   quantityFieldWidth = -3; priceFieldWidth = abc; totalPriceFieldWidth = \" 8 \"; };"
            " doc: { paperWidth = 0; paperRows = 99999999999; };"
            " receiptdoc: { paperWidth = abc; };"
            " reportdoc: { openCashDrawer = true; printCredit = true; };"
            " invoicedoc: { quantityFieldWidth = 3; priceFieldWidth = 8; totalPriceFieldWidth = 9;"
            "   paperWidth = 40; paperRows = 60; topMargin = 2; descriptionWidth = 24;"
            "   printGeometry = true; printHeader = true; printLogo = true; printCompany = true;"
            "   printDeliveryAddress = true; printTelephone = true; printDate = true;"
            "   printTime = true; printTable = true; printCustomer = true;"
            "   printBillingAddress = true; printLicenseNumber = true; printFiscalCode = true;"
            "   printCredit = true; printWaiter = true; printNote = true; openCashDrawer = true; };"
            "};");
    }

    void documentPaths()
    {
        TestPrinter printer(outputPath());
        QCOMPARE(printer.documentPath(u"order"_s), u"palvestrin.doc."_s);
        QCOMPARE(printer.documentPath(u"prefiscal"_s), u"palvestrin.prefiscaldoc."_s);
        QCOMPARE(printer.documentPath(u"fiscal"_s), u"palvestrin.fiscaldoc."_s);
        QCOMPARE(printer.documentPath(u"Receipt"_s), u"palvestrin.receiptdoc."_s);
        QCOMPARE(printer.documentPath(u"INVOICE"_s), u"palvestrin.invoicedoc."_s);
        QCOMPARE(printer.documentPath(u"delivery"_s), u"palvestrin.deliverydoc."_s);
        QCOMPARE(printer.documentPath(u"report"_s), u"palvestrin.reportdoc."_s);
        QCOMPARE(printer.documentPath(u"sold"_s), u"palvestrin.solddoc."_s);
        CapturedOutput output;
        QCOMPARE(printer.documentPath(u"Menu"_s), u"palvestrin.prefiscaldoc."_s);
        QCOMPARE(output.bytes(), QByteArray("Error into PrinterDriver::documentPath:  menu\n"));
    }

    void settings()
    {
        TestPrinter printer(outputPath());
        printer.loadValues(u"prefiscal"_s);
        QCOMPARE(printer.settings().paperWidth, 41);
        QCOMPARE(printer.settings().quantityFieldWidth, -3);
        QCOMPARE(printer.settings().priceFieldWidth, 0);
        QCOMPARE(printer.settings().totalPriceFieldWidth, 8);
        QVERIFY(printer.settings().printHeader);
        QVERIFY(!printer.settings().printDate); // "True" is not "true"

        printer.loadValues(u"order"_s); // nothing of the former kind is left
        QCOMPARE(printer.settings().paperWidth, 32);
        QCOMPARE(printer.settings().paperRows, 0); // too large for a number
        QVERIFY(!printer.settings().printHeader);

        printer.loadValues(u"receipt"_s);
        QCOMPARE(printer.settings().paperWidth, 32);
        printer.loadValues(u"sold"_s);
        QCOMPARE(printer.settings().paperWidth, 32);
    }

    void aDeviceFindsTheSettingsByTheirNames()
    {
        SettingsPrinter printer(outputPath());
        printer.loadValues(u"invoice"_s);
        QCOMPARE(printer.counts(), (QList<int>{3, 8, 9, 40, 60, 2, 24}));
        QCOMPARE(printer.flags(), QList<bool>(17, true));
        printer.loadValues(u"delivery"_s);
        QCOMPARE(printer.counts(), (QList<int>{0, 0, 0, 32, 0, 0, 0}));
        QCOMPARE(printer.flags(), QList<bool>(17, false));
        QCOMPARE(CompanyPrinterDriver::lineWidth, 32U);
    }

    void methods_data()
    {
        QTest::addColumn<QString>("docPath");
        QTest::addColumn<bool>("duplicateBefore");
        QTest::addColumn<bool>("duplicateAfter");
        const auto row = [](const char *name, const QString &docPath, std::optional<bool> duplicate) {
            QTest::addRow("%s", name) << docPath << false << duplicate.value_or(false);
            QTest::addRow("%s ", name) << docPath << true << duplicate.value_or(true);
        };
        row("printPartialOrder", u"palvestrin.doc."_s, {});
        row("printFullOrder", u"palvestrin.prefiscaldoc."_s, {});
        row("printFullOrderReceipt", u"palvestrin.receiptdoc."_s, {});
        row("printFullOrderInvoice", u"palvestrin.invoicedoc."_s, true);
        row("printFullOrderDelivery", u"palvestrin.deliverydoc."_s, {});
        row("printFullOrderFiscal", u"palvestrin.fiscaldoc."_s, false);
        row("printAbstractOrder", u"palvestrin.doc."_s, {});
        row("printAbstractOrderReceipt", u"palvestrin.receiptdoc."_s, {});
        row("printAbstractOrderInvoice", u"palvestrin.invoicedoc."_s, true);
        row("printAbstractOrderFiscal", u"palvestrin.fiscaldoc."_s, false);
        row("printReport", u"palvestrin.reportdoc."_s, {});
        row("printSold", u"palvestrin.solddoc."_s, {});
        row("printStatementOfAccount", u"palvestrin.reportdoc."_s, {});
    }
    void methods()
    {
        QFETCH(bool, duplicateBefore);
        TestPrinter printer(outputPath());
        if (duplicateBefore)
            QVERIFY(printer.element(u"method"_s, {{u"name"_s, u"printFullOrderInvoice"_s}}));
        QCOMPARE(printer.printDuplicate(), duplicateBefore);
        const QString name = QString::fromLatin1(QTest::currentDataTag()).trimmed();
        QVERIFY(printer.element(u"method"_s, {{u"name"_s, name}}));
        QCOMPARE(printer.currentMethod, name);
        QTEST(printer.docPath, "docPath");
        QTEST(printer.printDuplicate(), "duplicateAfter");
    }

    void anotherDeviceAppends()
    {
        const QString path = home.filePath(u"plain"_s);
        QFile::remove(path);
        for (int run = 0; run < 2; ++run) {
            PlainPrinter printer(path);
            printer.startDocument();
            printer.startElement(QString(), u"method"_s, u"method"_s, attribute(u"name"_s, u"printSold"_s));
            printer.startElement(QString(), u"logo"_s, u"logo"_s, {});
            printer.startElement(QString(), u"receipt"_s, u"receipt"_s, attribute(u"serialnumber"_s, u"7"_s));
            // A device without register commands has none to print.
            printer.printRowFiscal(u"total"_s, attribute(u"price"_s, u"1"_s));
            printer.printRowFiscal(u"1"_s, u"1"_s, u"Pizza"_s, u"1"_s);
            printer.endElement(QString(), u"method"_s, u"method"_s);
            printer.endDocument();
        }
        const QByteArray once = "[start]\n[logo]\n Serial Number: 7\n========================\n[end]\n";
        QCOMPARE(contentOf(path), once + once);
    }

    void thereAreThirteenMethods() { QCOMPARE(std::size(vocabulary::printMethods), 13U); }

    void anUnknownMethodStops()
    {
        for (const QString &name : {u"printfullorder"_s, QString(), u"printFullOrder "_s}) {
            TestPrinter printer(outputPath());
            QVERIFY(printer.element(u"method"_s, {{u"name"_s, u"printFullOrder"_s}}));
            CapturedOutput output;
            QVERIFY(!printer.element(u"method"_s, {{u"name"_s, name}}));
            QCOMPARE(output.bytes(), QByteArray("File Format Not Supported\n"));
            QCOMPARE(printer.currentMethod, QString());
            QVERIFY(printer.element(u"total"_s, {{u"price"_s, u"1"_s}})); // ignored
        }
    }

    void aMethodWithoutANameIsUnknown()
    {
        TestPrinter printer(outputPath());
        CapturedOutput output;
        QVERIFY(!printer.element(u"method"_s));
        QCOMPARE(output.bytes(), QByteArray("File Format Not Supported\n"));
    }

    void theDuplicateStaysThroughAReport()
    {
        TestPrinter printer(outputPath());
        printer.element(u"method"_s, {{u"name"_s, u"printAbstractOrderInvoice"_s}});
        printer.element(u"method"_s, {{u"name"_s, u"printReport"_s}});
        QVERIFY(printer.printDuplicate());
    }

    void thePrinterIsKept()
    {
        TestPrinter printer(outputPath());
        printer.element(u"method"_s, {{u"name"_s, u"printReport"_s}});
        printer.element(u"printers"_s, {{u"name"_s, u"bar"_s},
                                        {u"charsize"_s, u"2"_s},
                                        {u"ipaddress"_s, u"192.0.2.7"_s},
                                        {u"port"_s, u"9100"_s}});
        QCOMPARE(printer.printerName, u"bar"_s);
        QCOMPARE(printer.printerCharSize, u"2"_s);
        QCOMPARE(printer.printerIpAddress, u"192.0.2.7"_s);
        QCOMPARE(printer.printerPort, u"9100"_s);
        printer.element(u"printers"_s); // missing attributes read as empty
        QCOMPARE(printer.printerName, QString());
    }

    void theCreditIsKeptWhilePrinted()
    {
        TestPrinter printer(outputPath());
        printer.element(u"method"_s, {{u"name"_s, u"printReport"_s}});
        printer.element(u"orderinfo"_s, {{u"credit"_s, u"7.50"_s}});
        QCOMPARE(printer.orderCredit, u"7.50"_s);
        printer.element(u"method"_s, {{u"name"_s, u"printFullOrder"_s}}); // its printCredit is off
        printer.element(u"orderinfo"_s, {{u"credit"_s, u"8.50"_s}});
        QCOMPARE(printer.orderCredit, u"7.50"_s);
    }

    void anOutputThatCannotBeOpened()
    {
        CapturedOutput output;
        {
            TestPrinter printer(home.path()); // a folder
            printer.element(u"method"_s, {{u"name"_s, u"printFullOrder"_s}});
            printer.element(u"total"_s, {{u"price"_s, u"1"_s}});
            printer.endDocument();
        }
        QCOMPARE(output.bytes(), QByteArray("PrintManager::printAbstractOrder(...): Unable To Open File\n"));
    }
};

QTEST_GUILESS_MAIN(PrinterDriverTest)
#include "printerdriver_test.moc"

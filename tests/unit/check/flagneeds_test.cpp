// The settings that need another one, held against the renderer: without it they change nothing on any of the
// example jobs, with it they do.

#include "companyprinterdriver.h"
#include "flagneeds.h"
#include "jobreader.h"
#include "printmethods.h"
#include "pvconfiguration.h"
#include "wholefile.h"

#include <QBuffer>
#include <QDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString jobs = QStringLiteral(PALVESTRIN_SOURCE_DIR) + u"/examples/jobs"_s;

class PaperRecorder : public CompanyPrinterDriver
{
public:
    using CompanyPrinterDriver::CompanyPrinterDriver;
    QString text{};

protected:
    void write(const QString &written) override { text += written; }
};

QString printed(QByteArray job, const QByteArray &settings)
{
    PVConfiguration configuration(settings, u"a"_s);
    PaperRecorder printer(configuration);
    QBuffer buffer(&job);
    buffer.open(QIODevice::ReadOnly);
    JobSource source(&buffer);
    JobHandler handler(printer, source);
    printJob(source, handler);
    return printer.text;
}

/// The jobs of a kind, with a telephone and whatever else of a customer the examples lack.
QList<QByteArray> jobsOf(const vocabulary::DocumentKind &kind)
{
    QList<QByteArray> list;
    for (const vocabulary::PrintMethod &method : vocabulary::printMethods) {
        if (method.kind != kind.name)
            continue;
        QByteArray job = contentOf(jobs + u'/' + method.name + u".xml"_s);
        const qsizetype end = job.lastIndexOf("</");
        list += job.insert(
            end, "<geometry/><customer name='A' billingaddress='B' deliveryaddress='C' telephone='D' "
                 "licensenumber='E' fiscalcode='F'/>\n");
    }
    return list;
}

} // namespace

class FlagNeedsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void needs_data()
    {
        QTest::addColumn<QString>("block");
        QTest::addColumn<QStringList>("needs");
        const QStringList ofMargin{u"topMargin: printGeometry"_s};
        const QStringList ofCustomer =
            QStringList{u"printBillingAddress: printCustomer"_s, u"printDeliveryAddress: printCustomer"_s,
                        u"printFiscalCode: printCustomer"_s, u"printLicenseNumber: printCustomer"_s,
                        u"printTelephone: printCustomer"_s} +
            ofMargin;
        QTest::newRow("doc") << u"doc"_s << ofCustomer;
        QTest::newRow("prefiscaldoc") << u"prefiscaldoc"_s << ofCustomer;
        QTest::newRow("fiscaldoc") << u"fiscaldoc"_s << QStringList();
        QTest::newRow("receiptdoc") << u"receiptdoc"_s << ofCustomer;
        QTest::newRow("invoicedoc") << u"invoicedoc"_s << ofCustomer;
        QTest::newRow("deliverydoc") << u"deliverydoc"_s << ofCustomer;
        QTest::newRow("reportdoc") << u"reportdoc"_s << ofMargin;
        QTest::newRow("solddoc") << u"solddoc"_s << ofMargin;
    }
    void needs()
    {
        QFETCH(QString, block);
        const auto kind =
            std::ranges::find(vocabulary::documentKinds, block, &vocabulary::DocumentKind::block);
        QStringList needs;
        for (const check::FlagNeed &need : check::flagNeeds(*kind))
            needs += need.setting + ": "_L1 + need.needs;
        needs.sort();
        QTEST(needs, "needs");
    }

    void theRendererNeedsThem()
    {
        for (const vocabulary::DocumentKind &kind : vocabulary::documentKinds) {
            for (const check::FlagNeed &need : check::flagNeeds(kind)) {
                const auto house = [&](bool isSet, bool isNeedOn) {
                    const QByteArray value = need.isFlag ? "true" : "3";
                    return QByteArray("palvestrin: { ") + kind.block.data() + ": { paperWidth = 40; " +
                           (isSet ? need.setting.data() + (" = " + value) + "; " : QByteArray()) +
                           (isNeedOn ? need.needs.data() + QByteArray(" = true; ") : QByteArray()) + "}; };";
                };
                bool hasEffect = false;
                for (const QByteArray &job : jobsOf(kind)) {
                    QCOMPARE(printed(job, house(true, false)), printed(job, house(false, false)));
                    hasEffect =
                        hasEffect || printed(job, house(true, true)) != printed(job, house(false, true));
                }
                QVERIFY2(hasEffect, need.setting.data());
            }
        }
    }
};

QTEST_GUILESS_MAIN(FlagNeedsTest)
#include "flagneeds_test.moc"

// What the locale of the run cannot write.

#include "collectedfindings.h"
#include "pvconfiguration.h"
#include "scratchfolder.h"
#include "wholefile.h"

#include <QProcess>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class CheckEncodingTest : public QObject
{
    Q_OBJECT

private:
    const ScratchFolder folder;
    PVConfiguration configuration{contentOf(QStringLiteral(PALVESTRIN_SOURCE_DIR) +
                                            u"/examples/home/.palvestrin/conf/palvestrin.conf"_s),
                                  u"palvestrin.conf"_s};

private Q_SLOTS:
    void initTestCase()
    {
        QCOMPARE(QProcess::execute(u"localedef"_s, {u"-i"_s, u"it_IT"_s, u"-f"_s, u"ISO-8859-15"_s,
                                                    folder.path() + u"/it_IT.ISO-8859-15"_s}),
                 0);
        qputenv("LOCPATH", folder.path().toUtf8());
        qputenv("LC_ALL", "it_IT.ISO-8859-15");
    }
    void cleanupTestCase()
    {
        qputenv("LC_ALL", "C.UTF-8");
        qunsetenv("LOCPATH");
    }

    void whatItCanWriteIsNotTold()
    {
        const QByteArray job =
            "<job><method name=\"printFullOrderReceipt\"/>\n"
            "<receipe number=\"1\" name=\"Caffè, 1 €?\" price=\"1,00\" totalPrice=\"1,00\"/></job>";
        QCOMPARE(findingsOf(job, configuration).asText(), QString());
    }

    void whatItCannotWriteIsTold()
    {
        const QByteArray job =
            "<job><method name=\"printFullOrderReceipt\"/>\n"
            "<receipe number=\"1\" name=\"Caffè 寿司\" price=\"1,00\" totalPrice=\"1,00\"/></job>";
        const CollectedFindings findings = findingsOf(job, configuration);
        QCOMPARE(findings.ids(), QStringList{u"unprintable"_s}); // a "?" takes one column, and the row fits
        QVERIFY(findings.find(u"unprintable"_s, {2, 33}));
    }

    /// It is printed where it does not stand.
    void thePrintersNameIsToldAtTheHeaders()
    {
        const QByteArray job = "<job><method name=\"printFullOrderReceipt\"/>\n"
                               "<printers name=\"寿司\"/>\n<headers title=\"x\"/></job>";
        const CollectedFindings findings = findingsOf(job, configuration);
        QVERIFY(findings.find(u"unprintable"_s, {3, 1}));
    }
};

QTEST_GUILESS_MAIN(CheckEncodingTest)
#include "checkencoding_test.moc"

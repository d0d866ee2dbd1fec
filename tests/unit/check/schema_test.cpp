// The schema of a print job against the check, by a program that knows neither.

#include "collectedfindings.h"
#include "pvconfiguration.h"
#include "scratchfolder.h"
#include "wholefile.h"

#include <QDirIterator>
#include <QProcess>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString source = QStringLiteral(PALVESTRIN_SOURCE_DIR);

/// What the check finds of the structure; the schema rejects the job then, and then only.
const QStringList aboutStructure{u"no-method"_s,       u"unknown-method"_s,  u"before-method"_s,
                                 u"unknown-element"_s, u"ignored-element"_s, u"unknown-attribute"_s,
                                 u"text-ignored"_s};

/// Golden jobs whose structure the renderer forgives and a schema cannot: they live in namespaces.
bool isBeyondSchemas(const QByteArray &job)
{
    return job.contains("xmlns") || job.contains(":");
}

} // namespace

class SchemaTest : public QObject
{
    Q_OBJECT

private:
    const ScratchFolder folder;
    PVConfiguration configuration{contentOf(source + u"/examples/home/.palvestrin/conf/palvestrin.conf"_s),
                                  u"palvestrin.conf"_s};

    /// Whether the schema accepts the job; what it says otherwise.
    QByteArray objections(const QByteArray &job)
    {
        const QString path = folder.write(u"job.xml"_s, job);
        QProcess xmllint;
        xmllint.start(u"xmllint"_s, {u"--noout"_s, u"--relaxng"_s, QStringLiteral(PALVESTRIN_SCHEMA), path});
        if (!xmllint.waitForFinished() || xmllint.exitStatus() != QProcess::NormalExit)
            return "xmllint did not run: is the package libxml2-utils there?";
        return xmllint.exitCode() == 0 ? QByteArray() : xmllint.readAllStandardError();
    }

    bool isWellFormed(const QByteArray &job)
    {
        QProcess xmllint;
        xmllint.start(u"xmllint"_s, {u"--noout"_s, u"--nonet"_s, folder.write(u"job.xml"_s, job)});
        return xmllint.waitForFinished() && xmllint.exitCode() == 0;
    }

    bool hasStructuralFinding(const QByteArray &job)
    {
        const QStringList ids = findingsOf(job, configuration).ids();
        return std::ranges::any_of(ids, [](const QString &id) { return aboutStructure.contains(id); });
    }

private Q_SLOTS:
    void acceptsTheExamples_data()
    {
        QTest::addColumn<QString>("path");
        for (QDirIterator it(source + u"/examples/jobs"_s, {u"*.xml"_s}); it.hasNext();) {
            const QString path = it.next();
            QTest::newRow(qPrintable(path.section(u'/', -1))) << path;
        }
    }
    void acceptsTheExamples()
    {
        QFETCH(QString, path);
        QCOMPARE(objections(contentOf(path)), QByteArray());
    }

    /// The root element may have any name, "method" included, and a line may tell an editor of the schema.
    void acceptsAJobThatIsOneMethod()
    {
        const QByteArray job = "<?xml-model href=\"file:///usr/share/palvestrin/printjob.rng\"?>\n"
                               "<method name=\"printSold\">\n"
                               "<receipe quantity=\"1\" description=\"Pizza\" amount=\"7,00\"/></method>\n";
        QCOMPARE(objections(job), QByteArray());
        QCOMPARE(findingsOf(job, configuration).asText(), QString());
    }

    void agreesWithTheCheckOnGoldenJobs_data()
    {
        QTest::addColumn<QString>("path");
        for (QDirIterator it(source + u"/tests/golden"_s, {u"job.xml"_s}, QDir::Files,
                             QDirIterator::Subdirectories);
             it.hasNext();) {
            const QString path = it.next();
            if (!isBeyondSchemas(contentOf(path)) && isWellFormed(contentOf(path)))
                QTest::newRow(qPrintable(path.section(u'/', -3, -2))) << path;
        }
    }
    void agreesWithTheCheckOnGoldenJobs()
    {
        QFETCH(QString, path);
        const QByteArray job = contentOf(path);
        const QByteArray said = objections(job);
        QVERIFY2(said.isEmpty() != hasStructuralFinding(job),
                 said.isEmpty() ? qPrintable(findingsOf(job, configuration).asText()) : said.constData());
    }

    void rejectsWhatTheCheckRejects_data()
    {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        const auto row = [](const QByteArray &from, const QByteArray &to) {
            QTest::newRow(to.constData()) << from << to;
        };
        row("<method name=\"printFullOrderReceipt\"/>", "<!-- no method -->");
        row("printFullOrderReceipt", "printfullorderreceipt");
        row("<method name=\"printFullOrderReceipt\"/>", "<method/>");
        row("<method name", "<logo/><method name");
        row("<total ", "<Total ");
        row("<receipe number=\"1\" name=\"+ M", "<variant number=\"1\" name=\"+ M");
        row("price=\"1,50\"", "pirce=\"1,50\"");
        row("<geometry/>", "<geometry lines=\"2\"/>");
        row("<method name", "<method kind=\"receipt\" name");
        row("<total price=\"92,00\"/>", "<total>92,00</total>");
    }
    void rejectsWhatTheCheckRejects()
    {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        QByteArray job = contentOf(source + u"/examples/jobs/printFullOrderReceipt.xml"_s);
        QVERIFY(job.contains(from));
        job.replace(from, to);
        QVERIFY(hasStructuralFinding(job));
        QVERIFY(!objections(job).isEmpty());
    }
};

QTEST_GUILESS_MAIN(SchemaTest)
#include "schema_test.moc"

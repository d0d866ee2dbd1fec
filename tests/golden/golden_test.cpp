#include "program.h"
#include "temporaryhome.h"
#include "visiblediff.h"
#include "wholefile.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Whether expectations are rewritten instead of compared.
bool updating()
{
    return qEnvironmentVariable("PALVESTRIN_UPDATE_GOLDEN") == "1"_L1;
}

/// One folder tests/golden/<area>/<case>/; README.md beside this file tells what may stand in it.
class GoldenCase
{
public:
    explicit GoldenCase(const QString &path) : folder(path) {}

    QString filePath(const QString &name) const { return folder.filePath(name); }
    bool has(const QString &name) const { return folder.exists(name); }
    QString configurationPath() const
    {
        const QString own = filePath(u"palvestrin.conf"_s);
        return QFile::exists(own) ? own : folder.filePath(u"../palvestrin.conf"_s);
    }
    /// The configuration, with the folder of the built catalogues where it says @CATALOGUES@.
    QByteArray configuration() const
    {
        return contentOf(configurationPath()).replace("@CATALOGUES@", CATALOGUE_FOLDER);
    }
    /// What is wrong with the folder itself; empty when nothing is. A missing expectation is no defect while
    /// expectations are being written.
    QString defect() const
    {
        if (!has(u"expected.out"_s) && !updating())
            return u"expected.out is missing"_s;
        if (!has(u"about.txt"_s))
            return u"about.txt is missing: one sentence on what the case protects"_s;
        if (!has(u"no-configuration"_s) && !QFile::exists(configurationPath()))
            return u"neither the case nor its area has a palvestrin.conf, nor is there a no-configuration"_s;
        const QStringList unknown = unknownFiles();
        return unknown.isEmpty() ? QString() : u"no run looks at "_s + unknown.join(u", "_s);
    }
    QStringList environment(const QString &home) const
    {
        QStringList environment = bareEnvironment(home);
        if (!has(u"environment"_s))
            return environment;
        return environment +
               QString::fromUtf8(contentOf(filePath(u"environment"_s))).split(u'\n', Qt::SkipEmptyParts);
    }
    /// The prescribed standard output, with `home` where the file says @HOME@.
    QByteArray expectedStandardOutput(const QString &home) const
    {
        if (!has(u"expected.stdout"_s))
            return {};
        return contentOf(filePath(u"expected.stdout"_s)).replace("@HOME@", home.toUtf8());
    }

    /// Makes what was printed the expectation, and says so where that changes anything.
    void update(const QByteArray &output, const QByteArray &standardOutput) const
    {
        rewrite(u"expected.out"_s, output);
        if (!standardOutput.isEmpty()) {
            rewrite(u"expected.stdout"_s, standardOutput);
        } else if (QFile::remove(filePath(u"expected.stdout"_s))) {
            qInfo("removed %s", qPrintable(filePath(u"expected.stdout"_s)));
        }
    }

private:
    QStringList unknownFiles() const
    {
        static const QStringList known = {u"about.txt"_s,       u"environment"_s, u"expected.out"_s,
                                          u"expected.stdout"_s, u"job.xml"_s,     u"no-configuration"_s,
                                          u"palvestrin.conf"_s};
        QStringList names = folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        names.removeIf([](const QString &name) { return known.contains(name); });
        return names;
    }
    void rewrite(const QString &name, const QByteArray &content) const
    {
        if (has(name) && contentOf(filePath(name)) == content)
            return;
        writeFile(filePath(name), content);
        qInfo("rewrote %s", qPrintable(filePath(name)));
    }

    QDir folder;
};

QStringList foldersIn(const QString &path)
{
    return QDir(path).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

const QString goldenFolder = QStringLiteral(GOLDEN_FOLDER);

} // namespace

class GoldenTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyAreaHasCases()
    {
        QVERIFY(!foldersIn(goldenFolder).isEmpty());
        for (const QString &area : foldersIn(goldenFolder))
            QVERIFY2(!foldersIn(goldenFolder + u'/' + area).isEmpty(), qPrintable(area + u" has no case"_s));
    }

    void rendersAsExpected_data()
    {
        QTest::addColumn<QString>("folder");
        for (const QString &area : foldersIn(goldenFolder)) {
            for (const QString &name : foldersIn(goldenFolder + u'/' + area)) {
                const QString path = area + u'/' + name;
                QTest::newRow(qPrintable(path)) << QString(goldenFolder + u'/' + path);
            }
        }
    }
    void rendersAsExpected()
    {
        QFETCH(QString, folder);
        const GoldenCase golden(folder);
        const QString defect = golden.defect();
        QVERIFY2(defect.isEmpty(), qPrintable(defect));

        const TemporaryHome home;
        if (!golden.has(u"no-configuration"_s))
            home.configure(golden.configuration());
        const QString output = home.filePath(u"output"_s);
        writeFile(output, "what an earlier job left here\n");

        const ProgramRun run =
            runProgram(QStringLiteral(PALVESTRIN_PRINT), {golden.filePath(u"job.xml"_s), output},
                       golden.environment(home.path()));

        QVERIFY2(run.failure.isEmpty(), qPrintable(run.failure));
        QVERIFY2(run.standardError.isEmpty(), "standard error: " + visible(run.standardError));
        if (updating()) {
            golden.update(contentOf(output),
                          QByteArray(run.standardOutput).replace(home.path().toUtf8(), "@HOME@"));
            return;
        }
        verifySame("output", contentOf(golden.filePath(u"expected.out"_s)), contentOf(output));
        verifySame("standard output", golden.expectedStandardOutput(home.path()), run.standardOutput);
    }

private:
    static void verifySame(const QByteArray &what, const QByteArray &expected, const QByteArray &actual)
    {
        QVERIFY2(expected == actual, what + " differs, " + visibleDiff(expected, actual));
    }
};

QTEST_GUILESS_MAIN(GoldenTest)
#include "golden_test.moc"

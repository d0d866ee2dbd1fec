#include "logtext.h"
#include "temporaryhome.h"
#include "temporarypostgres.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Example
{
    QString output; ///< on standard output
    QString log;
};

struct Document
{
    QByteArray configuration;
    QList<Example> examples;
};

/// Takes the blocks out of the document: a "text" or "log" block belongs to the "cpp" block before it.
Document readDocument()
{
    QFile file(QStringLiteral(DOCUMENT));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", DOCUMENT);
    Document document;
    const QStringList parts = QString::fromUtf8(file.readAll()).split(u"\n```"_s);
    for (qsizetype i = 1; i < parts.size(); i += 2) { // every second part is a block, led by its language
        const QString language = parts[i].section(u'\n', 0, 0);
        const QString content = parts[i].section(u'\n', 1) + u'\n';
        if (language == "conf"_L1)
            document.configuration = content.toUtf8();
        else if (language == "cpp"_L1)
            document.examples.append(Example());
        else if (language == "text"_L1)
            document.examples.last().output = content;
        else if (language == "log"_L1)
            document.examples.last().log = withoutTimes(content);
        else
            qFatal("unknown block in the document: %s", qPrintable(language));
    }
    return document;
}

} // namespace

class ServicesExamplesTest : public QObject
{
    Q_OBJECT

private:
    const Document document = readDocument();
    const TemporaryPostgres server;

    /// The document's configuration, with places that exist here.
    QByteArray configuration(const TemporaryHome &home) const
    {
        const QList<QPair<QByteArray, QByteArray>> places = {
            {"/var/log/palvestrin", home.path().toUtf8()}, {"\"shop\"", server.database().toUtf8()},
            {"\"till\"", server.user().toUtf8()},          {"\"secret\"", server.password().toUtf8()},
            {"localhost", server.host().toUtf8()},
        };
        QByteArray text = document.configuration;
        for (const auto &[fromDocument, here] : places) {
            if (text.count(fromDocument) != 1)
                qFatal("the document's configuration does not say %s once", fromDocument.constData());
            text.replace(fromDocument, here);
        }
        return text;
    }

private Q_SLOTS:
    void everyExampleIsBuilt() { QCOMPARE(document.examples.size(), EXAMPLE_COUNT); }

    void examples_data()
    {
        QTest::addColumn<Example>("example");
        for (int i = 0; i < EXAMPLE_COUNT; ++i)
            QTest::addRow("%d", i + 1) << document.examples[i];
    }
    void examples()
    {
        QFETCH(const Example, example);
        const TemporaryHome home;
        home.configure(configuration(home));
        QProcess program;
        program.setWorkingDirectory(home.path());
        program.start(QCoreApplication::applicationDirPath() + u"/services_example_"_s +
                          QString::fromLatin1(QTest::currentDataTag()),
                      QStringList());
        QVERIFY2(program.waitForFinished(), qPrintable(program.errorString()));
        // Standard error first: it tells what went wrong, and on a good run it stays empty.
        QCOMPARE(QString::fromUtf8(program.readAllStandardError()), u""_s);
        QCOMPARE(QString::fromUtf8(program.readAllStandardOutput()), example.output);
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
        const QString log = home.filePath(u"tools.log"_s);
        QCOMPARE(QFile::exists(log) ? logText(log) : QString(), example.log);
    }
};

QTEST_GUILESS_MAIN(ServicesExamplesTest)
#include "services_examples_test.moc"

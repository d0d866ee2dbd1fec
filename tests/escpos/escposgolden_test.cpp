// Jobs and the bytes that they are printed with, as a listing that can be read: tests/escpos/golden/<case>/
// holds job.xml, palvestrin.conf, the name of a profile in `profile`, and expected.hex.

#include "configuredhome.h"
#include "decoder.h"
#include "escposprinter.h"
#include "hexlisting.h"
#include "jobreader.h"

#include <QBuffer>
#include <QDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The bytes that a listing lists, whatever it says of them.
QByteArray bytesOf(const QStringList &listing)
{
    QByteArray bytes;
    for (const QString &line : listing)
        bytes += QByteArray::fromHex(line.mid(10, 48).toLatin1());
    return bytes;
}

QStringList listingOf(const QByteArray &bytes)
{
    QStringList lines;
    HexListing listing([&](const QString &line) { lines += line; });
    listing.take(bytes);
    listing.end();
    return lines;
}

} // namespace

class EscPosGoldenTest : public QObject
{
    Q_OBJECT

private:
    const QDir folder{QStringLiteral(GOLDEN_FOLDER)};
    const ConfiguredHome home;

private Q_SLOTS:
    void printsAsExpected_data()
    {
        QTest::addColumn<QString>("path");
        const QStringList names = folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        QVERIFY(names.size() >= 3);
        for (const QString &name : names)
            QTest::newRow(qPrintable(name)) << folder.filePath(name);
    }
    void printsAsExpected()
    {
        QFETCH(QString, path);
        home.configure(contentOf(path + u"/palvestrin.conf"_s));
        const Profile *profile = findProfile(QString::fromUtf8(contentOf(path + u"/profile"_s)).trimmed());
        QVERIFY(profile);
        const QByteArray bytes = printedOn(*profile, [&](TestEscPosPrinter &printer) {
            QBuffer job;
            job.setData(contentOf(path + u"/job.xml"_s));
            JobSource source(&job);
            JobHandler handler(printer, source);
            printJob(source, handler);
            QCOMPARE(handler.trouble(), QString());
        });
        const QStringList actual = listingOf(bytes);
        if (qEnvironmentVariable("PALVESTRIN_UPDATE_GOLDEN") == u"1") {
            writeFile(path + u"/expected.hex"_s, actual.join(u'\n').toUtf8() + '\n');
            return;
        }
        const QStringList expected =
            QString::fromUtf8(contentOf(path + u"/expected.hex"_s)).split(u'\n', Qt::SkipEmptyParts);
        for (qsizetype i = 0; i < qMin(actual.size(), expected.size()); ++i)
            QCOMPARE(actual[i], expected[i]);
        QCOMPARE(actual.size(), expected.size());
        QCOMPARE(bytes, bytesOf(expected));
    }

    void theDocumentShowsACase()
    {
        const QByteArray document = contentOf(QStringLiteral(DOCUMENT));
        QVERIFY(
            document.contains("```text\n" + contentOf(folder.filePath(u"receipt/expected.hex"_s)) + "```\n"));
    }

    void documentAndManualNameEveryProfile()
    {
        const QString document = QString::fromUtf8(contentOf(QStringLiteral(DOCUMENT)));
        const QByteArray manuals[] = {contentOf(QStringLiteral(MANUAL_FOLDER "/palvestrin-render.1")),
                                      contentOf(QStringLiteral(MANUAL_FOLDER "/palvestrin-preview.1"))};
        for (const Profile &profile : profiles) {
            const QString narrow = profile.narrowColumns ? u", %1"_s.arg(profile.narrowColumns) : QString();
            const QString row = u"\n| `%1` | %2%3 |"_s.arg(profile.name).arg(profile.columns).arg(narrow);
            QVERIFY2(document.contains(row), qPrintable(row));
            for (const QByteArray &manual : manuals)
                QVERIFY2(manual.contains(QByteArray(profile.name.data()).replace('-', "\\-")),
                         profile.name.data());
        }
    }
};

QTEST_GUILESS_MAIN(EscPosGoldenTest)
#include "escposgolden_test.moc"

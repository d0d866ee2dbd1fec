// The pictures of docs/gallery.md are those of what is printed today.

#include "program.h"
#include "wholefile.h"

#include <QDir>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDir source(QStringLiteral(SOURCE_FOLDER));

QStringList picturesIn(const QString &path)
{
    return QDir(path).entryList({u"*.png"_s}, QDir::Files, QDir::Name);
}

/// The pictures that a document shows.
QStringList shownIn(const QString &document)
{
    static const QRegularExpression image(u"<img src=\"(?:docs/)?gallery/([^\"]+)\""_s);
    QStringList names;
    for (const QRegularExpressionMatch &match :
         image.globalMatch(QString::fromUtf8(contentOf(source.filePath(document)))))
        names += match.captured(1);
    names.removeDuplicates(); // one may stand beside several others
    names.sort();
    return names;
}

} // namespace

class GalleryTest : public QObject
{
    Q_OBJECT

private:
    const QString gallery = source.filePath(u"docs/gallery"_s);
    const QTemporaryDir folder;

private Q_SLOTS:
    void initTestCase()
    {
        const ProgramRun run =
            runProgram(source.filePath(u"script/gallery"_s), {QStringLiteral(BUILD_FOLDER), folder.path()},
                       {u"PATH="_s + qEnvironmentVariable("PATH")});
        QVERIFY2(run.failure.isEmpty(), qPrintable(run.failure + QString::fromUtf8(run.standardError)));
    }

    void everyPictureIsShown()
    {
        QCOMPARE(picturesIn(gallery), picturesIn(folder.path()));
        QCOMPARE(shownIn(u"docs/gallery.md"_s), picturesIn(gallery));
        QCOMPARE(shownIn(u"README.md"_s), QStringList(u"printFullOrderReceipt.png"_s));
    }

    void everyExampleHasAPicture()
    {
        QStringList jobs;
        for (const QString &job : QDir(source.filePath(u"examples/jobs"_s)).entryList({u"*.xml"_s}))
            jobs += job.chopped(4);
        QCOMPARE(jobs.size(), 13);
        for (const QString &job : jobs)
            QVERIFY2(picturesIn(gallery).contains(job + ".png"_L1), qPrintable(job));
    }

    void everyPictureIsCurrent_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name : picturesIn(gallery))
            QTest::newRow(qPrintable(name)) << name;
    }
    /// Pixels, not bytes: how a file is packed depends on the machine's libraries.
    void everyPictureIsCurrent()
    {
        QFETCH(QString, name);
        const QImage kept(gallery + u'/' + name);
        const QImage drawn(folder.filePath(name));
        QVERIFY(!kept.isNull());
        QVERIFY2(kept == drawn, "it is not what is printed today; run script/gallery and look at it");
    }

    void everyPictureIsSmall()
    {
        constexpr qint64 most = 100'000; // bytes
        for (const QString &name : picturesIn(gallery))
            QVERIFY2(QFileInfo(gallery + u'/' + name).size() < most, qPrintable(name));
    }
};

QTEST_GUILESS_MAIN(GalleryTest)
#include "gallery_test.moc"

#include "hlibrary.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTranslator>

#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// "line 1\n" to "line <count>\n".
QByteArray lines(int first, int last)
{
    QByteArray text;
    for (int line = first; line <= last; ++line)
        text += "line " + QByteArray::number(line) + '\n';
    return text;
}

/// Answers every message box with its OK button while it lives, and notes what was asked.
class Answerer
{
public:
    explicit Answerer(const QString &watched) : watchedFile(watched)
    {
        QObject::connect(&timer, &QTimer::timeout, [this] { answer(); });
        timer.start(5);
    }

    QStringList prompts;
    QList<qsizetype> linesBefore; ///< of the watched file, at each prompt

private:
    void answer()
    {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        const QString icon = box->icon() == QMessageBox::Information ? u"information"_s : u"other icon"_s;
        const QString parent = box->parentWidget() ? u"parent"_s : u"no parent"_s;
        const QString buttons = box->standardButtons() == QMessageBox::Ok ? u"OK"_s : u"other buttons"_s;
        prompts << QStringList({icon, box->windowTitle(), box->text(), buttons, parent}).join(u'|');
        QFile file(watchedFile);
        if (file.open(QIODevice::ReadOnly))
            linesBefore << file.readAll().count('\n');
        box->button(QMessageBox::Ok)->click();
    }

    QString watchedFile;
    QTimer timer;
};

} // namespace

class HLibraryCopyTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir folder;
    QString source;
    QString target;

    void write(const QByteArray &content)
    {
        QFile file(source);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(source));
    }
    QByteArray copied() const
    {
        QFile file(target);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no target");
    }

private Q_SLOTS:
    void init()
    {
        source = folder.filePath(u"source"_s);
        target = folder.filePath(u"target"_s);
        QFile::remove(source);
        QFile::remove(target);
    }

    void theWholeFileWithoutPrompts_data()
    {
        QByteArray binary;
        for (int i = 0; i < 100'000; ++i)
            binary += static_cast<char>(i * 7 % 256);
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("lines") << lines(1, 10);
        QTest::newRow("no line end") << QByteArray("a\nb");
        QTest::newRow("carriage returns") << QByteArray("a\r\nb\r\n");
        QTest::newRow("a long line") << QByteArray(10'000, 'x') + "\nend";
        QTest::newRow("zeros") << QByteArray(1000, '\0') + "a\n" + QByteArray(1, '\0');
        QTest::newRow("every byte") << binary;
    }
    void theWholeFileWithoutPrompts()
    {
        QFETCH(const QByteArray, content);
        write(content);
        const Answerer answerer(target);
        QVERIFY(HLibrary::copy(source, target, 0, 0));
        QCOMPARE(copied(), content);
        QCOMPARE(answerer.prompts, QStringList());
    }

    void theTargetIsOverwritten()
    {
        write(lines(1, 3));
        QVERIFY(HLibrary::copy(source, target, 0, 0));
        write(lines(1, 1));
        QVERIFY(HLibrary::copy(source, target, 0, 0));
        QCOMPARE(copied(), lines(1, 1));
    }

    void asksForSheets()
    {
        write(lines(1, 10));
        const Answerer answerer(target);
        QVERIFY(HLibrary::copy(source, target, 3, 0));
        QCOMPARE(copied(), lines(1, 10));
        // After one line more than a sheet takes, then after every sheet. The line is out when the user is
        // asked.
        QCOMPARE(answerer.linesBefore, QList<qsizetype>({4, 7, 10}));
        const QString prompt = u"information|PaperWindow|Insert a new sheet|OK|no parent"_s;
        QCOMPARE(answerer.prompts, QStringList({prompt, prompt, prompt}));
    }

    void asksInTheLanguageOfTheCatalogue_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("prompt");
        QTest::newRow("it_IT") << u"it_IT"_s << u"information|Carta|Inserire un nuovo foglio|OK|no parent"_s;
        QTest::newRow("de_DE") << u"de_DE"_s
                               << u"information|Papier|Bitte ein neues Blatt einlegen|OK|no parent"_s;
        QTest::newRow("fr_FR") << u"fr_FR"_s
                               << u"information|Papier|Insérez une nouvelle feuille|OK|no parent"_s;
        QTest::newRow("es_ES") << u"es_ES"_s << u"information|Papel|Inserte una hoja nueva|OK|no parent"_s;
    }
    void asksInTheLanguageOfTheCatalogue()
    {
        QFETCH(const QString, locale);
        QTranslator translator;
        QVERIFY(translator.load(QStringLiteral(CATALOGUE_FOLDER "/palvestrin_") + locale));
        QCoreApplication::installTranslator(&translator);
        write(lines(1, 2));
        const Answerer answerer(target);
        QVERIFY(HLibrary::copy(source, target, 1, 0));
        QTEST(answerer.prompts.join(u';'), "prompt");
    }

    void asksForNoSheetThatIsNotNeeded()
    {
        write(lines(1, 3));
        const Answerer answerer(target);
        QVERIFY(HLibrary::copy(source, target, 3, 0));
        QCOMPARE(answerer.prompts, QStringList());
    }

    void aLongLineCountsForEveryPiece()
    {
        // Pieces of 127, 127, and 2 bytes with the line's end; then one more line.
        write(QByteArray(255, 'x') + "\nend\n");
        const Answerer answerer(target);
        QVERIFY(HLibrary::copy(source, target, 1, 0));
        QCOMPARE(copied(), QByteArray(255, 'x') + "\nend\n");
        QCOMPARE(answerer.linesBefore, QList<qsizetype>({0, 1, 2}));
    }

    void piecesHave127Bytes()
    {
        write(QByteArray(127, 'x') + QByteArray(127, 'y') + "z\n");
        QVERIFY(HLibrary::copy(source, target, 1, 0, 0));
        QCOMPARE(copied(), QByteArray(127, 'x'));
        QVERIFY(HLibrary::copy(source, target, 1, 0, 1));
        QCOMPARE(copied(), QByteArray(127, 'y'));
        QVERIFY(HLibrary::copy(source, target, 1, 0, 2));
        QCOMPARE(copied(), QByteArray("z\n"));
    }

    void numbersAsText_data()
    {
        QTest::addColumn<QString>("linesPerSheet");
        QTest::addColumn<QString>("delay");
        QTest::addColumn<int>("prompts");
        QTest::newRow("numbers") << u"3"_s << u"0"_s << 3;
        QTest::newRow("no numbers") << u"three"_s << u"soon"_s << 0;
        QTest::newRow("nothing") << u""_s << u""_s << 0;
        QTest::newRow("negative") << u"-3"_s << u"-1"_s << 0;
        QTest::newRow("not decimal") << u"0x3"_s << u"0x1"_s << 0;
        QTest::newRow("fraction") << u"3.5"_s << u"0.5"_s << 0;
        QTest::newRow("too large") << u"4294967296"_s << u"4294967296"_s << 0;
    }
    void numbersAsText()
    {
        QFETCH(const QString, linesPerSheet);
        QFETCH(const QString, delay);
        write(lines(1, 10));
        const Answerer answerer(target);
        QVERIFY(HLibrary::copy(source, target, linesPerSheet, delay));
        QCOMPARE(copied(), lines(1, 10));
        QTEST(static_cast<int>(answerer.prompts.size()), "prompts");
    }

    void waitsAfterEveryLine()
    {
        write(lines(1, 3));
        QElapsedTimer timer;
        timer.start();
        QVERIFY(HLibrary::copy(source, target, u"0"_s, u"100"_s));
        QCOMPARE_GE(timer.elapsed(), 300);
    }

    void onePage_data()
    {
        QTest::addColumn<int>("inFile");
        QTest::addColumn<unsigned int>("linesPerPage");
        QTest::addColumn<unsigned int>("page");
        QTest::addColumn<bool>("result");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("first") << 12 << 5U << 0U << true << lines(1, 5);
        QTest::newRow("second") << 12 << 5U << 1U << true << lines(6, 10);
        QTest::newRow("last, not full") << 12 << 5U << 2U << true << lines(11, 12);
        QTest::newRow("short before the page") << 9 << 5U << 2U << false << QByteArray();
        QTest::newRow("ends where the page begins") << 10 << 5U << 2U << false << QByteArray();
        QTest::newRow("one line each") << 3 << 1U << 1U << true << lines(2, 2);
        QTest::newRow("no limit") << 12 << 0U << 0U << true << lines(1, 12);
        QTest::newRow("no limit, any page") << 12 << 0U << 7U << true << lines(1, 12);
        QTest::newRow("no lines") << 0 << 5U << 0U << true << QByteArray();
        QTest::newRow("no lines, second page") << 0 << 5U << 1U << false << QByteArray();
        QTest::newRow("a page beyond 32 bits") << 12 << 65536U << 65536U << false << QByteArray();
    }
    void onePage()
    {
        QFETCH(const int, inFile);
        QFETCH(const unsigned int, linesPerPage);
        QFETCH(const unsigned int, page);
        write(lines(1, inFile));
        QTEST(HLibrary::copy(source, target, linesPerPage, 0, page), "result");
        QTEST(copied(), "expected");
    }

    void aPageWaitsBetweenItsLinesOnly()
    {
        write(lines(1, 12));
        QElapsedTimer timer;
        timer.start();
        QVERIFY(HLibrary::copy(source, target, 3, 100, 1));
        QCOMPARE_GE(timer.elapsed(), 200);
        QCOMPARE(copied(), lines(4, 6));
        timer.start();
        QVERIFY(HLibrary::copy(source, target, 1, 10'000, 1));
        QCOMPARE_LT(timer.elapsed(), 10'000);
    }

    void copiesThatCannotBe_data()
    {
        write(lines(1, 10));
        const QString missing = folder.filePath(u"missing"_s);
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::newRow("no source") << missing << target;
        QTest::newRow("a folder as source") << folder.path() << target;
        QTest::newRow("no target folder") << source << folder.filePath(u"no/such/folder"_s);
        QTest::newRow("a folder as target") << source << folder.path();
        QTest::newRow("unwritable target") << source << u"/proc/self/limit"_s;
        QTest::newRow("no names") << QString() << QString();
        QTest::newRow("no source name") << QString() << target;
        QTest::newRow("no target name") << source << QString();
        QTest::newRow("full disk") << source << u"/dev/full"_s;
        QTest::newRow("unreadable source") << u"/proc/self/mem"_s << target;
    }
    void copiesThatCannotBe()
    {
        QFETCH(const QString, from);
        QFETCH(const QString, to);
        QTest::failOnWarning(QRegularExpression(u".*"_s)); // false is the answer, and the only one
        write(lines(1, 10));
        const Answerer answerer(target);
        QVERIFY(!HLibrary::copy(from, to, 3, 0));
        QVERIFY(!HLibrary::copy(from, to, u"3"_s, u"0"_s));
        QVERIFY(!HLibrary::copy(from, to, 5, 0, 0));
        QCOMPARE(answerer.prompts, QStringList()); // no sheet for nothing
    }

    void aMissingSourceLeavesTheTargetAlone()
    {
        write(lines(1, 3));
        QVERIFY(HLibrary::copy(source, target, 0, 0));
        QVERIFY(!HLibrary::copy(folder.filePath(u"missing"_s), target, 0, 0));
        QCOMPARE(copied(), lines(1, 3));
    }

    void aFileIsNotCopiedOntoItself()
    {
        write(lines(1, 3));
        QVERIFY(QFile::link(source, target));
        QVERIFY(!HLibrary::copy(source, source, 0, 0));
        QVERIFY(!HLibrary::copy(source, target, 0, 0));
        QVERIFY(!HLibrary::copy(target, source, 5, 0, 0));
        QCOMPARE(copied(), lines(1, 3));
    }

    void aHardLinkIsTheSameFileToo()
    {
        write(lines(1, 3));
        QFile::remove(target);
        QVERIFY(link(QFile::encodeName(source).constData(), QFile::encodeName(target).constData()) == 0);
        QVERIFY(!HLibrary::copy(source, target, 0, 0));
        QCOMPARE(copied(), lines(1, 3));
    }

    void aDeviceMayBeBoth() { QVERIFY(HLibrary::copy(u"/dev/null"_s, u"/dev/null"_s, 0, 0)); }

    void aFileThatDoesNotTellItsSize()
    {
        QVERIFY(HLibrary::copy(u"/proc/version"_s, target, 0, 0));
        QFile version(u"/proc/version"_s);
        QVERIFY(version.open(QIODevice::ReadOnly));
        QCOMPARE(copied(), version.readAll());
        QVERIFY(!copied().isEmpty());
    }
};

QTEST_MAIN(HLibraryCopyTest)
#include "hlibrary_copy_test.moc"

// The ways to name a printer's output file, as a program outside the house writes them: without the house's
// rule that a literal is no text.
#undef QT_NO_CAST_FROM_ASCII

#include "companyprinterdriver.h"
#include "temporaryhome.h"
#include "wholefile.h"

#include <QTest>

#include <type_traits>

class FileNameTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home;

private Q_SLOTS:
    void initTestCase()
    {
        home.configure("palvestrin: { };");
        QVERIFY(QDir::setCurrent(home.path()));
    }

    void aStringLiteralIsAFileName()
    {
        {
            CompanyPrinterDriver driver("paper.txt");
            driver.startSection();
        }
        QCOMPARE(contentOf(home.filePath("paper.txt")), QByteArray("\nj\n"));
    }

    void textIsAFileName()
    {
        {
            CompanyPrinterDriver driver(QString::fromUtf8("caff\xc3\xa8.txt"));
            driver.startSection();
        }
        QCOMPARE(contentOf(home.filePath(QString::fromUtf8("caff\xc3\xa8.txt"))), QByteArray("\nj\n"));
    }

    /// Bytes that are no text in the toolkit's encoding reach the system as they are.
    void bytesAreAFileNameUnderATypeOfTheirOwn()
    {
        {
            CompanyPrinterDriver driver(NativeFileName{"caff\xe8.txt"});
            driver.startSection();
        }
        QVERIFY(std::rename("caff\xe8.txt", "renamed.txt") == 0); // the toolkit cannot name it
        QCOMPARE(contentOf(home.filePath("renamed.txt")), QByteArray("\nj\n"));
        QVERIFY(!(std::is_convertible_v<const char *, NativeFileName>));
        QVERIFY(!(std::is_convertible_v<QByteArray, NativeFileName>));
    }
};

QTEST_GUILESS_MAIN(FileNameTest)
#include "filename_test.moc"

// What printers are asked, and what their answers mean.

#include "printerstatus.h"
#include "proofwait.h"

#include <QTest>

class PrinterStatusTest : public QObject
{
    Q_OBJECT

private:
    static QByteArray hex(const std::string &bytes) { return QByteArray::fromStdString(bytes).toHex(' '); }
    static QByteArray sentenceFor(int question, int answer)
    {
        PrinterStatus status;
        status.take(question, static_cast<unsigned char>(answer));
        return QByteArray::fromStdString(std::string(status.sentence()));
    }
    static AnswerReader readerOf(const QByteArray &bytes)
    {
        AnswerReader reader;
        reader.take({bytes.constData(), std::size_t(bytes.size())});
        return reader;
    }

private Q_SLOTS:
    /// A printer that takes no question at present is asked again, and the same.
    void aQuestionThatWasNotTakenIsAskedLater()
    {
        using namespace std::chrono_literals;
        ProofWait wait(Clock::now() + 1min, 1min);
        QTest::qSleep(1100);
        QCOMPARE(wait.dueQuestion(), 1);
        QCOMPARE(wait.dueQuestion(), 0); // it is under way
        wait.postpone();
        QVERIFY(wait.next() < Clock::now() + 2s);
        QTest::qSleep(1100);
        QCOMPARE(wait.dueQuestion(), 1);
    }

    void questions()
    {
        QCOMPARE(hex(statusQuestion(1)), QByteArray("10 04 01"));
        QCOMPARE(hex(statusQuestion(4)), QByteArray("10 04 04"));
        QCOMPARE(hex(proofQuestion("Ab3~")), QByteArray("1d 28 48 06 00 30 30 41 62 33 7e"));
    }

    void noTwoIdsAreEqual()
    {
        const std::string id = freshProofId();
        QCOMPARE(id.size(), std::size_t(4));
        QVERIFY(id != freshProofId() || id != freshProofId());
    }

    void sentences()
    {
        QCOMPARE(sentenceFor(1, 0x12), QByteArray());
        QCOMPARE(sentenceFor(1, 0x16), QByteArray()); // the drawer is open
        QCOMPARE(sentenceFor(2, 0x16), QByteArray("The cover is open; close it."));
        QCOMPARE(sentenceFor(4, 0x72), QByteArray("The paper is out; put in a new roll."));
        QCOMPARE(sentenceFor(4, 0x1E), QByteArray("The paper is nearly out."));
        QCOMPARE(sentenceFor(3, 0x1A),
                 QByteArray("The cutter is stuck; free it, and switch the printer off and on."));
        QCOMPARE(sentenceFor(1, 0x1A),
                 QByteArray("The printer is offline; look at its cover, its paper and its buttons."));
    }

    void paperThatIsNearlyOutStopsNothing()
    {
        PrinterStatus status;
        status.take(4, 0x1E);
        QVERIFY(status.isReady());
        status.take(4, 0x72);
        QVERIFY(!status.isReady());
    }

    void answersAreToldApart()
    {
        AnswerReader reader = readerOf("\x12");
        QCOMPARE(reader.takeStatus(), 0x12);
        QCOMPARE(reader.takeStatus(), -1);
        QVERIFY(readerOf(QByteArray("\x12\x37\x22"
                                    "abcd\0\x16",
                                    9))
                    .hasProof("abcd"));
        QCOMPARE(readerOf(QByteArray("\x37\x22\x12\x12\x12\x12\0", 7)).takeStatus(), -1);
    }

    /// A report that nobody asked for is four bytes; none of them is an answer.
    void reportsAreSkipped()
    {
        QCOMPARE(readerOf(QByteArray("\x10\x00\x12\x12", 4)).takeStatus(), -1);
        QCOMPARE(readerOf(QByteArray("\x10\x00\x00\x00\x12", 5)).takeStatus(), 0x12);
    }

    void anAnswerBehindGarbage()
    {
        QVERIFY(readerOf(QByteArray("\x37\x37\x22"
                                    "abcd\0",
                                    8))
                    .hasProof("abcd"));
        QCOMPARE(readerOf("\x37\x16").takeStatus(), 0x16);
    }

    void garbageIsNoAnswer()
    {
        QCOMPARE(readerOf(QByteArray("\xFF\x00\xA5\xC3", 4)).takeStatus(), -1);
        QVERIFY(!readerOf("\x37\x21"
                          "abcd")
                     .hasProof("abcd"));
        QVERIFY(!readerOf("\x37\x22"
                          "abcde")
                     .hasProof("abcd"));
        QVERIFY(!readerOf(QByteArray("\x37\x22"
                                     "abcx\0",
                                     7))
                     .hasProof("abcd"));
    }
};

QTEST_GUILESS_MAIN(PrinterStatusTest)
#include "printerstatus_test.moc"

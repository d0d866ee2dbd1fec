// What is known of a job, and what becomes of it when nobody has it any more.

#include "jobrecord.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::string_view uuid = "urn:uuid:1";

} // namespace

Q_DECLARE_METATYPE(JobRecord::State)
Q_DECLARE_METATYPE(std::optional<bool>)

class JobRecordTest : public QObject
{
    Q_OBJECT

private:
    using State = JobRecord::State;

    static State stateIn(const OwnFolder &folder) { return JobRecord(folder, uuid, "other").state(); }

private Q_SLOTS:
    void aRecordOutlivesItsProcess()
    {
        const QTemporaryDir place;
        const std::optional<OwnFolder> folder = OwnFolder::at(place.filePath(u"records"_s).toStdString());
        QVERIFY(folder);
        {
            JobRecord record(*folder, uuid, "scheduler");
            QVERIFY(record.isKept());
            QVERIFY(record.state() == State::New);
            record.setEndBefore(42);
            QVERIFY(record.set(State::Held));
        }
        const JobRecord record(*folder, uuid, "scheduler");
        QVERIFY(record.state() == State::Held);
        QVERIFY(record.isOfThisScheduler());
        QCOMPARE(record.endBefore(), time_t(42));
    }

    void whatIsTornSaysThatBytesMayHaveGoneOut()
    {
        const QTemporaryDir place;
        const std::optional<OwnFolder> folder = OwnFolder::at(place.filePath(u"records"_s).toStdString());
        QVERIFY(folder && JobRecord(*folder, uuid, "scheduler").set(State::Printed));
        QFile file(place.filePath(u"records/urn_uuid_1.job"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("pri") == 3);
        file.close();
        QVERIFY(stateIn(*folder) == State::Sending);
    }

    void aRecordIsSettled_data()
    {
        QTest::addColumn<State>("before");
        QTest::addColumn<std::optional<bool>>("isOurs");
        QTest::addColumn<State>("after");
        QTest::addColumn<bool>("isDoubted");
        const std::optional<bool> unknown;
        QTest::newRow("abandoned while it was sent")
            << State::Sending << std::optional(true) << State::Sending << true;
        QTest::newRow("abandoned before that") << State::New << std::optional(true) << State::Sending << true;
        QTest::newRow("held, and abandoned then")
            << State::Held << std::optional(true) << State::Sending << true;
        QTest::newRow("printed elsewhere")
            << State::New << std::optional(false) << State::Unconfirmed << false;
        QTest::newRow("nobody says where") << State::Sending << unknown << State::Sending << false;
        QTest::newRow("the same, before the first byte") << State::New << unknown << State::New << false;
        QTest::newRow("printed") << State::Printed << std::optional(true) << State::Printed << false;
        QTest::newRow("unconfirmed") << State::Unconfirmed << std::optional(true) << State::Unconfirmed
                                     << false;
    }
    void aRecordIsSettled()
    {
        QFETCH(State, before);
        QFETCH(std::optional<bool>, isOurs);
        QFETCH(State, after);
        QFETCH(bool, isDoubted);
        const QTemporaryDir place;
        const std::optional<OwnFolder> folder = OwnFolder::at(place.filePath(u"records"_s).toStdString());
        QVERIFY(folder && JobRecord(*folder, uuid, "scheduler").set(before));
        bool wasDoubted = false;
        settleFreeRecord(
            *folder, uuid, false, [&] { return isOurs; }, [&] { wasDoubted = true; });
        QCOMPARE(wasDoubted, isDoubted);
        QVERIFY(stateIn(*folder) == after);
    }

    void aRecordThatSomebodyHasIsLeftAlone()
    {
        const QTemporaryDir place;
        const std::optional<OwnFolder> folder = OwnFolder::at(place.filePath(u"records"_s).toStdString());
        QVERIFY(folder);
        JobRecord record(*folder, uuid, "scheduler");
        QVERIFY(record.set(State::Sending));
        bool wasDoubted = false;
        settleFreeRecord(
            *folder, uuid, true, [] { return std::optional(true); }, [&] { wasDoubted = true; });
        QVERIFY(!wasDoubted);
    }

    void aJobWithoutARecord_data()
    {
        QTest::addColumn<bool>("evenWithoutRecord");
        QTest::newRow("it may have been printed some other way") << false;
        QTest::newRow("it was this backend's") << true;
    }
    void aJobWithoutARecord()
    {
        QFETCH(bool, evenWithoutRecord);
        const QTemporaryDir place;
        const std::optional<OwnFolder> folder = OwnFolder::at(place.filePath(u"records"_s).toStdString());
        QVERIFY(folder);
        bool wasDoubted = false;
        settleFreeRecord(
            *folder, uuid, evenWithoutRecord, [] { return std::optional(true); }, [&] { wasDoubted = true; });
        QCOMPARE(wasDoubted, evenWithoutRecord);
        QCOMPARE(QFile::exists(place.filePath(u"records/urn_uuid_1.job"_s)), evenWithoutRecord);
    }

    void onlyAFolderOfOnesOwn()
    {
        const QTemporaryDir place;
        const QString link = place.filePath(u"link"_s);
        QVERIFY(QFile::link(place.path(), link));
        QVERIFY(!OwnFolder::at(link.toStdString()));
        const QString shared = place.filePath(u"shared"_s);
        QVERIFY(QDir().mkdir(shared));
        QVERIFY(QFile::setPermissions(shared, QFile::permissions(shared) | QFile::WriteOther));
        QVERIFY(!OwnFolder::at(shared.toStdString()));
        QVERIFY(!OwnFolder::at(place.filePath(u"no/folder"_s).toStdString()));
    }

    /// The name may lead elsewhere by now.
    void aFolderStaysTheSame()
    {
        const QTemporaryDir place;
        const QString name = place.filePath(u"records"_s);
        const std::optional<OwnFolder> folder = OwnFolder::at(name.toStdString());
        QVERIFY(folder);
        QVERIFY(QDir().rename(name, place.filePath(u"moved"_s)));
        QVERIFY(QDir().mkdir(place.filePath(u"trap"_s)) && QFile::link(place.filePath(u"trap"_s), name));
        QVERIFY(JobRecord(*folder, uuid, "scheduler").set(State::Sending));
        QVERIFY(QFile::exists(place.filePath(u"moved/urn_uuid_1.job"_s)));
        QVERIFY(QDir(place.filePath(u"trap"_s)).isEmpty());
    }
};

QTEST_APPLESS_MAIN(JobRecordTest)
#include "jobrecord_test.moc"

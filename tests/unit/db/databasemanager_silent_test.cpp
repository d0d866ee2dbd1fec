#include "capturedoutput.h"
#include "databasemanager.h"
#include "hlogmanager.h"
#include "syncsingleton.h"
#include "temporaryhome.h"
#include "temporarypostgres.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlTableModel>
#include <QTest>

#include <thread>

using namespace Qt::Literals::StringLiterals;

/// The database without a default logger: every operation works, and nothing says a word.
class DatabaseManagerSilentTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home;
    TemporaryPostgres server;
    DatabaseManager manager;

    QSqlDatabase *connect(const QString &name)
    {
        return manager.createConnection(u"QPSQL7"_s, server.database(), server.user(), server.password(),
                                        server.host(), name);
    }

private Q_SLOTS:
    void everyOperationIsSilent()
    {
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        const CapturedOutput output;
        QVERIFY(!manager.createConnection(u"QNOSUCH7"_s, u""_s, u""_s, u""_s, u""_s, u"a"_s));
        QVERIFY(!manager.createConnection(u"QPSQL7"_s, u""_s, u""_s, u""_s, u"/no/such/folder"_s, u"b"_s));
        QSqlDatabase *db = connect(u"shop"_s);
        QVERIFY(db);
        QCOMPARE(manager.executeQuery(u"create table orders (ID serial primary key)"_s, db), 0);
        QCOMPARE(manager.executeQuery(u"create sequence tickets minvalue 0"_s, db), 0);
        QCOMPARE(manager.newRecord(u"orders"_s, db), u"1"_s);
        QCOMPARE(manager.safeNewRecord(u"orders"_s, db), u"2"_s);
        QCOMPARE(manager.getLastId(u"orders"_s, db), u"2"_s);
        QCOMPARE(manager.getLastId(u"nowhere"_s, db), u"Error"_s);
        QCOMPARE(manager.getField(u"orders"_s, u"ID"_s, u"1"_s, db), u"1"_s);
        QVERIFY(manager.existRecord(u"orders"_s, u"1"_s, db));
        QCOMPARE(manager.numRecords(u"orders"_s, u"true"_s, db), 2);
        QCOMPARE(manager.numRecords(u"nowhere"_s, u"true"_s, db), -1);
        QCOMPARE(manager.executeSelectQuery(u"select 1"_s, db), u"1"_s);
        QCOMPARE(manager.executeSelectQuery2(u"select 1"_s, db), QStringList(u"1"_s));
        QCOMPARE(manager.executeSelectQuery3(u"select 1"_s, 1, db), QStringList(u"1"_s));
        QCOMPARE(manager.setSequence(u"tickets"_s, 5, db), u"5"_s);
        QCOMPARE(manager.sequenceValue(u"tickets"_s, db), u"5"_s);
        QCOMPARE(manager.incrementSequence(u"tickets"_s, 2, db), u"7"_s);
        QCOMPARE(manager.decrementSequence(u"tickets"_s, 2, db), u"5"_s);
        QVERIFY(manager.decrementSequenceIfPositive(u"tickets"_s, 5, db));
        manager.begin(db);
        QCOMPARE(manager.removeRecord(u"orders"_s, u"1"_s, db), 1);
        manager.rollback(db);
        manager.begin(db);
        manager.commit(db);
        QSqlQuery query(u"nonsense"_s, *db);
        manager.showQueryError(u"mine"_s, query);
        QSqlTableModel cursor(nullptr, *db);
        cursor.setTable(u"orders"_s);
        cursor.setFilter(u"nonsense"_s);
        QVERIFY(!cursor.select());
        manager.showCursorError(u"mine"_s, cursor);
        QCOMPARE(manager.executeSelectQuery3(u"select 1"_s, 3, db),
                 (QStringList{u"1"_s, QString(), QString()}));
        db->close();
        QCOMPARE(manager.executeQuery(u"select 1"_s, db), -1);
        QCOMPARE(manager.safeNewRecord(u"orders"_s, db), u"Error"_s);
        manager.begin(db);
        manager.rollback(db);
        QCOMPARE(manager.executeQuery(u"select 1"_s, nullptr), -1);
        QVERIFY(!SyncSingleton<HLogManager>::instance()->getLog(QString()));
        QCOMPARE(output.bytes(), QByteArray());
    }

    /// Reading and setting are two statements: two clients that both read before either sets lose a step.
    void twoClientsMayLoseAStep()
    {
        QSqlDatabase *db = connect(u"watcher"_s);
        QVERIFY(db);
        manager.executeQuery(u"create sequence shared start 10"_s, db);
        manager.begin(db);
        manager.executeQuery(u"alter sequence shared cache 1"_s,
                             db); // others can read it now, but not set it
        QString first;
        QString second;
        std::thread one([&] { first = manager.incrementSequence(u"shared"_s, 1, connect(u"one"_s)); });
        std::thread two([&] { second = manager.incrementSequence(u"shared"_s, 1, connect(u"two"_s)); });
        const bool bothWait = QTest::qWaitFor([&] {
            return manager.numRecords(u"pg_locks"_s, u"not granted and relation = 'shared'::regclass"_s,
                                      db) == 2;
        });
        manager.rollback(db);
        one.join();
        two.join();
        QVERIFY(bothWait);
        QCOMPARE(first, u"11"_s);
        QCOMPARE(second, u"11"_s);
        QCOMPARE(manager.sequenceValue(u"shared"_s, db), u"11"_s); // not 12
    }
};

QTEST_GUILESS_MAIN(DatabaseManagerSilentTest)
#include "databasemanager_silent_test.moc"

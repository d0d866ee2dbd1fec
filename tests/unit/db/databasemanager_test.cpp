#include "configuredhome.h"
#include "databasemanager.h"
#include "hlogmanager.h"
#include "logger.h"
#include "logtext.h"
#include "temporarypostgres.h"
#include "threads.h"

#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlField>
#include <QSqlQuery>
#include <QSqlTableModel>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The log lines of a query that worked.
QString queryLines(const QString &method, const QString &sql, int rows)
{
    return u"[time] DEBUG: Query called from method "_s + method + u": "_s + sql +
           u"\n[time] DEBUG:     numRowsAffected: "_s + QString::number(rows) + u'\n';
}

/// The log lines of a query that failed.
QString failureLines(const QString &method, const QString &sql, const QString &cause)
{
    return queryLines(method, sql, -1) + u"[time] ERROR: Error in the method "_s + method +
           u", to query: "_s + sql + u"\n[time] ERROR: "_s + cause + u'\n';
}

/// The log of a statement on a closed connection.
QString notRunLines(const QString &method, const QString &sql)
{
    return failureLines(method, sql, u"not run: connection closed"_s);
}

constexpr char begin[] = "[time] DEBUG: BEGIN\n\n\n";
constexpr char commit[] = "[time] DEBUG: COMMIT\n\n\n";
constexpr char rollback[] = "[time] DEBUG: ROLLBACK\n\n\n";

QString text(const char *lines)
{
    return QString::fromLatin1(lines);
}

} // namespace

/// Every operation against a real server, with the log that it leaves.
class DatabaseManagerTest : public QObject
{
    Q_OBJECT

private:
    const ConfiguredHome home{};
    TemporaryPostgres server;
    DatabaseManager *manager = nullptr;
    QSqlDatabase *db = nullptr;

    QSqlDatabase *connect(const QString &name, const QString &driver = u"QPSQL7"_s)
    {
        return manager->createConnection(driver, server.database(), server.user(), server.password(),
                                         server.host(), name);
    }
    /// What was logged since the last call.
    QString log() const
    {
        const QString lines = logText(home.logPath());
        QFile::resize(home.logPath(), 0); // the logger appends, so it goes on at the start
        return lines;
    }

private Q_SLOTS:
    void initTestCase()
    {
        home.configureLog("DEBUG", "APPEND");
        SyncSingleton<HLogManager>::instance()->set(u"database"_s, QString());
        manager = SyncSingleton<DatabaseManager>::instance();
    }

    void init()
    {
        db = connect(u"shop"_s);
        QVERIFY(db);
        connect(QString());
        const QStringList statements = {
            u"set client_min_messages = warning"_s,
            u"drop table if exists menu, orders"_s,
            u"drop sequence if exists tickets"_s,
            u"create table menu (ID integer primary key, name text, price float8)"_s,
            u"insert into menu values (1, 'Pizza', 6.5), (2, 'Caffè €', 0.30000000000000004), (3, null, null)"_s,
            u"create table orders (ID serial primary key, note text default 'new')"_s,
            u"create sequence tickets minvalue 0 start 10"_s,
        };
        for (const QString &statement : statements)
            QVERIFY(manager->executeQuery(statement, db) >= 0);
        log();
    }

    // Connections

    void aConnectionIsLogged()
    {
        QSqlDatabase *connection = connect(u"second"_s);
        QVERIFY(connection && connection->isOpen());
        QCOMPARE(connection->connectionName(), u"second"_s);
        QCOMPARE(connection->driverName(), u"QPSQL"_s);
        QCOMPARE(log(), u"[time] DEBUG: Connection With postgres DB established\n"_s);
        QCOMPARE(manager->executeSelectQuery(u"select current_user"_s, connection), u"shop"_s);
    }

    void todaysDriverNameWorksToo() { QVERIFY(connect(u"second"_s, u"QPSQL"_s)); }

    void noNameMakesTheDefaultConnection()
    {
        QSqlDatabase *connection = connect(QString());
        QVERIFY(connection);
        QCOMPARE(connection->connectionName(), QString::fromLatin1(QSqlDatabase::defaultConnection));
        QVERIFY(QSqlDatabase::database().isOpen());
    }

    void aMissingDriver()
    {
        QVERIFY(!connect(u"other"_s, u"QNOSUCH7"_s));
        QCOMPARE(log(), u"[time] ERROR: Failed to connect to driver\n"_s);
        QVERIFY(!QSqlDatabase::contains(u"other"_s));
    }

    void aMissingDriverLeavesTheConnectionAlone()
    {
        QVERIFY(!connect(u"shop"_s, u"QNOSUCH7"_s));
        QVERIFY(manager->existRecord(u"menu"_s, u"1"_s, db));
    }

    void aWrongPassword()
    {
        QVERIFY(!manager->createConnection(u"QPSQL7"_s, server.database(), server.user(), u"wrong"_s,
                                           server.host(), u"locked out"_s));
        QCOMPARE(log(), u"[time] ERROR: Failed to open database: QPSQL: Unable to connect\n"
                        "[time] ERROR: connection to server on socket \"%1/.s.PGSQL.5432\" failed: "
                        "FATAL:  password authentication failed for user \"shop\"\n\n"_s.arg(server.host()));
        QVERIFY(QSqlDatabase::contains(u"locked out"_s));
        QVERIFY(!QSqlDatabase::database(u"locked out"_s, false).isOpen());
    }

    void noServer()
    {
        QVERIFY(!manager->createConnection(u"QPSQL7"_s, server.database(), server.user(), server.password(),
                                           u"/no/such/folder"_s, u"nowhere"_s));
        QCOMPARE(log(),
                 u"[time] ERROR: Failed to open database: QPSQL: Unable to connect\n"
                 "[time] ERROR: connection to server on socket \"/no/such/folder/.s.PGSQL.5432\" failed: "
                 "No such file or directory\n"
                 "\tIs the server running locally and accepting connections on that socket?\n\n"_s);
    }

    void aSecondConnectionTakesThePlaceOfTheFirst()
    {
        const QString before = manager->executeSelectQuery(u"select pg_backend_pid()"_s, db);
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        QCOMPARE(connect(u"shop"_s), db);
        QVERIFY(manager->executeSelectQuery(u"select pg_backend_pid()"_s, db) != before);
    }

    void aConnectionCanBeRemoved()
    {
        QSqlDatabase *connection = connect(u"second"_s);
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        *connection = QSqlDatabase();
        QSqlDatabase::removeDatabase(u"second"_s);
        QVERIFY(!QSqlDatabase::contains(u"second"_s));
        QCOMPARE(connect(u"second"_s), connection);
        QVERIFY(connection->isOpen());
    }

    // Reading

    void getField()
    {
        QCOMPARE(manager->getField(u"menu"_s, u"name"_s, u"2"_s, db), u"Caffè €"_s);
        QCOMPARE(log(),
                 queryLines(u"DatabaseManager::getField(...)"_s, u"select name from menu where id = 2"_s, 1));
        QCOMPARE(manager->getField(u"menu"_s, u"name"_s, u"3"_s, db), u""_s); // null
        QCOMPARE(log(),
                 queryLines(u"DatabaseManager::getField(...)"_s, u"select name from menu where id = 3"_s, 1));
        QCOMPARE(manager->getField(u"menu"_s, u"name"_s, u"4"_s, db), u""_s); // no such record
        QCOMPARE(log(),
                 queryLines(u"DatabaseManager::getField(...)"_s, u"select name from menu where id = 4"_s, 0));
        QCOMPARE(manager->getField(u"menu"_s, u"price"_s, u"1"_s, nullptr), u"6.5"_s);
        QCOMPARE(manager->getField(u"menu"_s, u"price"_s, u"3"_s, nullptr), u"0"_s); // a null number
    }

    void getFieldFails()
    {
        QCOMPARE(manager->getField(u"menu"_s, u"colour"_s, u"2"_s, db), u""_s);
        QCOMPARE(log(),
                 failureLines(u"DatabaseManager::getField(...)"_s, u"select colour from menu where id = 2"_s,
                              u"ERROR:  column \"colour\" does not exist\n"
                              "LINE 1: select colour from menu where id = 2\n"
                              "               ^\n(42703)"_s));
    }

    void fractionsHaveFifteenDigits()
    {
        QCOMPARE(manager->getField(u"menu"_s, u"price"_s, u"2"_s, db), u"0.3"_s);
        QCOMPARE(manager->executeSelectQuery(u"select 4.35::float8 * 100"_s, db), u"435"_s);
        QCOMPARE(manager->executeSelectQuery(u"select 12.50"_s, db), u"12.5"_s);
        QCOMPARE(manager->executeSelectQuery(u"select 0.00001"_s, db), u"1e-05"_s);
        QCOMPARE(manager->executeSelectQuery(u"select 12345678901234567890"_s, db),
                 u"1.23456789012346e+19"_s);
        QCOMPARE(manager->executeSelectQuery(u"select 12345678901234567890::text"_s, db),
                 u"12345678901234567890"_s);
    }

    void existRecord()
    {
        QVERIFY(manager->existRecord(u"menu"_s, u"1"_s, db));
        QCOMPARE(log(),
                 queryLines(u"DatabaseManager::existRecord(...)"_s, u"select * from menu where ID = 1"_s, 1));
        QVERIFY(!manager->existRecord(u"menu"_s, u"4"_s, db));
        QCOMPARE(log(),
                 queryLines(u"DatabaseManager::existRecord(...)"_s, u"select * from menu where ID = 4"_s, 0));
        QVERIFY(!manager->existRecord(u"nowhere"_s, u"1"_s, db));
        QCOMPARE(log(),
                 failureLines(u"DatabaseManager::existRecord(...)"_s, u"select * from nowhere where ID = 1"_s,
                              u"ERROR:  relation \"nowhere\" does not exist\n"
                              "LINE 1: select * from nowhere where ID = 1\n"
                              "                      ^\n(42P01)"_s));
    }

    void numRecords()
    {
        QCOMPARE(manager->numRecords(u"menu"_s, u"price > 1 or name is null"_s, db), 2);
        QCOMPARE(log(), queryLines(u"DatabaseManager::existRecord(...)"_s,
                                   u"select count(*) from menu where price > 1 or name is null"_s, 1));
        QCOMPARE(manager->numRecords(u"menu"_s, u"false"_s, db), 0);
    }

    void numRecordsFails()
    {
        QCOMPARE(manager->numRecords(u"nowhere"_s, u"true"_s, db), -1);
        QCOMPARE(log(), failureLines(u"DatabaseManager::existRecord(...)"_s,
                                     u"select count(*) from nowhere where true"_s,
                                     u"ERROR:  relation \"nowhere\" does not exist\n"
                                     "LINE 1: select count(*) from nowhere where true\n"
                                     "                             ^\n(42P01)"_s));
    }

    void executeSelectQuery()
    {
        QCOMPARE(manager->executeSelectQuery(u"select name, ID from menu order by ID"_s, db), u"Pizza"_s);
        QCOMPARE(log(),
                 queryLines(u"executeSelectQuery(...)"_s, u"select name, ID from menu order by ID"_s, 3));
        QCOMPARE(manager->executeSelectQuery(u"select name from menu where false"_s, db), u""_s);
        QCOMPARE(manager->executeSelectQuery(u"select null"_s, db), u""_s);
        QCOMPARE(manager->executeSelectQuery(u"select 9007199254740993"_s, db), u"9007199254740993"_s);
        QCOMPARE(manager->executeSelectQuery(u"select 'true'::bool"_s, db), u"true"_s);
    }

    void executeSelectQuery2()
    {
        QCOMPARE(manager->executeSelectQuery2(u"select name, ID from menu order by ID desc"_s, db),
                 QStringList({u""_s, u"Caffè €"_s, u"Pizza"_s}));
        QCOMPARE(log(), queryLines(u"executeSelectQuery(...)"_s,
                                   u"select name, ID from menu order by ID desc"_s, 3));
        QCOMPARE(manager->executeSelectQuery2(u"select name from menu where false"_s, db), QStringList());
        QCOMPARE(manager->executeSelectQuery2(u"select nothing"_s, db), QStringList());
    }

    void executeSelectQuery3()
    {
        const QString sql = u"select ID, name, price, 'not asked for' from menu order by ID limit 2"_s;
        QCOMPARE(manager->executeSelectQuery3(sql, 3, db), QStringList({u"1"_s, u"Pizza"_s, u"6.5"_s}));
        QCOMPARE(log(), queryLines(u"executeSelectQuery(...)"_s, sql, 2));
        QCOMPARE(manager->executeSelectQuery3(u"select ID, name from menu where ID = 3"_s, 2, db),
                 QStringList({u"3"_s, u""_s}));
        QCOMPARE(manager->executeSelectQuery3(u"select 1 where false"_s, 1, db), QStringList());
        QCOMPARE(manager->executeSelectQuery3(u"select 1"_s, 0, db), QStringList());
        QCOMPARE(manager->executeSelectQuery3(u"select 1"_s, 2, db), QStringList({u"1"_s, u""_s}));
    }

    // Writing

    void executeQuery()
    {
        const QString sql = u"update menu set price = 7 where price is not null"_s;
        QCOMPARE(manager->executeQuery(sql, db), 2);
        QCOMPARE(log(), queryLines(u"executeQuery(...)"_s, sql, 2));
        QCOMPARE(manager->executeQuery(u"update menu set price = 7 where false"_s, nullptr), 0);
        log();
        QCOMPARE(manager->executeQuery(u"insert into menu values (1)"_s, db), -1);
        QCOMPARE(log(), failureLines(u"executeQuery(...)"_s, u"insert into menu values (1)"_s,
                                     u"ERROR:  duplicate key value violates unique constraint \"menu_pkey\"\n"
                                     "DETAIL:  Key (id)=(1) already exists.\n(23505)"_s));
    }

    void anEmptyStatementRunsNothing()
    {
        QCOMPARE(manager->executeQuery(QString(), db), -1);
        QCOMPARE(log(), queryLines(u"executeQuery(...)"_s, u""_s, -1)); // the toolkit knows of no error
    }

    void removeRecord()
    {
        QCOMPARE(manager->removeRecord(u"menu"_s, u"1"_s, db), 1);
        QCOMPARE(log(), queryLines(u"removeRecord"_s, u"delete from menu where ID = 1"_s, 1));
        QCOMPARE(manager->removeRecord(u"menu"_s, u"1"_s, db), 0);
        QCOMPARE(log(), queryLines(u"removeRecord"_s, u"delete from menu where ID = 1"_s, 0));
        QCOMPARE(manager->removeRecord(u"nowhere"_s, u"1"_s, db), -1);
        QCOMPARE(log(), failureLines(u"removeRecord"_s, u"delete from nowhere where ID = 1"_s,
                                     u"ERROR:  relation \"nowhere\" does not exist\n"
                                     "LINE 1: delete from nowhere where ID = 1\n"
                                     "                    ^\n(42P01)"_s));
    }

    void quotedValuesAndNames()
    {
        QSqlField name(u"name"_s, QMetaType(QMetaType::QString));
        name.setValue(u"Caffè d'orzo\\'; drop table menu --"_s);
        const QString value = db->driver()->formatValue(name);
        const QString table = db->driver()->escapeIdentifier(u"menu"_s, QSqlDriver::TableName);
        QCOMPARE(table, u"\"menu\""_s);
        QCOMPARE(manager->executeQuery(u"insert into "_s + table + u" values (4, "_s + value + u')', db), 1);
        QCOMPARE(manager->getField(u"menu"_s, u"name"_s, u"4"_s, db),
                 u"Caffè d'orzo\\'; drop table menu --"_s);
    }

    // Transactions

    void transactionsOnANamedConnection()
    {
        manager->begin(db);
        QCOMPARE(log(), text(begin));
        manager->removeRecord(u"menu"_s, u"1"_s, db);
        QVERIFY(manager->existRecord(u"menu"_s, u"1"_s, nullptr)); // the others still see it
        log();
        manager->rollback(db);
        QCOMPARE(log(), text(rollback));
        QVERIFY(manager->existRecord(u"menu"_s, u"1"_s, db));

        manager->begin(db);
        manager->removeRecord(u"menu"_s, u"1"_s, db);
        log();
        manager->commit(db);
        QCOMPARE(log(), text(commit));
        QVERIFY(!manager->existRecord(u"menu"_s, u"1"_s, nullptr));
    }

    void transactionsOnTheDefaultConnection()
    {
        manager->begin(nullptr);
        QCOMPARE(log(), queryLines(u"executeQuery(...)"_s, u"BEGIN"_s, 0) + text(begin));
        manager->removeRecord(u"menu"_s, u"1"_s, nullptr);
        QVERIFY(manager->existRecord(u"menu"_s, u"1"_s, db));
        log();
        manager->rollback(nullptr);
        QCOMPARE(log(), queryLines(u"executeQuery(...)"_s, u"ROLLBACK"_s, 0) + text(rollback));
        QVERIFY(manager->existRecord(u"menu"_s, u"1"_s, nullptr));

        manager->begin(nullptr);
        manager->removeRecord(u"menu"_s, u"1"_s, nullptr);
        log();
        manager->commit(nullptr);
        QCOMPARE(log(), queryLines(u"executeQuery(...)"_s, u"COMMIT"_s, 0) + text(commit));
        QVERIFY(!manager->existRecord(u"menu"_s, u"1"_s, db));
    }

    // Sequences

    void sequences()
    {
        QCOMPARE(manager->sequenceValue(u"tickets"_s, db), u"10"_s);
        QCOMPARE(log(), queryLines(u"executeSelectQuery(...)"_s, u"select last_value from tickets"_s, 1));
        QCOMPARE(manager->setSequence(u"tickets"_s, 5, db), u"5"_s);
        QCOMPARE(log(), queryLines(u"executeSelectQuery(...)"_s, u"SELECT setval('tickets', 5)"_s, 1));
        QCOMPARE(manager->incrementSequence(u"tickets"_s, 3, db), u"8"_s);
        QCOMPARE(log(), queryLines(u"executeSelectQuery(...)"_s, u"select last_value from tickets"_s, 1) +
                            queryLines(u"executeSelectQuery(...)"_s, u"SELECT setval('tickets', 8)"_s, 1));
        QCOMPARE(manager->decrementSequence(u"tickets"_s, 2, nullptr), u"6"_s);
        QCOMPARE(log(), queryLines(u"executeSelectQuery(...)"_s, u"select last_value from tickets"_s, 1) +
                            queryLines(u"executeSelectQuery(...)"_s, u"SELECT setval('tickets', 6)"_s, 1));
        QCOMPARE(manager->sequenceValue(u"tickets"_s, db), u"6"_s);
    }

    void aSequenceStepsDownToZeroAndNoFurther()
    {
        manager->setSequence(u"tickets"_s, 4, db);
        log();
        QVERIFY(!manager->decrementSequenceIfPositive(u"tickets"_s, 5, db));
        QCOMPARE(log(), queryLines(u"executeSelectQuery(...)"_s, u"select last_value from tickets"_s, 1));
        manager->setSequence(u"tickets"_s, 5, db);
        log();
        QVERIFY(manager->decrementSequenceIfPositive(u"tickets"_s, 5, db));
        QCOMPARE(log(), queryLines(u"executeSelectQuery(...)"_s, u"select last_value from tickets"_s, 1) +
                            queryLines(u"executeSelectQuery(...)"_s, u"select last_value from tickets"_s, 1) +
                            queryLines(u"executeSelectQuery(...)"_s, u"SELECT setval('tickets', 0)"_s, 1));
        QCOMPARE(manager->sequenceValue(u"tickets"_s, db), u"0"_s);
        QVERIFY(!manager->decrementSequenceIfPositive(u"tickets"_s, 1, db));
        QCOMPARE(manager->sequenceValue(u"tickets"_s, db), u"0"_s);
    }

    void aSequenceBelowItsLeastValueIsTheServersBusiness()
    {
        const QString sql = u"SELECT setval('tickets', -1)"_s;
        QCOMPARE(manager->decrementSequence(u"tickets"_s, 11, db), u""_s);
        QCOMPARE(log(),
                 queryLines(u"executeSelectQuery(...)"_s, u"select last_value from tickets"_s, 1) +
                     failureLines(u"executeSelectQuery(...)"_s, sql,
                                  u"ERROR:  setval: value -1 is out of bounds for sequence \"tickets\" "
                                  "(0..9223372036854775807)\n(22003)"_s));
        QCOMPARE(manager->sequenceValue(u"tickets"_s, db), u"10"_s);
    }

    void sequencesCountIn64Bits()
    {
        manager->setSequence(u"tickets"_s, std::numeric_limits<int>::max(), db);
        QCOMPARE(manager->incrementSequence(u"tickets"_s, 1, db), u"2147483648"_s);
        QCOMPARE(manager->decrementSequence(u"tickets"_s, std::numeric_limits<int>::min(), db),
                 u"4294967296"_s);
        manager->executeQuery(u"select setval('tickets', 9223372036854775807)"_s, db);
        QCOMPARE(manager->incrementSequence(u"tickets"_s, 1, db), u""_s); // refused
        QCOMPARE(manager->sequenceValue(u"tickets"_s, db), u"9223372036854775807"_s);
    }

    void aMissingSequenceCountsAsZero()
    {
        QCOMPARE(manager->sequenceValue(u"nowhere"_s, db), u""_s);
        log();
        QCOMPARE(manager->incrementSequence(u"nowhere"_s, 7, db), u""_s);
        QVERIFY(log().contains(u"SELECT setval('nowhere', 7)"_s));
        QVERIFY(!manager->decrementSequenceIfPositive(u"nowhere"_s, 1, db));
    }

    // Records

    void getLastId()
    {
        QCOMPARE(manager->getLastId(u"menu"_s, db), u"3"_s);
        QCOMPARE(log(), queryLines(u"getLastId"_s, u"select max(ID) from menu"_s, 1));
        QCOMPARE(manager->getLastId(u"orders"_s, db), u"0"_s); // no records: the maximum is null
        log();
        QCOMPARE(manager->getLastId(u"nowhere"_s, db), u"Error"_s);
        QCOMPARE(
            log(),
            failureLines(u"getLastId"_s, u"select max(ID) from nowhere"_s,
                         u"ERROR:  relation \"nowhere\" does not exist\n"
                         "LINE 1: select max(ID) from nowhere\n"
                         "                            ^\n(42P01)"_s) +
                u"[time] ERROR: getLastId( nowhere ): select max(ID) from nowhere return empty result\n"_s);
    }

    void newRecord()
    {
        QCOMPARE(manager->newRecord(u"orders"_s, db), u"1"_s);
        QCOMPARE(log(), queryLines(u"newRecord"_s, u"insert into orders values(default)"_s, 1) +
                            queryLines(u"getLastId"_s, u"select max(ID) from orders"_s, 1));
        QCOMPARE(manager->newRecord(u"orders"_s, nullptr), u"2"_s);
        QCOMPARE(manager->getField(u"orders"_s, u"note"_s, u"2"_s, db), u"new"_s);
    }

    void safeNewRecord()
    {
        const QString record = queryLines(u"newRecord"_s, u"insert into orders values(default)"_s, 1) +
                               queryLines(u"getLastId"_s, u"select max(ID) from orders"_s, 1);
        QCOMPARE(manager->safeNewRecord(u"orders"_s, db), u"1"_s);
        QCOMPARE(log(), text(begin) + record + text(commit));
        QCOMPARE(manager->safeNewRecord(u"orders"_s, nullptr), u"2"_s);
        QCOMPARE(log(), queryLines(u"executeQuery(...)"_s, u"BEGIN"_s, 0) + text(begin) + record +
                            queryLines(u"executeQuery(...)"_s, u"COMMIT"_s, 0) + text(commit));
        QVERIFY(manager->existRecord(u"orders"_s, u"2"_s, db));
    }

    void safeNewRecordCommitsAfterAFailureToo()
    {
        // The table has no default ID, so the insert fails, and with it the rest of the transaction.
        QCOMPARE(manager->safeNewRecord(u"menu"_s, nullptr), u"Error"_s);
        const QString lines = log();
        QVERIFY2(lines.contains(u"to query: insert into menu values(default)\n"_s), qPrintable(lines));
        QVERIFY2(lines.contains(
                     u"to query: select max(ID) from menu\n[time] ERROR: ERROR:  current transaction is "
                     "aborted, commands ignored until end of transaction block\n"_s),
                 qPrintable(lines));
        QVERIFY2(lines.endsWith(text(commit)), qPrintable(lines));
        QCOMPARE(manager->getLastId(u"menu"_s, nullptr), u"3"_s); // the transaction is over
    }

    // The log's own operations

    void showQueryError()
    {
        QSqlQuery good(u"select 1 as one"_s, *db);
        manager->showQueryError(u"mine"_s, good);
        QCOMPARE(log(), queryLines(u"mine"_s, u"select 1 as one"_s, 1));
        QSqlQuery bad(u"select"_s + u" from from"_s, *db);
        manager->showQueryError(u"mine"_s, bad);
        QCOMPARE(log(), failureLines(u"mine"_s, u"select from from"_s,
                                     u"ERROR:  syntax error at or near \"from\"\n"
                                     "LINE 1: select from from\n"
                                     "                    ^\n(42601)"_s));
    }

    void showCursorError()
    {
        QSqlTableModel good(nullptr, *db);
        good.setTable(u"menu"_s);
        QVERIFY(good.select());
        manager->showCursorError(u"mine"_s, good);
        QCOMPARE(log(), u""_s);
        QSqlTableModel bad(nullptr, *db);
        bad.setTable(u"menu"_s);
        bad.setFilter(u"colour = 1"_s);
        QVERIFY(!bad.select());
        manager->showCursorError(u"mine"_s, bad);
        QCOMPARE(log(), u"[time] ERROR: Error in the method mine, to cursor: menu\n"
                        "[time] ERROR: ERROR:  column \"colour\" does not exist\n"
                        "LINE 1: SELECT \"id\", \"name\", \"price\" FROM \"menu\" WHERE colour = 1\n"
                        "                                                       ^\n(42703)\n"_s);
    }

    // Threads

    void threadsWithConnectionsOfTheirOwnShareTheLog()
    {
        constexpr int threads = 4;
        constexpr int queries = 50;
        runAtOnce(threads, [&](int thread) {
            QSqlDatabase *own = connect(u"thread %1"_s.arg(thread));
            for (int i = 0; own && i < queries; ++i)
                manager->executeSelectQuery(u"select nonsense"_s, own);
        });
        const QString lines = log();
        QCOMPARE(lines.count(u"[time] DEBUG: Connection With postgres DB established\n"_s), threads);
        QCOMPARE(lines.count(u"[time] ERROR: Error in the method executeSelectQuery(...), to query: "
                             "select nonsense\n"_s),
                 threads * queries);
    }

    // Lost connections

    void aConnectionLostBetweenTwoCalls()
    {
        const QString pid = manager->executeSelectQuery(u"select pg_backend_pid()"_s, db);
        QCOMPARE(manager->executeSelectQuery(u"select pg_terminate_backend("_s + pid + u", 5000)"_s, nullptr),
                 u"true"_s);
        log();
        QCOMPARE(manager->numRecords(u"menu"_s, u"true"_s, db), -1);
        const QString sql = u"select count(*) from menu where true"_s;
        QCOMPARE(log(), failureLines(u"DatabaseManager::existRecord(...)"_s, sql,
                                     u"FATAL:  terminating connection due to administrator command\n"
                                     "server closed the connection unexpectedly\n"
                                     "\tThis probably means the server terminated abnormally\n"
                                     "\tbefore or while processing the request.\n(57P01)"_s));
        QCOMPARE(manager->numRecords(u"menu"_s, u"true"_s, db), -1); // and again, now known to be lost
        QCOMPARE(log(),
                 failureLines(u"DatabaseManager::existRecord(...)"_s, sql, u"not run: connection closed"_s));
        manager->begin(db);
        QCOMPARE(log(), text(begin));
        manager->commit(db);
        QCOMPARE(log(), text(commit));
        manager->rollback(db);
        QCOMPARE(log(), text(rollback));
        QCOMPARE(manager->getLastId(u"menu"_s, db), u"Error"_s);
        QCOMPARE(log(),
                 notRunLines(u"getLastId"_s, u"select max(ID) from menu"_s) +
                     u"[time] ERROR: getLastId( menu ): select max(ID) from menu return empty result\n"_s);
        QCOMPARE(manager->safeNewRecord(u"orders"_s, db), u"Error"_s);
        QCOMPARE(
            log(),
            text(begin) + notRunLines(u"newRecord"_s, u"insert into orders values(default)"_s) +
                notRunLines(u"getLastId"_s, u"select max(ID) from orders"_s) +
                u"[time] ERROR: getLastId( orders ): select max(ID) from orders return empty result\n"_s +
                text(commit));
    }

    void anEmptiedHandleIsNotTheDefaultConnection()
    {
        QVERIFY(connect(QString())); // the default connection is open
        QSqlDatabase *removed = connect(u"removed"_s);
        *removed = QSqlDatabase();
        QSqlDatabase::removeDatabase(u"removed"_s);
        log();
        QCOMPARE(manager->removeRecord(u"menu"_s, u"1"_s, removed), -1);
        QCOMPARE(log(), notRunLines(u"removeRecord"_s, u"delete from menu where ID = 1"_s));
        QVERIFY(manager->existRecord(u"menu"_s, u"1"_s, db));
    }

    void aServerStoppedInATransaction()
    {
        manager->begin(db);
        QCOMPARE(manager->removeRecord(u"menu"_s, u"1"_s, db), 1);
        server.stop();
        log();
        QCOMPARE(manager->removeRecord(u"menu"_s, u"2"_s, db), -1);
        QCOMPARE(log(), failureLines(u"removeRecord"_s, u"delete from menu where ID = 2"_s,
                                     u"server closed the connection unexpectedly\n"
                                     "\tThis probably means the server terminated abnormally\n"
                                     "\tbefore or while processing the request.\n()"_s));
        manager->commit(db);
        QCOMPARE(log(), text(commit));
        QVERIFY(!connect(u"second"_s));
        QVERIFY(log().startsWith(u"[time] ERROR: Failed to open database: QPSQL: Unable to connect\n"_s));
        server.start();
        QVERIFY(connect(u"shop"_s));
        QCOMPARE(manager->executeSelectQuery2(u"select ID from menu order by ID"_s, db),
                 QStringList({u"1"_s, u"2"_s, u"3"_s}));
    }

    void noDefaultConnection()
    {
        *connect(QString()) = QSqlDatabase();
        QSqlDatabase::removeDatabase(QString::fromLatin1(QSqlDatabase::defaultConnection));
        log();
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        QCOMPARE(manager->executeSelectQuery(u"select 1"_s, nullptr), u""_s);
        QCOMPARE(log(), notRunLines(u"executeSelectQuery(...)"_s, u"select 1"_s));
        manager->rollback(nullptr);
        QCOMPARE(log(), notRunLines(u"executeQuery(...)"_s, u"ROLLBACK"_s) + text(rollback));
    }

    void aClosedDefaultConnectionIsLogged()
    {
        connect(QString())->close();
        log();
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        QCOMPARE(manager->numRecords(u"menu"_s, u"true"_s, nullptr), -1);
        QCOMPARE(log(), notRunLines(u"DatabaseManager::existRecord(...)"_s,
                                    u"select count(*) from menu where true"_s));
        QCOMPARE(manager->safeNewRecord(u"orders"_s, nullptr), u"Error"_s);
        QCOMPARE(
            log(),
            notRunLines(u"executeQuery(...)"_s, u"BEGIN"_s) + text(begin) +
                notRunLines(u"newRecord"_s, u"insert into orders values(default)"_s) +
                notRunLines(u"getLastId"_s, u"select max(ID) from orders"_s) +
                u"[time] ERROR: getLastId( orders ): select max(ID) from orders return empty result\n"_s +
                notRunLines(u"executeQuery(...)"_s, u"COMMIT"_s) + text(commit));
        QVERIFY(
            !QSqlDatabase::database(QString::fromLatin1(QSqlDatabase::defaultConnection), false).isOpen());
    }

    void aDatabaseThatIsDownAtStartIsLogged()
    {
        QVERIFY(!manager->createConnection(u"QPSQL7"_s, server.database(), server.user(), server.password(),
                                           u"/no/such/folder"_s, QString()));
        QVERIFY(log().startsWith(u"[time] ERROR: Failed to open database: QPSQL: Unable to connect\n"_s));
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        QCOMPARE(manager->getField(u"menu"_s, u"name"_s, u"1"_s, nullptr), u""_s);
        QCOMPARE(log(),
                 notRunLines(u"DatabaseManager::getField(...)"_s, u"select name from menu where id = 1"_s));
    }

    void aDefaultConnectionThatWasLost()
    {
        const QString pid = manager->executeSelectQuery(u"select pg_backend_pid()"_s, nullptr);
        QCOMPARE(manager->executeSelectQuery(u"select pg_terminate_backend("_s + pid + u", 5000)"_s, db),
                 u"true"_s);
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        QVERIFY(!manager->existRecord(u"menu"_s, u"1"_s, nullptr)); // tells the toolkit
        log();
        QVERIFY(!manager->existRecord(u"menu"_s, u"1"_s, nullptr));
        QCOMPARE(log(),
                 notRunLines(u"DatabaseManager::existRecord(...)"_s, u"select * from menu where ID = 1"_s));
    }
};

QTEST_GUILESS_MAIN(DatabaseManagerTest)
#include "databasemanager_test.moc"

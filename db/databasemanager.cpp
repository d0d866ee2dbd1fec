#include "databasemanager.h"

#include "hlogmanager.h"
#include "logger.h"
#include "syncsingleton.h"

#include <QMutex>
#include <QMutexLocker>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QSqlTableModel>
#include <QVariant>

#include <map>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The handle behind the pointers given out for a connection name. The toolkit hands out values, callers hold
/// pointers: the handles live here, and a map never moves them.
QSqlDatabase *handle(const QString &connectionName)
{
    static QMutex mutex; // threads open connections of their own
    static std::map<QString, QSqlDatabase> handles;
    const QMutexLocker lock(&mutex);
    return &handles[connectionName];
}

/// Callers still ask for the driver by the name of an older server.
QString todaysDriver(const QString &driver)
{
    return driver == "QPSQL7"_L1 ? u"QPSQL"_s : driver;
}

/// Adds a connection to the toolkit's registry in place of any earlier one of that name. Null when the
/// toolkit has no such driver.
QSqlDatabase *addDatabase(const QString &driver, const QString &connectionName)
{
    if (!QSqlDatabase::isDriverAvailable(driver))
        return nullptr;
    QSqlDatabase *db = handle(connectionName);
    *db = QSqlDatabase(); // before the removal, or the toolkit warns that the connection is in use
    QSqlDatabase::removeDatabase(connectionName);
    *db = QSqlDatabase::addDatabase(driver, connectionName);
    return db->isValid() ? db : nullptr;
}

/// The connection that `db` stands for: null is the default one, as it is, without an attempt to open it. Not
/// valid when there is none.
QSqlDatabase connectionOf(const QSqlDatabase *db)
{
    constexpr bool open = false;
    return db ? *db : QSqlDatabase::database(QString::fromLatin1(QSqlDatabase::defaultConnection), open);
}

/// The toolkit's own text of a value, but for fractions: it would give them 17 digits.
QString columnText(const QSqlQuery &query, int column)
{
    const QVariant value = query.value(column);
    if (value.typeId() == QMetaType::Double)
        return QString::number(value.toDouble(), 'g', 15);
    return value.toString();
}

} // namespace

DatabaseManager::DatabaseManager() : log(SyncSingleton<HLogManager>::instance()->getLog(QString())) {}

QSqlDatabase *DatabaseManager::createConnection(const QString &driver, const QString &databaseName,
                                                const QString &userName, const QString &password,
                                                const QString &hostName, const QString &connectionName)
{
    QSqlDatabase *db = addDatabase(
        todaysDriver(driver),
        connectionName.isEmpty() ? QString::fromLatin1(QSqlDatabase::defaultConnection) : connectionName);
    if (!db) {
        error(u"Failed to connect to driver"_s);
        return nullptr;
    }
    db->setDatabaseName(databaseName);
    db->setUserName(userName);
    db->setPassword(password);
    db->setHostName(hostName);
    if (!db->open()) {
        error(u"Failed to open database: "_s + db->lastError().driverText());
        error(db->lastError().databaseText());
        return nullptr;
    }
    debug(u"Connection With "_s + databaseName + u" DB established"_s);
    return db;
}

void DatabaseManager::showQueryError(const QString &method, QSqlQuery &query)
{
    showQuery(method, query.lastQuery(), query.numRowsAffected());
    if (query.lastError().type() != QSqlError::NoError)
        showFailure(method, u"query: "_s + query.lastQuery(), query.lastError().databaseText());
}

void DatabaseManager::showCursorError(const QString &method, QSqlTableModel &cursor)
{
    if (cursor.lastError().type() != QSqlError::NoError)
        showFailure(method, u"cursor: "_s + cursor.tableName(), cursor.lastError().databaseText());
}

QString DatabaseManager::getField(const QString &table, const QString &field, const QString &id,
                                  QSqlDatabase *db)
{
    QSqlQuery query = run(u"DatabaseManager::getField(...)"_s,
                          u"select "_s + field + u" from "_s + table + u" where id = "_s + id, db);
    return query.next() ? columnText(query, 0) : QString();
}

int DatabaseManager::removeRecord(const QString &table, const QString &id, QSqlDatabase *db)
{
    return run(u"removeRecord"_s, u"delete from "_s + table + u" where ID = "_s + id, db).numRowsAffected();
}

bool DatabaseManager::existRecord(const QString &table, const QString &id, QSqlDatabase *db)
{
    return run(u"DatabaseManager::existRecord(...)"_s, u"select * from "_s + table + u" where ID = "_s + id,
               db)
        .next();
}

int DatabaseManager::numRecords(const QString &table, const QString &condition, QSqlDatabase *db)
{
    // The label is existRecord's: those who read the logs look for it there.
    QSqlQuery query = run(u"DatabaseManager::existRecord(...)"_s,
                          u"select count(*) from "_s + table + u" where "_s + condition, db);
    return query.next() ? query.value(0).toInt() : -1;
}

QString DatabaseManager::executeSelectQuery(const QString &sql, QSqlDatabase *db)
{
    QSqlQuery query = run(u"executeSelectQuery(...)"_s, sql, db);
    return query.next() ? columnText(query, 0) : QString();
}

QStringList DatabaseManager::executeSelectQuery2(const QString &sql, QSqlDatabase *db)
{
    QSqlQuery query = run(u"executeSelectQuery(...)"_s, sql, db);
    QStringList rows;
    while (query.next())
        rows << columnText(query, 0);
    return rows;
}

QStringList DatabaseManager::executeSelectQuery3(const QString &sql, int columns, QSqlDatabase *db)
{
    QSqlQuery query = run(u"executeSelectQuery(...)"_s, sql, db);
    QStringList fields;
    if (query.next()) {
        const int present = query.record().count();
        for (int column = 0; column < columns; ++column)
            fields << (column < present ? columnText(query, column) : QString());
    }
    return fields;
}

int DatabaseManager::executeQuery(const QString &sql, QSqlDatabase *db)
{
    return run(u"executeQuery(...)"_s, sql, db).numRowsAffected();
}

void DatabaseManager::begin(QSqlDatabase *db)
{
    if (db) {
        if (db->isOpen()) // the toolkit would warn on standard error, here and in the next two
            db->transaction();
    } else {
        executeQuery(u"BEGIN"_s, nullptr);
    }
    debug(u"BEGIN\n\n"_s);
}

void DatabaseManager::commit(QSqlDatabase *db)
{
    if (db) {
        if (db->isOpen())
            db->commit();
    } else {
        executeQuery(u"COMMIT"_s, nullptr);
    }
    debug(u"COMMIT\n\n"_s);
}

void DatabaseManager::rollback(QSqlDatabase *db)
{
    if (db) {
        if (db->isOpen())
            db->rollback();
    } else {
        executeQuery(u"ROLLBACK"_s, nullptr);
    }
    debug(u"ROLLBACK\n\n"_s);
}

QString DatabaseManager::sequenceValue(const QString &sequence, QSqlDatabase *db)
{
    return executeSelectQuery(u"select last_value from "_s + sequence, db);
}

QString DatabaseManager::setSequence(const QString &sequence, int value, QSqlDatabase *db)
{
    return writeSequence(sequence, value, db);
}

QString DatabaseManager::incrementSequence(const QString &sequence, int step, QSqlDatabase *db)
{
    return stepSequence(sequence, step, db);
}

QString DatabaseManager::decrementSequence(const QString &sequence, int step, QSqlDatabase *db)
{
    return stepSequence(sequence, -qint64(step), db);
}

bool DatabaseManager::decrementSequenceIfPositive(const QString &sequence, int step, QSqlDatabase *db)
{
    if (sequenceValue(sequence, db).toLongLong() < step)
        return false;
    decrementSequence(sequence, step, db);
    return true;
}

QString DatabaseManager::getLastId(const QString &table, QSqlDatabase *db)
{
    const QString sql = u"select max(ID) from "_s + table;
    QSqlQuery query = run(u"getLastId"_s, sql, db);
    if (query.next())
        return columnText(query, 0);
    error(u"getLastId( "_s + table + u" ): "_s + sql + u" return empty result"_s);
    return u"Error"_s;
}

QString DatabaseManager::newRecord(const QString &table, QSqlDatabase *db)
{
    run(u"newRecord"_s, u"insert into "_s + table + u" values(default)"_s, db);
    return getLastId(table, db);
}

QString DatabaseManager::safeNewRecord(const QString &table, QSqlDatabase *db)
{
    begin(db);
    QString id = newRecord(table, db);
    commit(db);
    return id;
}

void DatabaseManager::debug(const QString &message)
{
    if (log)
        log->write(Logger::DEBUG, message);
}

void DatabaseManager::error(const QString &message)
{
    if (log)
        log->write(Logger::ERROR, message);
}

void DatabaseManager::showQuery(const QString &method, const QString &sql, int rows)
{
    debug(u"Query called from method "_s + method + u": "_s + sql);
    debug(u"    numRowsAffected: "_s + QString::number(rows));
}

void DatabaseManager::showFailure(const QString &method, const QString &object, const QString &cause)
{
    error(u"Error in the method "_s + method + u", to "_s + object);
    error(cause);
}

/// Runs one statement and logs it.
QSqlQuery DatabaseManager::run(const QString &method, const QString &sql, QSqlDatabase *db)
{
    const QSqlDatabase connection = connectionOf(db);
    // The toolkit would warn on standard error, report no error, and for a handle that was emptied take the
    // default connection.
    if (!connection.isOpen()) {
        showQuery(method, sql, -1);
        showFailure(method, u"query: "_s + sql, u"not run: connection closed"_s);
        return QSqlQuery(connection);
    }
    QSqlQuery query(sql, connection);
    showQueryError(method, query);
    return query;
}

/// Counts in 64 bits, as the server does.
QString DatabaseManager::stepSequence(const QString &sequence, qint64 step, QSqlDatabase *db)
{
    const qint64 value = sequenceValue(sequence, db).toLongLong();
    // Added unsigned, where an overflow is defined: the server refuses the negative value that comes of it.
    return writeSequence(sequence, static_cast<qint64>(quint64(value) + quint64(step)), db);
}

QString DatabaseManager::writeSequence(const QString &sequence, qint64 value, QSqlDatabase *db)
{
    return executeSelectQuery(u"SELECT setval('"_s + sequence + u"', "_s + QString::number(value) + u")"_s,
                              db);
}

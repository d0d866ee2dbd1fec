#pragma once

#include <QString>
#include <QStringList>

class Logger;
class QSqlDatabase;
class QSqlQuery;
class QSqlTableModel;

/// Runs SQL on the application's PostgreSQL database and logs every statement. Reached through
/// `SyncSingleton<DatabaseManager>::instance()`. REQUIRES: a QCoreApplication.
///
/// WARNING: statements are put together from the arguments as they stand. Nothing is quoted or escaped, so
/// text from outside must never reach an argument unquoted. The toolkit quotes:
///
///     QSqlField name(u"name"_s, QMetaType(QMetaType::QString));
///     name.setValue(u"Caffè d'orzo"_s);
///     const QString value = db->driver()->formatValue(name);                             // 'Caffè d''orzo'
///     const QString table = db->driver()->escapeIdentifier(u"menu"_s, QSqlDriver::TableName); // "menu"
///
/// `db` is the connection to use; null means the toolkit's default connection. A connection belongs to the
/// thread that made it. Tables have a primary key column named ID.
///
/// The server's own notices, such as a ROLLBACK outside a transaction, go to standard error by the server's
/// library.
///
/// Nothing is thrown. A statement that fails is logged at level ERROR and gives what an empty result gives.
/// Columns are read as text. A null is "" in a column of text and "0" in a column of numbers; fractions and
/// numeric columns have up to 15 digits.
class DatabaseManager
{
public:
    /// Logs to the default logger of this moment; without one, works silently.
    DatabaseManager();
    DatabaseManager(const DatabaseManager &) = delete;
    DatabaseManager &operator=(const DatabaseManager &) = delete;

    /// Opens a connection; "" as `connectionName` makes it the toolkit's default connection. "QPSQL7" is
    /// today's "QPSQL". Null when there is no such driver or the database cannot be opened; the cause is
    /// logged, and in the second case the closed connection stays registered.
    ///
    /// The pointer is valid until the process ends: do not delete it. `close()` ends the connection. A
    /// second connection of the same name ends the first and takes its place, behind the same pointer. To
    /// take a connection out of the toolkit's registry, empty the handle first: `*db = QSqlDatabase()`, then
    /// `QSqlDatabase::removeDatabase(name)`.
    QSqlDatabase *createConnection(const QString &driver, const QString &databaseName,
                                   const QString &userName, const QString &password, const QString &hostName,
                                   const QString &connectionName);

    /// Logs a query that was run: text, affected rows and, if it failed, the error. `method` names the
    /// caller.
    void showQueryError(const QString &method, QSqlQuery &query);
    /// Logs the last error of a cursor, which is a table model today; nothing when there is none.
    void showCursorError(const QString &method, QSqlTableModel &cursor);

    /// One field of the record `id`; "" when there is no such record.
    QString getField(const QString &table, const QString &field, const QString &id, QSqlDatabase *db);
    /// Returns how many records went, -1 on failure.
    int removeRecord(const QString &table, const QString &id, QSqlDatabase *db);
    bool existRecord(const QString &table, const QString &id, QSqlDatabase *db);
    /// Returns how many records satisfy `condition`, -1 on failure.
    int numRecords(const QString &table, const QString &condition, QSqlDatabase *db);

    /// The first column of the first row; "" when there is no row.
    QString executeSelectQuery(const QString &sql, QSqlDatabase *db);
    /// The first column of every row.
    QStringList executeSelectQuery2(const QString &sql, QSqlDatabase *db);
    /// The first `columns` columns of the first row; empty when there is no row. A column that the result
    /// does not have is "".
    QStringList executeSelectQuery3(const QString &sql, int columns, QSqlDatabase *db);
    /// Runs any statement. Returns the affected rows, -1 on failure.
    int executeQuery(const QString &sql, QSqlDatabase *db);

    void begin(QSqlDatabase *db);
    void commit(QSqlDatabase *db);
    void rollback(QSqlDatabase *db);

    // Sequences. A step reads the value and then sets it, in two statements without a lock: when two clients
    // step one sequence at once, a step may be lost. A client that cannot live with that calls nextval().

    /// The last value that the sequence gave, as text; "" on failure.
    QString sequenceValue(const QString &sequence, QSqlDatabase *db);
    /// Returns the server's answer, which is the value; "" on failure.
    QString setSequence(const QString &sequence, int value, QSqlDatabase *db);
    /// Returns the new value, "" on failure.
    QString incrementSequence(const QString &sequence, int step, QSqlDatabase *db);
    QString decrementSequence(const QString &sequence, int step, QSqlDatabase *db);
    /// Takes `step` off unless that would leave less than 0; returns whether it did. To reach 0 the sequence
    /// needs MINVALUE 0 on the server.
    bool decrementSequenceIfPositive(const QString &sequence, int step, QSqlDatabase *db);

    /// The largest ID of the table: "0" when it has no records, "Error" when it cannot be asked.
    QString getLastId(const QString &table, QSqlDatabase *db);
    /// Inserts a record of default values and returns the largest ID, which is taken to be the new one.
    QString newRecord(const QString &table, QSqlDatabase *db);
    /// The same in a transaction of its own. It is committed even if the insert fails.
    QString safeNewRecord(const QString &table, QSqlDatabase *db);

private:
    void debug(const QString &message);
    void error(const QString &message);
    void showQuery(const QString &method, const QString &sql, int rows);
    void showFailure(const QString &method, const QString &object, const QString &cause);
    QSqlQuery run(const QString &method, const QString &sql, QSqlDatabase *db);
    QString stepSequence(const QString &sequence, qint64 step, QSqlDatabase *db);
    QString writeSequence(const QString &sequence, qint64 value, QSqlDatabase *db);

    Logger *const log; ///< not owned; may be null
};

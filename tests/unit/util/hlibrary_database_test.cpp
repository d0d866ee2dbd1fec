#include "configuredhome.h"
#include "databasemanager.h"
#include "hlibrary.h"
#include "hlogmanager.h"
#include "logtext.h"
#include "temporarypostgres.h"

#include <QSqlDatabase>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// The connection that the configuration names, by today's driver though the older one is asked for.
class HLibraryDatabaseTest : public QObject
{
    Q_OBJECT

private:
    const ConfiguredHome home{};
    const TemporaryPostgres server;

private Q_SLOTS:
    void initTestCase()
    {
        home.configureLog("DEBUG", "APPEND");
        SyncSingleton<HLogManager>::instance()->set(u"database"_s, QString());
    }

    void aNamedConnection()
    {
        home.configureLog("DEBUG", "APPEND", server.configuration());
        QSqlDatabase *db = HLibrary::newDBConnection(u"till"_s);
        QVERIFY(db);
        QCOMPARE(db->connectionName(), u"till"_s);
        QCOMPARE(db->driverName(), u"QPSQL"_s);
        QCOMPARE(SyncSingleton<DatabaseManager>::instance()->executeSelectQuery(u"select 6 * 7"_s, db),
                 u"42"_s);
    }

    void theDefaultConnection()
    {
        home.configureLog("DEBUG", "APPEND", server.configuration());
        QVERIFY(HLibrary::newDBConnection(QString()));
        QCOMPARE(SyncSingleton<DatabaseManager>::instance()->executeSelectQuery(u"select 6 * 7"_s, nullptr),
                 u"42"_s);
    }

    void noServer()
    {
        home.configureLog("DEBUG", "APPEND", "db: { hostname = /no/such/folder; };");
        QFile::resize(home.logPath(), 0);
        QVERIFY(!HLibrary::newDBConnection(u"nowhere"_s));
        const QString log = logText(home.logPath());
        QVERIFY2(log.startsWith(u"[time] ERROR: Failed to open database: QPSQL: Unable to connect\n"_s),
                 qPrintable(log));
    }
};

QTEST_GUILESS_MAIN(HLibraryDatabaseTest)
#include "hlibrary_database_test.moc"

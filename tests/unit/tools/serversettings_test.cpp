// What the settings of the print server are said to be, by the server's own rules.

#include "scratchfolder.h"
#include "serversettings.h"

#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Files that root alone may read, and nobody is root.
class UnreadableFiles
{
public:
    explicit UnreadableFiles(const ScratchFolder &folder)
    {
        chmod(QFile::encodeName(folder.path()).constData(), 0755);
        for (const QString &name : folder.names())
            chmod(QFile::encodeName(folder.path(name)).constData(), 0);
        if (wasRoot && seteuid(nobody) != 0)
            qFatal("cannot become nobody");
    }
    ~UnreadableFiles()
    {
        if (wasRoot && seteuid(0) != 0)
            qFatal("cannot become root again");
    }
    UnreadableFiles(const UnreadableFiles &) = delete;
    UnreadableFiles &operator=(const UnreadableFiles &) = delete;

private:
    static constexpr uid_t nobody = 65534;
    const bool wasRoot = geteuid() == 0;
};

} // namespace

class ServerSettingsTest : public QObject
{
    Q_OBJECT

private:
    /// The line of the advice on a setting, with "F" for the folder.
    static QString adviceOn(const ScratchFolder &folder, const QString &setting)
    {
        QString advice = adviceOnServer(u"localhost"_s, folder.path());
        return advice.replace(folder.path(), u"F"_s).split(u'\n').filter(setting).join(u'|');
    }

private Q_SLOTS:
    void withoutLines()
    {
        const ScratchFolder folder;
        folder.write(u"cupsd.conf"_s, "LogLevel warn\n");
        QCOMPARE(
            adviceOnServer(u"localhost"_s, folder.path()).replace(folder.path(), u"F"_s),
            u"Put \"DirtyCleanInterval 0\" into F/cupsd.conf and restart cups; without it, jobs of the last "
            "seconds, usually 30, are lost when the server is killed.\n"
            "Put \"MaxJobTime 0\" into F/cupsd.conf and restart cups; without it, jobs are cancelled that "
            "wait long for their printer, usually three hours.\n"
            "Put \"SyncOnClose Yes\" into F/cups-files.conf and restart cups; without it, jobs are lost when "
            "the power fails.\n"
            "F/cupsd.conf leaves PreserveJobHistory at \"Yes\": good.\n"
            "F/cupsd.conf leaves PreserveJobFiles at \"86400\": good.\n"_s);
    }

    void goodLines_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("line");
        const auto row = [](const char *name, const QByteArray &content, const char *line) {
            QTest::newRow(name) << u"cupsd.conf"_s << content << QByteArray(line);
        };
        row("a line", "DirtyCleanInterval 0\n", "DirtyCleanInterval 0");
        row("letters and blanks", "LogLevel warn\n \tdirtycleaninterval \t 0 \t\nMaxClients 9\n",
            "DirtyCleanInterval 0");
        row("no line end", "DirtyCleanInterval 0", "DirtyCleanInterval 0");
        row("a comment behind it", "DirtyCleanInterval 0 # at once\n", "DirtyCleanInterval 0");
        row("no time", "DirtyCleanInterval Off\n", "DirtyCleanInterval Off");
        row("no hours", "DirtyCleanInterval 0h\n", "DirtyCleanInterval 0h");
        row("the last line counts", "DirtyCleanInterval 30\nDirtyCleanInterval 0\n", "DirtyCleanInterval 0");
        row("a wrong line does not count", "MaxJobTime 0\nMaxJobTime soon\n", "MaxJobTime 0");
        row("a history", "PreserveJobHistory On\n", "PreserveJobHistory On");
        row("a history of a week", "PreserveJobHistory 1W\n", "PreserveJobHistory 1W");
        row("a day", "PreserveJobHistory 1440m\n", "PreserveJobHistory 1440m");
        row("files", "PreserveJobFiles Yes\n", "PreserveJobFiles Yes");
        for (const QByteArray yes : {"Yes", "yes", "ON", "True", "enabled", "1", "2"})
            QTest::newRow(yes) << u"cups-files.conf"_s << "SyncOnClose " + yes + '\n' << "SyncOnClose " + yes;
    }
    void goodLines()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, line);
        const ScratchFolder folder;
        folder.write(file, content);
        QCOMPARE(adviceOn(folder, QString::fromUtf8(line.split(' ').first())),
                 u"F/%1 has \"%2\": good."_s.arg(file, QString::fromUtf8(line)));
    }

    void badLines_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("good");
        QTest::addColumn<QString>("place");
        const auto row = [](const char *name, const QByteArray &content, const char *good,
                            const QString &place = {}) {
            QTest::newRow(name) << content << QString::fromUtf8(good) << place;
        };
        row("the last line counts", "MaxJobTime 0\nMaxJobTime 30\n", "MaxJobTime 0",
            u", in place of \"30\","_s);
        row("a comment", "# MaxJobTime 0\n#MaxJobTime 0\n", "MaxJobTime 0");
        row("a wrong unit", "MaxJobTime 0s\n", "MaxJobTime 0");
        row("two values", "MaxJobTime 0 0\n", "MaxJobTime 0");
        row("a longer name", "MaxJobTimes 0\n", "MaxJobTime 0");
        row("no value", "MaxJobTime\n0\n", "MaxJobTime 0");
        row("minutes", "DirtyCleanInterval 2m\n", "DirtyCleanInterval 0", u", in place of \"2m\","_s);
        row("no history", "PreserveJobHistory No\n", "PreserveJobHistory Yes", u", in place of \"No\","_s);
        row("a short history", "PreserveJobHistory 300\n", "PreserveJobHistory Yes",
            u", in place of \"300\","_s);
        row("no files", "PreserveJobFiles off\n", "PreserveJobFiles 86400", u", in place of \"off\","_s);
        row("files for half a day", "PreserveJobFiles 0.5d\n", "PreserveJobFiles 86400",
            u", in place of \"0.5d\","_s);
        row("files for an hour", "PreserveJobFiles 1h\n", "PreserveJobFiles 86400",
            u", in place of \"1h\","_s);
        row("no word of the server's", "SyncOnClose perhaps\n", "SyncOnClose Yes");
        for (const char *no : {"No", "OFF", "false", "Disabled", "0"})
            row(no, QByteArray("SyncOnClose ") + no + '\n', "SyncOnClose Yes",
                u", in place of \"%1\","_s.arg(QLatin1StringView(no)));
    }
    void badLines()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, good);
        QFETCH(QString, place);
        const ScratchFolder folder;
        const QString file = good.startsWith("SyncOnClose"_L1) ? u"cups-files.conf"_s : u"cupsd.conf"_s;
        folder.write(file, content);
        const QString advice = adviceOn(folder, good.section(u' ', 0, 0));
        const QString wanted =
            u"Put \"%1\" into F/%2%3 and restart cups; without it, "_s.arg(good, file, place);
        QVERIFY2(advice.startsWith(wanted), qPrintable(advice));
    }

    /// That would read as "not set", and as if somebody had to set it.
    void aFileThatCannotBeRead()
    {
        const ScratchFolder folder;
        folder.write(u"cups-files.conf"_s, "SyncOnClose Yes\n");
        const UnreadableFiles files(folder);
        QCOMPARE(adviceOn(folder, u"SyncOnClose"_s), u"F/cups-files.conf cannot be read: Permission denied. "
                                                     u"As root, look there for \"SyncOnClose Yes\"; "
                                                     "without it, jobs are lost when the power fails."_s);
    }

    /// The files of this machine are those of another server, or nobody's.
    void theServerOfAnotherMachine()
    {
        const ScratchFolder folder;
        folder.write(u"cupsd.conf"_s, "DirtyCleanInterval 30\n");
        QCOMPARE(adviceOnServer(u"till2.example"_s, folder.path()),
                 u"The print server is till2.example; look there whether its files have these settings, "
                 u"which keep "
                 "jobs:\n"
                 "  cupsd.conf: DirtyCleanInterval 0\n"
                 "  cupsd.conf: MaxJobTime 0\n"
                 "  cups-files.conf: SyncOnClose Yes\n"
                 "  cupsd.conf: PreserveJobHistory Yes\n"
                 "  cupsd.conf: PreserveJobFiles 86400\n"_s);
    }

    void theDocumentListsThem()
    {
        const QString advice = adviceOnServer(u"till2.example"_s);
        QFile file(QStringLiteral(PALVESTRIN_SOURCE_DIR "/docs/printing.md"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QStringList rows = QString::fromUtf8(file.readAll()).split(u'\n').filter(u"| `/etc/cups/"_s);
        QCOMPARE(rows.size(), qsizetype(5));
        for (const QString &row : rows) {
            const QStringList parts = row.split(u'`'); // "| `/etc/cups/FILE` | `NAME VALUE`"
            const QString line = u"  %1: %2\n"_s.arg(parts[1].section(u'/', -1), parts[3]);
            QVERIFY2(advice.contains(line), qPrintable(line));
        }
    }

    void serversOfThisMachine()
    {
        const ScratchFolder folder;
        for (const QString &server : {u"/run/cups/cups.sock"_s, u"localhost"_s, u"127.0.0.1"_s, u"::1"_s})
            QVERIFY2(adviceOnServer(server, folder.path()).contains(u"restart cups"_s), qPrintable(server));
    }
};

QTEST_GUILESS_MAIN(ServerSettingsTest)
#include "serversettings_test.moc"

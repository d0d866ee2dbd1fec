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

    void lines_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("setting");
        QTest::addColumn<QString>("advice");
        const QString dirty = u"DirtyCleanInterval"_s;
        const QString history = u"PreserveJobHistory"_s;
        const QString files = u"PreserveJobFiles"_s;
        const QString sync = u"SyncOnClose"_s;
        const auto row = [](const char *name, const QByteArray &content, const QString &setting,
                            const QString &advice) {
            const QString file = setting == "SyncOnClose"_L1 ? u"cups-files.conf"_s : u"cupsd.conf"_s;
            QTest::newRow(name) << file << content << setting << advice;
        };
        const auto good = [&](const char *name, const QByteArray &content, const QString &setting,
                              const QString &line) {
            const QString file = setting == "SyncOnClose"_L1 ? u"cups-files.conf"_s : u"cupsd.conf"_s;
            row(name, content, setting, u"F/%1 has \"%2\": good."_s.arg(file, line));
        };
        const QString putDirty =
            u"Put \"DirtyCleanInterval 0\" into F/cupsd.conf%1 and restart cups; without it, "
            "jobs of the last seconds, usually 30, are lost when the server is killed."_s;
        const QString putSync =
            u"Put \"SyncOnClose Yes\" into F/cups-files.conf%1 and restart cups; without it, "
            "jobs are lost when the power fails."_s;
        const QString putHistory =
            u"Put \"PreserveJobHistory Yes\" into F/cupsd.conf%1 and restart cups; without "
            "it, the server forgets what became of a job, and nobody can tell whether it "
            "was printed."_s;
        const QString putFiles =
            u"Put \"PreserveJobFiles 86400\" into F/cupsd.conf%1 and restart cups; without it, "
            "a job whose backend was killed cannot be started again."_s;
        const QString instead = u", in place of \"%1\","_s;

        good("a line", "DirtyCleanInterval 0\n", dirty, u"DirtyCleanInterval 0"_s);
        good("letters and blanks", "LogLevel warn\n \tdirtycleaninterval \t 0 \t\nMaxClients 9\n", dirty,
             u"DirtyCleanInterval 0"_s);
        good("no line end", "DirtyCleanInterval 0", dirty, u"DirtyCleanInterval 0"_s);
        good("a comment behind it", "DirtyCleanInterval 0 # at once\n", dirty, u"DirtyCleanInterval 0"_s);
        good("no time", "DirtyCleanInterval Off\n", dirty, u"DirtyCleanInterval Off"_s);
        good("no hours", "DirtyCleanInterval 0h\n", dirty, u"DirtyCleanInterval 0h"_s);
        good("the last line counts", "DirtyCleanInterval 30\nDirtyCleanInterval 0\n", dirty,
             u"DirtyCleanInterval 0"_s);
        good("a wrong line does not count", "DirtyCleanInterval 0\nDirtyCleanInterval soon\n", dirty,
             u"DirtyCleanInterval 0"_s);
        row("the last line counts against it", "DirtyCleanInterval 0\nDirtyCleanInterval 30\n", dirty,
            putDirty.arg(instead.arg("30"_L1)));
        row("a comment", "# DirtyCleanInterval 0\n#DirtyCleanInterval 0\n", dirty, putDirty.arg(QString()));
        row("a wrong unit", "DirtyCleanInterval 0s\n", dirty, putDirty.arg(QString()));
        row("two values", "DirtyCleanInterval 0 0\n", dirty, putDirty.arg(QString()));
        row("a longer name", "DirtyCleanIntervals 0\n", dirty, putDirty.arg(QString()));
        row("no value", "DirtyCleanInterval\n0\n", dirty, putDirty.arg(QString()));
        row("minutes", "DirtyCleanInterval 2m\n", dirty, putDirty.arg(instead.arg("2m"_L1)));
        for (const char *yes : {"Yes", "yes", "ON", "True", "enabled", "1", "2"})
            good(yes, QByteArray("SyncOnClose ") + yes + '\n', sync,
                 u"SyncOnClose "_s + QLatin1StringView(yes));
        for (const char *no : {"No", "OFF", "false", "Disabled", "0"})
            row(no, QByteArray("SyncOnClose ") + no + '\n', sync,
                putSync.arg(instead.arg(QLatin1StringView(no))));
        row("no word of the server's", "SyncOnClose perhaps\n", sync, putSync.arg(QString()));
        good("a history", "PreserveJobHistory On\n", history, u"PreserveJobHistory On"_s);
        good("a history of a week", "PreserveJobHistory 1W\n", history, u"PreserveJobHistory 1W"_s);
        good("half a day", "PreserveJobHistory 0.5d\n", history, u"PreserveJobHistory 0.5d"_s);
        row("no history", "PreserveJobHistory No\n", history, putHistory.arg(instead.arg("No"_L1)));
        row("a short history", "PreserveJobHistory 300\n", history, putHistory.arg(instead.arg("300"_L1)));
        good("files", "PreserveJobFiles Yes\n", files, u"PreserveJobFiles Yes"_s);
        row("no files", "PreserveJobFiles No\n", files, putFiles.arg(instead.arg("No"_L1)));
        row("files for an hour", "PreserveJobFiles 1h\n", files, putFiles.arg(instead.arg("1h"_L1)));
    }
    void lines()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, content);
        QFETCH(QString, setting);
        const ScratchFolder folder;
        folder.write(file, content);
        QTEST(adviceOn(folder, setting), "advice");
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

    void serversOfThisMachine()
    {
        const ScratchFolder folder;
        for (const QString &server : {u"/run/cups/cups.sock"_s, u"localhost"_s, u"127.0.0.1"_s, u"::1"_s})
            QVERIFY2(adviceOnServer(server, folder.path()).contains(u"restart cups"_s), qPrintable(server));
    }
};

QTEST_GUILESS_MAIN(ServerSettingsTest)
#include "serversettings_test.moc"

// The backend when it, its guard, its filters or the print server are killed or stopped: what the server says
// of a job is what the roll of the printer says.

#include "printertest.h"
#include "program.h"

#include <QDateTime>

#include <algorithm>
#include <csignal>
#include <utility>

using namespace Qt::Literals::StringLiterals;

class KilledTest : public PrinterTest
{
    Q_OBJECT

private:
    /// "other:/", which takes everything and prints nothing.
    void addOtherBackend()
    {
        const QString other = server.folder() + u"/bin/backend/other"_s;
        QFile script(other);
        QVERIFY(script.open(QIODevice::WriteOnly) && script.write("#!/bin/sh\nexit 0\n") > 0);
        QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    }

    /// At once: the one that is left for a moment does nothing in it.
    void killAllBackends()
    {
        for (const int signal : {SIGSTOP, SIGKILL}) {
            for (const qint64 process : server.backends())
                ::kill(pid_t(process), signal);
        }
    }

private Q_SLOTS:
    /// A machine that is shut down while tickets wait.
    void aServerThatIsStoppedKeepsItsJobs()
    {
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        acquaint(queue);
        printer.habit("paper 3");
        const int begun = server.submit(queue, ticket(46));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("media-empty-error"), 15'000);
        const int next = server.submit(queue, ticket(47));
        server.stop();
        QTRY_VERIFY_WITH_TIMEOUT(server.backends().isEmpty(), 2000);
        printer.habit("paper 1000");
        server.start();
        QCOMPARE(server.awaitState(begun, {JobInfo::Held}).state, int(JobInfo::Held));
        QCOMPARE(server.awaitState(next, {JobInfo::Completed}).sheets, 1);
        QVERIFY(isWhole(printer, 46) && isWhole(printer, 47));
    }

    /// Another server than the one that printed it first.
    void aReprintIsAskedForAfterARestart()
    {
        PrinterProcess printer;
        const int job = server.submit(queueFor(printer), ticket(28));
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).sheets, 1);
        QTRY_VERIFY_WITH_TIMEOUT(server.backends().isEmpty(), 10'000);
        server.stop();
        server.start();
        server.run(u"lp"_s, {u"-i"_s, QString::number(job), u"-H"_s, u"restart"_s});
        QTRY_COMPARE_WITH_TIMEOUT(printer.count(lastRow(28)), 2, 10'000);
        QCOMPARE(printer.count(u"C O P Y"_s) + printer.count(u"COPY"_s), 1);
        QTRY_COMPARE_WITH_TIMEOUT(server.job(job).state, int(JobInfo::Completed), 10'000);
    }

    void theBackendDiesWithTheServer()
    {
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        acquaint(queue);
        printer.habit("paper 3");
        const int job = server.submit(queue, ticket(17));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("media-empty-error"), 15'000);
        QCOMPARE(server.backends().size(), qsizetype(2));
        server.kill();
        QTRY_VERIFY_WITH_TIMEOUT(server.backends().isEmpty(), 2000);
        server.start();
        QCOMPARE(server.awaitState(job, {JobInfo::Held}).state, int(JobInfo::Held));
        printer.habit("paper 1000");
        QTRY_VERIFY_WITH_TIMEOUT(isWhole(printer, 17), 5000); // the printer kept what it had

        server.kill(); // who looked before must look again: nobody knows whether the server kept the hold
        server.start();
        const qsizetype told = server.logOf(job).count("printing it was interrupted");
        server.release(job);
        QTRY_COMPARE_WITH_TIMEOUT(server.logOf(job).count("printing it was interrupted"), told + 1, 10'000);
        QCOMPARE(server.awaitState(job, {JobInfo::Held}).state, int(JobInfo::Held));
        QVERIFY(isWhole(printer, 17));
        server.release(job);
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).sheets, 1);
        QCOMPARE(printer.count(lastRow(17)), 2);
        QCOMPARE(printer.count(u"COPY"_s), 1);
    }

    void eitherProcessOfTheBackendIsKilled_data()
    {
        QTest::addColumn<int>("place");
        QTest::newRow("the guard") << 0;
        QTest::newRow("the one that prints") << 1;
    }
    void eitherProcessOfTheBackendIsKilled()
    {
        QFETCH(int, place);
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        acquaint(queue);
        const auto killOne = [&] {
            QTRY_COMPARE_WITH_TIMEOUT(server.backends().size(), qsizetype(2), 10'000);
            QList<qint64> both = server.backends();
            std::ranges::sort(both);
            ::kill(pid_t(both[place]), SIGKILL);
        };
        printer.habit("cover open");
        const int before = server.submit(queue, ticket(20 + place)); // nothing is sent yet
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("cover-open-error"), 15'000);
        killOne();
        printer.habit("cover closed");
        QCOMPARE(server.awaitState(before, {JobInfo::Completed}).sheets, 1);
        QVERIFY(isWhole(printer, 20 + place));

        printer.habit("paper 3");
        const int after = server.submit(queue, ticket(30 + place)); // it is in the printer
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("media-empty-error"), 15'000);
        killOne();
        printer.habit("paper 1000");
        const int end = place == 0 ? JobInfo::Completed : JobInfo::Held;
        const JobInfo info = server.awaitState(after, {end});
        QCOMPARE(info.state, end);
        QCOMPARE(info.sheets, place == 0 ? 1 : 0);
        QTRY_VERIFY_WITH_TIMEOUT(isWhole(printer, 30 + place), 5000);
    }

    /// The server takes such a job for printed. The next one that ends has it held, for a person who was told
    /// so may have taken it for lost.
    void bothProcessesOfTheBackendAreKilled_data()
    {
        QTest::addColumn<QByteArray>("habit");
        QTest::addColumn<QByteArray>("reason");
        QTest::addColumn<QByteArray>("cure");
        QTest::addColumn<int>("copies");
        QTest::newRow("before the first byte")
            << QByteArray("cover open") << QByteArray("cover-open-error") << QByteArray("cover closed") << 0;
        QTest::newRow("behind it") << QByteArray("paper 3") << QByteArray("media-empty-error")
                                   << QByteArray("paper 1000") << 1;
    }
    void bothProcessesOfTheBackendAreKilled()
    {
        QFETCH(QByteArray, habit);
        QFETCH(QByteArray, reason);
        QFETCH(QByteArray, cure);
        QFETCH(int, copies);
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        acquaint(queue);
        printer.habit(habit);
        const int job = server.submit(queue, ticket(48));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains(reason), 15'000);
        killAllBackends();
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).sheets, 0);
        printer.habit(cure);
        acquaint(queue);
        QTRY_COMPARE_WITH_TIMEOUT(server.job(job).state, int(JobInfo::Held), 10'000);
        QVERIFY(server.job(job).message.startsWith("It is unknown whether"));
        QTRY_COMPARE_WITH_TIMEOUT(printer.count(lastRow(48)), copies, 5000);
        server.release(job);
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).sheets, 1);
        QCOMPARE(printer.count(lastRow(48)), copies + 1);
    }

    /// Filters count sheets, so did an earlier run of the job, and a queue may be changed meanwhile.
    void theRecordTellsOfAnAbandonedJob_data()
    {
        QTest::addColumn<QString>("how");
        QTest::newRow("of several documents") << u"documents"_s;
        QTest::newRow("printed before") << u"reprint"_s;
        QTest::newRow("on a queue that is changed") << u"queue"_s;
    }
    void theRecordTellsOfAnAbandonedJob()
    {
        QFETCH(QString, how);
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        acquaint(queue);
        const ScratchFolder files;
        const QStringList documents{files.write(u"other"_s, ticket(72))};
        const bool isReprint = how == "reprint"_L1;
        if (!isReprint)
            printer.habit("paper 3");
        const int job = server.submit(queue, ticket(71), how == "documents"_L1 ? documents : QStringList());
        if (isReprint) {
            QCOMPARE(server.awaitState(job, {JobInfo::Completed}).sheets, 1);
            QTest::qSleep(1100); // the server notes whole seconds
            printer.habit("paper 3");
            server.run(u"lp"_s, {u"-i"_s, QString::number(job), u"-H"_s, u"restart"_s});
        }
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("media-empty-error"), 15'000);
        killAllBackends();
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).state, int(JobInfo::Completed));
        if (how == "queue"_L1) {
            QTest::qSleep(1100);
            server.run(u"lpadmin"_s, {u"-p"_s, queue, u"-o"_s, u"printer-is-shared=true"_s});
        }
        printer.habit("paper 1000");
        acquaint(queue);
        QTRY_COMPARE_WITH_TIMEOUT(server.job(job).state, int(JobInfo::Held), 10'000);
        QVERIFY(server.job(job).message.startsWith("It is unknown whether"));
    }

    /// The server hands on what it had written, and says nothing.
    void aFilterIsKilled()
    {
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        const QString filters = server.folder() + u"/bin/filter"_s;
        const QString folder = QFile::symLinkTarget(filters);
        const ScratchFolder place;
        const QString killed = place.write(u"killed"_s, "#!/bin/sh\nhead -c 1000 \"$6\"\nkill -9 $$\n");
        QVERIFY(QFile::setPermissions(killed, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther |
                                                  QFile::ExeOther));
        QVERIFY(QFile::remove(filters) && QDir().mkpath(filters));
        QVERIFY(QFile::copy(killed, filters + u"/gziptoany"_s));
        const int job = server.submit(queue, ticket(73, 300), {place.write(u"other"_s, ticket(79, 300))});
        const JobInfo info = server.awaitState(job, {JobInfo::Completed, JobInfo::Held});
        QVERIFY(QFile::remove(filters + u"/gziptoany"_s) && QDir().rmdir(filters));
        QVERIFY(QFile::link(folder, filters));
        QCOMPARE(info.state, int(JobInfo::Held));
        QCOMPARE(info.message, "Not printed: a part of the job is missing, because a filter of the print "
                               "server was killed. Release the job.");
        QCOMPARE(printer.count(firstRow(73)), 0);
        server.release(job);
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).state, int(JobInfo::Completed));
        QVERIFY(isWhole(printer, 73) && isWhole(printer, 79));
    }

    /// A server that was killed reads all of its jobs twice, where its cache names one that it had not
    /// written down.
    void aServerThatHasAJobTwicePrintsItOnce()
    {
        PrinterProcess printer;
        printer.habit("refuse on");
        const QString queue = queueFor(printer);
        const int job = server.submit(queue, ticket(38));
        const int gone = server.submit(queue, ticket(37));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("offline-report"), 10'000);
        server.kill();
        QVERIFY(QFile::remove(server.folder() + u"/spool/c%1"_s.arg(gone, 5, 10, QChar(u'0'))));
        const qsizetype started = server.logOf(job).count("Started backend");
        server.start(PrintServer::Spool::AsItIs);
        QVERIFY(server.errorLog().contains("Files have gone away"));
        printer.habit("refuse off");
        QTRY_VERIFY_WITH_TIMEOUT(server.job(job).sheets == 1, 30'000);
        QTRY_VERIFY_WITH_TIMEOUT(server.logOf(job).count("Started backend") == started + 2, 10'000);
        QTRY_VERIFY_WITH_TIMEOUT(server.backends().isEmpty(), 10'000);
        QVERIFY(isWhole(printer, 38));
        server.kill();
        server.start(); // with each job once
    }

    /// The newest version that was written to its end stays.
    void theSpoolIsTidied()
    {
        const ScratchFolder place;
        QVERIFY(QDir(place.path()).mkpath(u"spool"_s) && QDir(place.path()).mkpath(u"cache"_s));
        const std::pair<QString, QByteArray> before[] = {
            {u"c00001"_s, "now"},       {u"c00001.N"_s, "half"}, {u"c00002.O"_s, "last"},
            {u"c00002.N"_s, "now"},     {u"c00003.O"_s, "last"}, {u"c00003.N"_s, ""},
            {u"c00004"_s, ""},          {u"c00004.O"_s, "last"}, {u"c00005.N"_s, ""},
            {u"d00001-001"_s, "ticket"}};
        for (const auto &[name, content] : before)
            place.write(u"spool/"_s + name, content);
        place.write(u"cache/job.cache"_s, "jobs");
        place.write(u"cache/other.cache"_s, "others");
        const ProgramRun run =
            runProgram(QStringLiteral(TIDY), {place.path(u"spool"_s), place.path(u"cache"_s)},
                       {u"PATH=/usr/bin:/bin"_s});
        QVERIFY2(run.failure.isEmpty(), run.standardError);
        QCOMPARE(QDir(place.path(u"spool"_s)).entryList(QDir::Files),
                 QStringList({u"c00001"_s, u"c00002"_s, u"c00003"_s, u"c00004"_s, u"d00001-001"_s}));
        const std::pair<QString, QByteArray> after[] = {
            {u"c00001"_s, "now"}, {u"c00002"_s, "now"}, {u"c00003"_s, "last"}, {u"c00004"_s, "last"}};
        for (const auto &[name, content] : after)
            QCOMPARE(place.read(u"spool/"_s + name), content);
        QCOMPARE(QDir(place.path(u"cache"_s)).entryList(QDir::Files), QStringList(u"other.cache"_s));
    }

    /// It was killed while it wrote what it knows of a job, and takes what is left over for one more job.
    void leftoversInTheSpoolAreNoJobs_data()
    {
        QTest::addColumn<QStringList>(
            "kept"); // of the versions of the job's file, each with the same content
        QTest::addColumn<QStringList>("torn"); // these are empty
        QTest::newRow("new version, half written") << QStringList{u""_s} << QStringList{u".N"_s};
        QTest::newRow("new version, written") << QStringList{u""_s, u".N"_s} << QStringList{};
        QTest::newRow("last version put aside") << QStringList{u".O"_s} << QStringList{u".N"_s};
        QTest::newRow("last version still there") << QStringList{u""_s, u".O"_s} << QStringList{};
        QTest::newRow("only the new one") << QStringList{u".N"_s} << QStringList{};
    }
    void leftoversInTheSpoolAreNoJobs()
    {
        QFETCH(QStringList, kept);
        QFETCH(QStringList, torn);
        PrinterProcess printer;
        printer.habit("refuse on");
        const QString queue = queueFor(printer);
        const int job = server.submit(queue, ticket(39));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("offline-report"), 10'000);
        server.kill();
        const QString file = server.folder() + u"/spool/c%1"_s.arg(job, 5, 10, QChar(u'0'));
        QVERIFY(QFile::rename(file, file + u".tmp"_s));
        for (const QString &ending : kept)
            QVERIFY(QFile::copy(file + u".tmp"_s, file + ending));
        for (const QString &ending : torn)
            QVERIFY(QFile(file + ending).open(QIODevice::WriteOnly));
        QVERIFY(QFile::remove(file + u".tmp"_s));
        server.start();
        QCOMPARE(server.run(u"lpstat"_s, {u"-o"_s, queue}).count('\n'), qsizetype(1));
        printer.habit("refuse off");
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}, 30).sheets, 1);
        QVERIFY(isWhole(printer, 39));
        acquaint(queue); // it goes on
    }

    /// Jobs that were printed some other way are nobody's doubt, though no sheet was counted.
    void theJobsOfAnotherBackendStayPrinted()
    {
        PrinterProcess printer;
        acquaint(queueFor(printer)); // from now on there are records
        addOtherBackend();
        server.addQueue(u"changed"_s, "other:/");
        const int old = server.submit(u"changed"_s, ticket(49));
        QCOMPARE(server.awaitState(old, {JobInfo::Completed}).state, int(JobInfo::Completed));
        QTest::qSleep(1100); // the server notes whole seconds
        server.addQueue(u"changed"_s, printer.uri("wait=2"));
        acquaint(u"changed"_s);
        QTRY_VERIFY_WITH_TIMEOUT(server.backends().isEmpty(), 10'000);
        QCOMPARE(server.job(old).state, int(JobInfo::Completed));
        QCOMPARE(printer.count(firstRow(49)), 0);
    }

    /// Though its record here says that it did not come to an end.
    void aJobThatWasMovedStaysPrinted_data()
    {
        QTest::addColumn<bool>("isOfClass");
        QTest::newRow("from a queue") << false;
        QTest::newRow("from a class") << true;
    }
    void aJobThatWasMovedStaysPrinted()
    {
        QFETCH(bool, isOfClass);
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        acquaint(queue);
        addOtherBackend();
        server.addQueue(u"elsewhere"_s, "other:/");
        if (isOfClass)
            addToClass(u"some"_s, queue);
        printer.habit("cover open");
        const int job = server.submit(isOfClass ? u"some"_s : queue, ticket(80));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("cover-open-error"), 15'000);
        server.run(u"lpmove"_s, {QString::number(job), u"elsewhere"_s});
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).state, int(JobInfo::Completed));
        const qsizetype started = server.logOf(job).count("Started backend");
        printer.habit("cover closed");
        acquaint(queue);
        QTRY_VERIFY_WITH_TIMEOUT(server.backends().isEmpty(), 10'000);
        QCOMPARE(server.job(job).state, int(JobInfo::Completed));
        QCOMPARE(server.logOf(job).count("Started backend"), started);
        server.run(u"lpadmin"_s, {u"-x"_s, u"some"_s});
    }

    /// The others of its class may not ask whether it was printed.
    void anAbandonedJobOfAClassIsNotPrintedElsewhere()
    {
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        acquaint(queue);
        addOtherBackend();
        server.addQueue(u"elsewhere"_s, "other:/");
        addToClass(u"mixed"_s, queue);
        printer.habit("paper 3");
        const int job = server.submit(u"mixed"_s, ticket(81));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("media-empty-error"), 15'000);
        addToClass(u"mixed"_s, u"elsewhere"_s);
        killAllBackends();
        QCOMPARE(server.awaitState(job, {JobInfo::Completed}).state, int(JobInfo::Completed));
        const qsizetype started = server.logOf(job).count("Started backend");
        printer.habit("paper 1000");
        acquaint(queue);
        QTRY_COMPARE_WITH_TIMEOUT(server.job(job).state, int(JobInfo::Held), 10'000);
        QCOMPARE(server.logOf(job).count("Started backend"), started);
        server.run(u"lpadmin"_s, {u"-x"_s, u"mixed"_s});
    }

    /// Nobody is left to hear its exit code, so it has the job held while it prints, and released when it is
    /// printed.
    void aBackendWithoutItsGuardTellsTheServerItself_data()
    {
        QTest::addColumn<QByteArray>("cure");
        QTest::addColumn<int>("end");
        QTest::addColumn<int>("copies"); // whole ones
        QTest::newRow("printed") << QByteArray("paper 100000") << int(JobInfo::Completed) << 1;
        QTest::newRow("unknown") << QByteArray("vanish on") << int(JobInfo::Held) << 0;
    }
    void aBackendWithoutItsGuardTellsTheServerItself()
    {
        QFETCH(QByteArray, cure);
        QFETCH(int, end);
        QFETCH(int, copies);
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        acquaint(queue);
        printer.habit("paper 3");
        const int job = server.submit(queue, ticket(40));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("media-empty-error"), 15'000);
        QList<qint64> both = server.backends();
        QCOMPARE(both.size(), qsizetype(2));
        ::kill(pid_t(std::ranges::min(both)), SIGKILL);
        QCOMPARE(server.awaitState(job, {JobInfo::Completed, JobInfo::Held}).state, int(JobInfo::Held));
        printer.habit(cure);
        awaitLull();
        QTRY_COMPARE_WITH_TIMEOUT(server.job(job).state, end, 10'000);
        QTRY_VERIFY_WITH_TIMEOUT(server.backends().isEmpty(), 10'000); // nothing is begun again
        QCOMPARE(server.job(job).state, end);
        QCOMPARE(printer.count(firstRow(40)), 1);
        QCOMPARE(printer.count(lastRow(40)), copies);
    }

    void aBackendWithoutItsGuardCannotConfirm()
    {
        PrinterProcess printer;
        const QString queue = queueFor(printer, "status=never&wait=20");
        printer.habit("read off"); // so the backend waits for it to close its side
        const int job = server.submit(queue, ticket(74));
        QTRY_VERIFY_WITH_TIMEOUT(server.job(job).message == "Printing.", 10'000);
        QTRY_COMPARE_WITH_TIMEOUT(server.backends().size(), qsizetype(2), 10'000);
        ::kill(pid_t(std::ranges::min(server.backends())), SIGKILL);
        QCOMPARE(server.awaitState(job, {JobInfo::Completed, JobInfo::Held}).state, int(JobInfo::Held));
        const JobInfo info = server.awaitState(job, {JobInfo::Completed});
        QVERIFY2(info.message.startsWith("Sent, but not confirmed"), info.message);
        QCOMPARE(info.sheets, 0);
        printer.habit("read on");
        QTRY_VERIFY_WITH_TIMEOUT(isWhole(printer, 74), 5000);
        QVERIFY(server.backends().isEmpty());
    }

    /// Nobody else could stop it.
    void aBackendWithoutItsGuardHeedsThatItsJobIsCancelled()
    {
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        acquaint(queue);
        server.addQueue(u"beside"_s, printer.uri("wait=2"));
        printer.habit("paper 3");
        const int first = server.submit(queue, ticket(75));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("media-empty-error"), 15'000);
        const QList<qint64> others = server.backends();
        const int job = server.submit(u"beside"_s, ticket(76));
        QTRY_VERIFY_WITH_TIMEOUT(server.job(job).message.contains("busy with another ticket"), 10'000);
        QList<qint64> both = server.backends();
        both.removeIf([&others](qint64 process) { return others.contains(process); });
        QCOMPARE(both.size(), qsizetype(2));
        ::kill(pid_t(std::ranges::min(both)), SIGKILL);
        QCOMPARE(server.awaitState(job, {JobInfo::Held}).state, int(JobInfo::Held));
        server.run(u"cancel"_s, {QString::number(job)});
        QCOMPARE(server.job(job).state, int(JobInfo::Canceled));
        printer.habit("paper 1000");
        QCOMPARE(server.awaitState(first, {JobInfo::Completed}).sheets, 1);
        QTRY_VERIFY_WITH_TIMEOUT(server.backends().isEmpty(), 15'000);
        QCOMPARE(printer.count(firstRow(76)), 0);
    }

    /// The confirmation came meanwhile.
    void aMachineStandsStillPastTheTime()
    {
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        acquaint(queue);
        printer.habit("paper 3");
        const int job = server.submit(queue, ticket(77));
        QTRY_VERIFY_WITH_TIMEOUT(server.reasons(queue).contains("media-empty-error"), 15'000);
        const QList<qint64> both = server.backends();
        for (const qint64 process : both)
            ::kill(pid_t(process), SIGSTOP);
        printer.habit("paper 1000");
        QTest::qSleep(3000);
        for (const qint64 process : both)
            ::kill(pid_t(process), SIGCONT);
        QCOMPARE(server.awaitState(job, {JobInfo::Completed, JobInfo::Held}).state, int(JobInfo::Completed));
        QVERIFY(isWhole(printer, 77));
    }

    /// Once an hour: a shop has thousands of them.
    void oldRecordsAreRemoved()
    {
        PrinterProcess printer;
        const QString queue = queueFor(printer);
        acquaint(queue);
        const QString folder = server.folder() + u"/cache/palvestrin/"_s;
        const auto makeOld = [](const QString &path, int days) {
            QFile file(path);
            return file.open(QIODevice::ReadWrite) &&
                   file.setFileTime(QDateTime::currentDateTime().addDays(-days),
                                    QFileDevice::FileModificationTime);
        };
        const QString old = folder + u"old.job"_s;
        const QString young = folder + u"young.job"_s;
        const auto writeBoth = [&] {
            for (const QString &path : {old, young}) {
                QFile file(path);
                QVERIFY(file.open(QIODevice::WriteOnly) && file.write("printed 1 - \n") > 0);
            }
            QVERIFY(makeOld(old, 3) && makeOld(young, 1));
        };
        writeBoth();
        acquaint(queue);
        QTRY_VERIFY_WITH_TIMEOUT(server.backends().isEmpty(), 10'000);
        QVERIFY(QFile::exists(old));
        QVERIFY(makeOld(folder + u"swept"_s, 1));
        acquaint(queue);
        QTRY_VERIFY_WITH_TIMEOUT(!QFile::exists(old), 10'000);
        QVERIFY(QFile::exists(young));
    }
};

QTEST_GUILESS_MAIN(KilledTest)
#include "killed_test.moc"

#include "commanderror.h"
#include "filereplacement.h"
#include "scratchfolder.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QTest>
#include <QThread>

#include <csignal>
#include <fcntl.h>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>

using namespace Qt::Literals::StringLiterals;

namespace {

/// No file may grow over `bytes` while it lives: what a full disk looks like.
class SmallDisk
{
public:
    explicit SmallDisk(rlim_t bytes) : savedHandler(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &saved);
        const rlimit small{bytes, saved.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &saved);
        std::signal(SIGXFSZ, savedHandler);
    }

private:
    rlimit saved{};
    void (*savedHandler)(int);
};

template <typename Work>
ExitCode codeOf(Work work)
{
    try {
        work();
    } catch (const CommandError &error) {
        return error.code();
    }
    return ExitCode::Done;
}

} // namespace

class FileReplacementTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void replaces()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c"_s, "old");
        FileReplacement(path).commit("new");
        QCOMPARE(folder.read(u"c"_s), "new");
        QCOMPARE(folder.names(), QStringList{u"c"_s});
    }

    void makesFileAndFolders()
    {
        const ScratchFolder folder;
        const QString path = folder.path(u"a/b/c"_s);
        FileReplacement(path).commit("new");
        QCOMPARE(folder.read(u"a/b/c"_s), "new");
        struct stat made = {};
        QCOMPARE(::stat(qPrintable(path), &made), 0);
        QCOMPARE(int(made.st_mode & 07777), 0600);
    }

    void withoutACommitEverythingStays()
    {
        const ScratchFolder folder;
        {
            const FileReplacement replacement(folder.write(u"c"_s, "old"));
            QCOMPARE(folder.names().size(), qsizetype(2));
        }
        QCOMPARE(folder.read(u"c"_s), "old");
        QCOMPARE(folder.names(), QStringList{u"c"_s});
    }

    void permissionsStay()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c"_s, "old");
        QCOMPARE(::chmod(qPrintable(path), 0640), 0);
        FileReplacement(path).commit("new");
        struct stat now = {};
        QCOMPARE(::stat(qPrintable(path), &now), 0);
        QCOMPARE(int(now.st_mode & 07777), 0640);
    }

    void aLinkStaysALink()
    {
        const ScratchFolder folder;
        folder.write(u"real"_s, "old");
        QVERIFY(QFile::link(u"real"_s, folder.path(u"link"_s)));
        QVERIFY(QFile::link(u"link"_s, folder.path(u"link2"_s)));
        FileReplacement(folder.path(u"link2"_s)).commit("new");
        QCOMPARE(folder.read(u"real"_s), "new");
        QVERIFY(QFileInfo(folder.path(u"link2"_s)).isSymLink());
        QVERIFY(QFileInfo(folder.path(u"link"_s)).isSymLink());
    }

    void aLinkToNothingIsRefused()
    {
        const ScratchFolder folder;
        QVERIFY(QFile::link(u"absent"_s, folder.path(u"link"_s)));
        QCOMPARE(codeOf([&] { FileReplacement(folder.path(u"link"_s)).commit("new"); }),
                 ExitCode::Unreadable);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), qsizetype(0));
    }

    void theSecondIsTold()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c"_s, "old");
        FileReplacement first(path);
        QElapsedTimer waited;
        waited.start();
        QCOMPARE(codeOf([&] { const FileReplacement second(path); }), ExitCode::Busy);
        QVERIFY2(waited.elapsed() >= 2000 && waited.elapsed() < 10000,
                 qPrintable(QString::number(waited.elapsed())));
        first.commit("new");
        QCOMPARE(folder.read(u"c"_s), "new");
        QCOMPARE(codeOf([&] { FileReplacement(path).commit("newer"); }), ExitCode::Done);
        QCOMPARE(folder.read(u"c"_s), "newer");
    }

    void theSecondWaitsForTheFirst()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c"_s, "old");
        auto first = std::make_unique<FileReplacement>(path);
        QByteArray found;
        std::thread second([&] {
            FileReplacement replacement(path);
            found = folder.read(u"c"_s);
            replacement.commit("second");
        });
        QThread::msleep(300);
        first->commit("first");
        first.reset();
        second.join();
        QCOMPARE(found, "first");
        QCOMPARE(folder.read(u"c"_s), "second");
        QCOMPARE(folder.names(), QStringList{u"c"_s});
    }

    void theSecondIsToldWhenThereIsNoFileYet()
    {
        const ScratchFolder folder;
        const FileReplacement first(folder.path(u"c"_s));
        QCOMPARE(codeOf([&] { const FileReplacement second(folder.path(u"c"_s)); }), ExitCode::Busy);
    }

    void whatAKilledWriterLeftIsTakenOver()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c"_s, "old");
        folder.write(u".c.new"_s, QByteArray(1000, 'x'));
        FileReplacement(path).commit("new");
        QCOMPARE(folder.read(u"c"_s), "new");
        QCOMPARE(folder.names(), QStringList{u"c"_s});
    }

    void aFullDiskLeavesTheOldFile()
    {
        const ScratchFolder folder;
        const QString path = folder.write(u"c"_s, "old");
        {
            const SmallDisk disk(100);
            QCOMPARE(codeOf([&] { FileReplacement(path).commit(QByteArray(1000, 'n')); }),
                     ExitCode::WriteFailed);
        }
        QCOMPARE(folder.read(u"c"_s), "old");
        QCOMPARE(folder.names(), QStringList{u"c"_s});
    }

    void aPipeIsNotReplacedByAFile()
    {
        const ScratchFolder folder;
        const QString path = folder.path(u"c"_s);
        QCOMPARE(::mkfifo(qPrintable(path), 0600), 0);
        QCOMPARE(codeOf([&] { FileReplacement(path).commit("new"); }), ExitCode::WriteFailed);
        struct stat now = {};
        QCOMPARE(::stat(qPrintable(path), &now), 0);
        QVERIFY(S_ISFIFO(now.st_mode));
    }

    void aFolderInTheWayIsRefused()
    {
        const ScratchFolder folder;
        QVERIFY(QDir(folder.path()).mkdir(u"c"_s));
        QCOMPARE(codeOf([&] { FileReplacement(folder.path(u"c"_s)).commit("new"); }), ExitCode::WriteFailed);
        QCOMPARE(folder.names(), QStringList{u"c"_s});
    }
};

QTEST_GUILESS_MAIN(FileReplacementTest)
#include "filereplacement_test.moc"

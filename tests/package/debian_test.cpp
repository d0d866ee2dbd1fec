// The Debian packages: what they hold, what they need, and that the renderer works without the tools.

#include "installedprinter.h"

#include <QDirIterator>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

class DebianTest : public QObject
{
    Q_OBJECT

private:
    const QTemporaryDir folder;
    const QStringList environment = {u"PATH="_s + qEnvironmentVariable("PATH")};

    QString packagePath(const QString &name) const
    {
        const QStringList found = QDir(folder.path()).entryList({name + u"_*.deb"_s});
        return found.size() == 1 ? folder.filePath(found.first()) : QString();
    }
    QString field(const QString &package, const QString &name) const
    {
        const ProgramRun run = runProgram(u"dpkg-deb"_s, {u"-f"_s, packagePath(package), name}, environment);
        return QString::fromUtf8(run.standardOutput).trimmed();
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (QLatin1StringView(BUILD_TYPE) != "Release"_L1)
            QSKIP("packages are made of what restaurants run, and of nothing else");
        const ProgramRun run = runProgram(
            QStringLiteral(CPACK_PROGRAM),
            {u"--config"_s, QStringLiteral(BUILD_FOLDER "/CPackConfig.cmake"), u"-B"_s, folder.path()},
            environment);
        QVERIFY2(run.failure.isEmpty(), run.standardOutput + run.standardError);
    }

    void versions()
    {
        QCOMPARE(field(u"palvestrin-print"_s, u"Version"_s), QStringLiteral(PACKAGE_VERSION));
        QCOMPARE(field(u"palvestrin-tools"_s, u"Version"_s), QStringLiteral(PACKAGE_VERSION));
    }

    void theRendererNeedsNoGuiLibrary()
    {
        const QString depends = field(u"palvestrin-print"_s, u"Depends"_s);
        QVERIFY2(depends.contains("libqt6core6 (>= 6.4"_L1), qPrintable(depends));
        static const QRegularExpression gui(u"gui|widgets|sql|libx11|libgl"_s);
        QVERIFY2(!depends.contains(gui), qPrintable(depends));
    }

    void theToolsNeedTheRenderer()
    {
        const QString depends = field(u"palvestrin-tools"_s, u"Depends"_s);
        QVERIFY2(depends.contains("palvestrin-print (= " PACKAGE_VERSION ")"_L1), qPrintable(depends));
        static const QRegularExpression gui(u"gui|widgets|libx11|libgl"_s);
        QVERIFY2(!depends.contains(gui), qPrintable(depends));
    }

    void theWindowIsAPackageOfItsOwn()
    {
        const QString depends = field(u"palvestrin-desktop"_s, u"Depends"_s);
        QVERIFY2(depends.contains("palvestrin-tools (= " PACKAGE_VERSION ")"_L1), qPrintable(depends));
        QVERIFY2(depends.contains("libqt6widgets6"_L1), qPrintable(depends));
        QVERIFY2(depends.contains("libqt6svg6"_L1), qPrintable(depends));
        QVERIFY2(depends.contains("fonts-dejavu-core"_L1), qPrintable(depends));
    }

    void theRendererPrintsAsUnpacked()
    {
        const QString root = folder.filePath(u"root"_s);
        const ProgramRun unpack =
            runProgram(u"dpkg-deb"_s, {u"-x"_s, packagePath(u"palvestrin-print"_s), root}, environment);
        QCOMPARE(unpack.failure, QString());
        verifyPrintsInItalian(root + u"/usr"_s);
    }
};

QTEST_GUILESS_MAIN(DebianTest)
#include "debian_test.moc"

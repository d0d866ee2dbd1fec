// The Debian packages: what they hold, what they need, that Debian's own inspector finds nothing in them, and
// that the renderer works without the tools.

#include "installedprinter.h"

#include <QDirIterator>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

class DebianTest : public QObject
{
    Q_OBJECT

private:
    const QTemporaryDir folder;
    const QStringList packages{u"palvestrin-print"_s, u"palvestrin-tools"_s, u"palvestrin-desktop"_s,
                               u"palvestrin-cups"_s};
    const QStringList environment = {u"PATH="_s + qEnvironmentVariable("PATH"), u"HOME="_s + folder.path(),
                                     u"LC_ALL=C.UTF-8"_s};

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
    /// "-rwxr-xr-x root/root usr/bin/palvestrin" for everything that the package holds.
    QStringList contents(const QString &package) const
    {
        const ProgramRun run = runProgram(u"dpkg-deb"_s, {u"-c"_s, packagePath(package)}, environment);
        QStringList lines;
        for (const QString &line : QString::fromUtf8(run.standardOutput).split(u'\n', Qt::SkipEmptyParts)) {
            const QStringList words = line.simplified().split(u' ');
            lines += words[0] + u' ' + words[1] + u' ' + words.mid(5).join(u' ').remove(u"./"_s);
        }
        return lines;
    }
    /// The files of the package, without those below `folders`.
    QStringList files(const QString &package, const QRegularExpression &folders) const
    {
        QStringList names;
        for (const QString &line : contents(package)) {
            const QString name = line.section(u' ', 2);
            if (!name.endsWith(u'/') && !name.contains(folders))
                names += name;
        }
        names.sort();
        return names;
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (QLatin1StringView(BUILD_TYPE) != "Release"_L1)
            QSKIP("packages are made of what restaurants run, and of nothing else");
        const ProgramRun run = runProgram( // whatever the umask of whoever makes them
            u"sh"_s,
            {u"-c"_s, u"umask 077; exec \"$@\""_s, u"sh"_s, QStringLiteral(CPACK_PROGRAM), u"--config"_s,
             QStringLiteral(BUILD_FOLDER "/CPackConfig.cmake"), u"-B"_s, folder.path()},
            environment);
        QVERIFY2(run.failure.isEmpty(), run.standardOutput + run.standardError);
    }

    void versions()
    {
        for (const QString &package : packages)
            QCOMPARE(field(package, u"Version"_s), QStringLiteral(PACKAGE_VERSION));
    }

    void theRendererNeedsNoGuiLibrary()
    {
        const QString depends = field(u"palvestrin-print"_s, u"Depends"_s);
        QVERIFY2(depends.contains("libqt6core6 (>= 6.4"_L1), qPrintable(depends));
        static const QRegularExpression gui(u"gui|widgets|sql|libx11|libgl"_s);
        QVERIFY2(!depends.contains(gui), qPrintable(depends));
        QCOMPARE(field(u"palvestrin-print"_s, u"Recommends"_s), u"palvestrin-tools"_s);
    }

    void theToolsNeedTheRenderer()
    {
        const QString depends = field(u"palvestrin-tools"_s, u"Depends"_s);
        QVERIFY2(depends.contains("palvestrin-print (= " PACKAGE_VERSION ")"_L1), qPrintable(depends));
        static const QRegularExpression gui(u"gui|widgets|libx11|libgl|desktop"_s);
        QVERIFY2(!depends.contains(gui), qPrintable(depends));
        QCOMPARE(field(u"palvestrin-tools"_s, u"Recommends"_s), QString()); // apt would install what it names
        QCOMPARE(field(u"palvestrin-tools"_s, u"Suggests"_s), u"palvestrin-desktop, palvestrin-cups"_s);
    }

    void theWindowIsAPackageOfItsOwn()
    {
        const QString depends = field(u"palvestrin-desktop"_s, u"Depends"_s);
        QVERIFY2(depends.contains("palvestrin-tools (= " PACKAGE_VERSION ")"_L1), qPrintable(depends));
        QVERIFY2(depends.contains("libqt6widgets6"_L1), qPrintable(depends));
        QVERIFY2(depends.contains("libqt6svg6"_L1), qPrintable(depends));
        QVERIFY2(depends.contains("fonts-dejavu-core"_L1), qPrintable(depends));
        QVERIFY2(depends.contains("qt6-translations-l10n"_L1), qPrintable(depends));
    }

    /// A backend that others may not run runs as root, and so may open every device.
    void theBackendIsForThePrintServerAlone()
    {
        QVERIFY(contents(u"palvestrin-cups"_s)
                    .contains(u"-rwxr--r-- root/root usr/lib/cups/backend/palvestrin"_s));
        const QString depends = field(u"palvestrin-cups"_s, u"Depends"_s);
        QVERIFY2(depends.contains("palvestrin-print (= " PACKAGE_VERSION ")"_L1), qPrintable(depends));
        QVERIFY2(depends.contains(QRegularExpression(u"(^|, )cups(,|$)"_s)), qPrintable(depends));
    }

    /// Or the spool would not be put right before the print server starts, until the machine is restarted.
    void systemdReadsWhatThePackageAdds()
    {
        const QString control = folder.filePath(u"control"_s);
        const ProgramRun unpack =
            runProgram(u"dpkg-deb"_s, {u"-e"_s, packagePath(u"palvestrin-cups"_s), control}, environment);
        QCOMPARE(unpack.failure, QString());
        QFile standIn(control + u"/systemctl"_s);
        QVERIFY(standIn.open(QIODevice::WriteOnly) && standIn.write("#!/bin/sh\necho \"$*\"\n") > 0);
        QVERIFY(standIn.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        standIn.close();

        const ProgramRun run =
            runProgram(control + u"/postinst"_s, {u"configure"_s},
                       {u"PATH=%1:%2"_s.arg(control, qEnvironmentVariable("PATH")), u"LC_ALL=C.UTF-8"_s});
        QCOMPARE(run.failure, QString());
        const bool hasSystemd = QFileInfo(u"/run/systemd/system"_s).isDir();
        QCOMPARE(run.standardOutput + run.standardError, hasSystemd ? "daemon-reload\n"_ba : QByteArray());
    }

    void everyFileIsInItsPackage_data()
    {
        QTest::addColumn<QString>("package");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("print") << u"palvestrin-print"_s
                               << QStringList{u"usr/bin/palvestrin-print"_s,
                                              u"usr/share/doc/palvestrin-print/CHANGELOG.md"_s,
                                              u"usr/share/doc/palvestrin-print/README.md"_s,
                                              u"usr/share/doc/palvestrin-print/SECURITY.md"_s,
                                              u"usr/share/doc/palvestrin-print/changelog.gz"_s,
                                              u"usr/share/doc/palvestrin-print/copyright"_s,
                                              u"usr/share/doc/palvestrin-print/docs/checks.md"_s,
                                              u"usr/share/doc/palvestrin-print/docs/configuration.md"_s,
                                              u"usr/share/doc/palvestrin-print/docs/escpos.md"_s,
                                              u"usr/share/doc/palvestrin-print/docs/family/services.md"_s,
                                              u"usr/share/doc/palvestrin-print/docs/gallery.md"_s,
                                              u"usr/share/doc/palvestrin-print/docs/integration.md"_s,
                                              u"usr/share/doc/palvestrin-print/docs/job-format.md"_s,
                                              u"usr/share/doc/palvestrin-print/docs/languages.md"_s,
                                              u"usr/share/doc/palvestrin-print/docs/output-format.md"_s,
                                              u"usr/share/doc/palvestrin-print/docs/printers.md"_s,
                                              u"usr/share/doc/palvestrin-print/docs/printing.md"_s,
                                              u"usr/share/doc/palvestrin-print/docs/promises.md"_s,
                                              u"usr/share/doc/palvestrin-print/docs/quickstart.md"_s,
                                              u"usr/share/doc/palvestrin-print/docs/settings.md"_s,
                                              u"usr/share/man/man1/palvestrin-print.1.gz"_s,
                                              u"usr/share/man/man5/palvestrin.conf.5.gz"_s};
        QTest::newRow("tools") << u"palvestrin-tools"_s
                               << QStringList{u"usr/bin/palvestrin"_s,
                                              u"usr/share/bash-completion/completions/palvestrin"_s,
                                              u"usr/share/doc/palvestrin-tools -> palvestrin-print"_s,
                                              u"usr/share/man/man1/palvestrin-check.1.gz"_s,
                                              u"usr/share/man/man1/palvestrin-config.1.gz"_s,
                                              u"usr/share/man/man1/palvestrin-preview.1.gz"_s,
                                              u"usr/share/man/man1/palvestrin-printers.1.gz"_s,
                                              u"usr/share/man/man1/palvestrin-render.1.gz"_s,
                                              u"usr/share/man/man1/palvestrin.1.gz"_s,
                                              u"usr/share/palvestrin/printjob.rng"_s,
                                              u"usr/share/zsh/vendor-completions/_palvestrin"_s};
        QTest::newRow("desktop") << u"palvestrin-desktop"_s
                                 << QStringList{
                                        u"usr/bin/palvestrin-draw"_s,
                                        u"usr/bin/palvestrin-settings"_s,
                                        u"usr/share/applications/palvestrin-settings.desktop"_s,
                                        u"usr/share/doc/palvestrin-desktop -> palvestrin-print"_s,
                                        u"usr/share/icons/hicolor/scalable/apps/palvestrin-settings.svg"_s,
                                        u"usr/share/man/man1/palvestrin-draw.1.gz"_s,
                                        u"usr/share/man/man1/palvestrin-settings.1.gz"_s,
                                        u"usr/share/metainfo/palvestrin-settings.metainfo.xml"_s};
        QTest::newRow("cups") << u"palvestrin-cups"_s
                              << QStringList{u"usr/lib/cups/backend/palvestrin"_s,
                                             u"usr/lib/systemd/system/cups.service.d/palvestrin.conf"_s,
                                             u"usr/libexec/palvestrin/tidy-print-spool"_s,
                                             u"usr/share/cups/mime/palvestrin.convs"_s,
                                             u"usr/share/cups/mime/palvestrin.types"_s,
                                             u"usr/share/doc/palvestrin-cups -> palvestrin-print"_s,
                                             u"usr/share/lintian/overrides/palvestrin-cups"_s,
                                             u"usr/share/man/man7/palvestrin-cups.7.gz"_s,
                                             u"usr/share/ppd/palvestrin/pv58mm.ppd"_s,
                                             u"usr/share/ppd/palvestrin/pv80mm.ppd"_s,
                                             u"usr/share/ppd/palvestrin/pv80mm42.ppd"_s,
                                             u"usr/share/ppd/palvestrin/pvgener.ppd"_s,
                                             u"usr/share/ppd/palvestrin/pvline.ppd"_s};
    }
    void everyFileIsInItsPackage()
    {
        QFETCH(QString, package);
        static const QRegularExpression many(u"/(examples|gallery|settings|translations)/"_s);
        QTEST(files(package, many), "expected");
    }

    void everyExampleAndCatalogueIsThere()
    {
        const QStringList all = files(u"palvestrin-print"_s, QRegularExpression(u"(?!)"_s));
        QCOMPARE(all.filter(u"usr/share/doc/palvestrin-print/examples/jobs/print"_s).size(), qsizetype(13));
        QVERIFY(all.contains(u"usr/share/doc/palvestrin-print/translations/movement-types.txt"_s));
        QVERIFY(all.contains(u"usr/share/doc/palvestrin-print/docs/gallery/printReport.png"_s));
        QVERIFY(all.contains(u"usr/share/doc/palvestrin-print/docs/settings/kitchen-ticket.png"_s));
        QVERIFY(
            all.contains(u"usr/share/doc/palvestrin-print/examples/home/.palvestrin/conf/palvestrin.conf"_s));
        for (const QString &language :
             {u"it"_s, u"it_IT"_s, u"de"_s, u"de_DE"_s, u"fr"_s, u"fr_FR"_s, u"es"_s, u"es_ES"_s})
            QVERIFY(all.contains(u"usr/share/palvestrin/translations/palvestrin_%1.qm"_s.arg(language)));
        const QStringList tools = files(u"palvestrin-tools"_s, QRegularExpression(u"(?!)"_s));
        for (const QString &language : {u"it"_s, u"de"_s, u"fr"_s, u"es"_s})
            QVERIFY(
                tools.contains(u"usr/share/palvestrin/translations/palvestrin-tools_%1.qm"_s.arg(language)));
    }

    void everybodyMayReadAndNobodyWrite()
    {
        for (const QString &package : packages) {
            const QStringList lines = contents(package);
            QVERIFY(!lines.isEmpty());
            for (const QString &line : lines) {
                static const QRegularExpression right(
                    u"^(drwxr-xr-x root/root .*/|-rwxr-xr-x root/root usr/(bin|libexec)/.*[^/]|"
                    u"-rwxr--r-- root/root usr/lib/cups/backend/palvestrin|"
                    u"-rw-r--r-- root/root usr/(share|lib/systemd)/.*[^/]|lrwxrwxrwx root/root .* -> .*)$"_s);
                QVERIFY2(line.contains(right) || line == "drwxr-xr-x root/root "_L1, qPrintable(line));
            }
        }
    }

    void theChangelogBeginsWithThisVersion()
    {
        const ProgramRun run = runProgram(u"sh"_s,
                                          {u"-c"_s,
                                           u"dpkg-deb --fsys-tarfile \"$1\" | tar -xOf - "
                                           "./usr/share/doc/palvestrin-print/changelog.gz | gzip -dc"_s,
                                           u"sh"_s, packagePath(u"palvestrin-print"_s)},
                                          environment);
        QVERIFY2(run.standardOutput.startsWith("palvestrin-print (" PACKAGE_VERSION ") "),
                 run.standardOutput);
    }

    /// No error, no warning.
    void lintianFindsNothing()
    {
        const ProgramRun run =
            runProgram(u"lintian"_s,
                       {u"--allow-root"_s, u"--tag-display-limit"_s, u"0"_s,
                        packagePath(u"palvestrin-print"_s), packagePath(u"palvestrin-tools"_s),
                        packagePath(u"palvestrin-desktop"_s), packagePath(u"palvestrin-cups"_s)},
                       environment, folder.path(), 240'000);
        QCOMPARE(run.standardOutput + run.standardError, QByteArray());
        QCOMPARE(run.failure, QString());
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

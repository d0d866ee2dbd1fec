// Installed into a prefix of its own, the program prints with what is installed beside it.

#include "installedprinter.h"

using namespace Qt::Literals::StringLiterals;

class InstallTest : public QObject
{
    Q_OBJECT

private:
    const QTemporaryDir folder;
    const QString prefix = folder.filePath(u"a prefix"_s);

private Q_SLOTS:
    void initTestCase()
    {
        const ProgramRun install =
            runProgram(QStringLiteral(CMAKE_PROGRAM),
                       {u"--install"_s, QStringLiteral(BUILD_FOLDER), u"--prefix"_s, prefix},
                       {u"PATH="_s + qEnvironmentVariable("PATH")});
        QVERIFY2(install.failure.isEmpty(), install.standardError);
    }

    void everyFileIsThere_data()
    {
        QTest::addColumn<QString>("file");
        for (const char *file : {"bin/palvestrin-print",
                                 "bin/palvestrin",
                                 "bin/palvestrin-settings",
                                 "bin/palvestrin-draw",
                                 "share/man/man1/palvestrin-print.1.gz",
                                 "share/man/man1/palvestrin.1.gz",
                                 "share/man/man1/palvestrin-check.1.gz",
                                 "share/man/man1/palvestrin-config.1.gz",
                                 "share/man/man1/palvestrin-settings.1.gz",
                                 "share/man/man1/palvestrin-draw.1.gz",
                                 "share/man/man1/palvestrin-preview.1.gz",
                                 "share/man/man1/palvestrin-render.1.gz",
                                 "share/man/man1/palvestrin-printers.1.gz",
                                 "share/man/man7/palvestrin-cups.7.gz",
                                 "lib/cups/backend/palvestrin",
                                 "share/ppd/palvestrin/pv80mm.ppd",
                                 "share/cups/mime/palvestrin.types",
                                 "share/man/man5/palvestrin.conf.5.gz",
                                 "share/bash-completion/completions/palvestrin",
                                 "share/zsh/vendor-completions/_palvestrin",
                                 "share/doc/palvestrin-print/copyright",
                                 "share/doc/palvestrin-print/changelog.gz",
                                 "share/palvestrin/translations/palvestrin_it_IT.qm",
                                 "share/palvestrin/translations/palvestrin_de_DE.qm",
                                 "share/palvestrin/translations/palvestrin_fr_FR.qm",
                                 "share/palvestrin/translations/palvestrin_es_ES.qm",
                                 "share/doc/palvestrin-print/README.md",
                                 "share/doc/palvestrin-print/SECURITY.md",
                                 "share/doc/palvestrin-print/CHANGELOG.md",
                                 "share/doc/palvestrin-print/docs/quickstart.md",
                                 "share/doc/palvestrin-print/docs/integration.md",
                                 "share/doc/palvestrin-print/docs/job-format.md",
                                 "share/doc/palvestrin-print/docs/output-format.md",
                                 "share/doc/palvestrin-print/docs/printers.md",
                                 "share/doc/palvestrin-print/docs/configuration.md",
                                 "share/doc/palvestrin-print/docs/escpos.md",
                                 "share/doc/palvestrin-print/docs/languages.md",
                                 "share/doc/palvestrin-print/docs/promises.md",
                                 "share/doc/palvestrin-print/docs/family/services.md",
                                 "share/doc/palvestrin-print/translations/movement-types.txt",
                                 "share/doc/palvestrin-print/examples/jobs/printFullOrderReceipt.xml",
                                 "share/doc/palvestrin-print/examples/home/.palvestrin/conf/palvestrin.conf"})
            QTest::newRow(file) << QString::fromLatin1(file);
    }
    void everyFileIsThere()
    {
        QFETCH(QString, file);
        QVERIFY(QFile::exists(prefix + u'/' + file));
    }

    void itPrintsFromThere() { verifyPrintsInItalian(prefix); }
};

QTEST_GUILESS_MAIN(InstallTest)
#include "install_test.moc"

// What a desktop reads about the window is as its standards want it.

#include "program.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class DesktopTest : public QObject
{
    Q_OBJECT

private:
    static QString path(const QString &name) { return QStringLiteral(DESKTOP_FOLDER "/") + name; }
    static QStringList environment()
    {
        return {u"PATH="_s + qEnvironmentVariable("PATH"), u"LC_ALL=C.UTF-8"_s, u"HOME=/nonexistent"_s};
    }

private Q_SLOTS:
    void theEntryOfTheMenuIsValid()
    {
        const ProgramRun run =
            runProgram(u"desktop-file-validate"_s, {path(u"palvestrin-settings.desktop"_s)}, environment());
        QCOMPARE(run.failure, QString());
        QCOMPARE(run.standardOutput + run.standardError, QByteArray());
    }

    void theDataOfTheSoftwareCentreAreValid()
    {
        const ProgramRun run = runProgram(
            u"appstreamcli"_s, {u"validate"_s, u"--no-net"_s, path(u"palvestrin-settings.metainfo.xml"_s)},
            environment());
        QVERIFY2(run.failure.isEmpty(), run.standardOutput);
    }
};

QTEST_GUILESS_MAIN(DesktopTest)
#include "desktop_test.moc"

#pragma once

#include "program.h"
#include "temporaryhome.h"
#include "wholefile.h"

#include <QTest>

/// Prints a job with the program and the Italian catalogue that stand under `prefix`, and fails the test
/// unless the paper is right.
inline void verifyPrintsInItalian(const QString &prefix)
{
    const TemporaryHome home;
    home.configure("palvestrin: { language: { basedir = " + prefix.toUtf8() +
                   "/share/palvestrin/translations; file = /; }; receiptdoc: { paperWidth = 20; }; };");
    writeFile(home.filePath(QStringLiteral("job.xml")),
              R"(<job><method name="printFullOrderReceipt"/><receipt serialnumber="7"/></job>)");
    const QString program = prefix + QStringLiteral("/bin/palvestrin-print");
    const QStringList environment = {QStringLiteral("HOME=") + home.path(),
                                     QStringLiteral("LC_ALL=it_IT.UTF-8")};
    const QByteArray paper = "\nj\n\" Ricevuta n.: 7\"@\n\"====================\"@\nJ\n";
    const QList<QStringList> starts = {
        {QStringLiteral("job.xml"), QStringLiteral("out")},
        {QStringLiteral("job.xml"), QStringLiteral("out"), QStringLiteral("-third")},
        {QStringLiteral("-reverse"), QStringLiteral("job.xml"), QStringLiteral("out")}};
    for (const QStringList &words : starts) {
        const ProgramRun run = runProgram(program, words, environment, home.path());
        QCOMPARE(run.failure, QString());
        QCOMPARE(run.standardOutput + run.standardError, QByteArray());
        QCOMPARE(contentOf(home.filePath(QStringLiteral("out"))), paper);
    }
}

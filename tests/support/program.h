#pragma once

#include <QByteArray>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>
#include <QTest>

/// What one run of a program left behind.
struct ProgramRun
{
    int exitStatus = -1; ///< -1 when it crashed or ran longer than the limit
    QByteArray standardOutput;
    QByteArray standardError;
};

/// Runs a program in an environment that holds nothing but `environment` ("NAME=VALUE"), for at most a
/// minute.
inline ProgramRun runProgram(const QString &path, const QStringList &arguments,
                             const QStringList &environment, const QString &workingDirectory = QString())
{
    QProcess process;
    QProcessEnvironment variables;
    for (const QString &variable : environment)
        variables.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    process.setProcessEnvironment(variables);
    process.setWorkingDirectory(workingDirectory);
    process.start(path, arguments);
    constexpr int limit = 60'000; // milliseconds
    const bool finished = process.waitForFinished(limit);
    ProgramRun run;
    run.standardOutput = process.readAllStandardOutput();
    run.standardError = process.readAllStandardError();
    if (finished && process.exitStatus() == QProcess::NormalExit)
        run.exitStatus = process.exitCode();
    process.kill();
    process.waitForFinished();
    return run;
}

#pragma once

#include <QByteArray>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>

/// What one run of a program left behind.
struct ProgramRun
{
    /// Empty when the program ended by itself with status 0, else one line that tells what it did instead.
    QString failure;
    int exitStatus = -1; ///< -1 when it did not end by itself
    QByteArray standardOutput;
    QByteArray standardError;
};

/// A home directory and a UTF-8 locale: all that a program of the house needs of its environment.
inline QStringList bareEnvironment(const QString &home)
{
    return {QStringLiteral("HOME=") + home, QStringLiteral("LC_ALL=C.UTF-8")};
}

/// Runs a program in an environment that holds nothing but `environment` ("NAME=VALUE", the last of a name
/// counts). After `timeLimit` milliseconds it is killed: a job takes a few, slow sanitizer builds included.
inline ProgramRun runProgram(const QString &path, const QStringList &arguments,
                             const QStringList &environment, const QString &workingDirectory = QString(),
                             int timeLimit = 60'000)
{
    QProcessEnvironment variables;
    for (const QString &variable : environment)
        variables.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    QProcess process;
    process.setProcessEnvironment(variables);
    process.setWorkingDirectory(workingDirectory);
    process.start(path, arguments, QIODevice::ReadOnly);
    const bool inTime = process.waitForFinished(timeLimit) || process.state() == QProcess::NotRunning;
    if (!inTime) {
        process.kill();
        process.waitForFinished();
    }

    ProgramRun run;
    if (!inTime)
        run.failure = QStringLiteral("it did not end within %1 ms").arg(timeLimit);
    else if (process.error() == QProcess::FailedToStart)
        run.failure = QStringLiteral("it does not start: ") + process.errorString();
    else if (process.exitStatus() == QProcess::CrashExit)
        run.failure = QStringLiteral("it crashed, signal %1").arg(process.exitCode());
    else
        run.exitStatus = process.exitCode();
    if (run.exitStatus > 0)
        run.failure = QStringLiteral("exit status %1").arg(run.exitStatus);
    run.standardOutput = process.readAllStandardOutput();
    run.standardError = process.readAllStandardError();
    return run;
}

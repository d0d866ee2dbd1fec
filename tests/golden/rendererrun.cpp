#include "rendererrun.h"

#include <QProcess>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int timeLimit = 60000; // milliseconds; a job takes a few, slow sanitizer builds included

QString failureOf(QProcess &renderer)
{
    if (renderer.error() == QProcess::FailedToStart)
        return u"it does not start: "_s + renderer.errorString();
    if (renderer.exitStatus() == QProcess::CrashExit)
        return u"it crashed, signal %1"_s.arg(renderer.exitCode());
    if (renderer.exitCode() != 0)
        return u"exit status %1"_s.arg(renderer.exitCode());
    return {};
}

} // namespace

QString rendererPath()
{
    return QStringLiteral(PALVESTRIN_PRINT);
}

QProcessEnvironment bareEnvironment(const QString &home)
{
    QProcessEnvironment environment;
    environment.insert(u"HOME"_s, home);
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    return environment;
}

RendererRun runRenderer(const QStringList &arguments, const QProcessEnvironment &environment)
{
    QProcess renderer;
    renderer.setProcessEnvironment(environment);
    renderer.start(rendererPath(), arguments, QIODevice::ReadOnly);
    const bool inTime = renderer.waitForFinished(timeLimit) || renderer.state() == QProcess::NotRunning;
    if (!inTime) {
        renderer.kill();
        renderer.waitForFinished();
    }
    const QString failure = inTime ? failureOf(renderer) : u"it did not end within a minute"_s;
    return {failure, renderer.readAllStandardOutput(), renderer.readAllStandardError()};
}

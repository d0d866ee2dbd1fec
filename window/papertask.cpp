#include "papertask.h"

#include "commanderror.h"
#include "companion.h"

#include <QDir>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int longestRun = 10'000; // milliseconds; a ticket takes three
const QString configurationFile = u".palvestrin/conf/palvestrin.conf"_s;

} // namespace

PaperTask::PaperTask(QObject *parent) : QObject(parent)
{
    QDir(home.path()).mkpath(u".palvestrin/conf"_s);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, home.path());
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardInputFile(QProcess::nullDevice());
    connect(&process, &QProcess::finished, this, &PaperTask::finish);
    patience.setSingleShot(true);
    patience.setInterval(longestRun);
    connect(&patience, &QTimer::timeout, &process, &QProcess::kill);
}

PaperTask::~PaperTask()
{
    process.disconnect(this);
    process.kill();
    process.waitForFinished();
}

void PaperTask::print(const QByteArray &configuration, const QByteArray &job)
{
    next = {configuration, job};
    if (!isRunning())
        start();
}

void PaperTask::start()
{
    const Request request = *std::exchange(next, std::nullopt);
    if (!write(configurationFile, request.configuration) || !write(u"job.xml"_s, request.job)) {
        fail(tr("There is no room for the preview in %1.").arg(home.path()));
        return;
    }
    QFile::remove(home.filePath(u"output"_s));
    try {
        process.start(companionPath({u"palvestrin-print"_s, u"palvestrin-print"_s}),
                      {home.filePath(u"job.xml"_s), home.filePath(u"output"_s)}, QIODevice::ReadOnly);
        patience.start();
    } catch (const CommandError &error) {
        fail(error.messages().front());
    }
}

void PaperTask::finish()
{
    patience.stop();
    if (next) {
        start();
        return;
    }
    if (process.exitStatus() == QProcess::CrashExit) {
        fail(tr("The job takes too long to be shown."));
        return;
    }
    QFile output(home.filePath(u"output"_s));
    const QByteArray stream = output.open(QIODevice::ReadOnly) ? output.readAll() : QByteArray();
    Q_EMIT printed(stream, QString::fromLocal8Bit(process.readAll()).trimmed());
}

bool PaperTask::write(const QString &name, const QByteArray &content) const
{
    QFile file(home.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

void PaperTask::fail(const QString &why)
{
    Q_EMIT printed({}, why);
}

#include "papertask.h"

#include "companion.h"
#include "errortext.h"

#include <QDir>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString configurationFile = u".palvestrin/conf/palvestrin.conf"_s;

} // namespace

PaperTask::PaperTask(QObject *parent, int limit) : QObject(parent)
{
    if (home.isValid()) // otherwise its path is the folder in which the window was started
        QDir(home.path()).mkpath(u".palvestrin/conf"_s);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, home.path());
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardInputFile(QProcess::nullDevice());
    connect(&process, &QProcess::finished, this, &PaperTask::finish);
    connect(&process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) // then it never finishes
            finish();
    });
    patience.setSingleShot(true);
    patience.setInterval(limit);
    connect(&patience, &QTimer::timeout, this, [this] {
        ranTooLong = true;
        process.kill();
    });
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
        const QString program = companionPath({u"palvestrin-print"_s, u"palvestrin-print"_s});
        ranTooLong = false;
        patience.start();
        process.start(program, {home.filePath(u"job.xml"_s), home.filePath(u"output"_s)},
                      QIODevice::ReadOnly);
    } catch (const CommandError &error) {
        fail(errorText(error));
    }
}

void PaperTask::finish()
{
    patience.stop();
    if (next) {
        start();
        return;
    }
    if (const QString trouble = troubleWithRun(); !trouble.isEmpty()) {
        fail(trouble);
        return;
    }
    QFile output(home.filePath(u"output"_s));
    const QByteArray stream = output.open(QIODevice::ReadOnly) ? output.readAll() : QByteArray();
    Q_EMIT printed(stream, QString::fromLocal8Bit(process.readAll()).trimmed());
}

/// Why there is no paper; "" when the program came to its end.
QString PaperTask::troubleWithRun() const
{
    if (process.error() == QProcess::FailedToStart)
        return tr("The program that prints cannot be started: %1").arg(process.errorString());
    if (process.exitStatus() != QProcess::CrashExit)
        return {};
    return ranTooLong ? tr("The job takes too long to be shown.")
                      : tr("The program that prints has crashed.");
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

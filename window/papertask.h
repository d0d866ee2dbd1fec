#pragma once

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <optional>

/// Has a job printed by the real program, under a configuration that is in no file. It runs beside the
/// window, with a home of its own. Of several requests the last one wins.
class PaperTask : public QObject
{
    Q_OBJECT

public:
    static constexpr int longestRun = 10'000; ///< milliseconds; a ticket takes three

    /// What runs longer than `limit`, in milliseconds, is ended.
    explicit PaperTask(QObject *parent = nullptr, int limit = longestRun);
    ~PaperTask() override;

    void print(const QByteArray &configuration, const QByteArray &job);
    bool isRunning() const { return process.state() != QProcess::NotRunning; }

Q_SIGNALS:
    /// The last request is done. `stream` is what goes to the printer, `said` what the program said, in
    /// words.
    void printed(const QByteArray &stream, const QString &said);

private:
    struct Request
    {
        QByteArray configuration;
        QByteArray job;
    };

    void start();
    void finish();
    QString troubleWithRun() const;
    bool write(const QString &name, const QByteArray &content) const;
    void fail(const QString &why);

    QTemporaryDir home;
    QProcess process;
    QTimer patience;
    bool ranTooLong = false;
    std::optional<Request> next; ///< what is to be printed when the program is free
};

#pragma once

#include "pvconfiguration.h"
#include "temporaryhome.h"

/// A home whose configuration may change during the test, though the application reads it only once.
class ConfiguredHome : public TemporaryHome
{
public:
    /// Writes the configuration and has the application's one instance read it again.
    void configure(const QByteArray &content) const
    {
        TemporaryHome::configure(content);
        SyncSingleton<PVConfiguration>::instance()->readFile(PVConfiguration::userFile(),
                                                             QStringLiteral("cfg"));
    }

    /// Configures a log file in the home, and what else the `palvestrin` block shall hold.
    void configureLog(const QByteArray &level, const QByteArray &type, const QByteArray &rest = {}) const
    {
        configure("palvestrin: { logger: { level = " + level + "; type = " + type +
                  "; basedir = " + path().toUtf8() + "; filename = test.log; }; " + rest + " };");
    }
    QString logPath() const { return filePath(QStringLiteral("test.log")); }
};

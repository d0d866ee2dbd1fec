#pragma once

#include "libconfig.h"
#include "syncsingleton.h"

/// The application's one configuration: `~/.palvestrin/conf/palvestrin.conf`, read when it is made and never
/// again. Reached through `SyncSingleton<PVConfiguration>::instance()`; safe to ask from any thread.
class PVConfiguration : public libconfig::Config
{
public:
    /// Reads the user's file. A missing one is reported in one line on standard output.
    PVConfiguration();
    /// A configuration of its own, beside the user's: `content` of the file `name`, in the text form as
    /// the programs read it. Opens no file.
    PVConfiguration(const QByteArray &content, const QString &name);

    /// The path of the user's configuration file. It is fixed: no option and no variable but HOME changes it.
    static QString userFile();

    /// The text of a setting such as "palvestrin.logger.level"; "" when it is missing or empty. There are no
    /// defaults here: what "" means is the business of each reader.
    QString getStrValue(const QString &key) const;

    /// Defined here, so that only a program that calls it needs libconfig-widget.
    QTreeWidget *newConfigListView() const { return Config::newConfigListView(); }
};

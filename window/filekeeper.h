#pragma once

#include <QFileSystemWatcher>

#include <memory>

class ConfigFile;
class FileName;
class FileReplacement;
class MessageBar;
class SettingsModel;

/// The file behind the model: writes it, reads it anew, and tells when it may not be written or another
/// program has changed it. What would lose something is asked first, over the window.
class FileKeeper : public QObject
{
    Q_OBJECT

public:
    /// All three must outlive it.
    FileKeeper(SettingsModel &model, MessageBar &bar, QWidget &window);

    /// False when nothing was written, because of trouble that the user was told of or by their own choice.
    /// Without a change there is nothing to write, and true.
    bool save();
    /// Drops what was changed here, as a step that can be undone.
    void reload();
    /// Asks what is to become of unsaved changes. False when the window is to stay.
    bool mayClose();
    /// Tells of what will keep the file from being saved, if anything will.
    void tellObstacle();

Q_SIGNALS:
    /// A sentence about what was done.
    void done(const QString &sentence);
    /// What was typed for that key cannot be stored; the user is about to be told.
    void unstorable(const QString &key);

private:
    void watch();
    void lookAtFile();
    bool isGone() const;
    QString goneText() const;
    void bringBack();
    void mergeWithFile();
    bool merge(std::unique_ptr<ConfigFile> theirs);
    bool refusesToSave();
    void write();
    void writeThrough(FileReplacement &replacement);
    bool agreesToLosses();

    SettingsModel &model;
    MessageBar &bar;
    QWidget &window;
    QFileSystemWatcher watcher;
};

/// The name of a file without its folder.
QString lastOf(const FileName &path);

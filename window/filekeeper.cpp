#include "filekeeper.h"

#include "commanderror.h"
#include "errortext.h"
#include "fieldnames.h"
#include "mergedialog.h"
#include "messagebar.h"
#include "settingsmodel.h"
#include "storage.h"

#include <QMessageBox>

QString lastOf(const FileName &path)
{
    return FileName(path.path().filename()).shown();
}

FileKeeper::FileKeeper(SettingsModel &ofModel, MessageBar &withBar, QWidget &overWindow)
    : model(ofModel), bar(withBar), window(overWindow)
{
    connect(&watcher, &QFileSystemWatcher::fileChanged, this, &FileKeeper::lookAtFile);
    connect(&watcher, &QFileSystemWatcher::directoryChanged, this, &FileKeeper::lookAtFile);
    watch();
}

void FileKeeper::watch()
{
    const QString path = QString::fromUtf8(model.path().bytes());
    const QString folder = QString::fromUtf8(FileName(model.path().path().parent_path()).bytes());
    for (const QString &name : {path, folder}) {
        if (FileName(name).exists() && !watcher.files().contains(name) &&
            !watcher.directories().contains(name))
            watcher.addPath(name);
    }
}

/// Whether the file was there, and no longer is: what the window holds is all that is left of it.
bool FileKeeper::isGone() const
{
    return model.baseline().exists() && !model.path().exists();
}

QString FileKeeper::goneText() const
{
    return tr("The file is gone. Save writes it anew.");
}

void FileKeeper::lookAtFile()
{
    watch(); // whoever replaces a file takes it from under the watcher
    if (isGone()) {
        bar.tell(goneText());
        return;
    }
    try {
        if (ConfigFile(model.path()).isSameAs(model.baseline()))
            tellObstacle();
        else
            bar.tell(tr("Another program has changed the file."), tr("Show what differs\u2026"),
                     [this] { mergeWithFile(); });
    } catch (const CommandError &error) {
        bar.tell(errorText(error));
    }
}

void FileKeeper::tellObstacle()
{
    const QString obstacle = writingObstacle(model.path());
    if (obstacle.isEmpty())
        bar.hide();
    else
        bar.tell(tr("%1 You can look and try here, but not save.").arg(obstacle));
}

void FileKeeper::mergeWithFile()
{
    if (isGone()) {
        lookAtFile();
        return;
    }
    try {
        merge(std::make_unique<ConfigFile>(model.path()));
    } catch (const CommandError &error) {
        QMessageBox::critical(&window, tr("The file cannot be read"), errorText(error));
    }
}

bool FileKeeper::merge(std::unique_ptr<ConfigFile> theirs)
{
    MergeDialog dialog(model, *theirs, &window);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    const TreeState tree = dialog.merged();
    model.adopt(std::move(theirs), tree, tr("Merge with the file"));
    tellObstacle();
    return true;
}

void FileKeeper::reload()
{
    if (isGone()) {
        lookAtFile();
        return;
    }
    try {
        auto theirs = std::make_unique<ConfigFile>(model.path());
        const TreeState tree = stateOf(theirs->config());
        model.adopt(std::move(theirs), tree, tr("Reload the file"));
        tellObstacle();
        Q_EMIT done(tr("The file was read again. Undo brings your changes back."));
    } catch (const CommandError &error) {
        QMessageBox::critical(&window, tr("The file cannot be read"), errorText(error));
    }
}

/// Whether something stands in a field that was not taken: saving without it would lose it unseen.
bool FileKeeper::refusesToSave()
{
    const QString key = model.firstRefusedKey();
    if (key.isEmpty())
        return false;
    Q_EMIT unstorable(key);
    QMessageBox::warning(&window, tr("Not saved"),
                         tr("%1 cannot be stored as it stands. %2")
                             .arg(nameWithPage(key), asSentence(model.refused(key).why)));
    return true;
}

bool FileKeeper::agreesToLosses()
{
    QStringList lost;
    for (const Loss &loss : model.baseline().losses())
        lost += tr("Line %1: %2").arg(loss.at.line).arg(loss.what);
    const TreeState tree = model.state();
    for (qsizetype later = 1; later < tree.blocks.size(); ++later)
        lost += tr("The block \u201c%1\u201d: only the first block on top is written.")
                    .arg(tree.blocks[later].name);
    if (lost.isEmpty())
        return true;
    QMessageBox question(QMessageBox::Warning, tr("Saving loses something"),
                         tr("Saving loses what the details name. A backup keeps the file as it was."),
                         QMessageBox::Save | QMessageBox::Cancel, &window);
    question.setDefaultButton(QMessageBox::Cancel);
    question.setDetailedText(lost.join(u'\n'));
    return question.exec() == QMessageBox::Save;
}

bool FileKeeper::save()
{
    if (refusesToSave())
        return false;
    if (!model.isModified() && !isGone()) {
        Q_EMIT done(tr("Nothing has been changed, and nothing was written."));
        return true;
    }
    try {
        bringBack();
        auto now = std::make_unique<ConfigFile>(model.path());
        if (!now->isSameAs(model.baseline()) && !merge(std::move(now)))
            return false;
        write();
    } catch (const CommandError &error) {
        QMessageBox::critical(&window, tr("Not saved"), errorText(error));
    }
    return !model.isModified() && !isGone();
}

/// A file that is gone is there as it was, so that what is changed is saved over it as ever.
void FileKeeper::bringBack()
{
    if (!isGone())
        return;
    FileReplacement(model.path()).commit(model.baseline().content());
    lookAtFile();
    Q_EMIT done(tr("Saved %1").arg(model.path().shown()));
}

void FileKeeper::write()
{
    if (!model.isModified()) // all was taken from the file
        return;
    if (!agreesToLosses()) // before the lock, which nobody holds while a question waits
        return;
    FileReplacement replacement(model.path());
    writeThrough(replacement);
}

void FileKeeper::writeThrough(FileReplacement &replacement)
{
    ConfigFile current(model.path()); // under the lock: nobody changes it from here on
    if (!current.isSameAs(model.baseline())) {
        throw CommandError(ExitCode::Busy, model.path(),
                           tr("another program is changing the file; save again when it is done"));
    }
    const FileName backup = model.save(current, replacement);
    watch();
    Q_EMIT done(backup.isEmpty() ? tr("Saved %1").arg(model.path().shown())
                                 : tr("Saved. The file as it was is kept as %1").arg(backup.shown()));
}

bool FileKeeper::mayClose()
{
    if (!model.isModified() && model.firstRefusedKey().isEmpty() && !isGone())
        return true;
    const auto answer = QMessageBox::warning(
        &window, tr("Unsaved changes"),
        isGone() ? goneText() : tr("Save the changes to %1?").arg(lastOf(model.path())),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

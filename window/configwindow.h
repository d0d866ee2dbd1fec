#pragma once

#include "configfile.h"

#include <QMainWindow>

#include <memory>

class QLabel;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

/// The window of `palvestrin config edit`: the settings of one file as a tree, values edited in place.
///
/// Settings that no program reads, and values that make no sense, are marked and tell why. Nothing is written
/// before Save, and Save writes through the same safe way as `palvestrin config set`.
class ConfigWindow : public QMainWindow
{
public:
    /// Reads the file. Throws a CommandError when it cannot be read.
    explicit ConfigWindow(const FileName &path);

    /// False when nothing was written, because of trouble that the user was told of or by their own choice.
    bool save();
    /// Reads the file again and drops all changes, without asking.
    void revert();
    /// Shows the settings whose key or value holds `text`, in any case. The current row is one of them then,
    /// none when there is none.
    void filter(const QString &text);
    /// The row of `key`, made with the blocks on its way when it is missing.
    QTreeWidgetItem *addSetting(const QString &key);
    void addBlock(QTreeWidgetItem *parent, const QString &name);
    /// Removes the current row and everything in it, unless the search hides it.
    void removeCurrent();

    QTreeWidget *tree() const { return view; }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void makeActions();
    void makeLayout();
    void load();
    void markAll();
    void mark(QTreeWidgetItem *row);
    void markModified();
    void describeCurrent();
    void editCurrent();
    void askForSetting();
    void askForBlock();
    void askForRevert();
    /// The text in a cell that is being edited counts as typed.
    void commitEdit();
    /// Whether the user lets `current`, the file as it is now, lose what the tree does not hold, and somebody
    /// else's change.
    bool agreesToLosses(const ConfigFile &current);
    bool agreesToOverwrite(const ConfigFile &current);
    /// The blocks that are shown and not written: those behind the first that hold something.
    QStringList unwrittenBlocks() const;
    /// The known keys that the file does not set.
    QStringList missingKeys() const;
    QTreeWidgetItem *currentBlock() const;
    QString keyOf(const QTreeWidgetItem *row) const;
    /// The first row of this key, null when there is none.
    QTreeWidgetItem *rowOf(const QString &key) const;
    bool isFound(const QTreeWidgetItem *row) const;

    std::unique_ptr<ConfigFile> file;
    QTreeWidget *view;
    QLineEdit *search;
    QLabel *description;
};

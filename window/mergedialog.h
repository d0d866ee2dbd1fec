#pragma once

#include "treestate.h"

#include <QDialog>

class ConfigFile;
class QTreeWidget;
class QTreeWidgetItem;
class SettingsModel;

/// Shows in which settings the window and a file that another program changed differ, and lets the user
/// choose for each which one is kept. What only one side changed is chosen already.
class MergeDialog : public QDialog
{
    Q_OBJECT

public:
    /// Both must outlive it.
    MergeDialog(SettingsModel &model, ConfigFile &theirs, QWidget *parent = nullptr);

    /// The file's tree with what is kept of the window's.
    TreeState merged();
    QTreeWidget *differences() const { return list; }

private:
    QTreeWidgetItem *addDifference(const QString &key, const QString &mine, const QString &theirValue,
                                   bool takesTheirs);
    bool mayKeep(const SettingsModel &model, const QString &key, const QString &mine,
                 const QString &theirValue);
    void refuseToKeep(QTreeWidgetItem &row);
    void takeAllTheirs();

    ConfigFile &theirs;
    QTreeWidget *list;
};

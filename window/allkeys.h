#pragma once

#include <QWidget>

class QTreeWidget;
class QTreeWidgetItem;
class SettingsModel;
class TroubleLabel;

/// The whole tree of the file, in the list view of libconfig, for keys that no table knows. What cannot be
/// stored is not taken, and a line below tells why.
class AllKeys : public QWidget
{
    Q_OBJECT

public:
    /// The model must outlive it.
    explicit AllKeys(SettingsModel &model, QWidget *parent = nullptr);

    QTreeWidget *tree() const { return view; }
    /// Selects the row of `key`; does nothing when there is none.
    void jumpTo(const QString &key);
    /// Removes the current row. A block goes with everything in it, when the user agrees.
    void removeCurrent();
    QString message() const;

Q_SIGNALS:
    void keyChanged(const QString &key);

private:
    friend class ValueDelegate;

    QLayout *newButtons();
    void prepareView();
    void fill();
    void selectFirstSetting();
    void take(QTreeWidgetItem *row);
    void editCurrent();
    void addSetting();
    void addBlock();
    QTreeWidgetItem *currentBlock() const;
    bool agreesToRemove(const QTreeWidgetItem *row);
    void explain(const QString &why);
    void applyView(const QString &what);

    SettingsModel &model;
    QTreeWidget *view;
    TroubleLabel *reason;
};

/// The dotted key of a row.
QString keyOfRow(const QTreeWidgetItem *row);

#pragma once

#include <QWidget>

class QLabel;
class QModelIndex;
class QTreeView;
class ResultFilter;
class SettingsModel;
class TroubleLabel;

/// The settings that a search or a filter finds, and findings that belong to no setting. Choosing one jumps
/// to it.
class ResultList : public QWidget
{
    Q_OBJECT

public:
    /// The model must outlive it.
    explicit ResultList(SettingsModel &model, QWidget *parent = nullptr);

    /// Shows the settings whose name, help, key or value has `text` in any case, and of these only the
    /// changed ones, or only those with a problem, where that is asked for.
    void find(const QString &text, bool onlyChanged, bool onlyProblems);
    /// Looks for nothing any more: then a change of the model costs nothing.
    void clear();
    int count() const;
    QTreeView *list() const { return view; }
    /// What it says when it finds nothing; "" when it finds something.
    QString emptyText() const;

Q_SIGNALS:
    void chosen(const QString &key);
    /// The row of that key is current; "" when none is.
    void lookedAt(const QString &key);

private:
    void refresh();
    void tellCurrent(const QModelIndex &index);
    QStringList looseFindings() const;

    SettingsModel &model;
    ResultFilter *filter;
    QTreeView *view;
    QLabel *empty;
    TroubleLabel *loose;
};

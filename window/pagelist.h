#pragma once

#include "pages.h"

#include <QListWidget>

class SettingsModel;

/// The left side of the window: the pages, each with a mark when something of it is wrong or changed, and
/// "All keys".
class PageList : public QListWidget
{
    Q_OBJECT

public:
    /// The model must outlive it.
    explicit PageList(SettingsModel &model, QWidget *parent = nullptr);

    /// Null for "All keys".
    void select(const Page *page);
    void refresh();
    void list();

    QSize sizeHint() const override;

Q_SIGNALS:
    void pageChosen(const Page *page);
    void allKeysChosen();

private:
    void addCaption(const QString &text);
    void addPage(const QString &title, int number);
    void tellChoice();
    static void mark(QListWidgetItem *item, const Page &page, bool isChanged, bool isWrong);

    SettingsModel &model;
};

#pragma once

#include "fieldnames.h"
#include "pages.h"

#include <QScrollArea>

class QToolButton;
class QVBoxLayout;
class SettingField;
class SettingsModel;

/// The settings of one page, all known ones, set or not, in groups.
class SettingsForm : public QScrollArea
{
    Q_OBJECT

public:
    /// Both must outlive it.
    SettingsForm(const Page &page, SettingsModel &model, QWidget *parent = nullptr);

    const Page &page() const { return shown; }
    const QList<SettingField *> &fields() const { return all; }
    /// Puts the keyboard into the field of `key`, unfolding it if need be. False when it is not here.
    bool jumpTo(const QString &key);
    void refresh();

private:
    void addGroup(Group group, QVBoxLayout *column);
    QVBoxLayout *addFolded(const QString &title, QVBoxLayout *column);

    const Page &shown;
    SettingsModel &model;
    QList<SettingField *> all;
    QToolButton *fold = nullptr;
};

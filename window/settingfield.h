#pragma once

#include "valueeditor.h"

#include <QWidget>

class QLabel;
class QToolButton;
class SettingsModel;
class TroubleLabel;

/// One setting on a page: its name with the key in small type, the editor, a button that resets it, and below
/// what is wrong with it.
class SettingField : public QWidget
{
    Q_OBJECT

public:
    /// `key` and `model` must outlive it.
    SettingField(const knownkeys::Key &key, SettingsModel &model, QWidget *parent = nullptr);

    const knownkeys::Key &key() const { return known; }
    QWidget *focus() { return editor->focus(); }
    /// The name, where it stands beside the editor and not in it; null otherwise.
    QLabel *nameLabel() const { return name; }
    void refresh();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void lay(QLabel *keyLabel);
    void describe(const QString &problem);
    bool isFlag() const;
    bool isSet() const;

    const knownkeys::Key &known;
    SettingsModel &model;
    std::unique_ptr<ValueEditor> editor;
    QLabel *name = nullptr;
    QLabel *state;
    TroubleLabel *trouble;
    QToolButton *resetButton;
};

/// A label in small type and quiet colour.
QLabel *newSmallLabel(const QString &text);

#pragma once

#include "fieldnames.h"

#include <QWidget>

#include <functional>
#include <memory>

/// What edits one setting: the right kind of widget for its values. It shows the value that counts, also when
/// the setting is not set.
class ValueEditor
{
public:
    using Changed = std::function<void(const QString &value)>;

    virtual ~ValueEditor() = default;
    virtual QWidget *widget() = 0;
    /// The part that takes the keyboard; it carries the accessible name.
    virtual QWidget *focus() { return widget(); }
    /// Shows `value`; "" stands for none. Tells nobody.
    virtual void show(const QString &value) = 0;
};

/// The editor of a key, whose widget belongs to `parent`. It calls `changed` when a person changes the value.
std::unique_ptr<ValueEditor> newEditor(const knownkeys::Key &key, QWidget *parent,
                                       ValueEditor::Changed changed);

#pragma once

#include "knownkeys.h"

#include <QString>

/// How the window speaks of the settings: what people call them, what stands together, what edits them. What
/// they mean, and what a missing one means, is told by the tables of knownkeys.h.

/// The order is that of the page.
enum class Group { Columns, Top, Customer, Order, Printer, General, WithoutEffect };

enum class Editor { ByKind, Folder, File, Number };

/// What a number counts: one of them, and any other number. To be translated in the context "Settings".
struct Unit
{
    const char *one;
    const char *many;
};

struct SettingName
{
    QLatin1StringView setting; ///< the last name of its key
    const char *name;          ///< for people, to be translated in the context "Settings"
    Group group;
    const Unit *unit = nullptr; ///< of a number
    Editor editor = Editor::ByKind;
};

/// The row of a known key.
const SettingName &settingName(const QString &key);

QString humanName(const QString &key);
/// "Kitchen ticket: Line width"; the key itself when no table knows it.
QString nameWithPage(const QString &key);

/// Where the key stands on its page. What changes nothing on any paper is without effect.
Group groupOf(const knownkeys::Key &key);
QString groupTitle(Group group);

/// The unit of `number`, in the user's language.
QString unitOf(const Unit &unit, int number);

/// A message or a meaning as a sentence begins: with a capital, unless it begins with a name of the file.
QString asSentence(const QString &text);

/// The value as everybody may see it: what may be a password is masked.
QString maskedValue(const QString &key, const QString &value);

/// What a missing value means, in the user's language: "32", "off", "empty".
QString defaultText(const knownkeys::Key &key);

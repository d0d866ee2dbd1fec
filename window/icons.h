#pragma once

#include <QString>

class QAbstractButton;
class QAction;
class QIcon;
class QPalette;
class QWidget;

/// The icons of the window: outlines of our own in the colour of the text, so that they fit a light and a
/// dark theme.
QIcon themedIcon(const QString &name, const QPalette &palette);

/// Gives a button its icon, and again when the theme changes.
void setThemedIcon(QAbstractButton *button, const QString &name);
/// The same for an action that stands on `bar`.
void setThemedIcon(QAction *action, const QString &name, QWidget *bar);

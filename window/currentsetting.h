#pragma once

#include <QByteArray>
#include <QString>

class SettingsModel;

/// What is told of the setting that has the keyboard: in words, and on the paper.

/// Its name, meaning and default, as rich text; a sentence for a block, when no program reads the key, or
/// when none is current.
QString explanationOf(const QString &key);

/// The configuration in which the setting does less, so that what it does now shows as the difference on
/// paper. Empty when it does nothing that could be shown.
QByteArray withLessOf(const QString &key, const SettingsModel &model);

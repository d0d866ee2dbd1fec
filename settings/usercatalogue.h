#pragma once

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

/// Loads the words of the programs for people in the language that the user reads (LANGUAGE, LC_ALL,
/// LC_MESSAGES, LANG). It has nothing to do with the labels on the paper, which the configuration chooses.
/// False when there is no catalogue for it: then the words are English.
bool loadUserCatalogue(QTranslator &catalogue, const QLocale &language = QLocale::system());

/// A text of the tables, which are English, in that language.
QString inUserLanguage(const char *text);
QString inUserLanguage(const QString &text);

/// The same for a text in the code: `UserWords::tr("...")`.
class UserWords
{
    Q_DECLARE_TR_FUNCTIONS(Settings)
};

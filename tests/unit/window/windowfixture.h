#pragma once

#include "scratchfolder.h"
#include "settingswindow.h"

#include <QMessageBox>
#include <QTimer>
#include <QTranslator>

#include <memory>

class SettingField;

/// A small configuration with a mistake of each kind that a person makes.
extern const char exampleConfiguration[];
/// A setup of a kitchen on 58 mm paper, without a mistake.
extern const char kitchenConfiguration[];

/// To be called by each test's main: settings of the toolkit go to a folder of the test, and the programs of
/// this build are found.
void prepareForWindows(const QString &folder);

/// Puts the catalogues of a language ("it") into place for as long as it lives; "en" needs none.
class InLanguage
{
public:
    explicit InLanguage(const QString &language);
    ~InLanguage();

private:
    QTranslator words;
    QTranslator toolkit;
};

/// Shows the window and waits until it has the keyboard and its paper.
void showReady(SettingsWindow &window);
/// Waits until the paper of the last change is painted.
bool waitForPaper(SettingsWindow &window);
/// The rows of the paper, one a line.
QString paperText(SettingsWindow &window);

/// The field of a setting, on its page; null when there is none.
SettingField *fieldOf(SettingsWindow &window, const QString &key);
/// Types `text` into the field as a person does, replacing what is there.
void typeInto(QWidget *editor, const QString &text);

/// Presses `button` in the next message box, and keeps what it said.
class Answer
{
public:
    explicit Answer(QMessageBox::StandardButton with);
    QString question() const { return text; }

private:
    void answer();

    QMessageBox::StandardButton button;
    QString text;
    QTimer timer;
};

#define WINDOW_TEST_MAIN(Test)                                                                               \
    int main(int argc, char **argv)                                                                          \
    {                                                                                                        \
        const QTemporaryDir home;                                                                            \
        prepareForWindows(home.path());                                                                      \
        QApplication application(argc, argv);                                                                \
        Test test;                                                                                           \
        return QTest::qExec(&test, argc, argv);                                                              \
    }

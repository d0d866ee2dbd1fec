#pragma once

#include "filekeeper.h"
#include "settingsmodel.h"

#include <QHash>
#include <QMainWindow>

class AllKeys;
class FirstUse;
class MessageBar;
class PageList;
class PaperPane;
class QLabel;
class QSplitter;
class QStackedWidget;
class QToolBar;
class ResultList;
class SearchBar;
class SettingsForm;
struct Page;

/// The window of `palvestrin config edit`: documents at the left, the settings of one in the middle, its
/// paper at the right. Nothing is written before Save, and Save writes through the same safe way as
/// `palvestrin config set`.
class SettingsWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Reads the file. Throws a CommandError when it cannot be read.
    explicit SettingsWindow(const FileName &path);
    ~SettingsWindow() override;

    /// As FileKeeper::save does, with what is being typed.
    bool save();
    /// Shows the setting, on its own page or among all keys, and puts the keyboard there.
    void jumpTo(const QString &key);
    void showPage(const Page &page);
    void showAllKeys();

    SettingsModel &settings() { return model; }
    PaperPane &paperPane() { return *paper; }
    MessageBar &messages() { return *bar; }
    ResultList &results() { return *found; }
    AllKeys &allKeys() { return *everything; }
    /// The form that is shown; null when another page is.
    SettingsForm *form() const;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void makeLayout();
    QWidget *makeMiddle();
    void makeFileMenu();
    void makeEditMenu();
    void makeViewMenu();
    void makeHelpMenu();
    void makeTools();
    QAction *addCommand(QMenu *menu, const QString &text, const QKeySequence &keys,
                        std::function<void()> action);

    void showFirstPage();
    void showFirstUse();
    void showInMiddle(QWidget *page);
    void beginWithPreset();
    void search();
    void endSearch();
    void refresh();
    void refreshFindings();
    void followFocus(const QWidget *widget);
    void showPaperOf(const QString &key);
    void setCurrentKey(const QString &key);
    void printPaper();

    void takeWhatIsTyped();
    void showAbout();

    SettingsModel model;
    QHash<const Page *, SettingsForm *> forms;
    PageList *list;
    QStackedWidget *stack;
    AllKeys *everything;
    ResultList *found;
    FirstUse *first = nullptr;
    PaperPane *paper;
    MessageBar *bar;
    QSplitter *splitter;
    QLabel *help;
    SearchBar *searchBar;
    FileKeeper keeper;
    QAction *saveAction = nullptr;
    QWidget *beforeSearch = nullptr; ///< what the results stand in front of; null when nothing is searched
    QString currentKey;
};

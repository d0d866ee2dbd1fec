#include "settingswindow.h"

#include "allkeys.h"
#include "currentsetting.h"
#include "firstuse.h"
#include "help.h"
#include "icons.h"
#include "messagebar.h"
#include "pagelist.h"
#include "paperpane.h"
#include "paperview.h"
#include "resultlist.h"
#include "searchbar.h"
#include "settingfield.h"
#include "settingsform.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString geometrySetting = u"window/geometry"_s;
const QString splitterSetting = u"window/splitter"_s;

} // namespace

SettingsWindow::SettingsWindow(const FileName &path)
    : model(path), list(new PageList(model)), stack(new QStackedWidget), everything(new AllKeys(model)),
      found(new ResultList(model)), paper(new PaperPane), bar(new MessageBar), splitter(new QSplitter),
      help(new QLabel), searchBar(new SearchBar), keeper(model, *bar, *this)
{
    makeLayout();
    makeFileMenu();
    makeEditMenu();
    makeViewMenu();
    makeHelpMenu();
    makeTools();
    connect(list, &PageList::pageChosen, this, [this](const Page *page) { showPage(*page); });
    connect(list, &PageList::allKeysChosen, this, &SettingsWindow::showAllKeys);
    connect(found, &ResultList::lookedAt, this, &SettingsWindow::showPaperOf);
    connect(found, &ResultList::chosen, this, &SettingsWindow::jumpTo);
    connect(everything, &AllKeys::keyChanged, this, &SettingsWindow::setCurrentKey);
    connect(&model, &SettingsModel::changed, this, &SettingsWindow::refresh);
    connect(&model, &SettingsModel::findingsChanged, this, &SettingsWindow::refreshFindings);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { followFocus(now); });
    connect(&keeper, &FileKeeper::unstorable, this, &SettingsWindow::jumpTo);
    connect(&keeper, &FileKeeper::done, this,
            [this](const QString &sentence) { statusBar()->showMessage(sentence); });
    statusBar()->showMessage(model.path().shown());
    showFirstPage();
    refresh();
    refreshFindings();
    keeper.tellObstacle();
}

/// The pages speak of the model, and go first.
SettingsWindow::~SettingsWindow()
{
    qApp->disconnect(this);
    model.disconnect(this);
    delete takeCentralWidget();
}

void SettingsWindow::makeLayout()
{
    auto *page = new QWidget;
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(bar);
    column->addWidget(splitter, 1);
    splitter->addWidget(list);
    splitter->addWidget(makeMiddle());
    splitter->addWidget(paper);
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(1);
    splitter->setStretchFactor(1, 3);
    splitter->setStretchFactor(2, 2);
    splitter->setSizes({210, 520, 450});
    setCentralWidget(page);
    resize(1180, 760);
    restoreGeometry(QSettings().value(geometrySetting).toByteArray());
    splitter->restoreState(QSettings().value(splitterSetting).toByteArray());
}

QWidget *SettingsWindow::makeMiddle()
{
    constexpr int linesOfHelp = 5;
    auto *middle = new QWidget;
    auto *column = new QVBoxLayout(middle);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    stack->addWidget(everything);
    stack->addWidget(found);
    column->addWidget(stack, 1);
    help->setObjectName(u"help"_s);
    help->setWordWrap(true);
    help->setMargin(16);
    help->setAlignment(Qt::AlignTop);
    help->setAutoFillBackground(true);
    help->setBackgroundRole(QPalette::AlternateBase);
    help->setFixedHeight(linesOfHelp * help->fontMetrics().lineSpacing() + 2 * help->margin());
    column->addWidget(help);
    return middle;
}

QAction *SettingsWindow::addCommand(QMenu *menu, const QString &text, const QKeySequence &keys,
                                    std::function<void()> action)
{
    QAction *made = menu->addAction(text);
    made->setShortcut(keys);
    connect(made, &QAction::triggered, this, [call = std::move(action)] { call(); });
    return made;
}

void SettingsWindow::makeFileMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&File"));
    saveAction = addCommand(menu, tr("&Save"), QKeySequence::Save, [this] { save(); });
    addCommand(menu, tr("&Reload the file"), Qt::Key_F5, [this] { keeper.reload(); });
    menu->addSeparator();
    addCommand(menu, tr("Show a &job of your own\u2026"), QKeySequence::Open, [this] { paper->chooseJob(); });
    addCommand(menu, tr("Save the &paper as a picture\u2026"), QKeySequence(),
               [this] { paper->savePicture(); });
    menu->addSeparator();
    addCommand(menu, tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), [this] { close(); });
}

void SettingsWindow::makeEditMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Edit"));
    QAction *undo = model.undoStack().createUndoAction(this, tr("&Undo"));
    undo->setShortcut(QKeySequence::Undo);
    undo->setObjectName(u"undo"_s);
    QAction *redo = model.undoStack().createRedoAction(this, tr("Re&do"));
    redo->setShortcuts({QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
    redo->setObjectName(u"redo"_s);
    menu->addAction(undo);
    menu->addAction(redo);
    menu->addSeparator();
    addCommand(menu, tr("&Copy the paper as text"), Qt::CTRL | Qt::SHIFT | Qt::Key_C,
               [this] { paper->copyText(); });
    addCommand(menu, tr("&Find a setting"), QKeySequence::Find, [this] { searchBar->beginTyping(); });
    addCommand(menu, tr("Reset the &setting"), Qt::CTRL | Qt::Key_R, [this] {
        if (knownkeys::find(currentKey))
            model.set(currentKey, QString());
    });
}

void SettingsWindow::makeViewMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&View"));
    PaperView &view = paper->paper();
    addCommand(menu, tr("&Larger paper"), QKeySequence::ZoomIn, [&view] { view.zoomBy(1); });
    addCommand(menu, tr("&Smaller paper"), QKeySequence::ZoomOut, [&view] { view.zoomBy(-1); });
    addCommand(menu, tr("&Fit the paper"), Qt::CTRL | Qt::Key_0, [&view] { view.setZoom(0); });
    menu->addSeparator();
    addCommand(menu, tr("Go to the &documents"), Qt::Key_F6, [this] { list->setFocus(); });
    addCommand(menu, tr("&All keys"), Qt::CTRL | Qt::Key_K, [this] { list->select(nullptr); });
}

void SettingsWindow::makeHelpMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Help"));
    addCommand(menu, tr("&How it works"), QKeySequence::HelpContents, [this] { showHelp(*this); });
    addCommand(menu, tr("&About"), QKeySequence(), [this] { showAbout(); });
}

void SettingsWindow::makeTools()
{
    QToolBar *tools = addToolBar(tr("Tools"));
    tools->setMovable(false);
    tools->setContextMenuPolicy(Qt::PreventContextMenu);
    const auto addButton = [tools](QAction *action, const QString &icon) {
        setThemedIcon(action, icon, tools);
        tools->addAction(action);
    };
    tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    addButton(saveAction, u"save"_s);
    addButton(findChild<QAction *>(u"undo"_s), u"undo"_s);
    addButton(findChild<QAction *>(u"redo"_s), u"redo"_s);
    for (const QString &name : {u"undo"_s, u"redo"_s}) { // what they would undo is told by the menu
        auto *button = qobject_cast<QToolButton *>(tools->widgetForAction(findChild<QAction *>(name)));
        button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    }
    tools->addWidget(searchBar);
    connect(searchBar, &SearchBar::searched, this, &SettingsWindow::search);
    connect(searchBar, &SearchBar::entered, this, [this] { found->list()->setFocus(); });
}

SettingsForm *SettingsWindow::form() const
{
    return qobject_cast<SettingsForm *>(stack->currentWidget());
}

void SettingsWindow::showFirstPage()
{
    paper->showPage(pages().front());
    if (!model.isNew()) {
        showPage(pages().front());
        return;
    }
    first = new FirstUse;
    stack->addWidget(first);
    showFirstUse();
    first->setFocus();
    connect(first, &FirstUse::looked, this, [this] {
        paper->showPage(first->page());
        printPaper();
    });
    connect(first, &FirstUse::chosen, this, &SettingsWindow::beginWithPreset);
    connect(first, &FirstUse::declined, this, [this] { showPage(pages().front()); });
}

void SettingsWindow::showFirstUse()
{
    beforeSearch = nullptr;
    stack->setCurrentWidget(first);
    list->hide();
    help->hide();
    paper->showPage(first->page());
    setCurrentKey({});
}

void SettingsWindow::beginWithPreset()
{
    model.edit(tr("Begin with a preset"),
               [this](libconfig::Config &config) { presets::apply(config, first->house(), first->paper()); });
    showPage(first->page());
}

void SettingsWindow::showPage(const Page &page)
{
    model.endStep();
    beforeSearch = nullptr;
    searchBar->clear();
    SettingsForm *&form = forms[&page];
    if (!form) {
        form = new SettingsForm(page, model);
        stack->addWidget(form);
    }
    form->refresh();
    showInMiddle(form);
    setCurrentKey({});
    list->select(&page);
    paper->showPage(page);
    printPaper();
}

/// Also what the first page hides until it is answered.
void SettingsWindow::showInMiddle(QWidget *page)
{
    list->show();
    help->show();
    stack->setCurrentWidget(page);
}

void SettingsWindow::showAllKeys()
{
    model.endStep();
    beforeSearch = nullptr;
    searchBar->clear();
    showInMiddle(everything);
    list->select(nullptr);
    setCurrentKey(keyOfRow(everything->tree()->currentItem()));
}

void SettingsWindow::jumpTo(const QString &key)
{
    if (const Page *page = knownkeys::find(key) ? pageOf(key) : nullptr) {
        showPage(*page);
        form()->jumpTo(key);
        setCurrentKey(key);
    } else {
        showAllKeys();
        everything->jumpTo(key);
    }
}

void SettingsWindow::search()
{
    if (!searchBar->isSearching()) {
        found->clear();
        endSearch();
        return;
    }
    if (stack->currentWidget() != found)
        beforeSearch = stack->currentWidget();
    found->find(searchBar->text(), searchBar->onlyChanged(), searchBar->onlyProblems());
    stack->setCurrentWidget(found);
}

/// Back to what the results stand in front of.
void SettingsWindow::endSearch()
{
    if (const auto *before = qobject_cast<SettingsForm *>(beforeSearch))
        showPage(before->page());
    else if (beforeSearch == everything)
        showAllKeys();
    else if (beforeSearch)
        showFirstUse();
}

void SettingsWindow::refresh()
{
    if (SettingsForm *shown = form())
        shown->refresh();
    list->refresh();
    searchBar->showProblems(model.problemCount());
    setWindowTitle(tr("%1[*] \u2013 Palvestrin Print").arg(lastOf(model.path())));
    setWindowModified(model.isModified());
    printPaper();
}

void SettingsWindow::refreshFindings()
{
    if (SettingsForm *shown = form())
        shown->refresh();
    list->refresh();
    searchBar->showProblems(model.problemCount());
}

void SettingsWindow::followFocus(const QWidget *widget)
{
    for (const QWidget *at = widget; at; at = at->parentWidget()) {
        if (const auto *field = qobject_cast<const SettingField *>(at)) {
            if (isAncestorOf(field))
                setCurrentKey(field->key().name);
            return;
        }
    }
}

void SettingsWindow::showPaperOf(const QString &key)
{
    setCurrentKey(key);
    if (const Page *page = pageOf(key))
        list->select(page);
}

void SettingsWindow::setCurrentKey(const QString &key)
{
    if (key != currentKey)
        model.endStep();
    currentKey = key;
    help->setText(explanationOf(key));
    if (const Page *page = pageOf(key + u'.')) // of a block, too
        paper->showPage(*page);
    printPaper();
}

void SettingsWindow::printPaper()
{
    if (first && stack->currentWidget() == first)
        paper->print(first->configuration(), {});
    else
        paper->print(model.text(), withLessOf(currentKey, model));
}

/// A cell that loses the keyboard hands over what is being typed in it.
void SettingsWindow::takeWhatIsTyped()
{
    if (QWidget *focused = focusWidget()) {
        focused->clearFocus();
        focused->setFocus();
    }
}

bool SettingsWindow::save()
{
    takeWhatIsTyped();
    return keeper.save();
}

void SettingsWindow::closeEvent(QCloseEvent *event)
{
    takeWhatIsTyped();
    QSettings().setValue(geometrySetting, saveGeometry());
    QSettings().setValue(splitterSetting, splitter->saveState());
    event->setAccepted(keeper.mayClose());
}

void SettingsWindow::showAbout()
{
    QMessageBox::about(
        this, tr("About Palvestrin Print"),
        tr("<b>Palvestrin Print %1</b><p>Tickets, receipts and invoices of a restaurant or a shop, on the "
           "paper of its printers.</p>")
            .arg(QCoreApplication::applicationVersion()));
}

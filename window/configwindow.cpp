#include "configwindow.h"

#include "commanderror.h"
#include "configlistview.h"
#include "keyedit.h"
#include "knownkeys.h"

#include <QAction>
#include <QCloseEvent>
#include <QFontMetrics>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QRegularExpressionValidator>
#include <QSet>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QToolBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using libconfig::isBlockRow;
using libconfig::SettingColumn;
using libconfig::ValueColumn;

namespace {

/// Lets nobody type what no file can hold.
class ValueDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        static const QRegularExpression storable(u"[^\";\\x{100}-\\x{10ffff}]*"_s);
        auto *editor = new QLineEdit(parent);
        editor->setFrame(false);
        editor->setValidator(new QRegularExpressionValidator(storable, editor));
        return editor;
    }
};

/// The name of the file without its folder.
QString lastOf(const FileName &path)
{
    return FileName(path.path().filename()).shown();
}

QString messagesOf(const CommandError &error)
{
    QString text;
    for (const QString &line : error.messages())
        text += line + u'\n';
    return text.trimmed();
}

QString markText(const QString &key, const QString &value, bool isFound)
{
    if (QString objection = pairObjection(key, isFound); !objection.isEmpty())
        return objection;
    const knownkeys::Key &known = *knownkeys::find(key);
    const QString objection = knownkeys::objection(known, value);
    if (value.isEmpty() || objection.isEmpty())
        return {};
    const QString effective = knownkeys::effectiveValue(known, value);
    return u"\"%1\" counts as %2; %3"_s.arg(value, effective.isEmpty() ? known.whenMissing : effective,
                                            objection);
}

QString descriptionOf(const QString &key)
{
    const knownkeys::Key *known = knownkeys::find(key);
    if (!known)
        return {};
    const QString methods =
        known->printMethods.isEmpty() ? u"no print method"_s : known->printMethods.join(u", "_s);
    return u"<b>%1</b><br>%2<br>When missing: %3<br>Consulted by: %4"_s.arg(
        key.toHtmlEscaped(), known->meaning.toHtmlEscaped(), known->whenMissing.toHtmlEscaped(),
        known->readBy == "printing"_L1 ? methods : known->readBy);
}

bool matches(const QString &key, const QString &value, const QString &text)
{
    return key.contains(text, Qt::CaseInsensitive) || value.contains(text, Qt::CaseInsensitive);
}

} // namespace

ConfigWindow::ConfigWindow(const FileName &path)
    : file(std::make_unique<ConfigFile>(path)), view(libconfig::Config().newConfigListView()),
      search(new QLineEdit), description(new QLabel)
{
    view->setItemDelegateForColumn(ValueColumn, new ValueDelegate(view));
    view->setEditTriggers(
        QAbstractItemView::NoEditTriggers); // the value is edited, whichever column is current
    view->setAlternatingRowColors(true);
    view->setStyleSheet(u"QTreeView::item { padding: 3px 0; }"_s);
    connect(view, &QTreeWidget::itemActivated, this, [this] { editCurrent(); });
    connect(view, &QTreeWidget::currentItemChanged, this, [this] { describeCurrent(); });
    connect(view, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem *row) {
        mark(row);
        markModified();
    });
    connect(search, &QLineEdit::textChanged, this, &ConfigWindow::filter);
    makeActions();
    makeLayout();
    load();
}

void ConfigWindow::makeActions()
{
    auto *bar = addToolBar(u"Settings"_s);
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const auto add = [&](const QString &text, QStyle::StandardPixmap icon, const QKeySequence &keys,
                         auto action) {
        QAction *made = bar->addAction(style()->standardIcon(icon), text);
        made->setShortcut(keys);
        made->setToolTip(
            u"%1 (%2)"_s.arg(QString(text).remove(u'&'), keys.toString(QKeySequence::NativeText)));
        connect(made, &QAction::triggered, this, action);
        return made;
    };
    add(u"&Save"_s, QStyle::SP_DialogSaveButton, QKeySequence::Save, [this] { save(); });
    add(u"&Revert"_s, QStyle::SP_BrowserReload, Qt::Key_F5, [this] { askForRevert(); });
    bar->addSeparator();
    add(u"Add se&tting"_s, QStyle::SP_FileIcon, Qt::CTRL | Qt::Key_N, [this] { askForSetting(); });
    add(u"Add &block"_s, QStyle::SP_DirIcon, Qt::CTRL | Qt::SHIFT | Qt::Key_N, [this] { askForBlock(); });
    QAction *remove =
        add(u"Re&move"_s, QStyle::SP_TrashIcon, QKeySequence::Delete, [this] { removeCurrent(); });
    remove->setShortcutContext(Qt::WidgetShortcut); // in the search box the key deletes a character
    view->addAction(remove);

    const auto addKey = [this](const QKeySequence &keys, auto action) {
        auto *made = new QAction(this);
        made->setShortcut(keys);
        connect(made, &QAction::triggered, this, action);
        addAction(made);
    };
    addKey(QKeySequence::Find, [this] { search->setFocus(); });
    addKey(Qt::Key_F2, [this] { editCurrent(); });
    addKey(Qt::CTRL | Qt::Key_Q, [this] { close(); });
    addKey(Qt::CTRL | Qt::Key_W, [this] { close(); });
}

void ConfigWindow::makeLayout()
{
    search->setPlaceholderText(u"Search settings and values (Ctrl+F)"_s);
    search->setClearButtonEnabled(true);
    description->setWordWrap(true);
    description->setTextFormat(Qt::RichText);
    description->setAlignment(Qt::AlignTop);
    description->setMinimumHeight(6 * fontMetrics().lineSpacing());
    description->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto *page = new QWidget;
    auto *column = new QVBoxLayout(page);
    column->addWidget(search);
    column->addWidget(view, 1);
    column->addWidget(description);
    setCentralWidget(page);
    resize(760, 620);
    view->header()->resizeSection(SettingColumn, 340);
    view->setFocus();
}

void ConfigWindow::load()
{
    const QString current = keyOf(view->currentItem());
    {
        const QSignalBlocker quiet(view);
        file->config().buildConfigListView(view);
        markAll();
    }
    QTreeWidgetItem *row = rowOf(current);
    view->setCurrentItem(row ? row : view->topLevelItem(0));
    filter(search->text());
    describeCurrent();
    setWindowTitle(u"%1[*] - Palvestrin settings"_s.arg(lastOf(file->path)));
    setWindowModified(false);
    statusBar()->showMessage(file->exists() ? file->path.shown()
                                            : u"%1 (new file)"_s.arg(file->path.shown()));
}

bool ConfigWindow::save()
{
    commitEdit();
    FileName backup;
    try {
        FileReplacement replacement(file->path);
        ConfigFile current(file->path);
        if (!agreesToOverwrite(current) || !agreesToLosses(current))
            return false;
        current.config().readListView(view);
        backup = current.save(replacement, true);
        file = std::make_unique<ConfigFile>(file->path);
    } catch (const CommandError &error) {
        QMessageBox::critical(this, u"Not saved"_s, messagesOf(error));
        return false;
    }
    load(); // what the file does not hold is not shown
    statusBar()->showMessage(backup.isEmpty()
                                 ? u"Saved %1"_s.arg(file->path.shown())
                                 : u"Saved; the file as it was is kept as %1"_s.arg(backup.shown()));
    return true;
}

void ConfigWindow::commitEdit()
{
    view->setFocus(); // a cell that loses the keyboard hands its text over
}

bool ConfigWindow::agreesToOverwrite(const ConfigFile &current)
{
    if (current.isSameAs(*file))
        return true;
    const auto answer = QMessageBox::warning(this, u"Changed meanwhile"_s,
                                             u"Another program has changed the file since it was read here. "
                                             u"Save all the same? What it wrote is kept "
                                             "in a backup."_s,
                                             QMessageBox::Save | QMessageBox::Cancel, QMessageBox::Cancel);
    return answer == QMessageBox::Save;
}

bool ConfigWindow::agreesToLosses(const ConfigFile &current)
{
    QStringList lost;
    for (const Loss &loss : current.losses())
        lost += u"line %1: %2"_s.arg(QString::number(loss.at.line), loss.what);
    for (const QString &block : unwrittenBlocks())
        lost += u"in this window: block \"%1\": only the first top-level block is written"_s.arg(block);
    if (lost.isEmpty())
        return true;
    QMessageBox question(QMessageBox::Warning, u"Saving loses something"_s,
                         u"Saving loses what the details name. A backup keeps the file as it was."_s,
                         QMessageBox::Save | QMessageBox::Cancel, this);
    question.setDefaultButton(QMessageBox::Cancel);
    question.setDetailedText(lost.join(u'\n'));
    return question.exec() == QMessageBox::Save;
}

QStringList ConfigWindow::unwrittenBlocks() const
{
    QStringList names;
    for (int i = 0; i < view->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *row = view->topLevelItem(i);
        if (isBlockRow(row) && row->childCount() > 0 && !isFound(row))
            names += row->text(SettingColumn);
    }
    return names;
}

void ConfigWindow::revert()
{
    try {
        file = std::make_unique<ConfigFile>(file->path);
        load();
    } catch (const CommandError &error) {
        QMessageBox::critical(this, u"Not read"_s, messagesOf(error));
    }
}

void ConfigWindow::askForRevert()
{
    commitEdit();
    if (!isWindowModified() ||
        QMessageBox::question(this, u"Revert"_s, u"Drop all changes and read the file again?"_s) ==
            QMessageBox::Yes)
        revert();
}

void ConfigWindow::filter(const QString &text)
{
    // From the last row to the first: the rows of a block come behind it, and decide whether it is shown.
    QList<QTreeWidgetItem *> rows;
    for (QTreeWidgetItemIterator it(view); *it; ++it)
        rows.prepend(*it);
    QTreeWidgetItem *firstMatch = nullptr;
    bool isCurrentMatch = false;
    for (QTreeWidgetItem *row : rows) {
        bool shown = matches(keyOf(row), row->text(ValueColumn), text);
        if (shown) {
            firstMatch = row;
            isCurrentMatch |= row == view->currentItem();
        }
        for (int i = 0; i < row->childCount(); ++i)
            shown |= !row->child(i)->isHidden();
        row->setHidden(!shown);
    }
    if (!isCurrentMatch)
        view->setCurrentItem(firstMatch);
}

QTreeWidgetItem *ConfigWindow::addSetting(const QString &key)
{
    QTreeWidgetItem *block = view->invisibleRootItem();
    const QStringList names = key.split(u'.');
    const auto child = [&block](const QString &name, bool isBlock) -> QTreeWidgetItem * {
        for (int i = 0; i < block->childCount(); ++i) {
            if (block->child(i)->text(SettingColumn) == name && isBlockRow(block->child(i)) == isBlock)
                return block->child(i);
        }
        return nullptr;
    };
    for (const QString &name : names.first(names.size() - 1)) {
        QTreeWidgetItem *existing = child(name, true);
        block = existing ? existing : libconfig::addBlockRow(block, name);
        block->setExpanded(true);
    }
    QTreeWidgetItem *row = child(names.last(), false);
    if (!row) {
        row = libconfig::addSettingRow(block, names.last(), QString());
        markAll();
        markModified();
    }
    search->clear();
    view->setCurrentItem(row, ValueColumn);
    return row;
}

void ConfigWindow::addBlock(QTreeWidgetItem *parent, const QString &name)
{
    view->setCurrentItem(libconfig::addBlockRow(parent, name));
    parent->setExpanded(true);
    markAll();
    markModified();
}

void ConfigWindow::removeCurrent()
{
    QTreeWidgetItem *row = view->currentItem();
    if (!row || row->isHidden())
        return;
    delete row;
    filter(search->text()); // the row that is current now may be a hidden one
    markAll();              // a removed first block makes the next one the first
    markModified();
}

QStringList ConfigWindow::missingKeys() const
{
    QSet<QString> present;
    for (QTreeWidgetItemIterator it(view); *it; ++it)
        present += keyOf(*it);
    QStringList missing;
    for (const knownkeys::Key &key : knownkeys::all()) {
        if (!present.contains(key.name))
            missing += key.name;
    }
    return missing;
}

void ConfigWindow::askForSetting()
{
    const QStringList keys = missingKeys();
    const QString block = keyOf(currentBlock()) + u'.';
    const auto near = std::ranges::find_if(keys, [&](const QString &key) { return key.startsWith(block); });
    const int preselected = near == keys.end() ? 0 : static_cast<int>(near - keys.begin());
    bool isGiven = false;
    const QString key =
        QInputDialog::getItem(this, u"Add setting"_s, u"Setting:"_s, keys, preselected, true, &isGiven);
    if (!isGiven)
        return;
    if (const QString objection = keyObjection(key); !objection.isEmpty()) {
        QMessageBox::warning(this, u"Add setting"_s, objection);
        return;
    }
    addSetting(key);
    editCurrent();
}

void ConfigWindow::askForBlock()
{
    QTreeWidgetItem *parent = currentBlock();
    const QString inside = keyOf(parent);
    const QString name = QInputDialog::getText(this, u"Add block"_s,
                                               inside.isEmpty() ? u"Name of the block:"_s
                                                                : u"Name of the block in %1:"_s.arg(inside));
    if (name.isEmpty())
        return;
    if (const QString objection = keyObjection(u"block."_s + name); !objection.isEmpty()) {
        QMessageBox::warning(this, u"Add block"_s, u"A name is letters, digits, '_' and '-'."_s);
    } else {
        addBlock(parent, name);
    }
}

void ConfigWindow::closeEvent(QCloseEvent *event)
{
    commitEdit();
    if (!isWindowModified())
        return event->accept();
    const auto answer = QMessageBox::warning(
        this, u"Unsaved changes"_s, u"Save the changes to %1?"_s.arg(lastOf(file->path)),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    const bool mayClose = answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
    event->setAccepted(mayClose);
}

void ConfigWindow::markAll()
{
    for (QTreeWidgetItemIterator it(view); *it; ++it)
        mark(*it);
}

void ConfigWindow::mark(QTreeWidgetItem *row)
{
    const QSignalBlocker quiet(view); // a mark is no change of the file
    QString reason;
    if (!isBlockRow(row)) {
        reason = markText(keyOf(row), row->text(ValueColumn), isFound(row));
    } else if (!isFound(row)) {
        reason = u"never found: only the first top-level block is searched"_s;
    }
    row->setIcon(SettingColumn,
                 reason.isEmpty() ? QIcon() : style()->standardIcon(QStyle::SP_MessageBoxWarning));
    row->setToolTip(SettingColumn, reason);
    row->setToolTip(ValueColumn, reason);
    QFont font = view->font();
    font.setBold(isBlockRow(row));
    font.setItalic(!reason.isEmpty());
    row->setFont(SettingColumn, font);
}

void ConfigWindow::markModified()
{
    setWindowModified(true);
    describeCurrent();
}

void ConfigWindow::describeCurrent()
{
    const QTreeWidgetItem *row = view->currentItem();
    if (!row) {
        description->clear();
        return;
    }
    const QString reason = row->toolTip(SettingColumn).toHtmlEscaped();
    const QString known = isBlockRow(row) ? QString() : descriptionOf(keyOf(row));
    const QString key = u"<b>%1</b>"_s.arg(keyOf(row).toHtmlEscaped());
    description->setText((known.isEmpty() ? key : known) +
                         (reason.isEmpty() ? QString() : u"<br>"_s + reason));
}

void ConfigWindow::editCurrent()
{
    QTreeWidgetItem *row = view->currentItem();
    if (!row)
        return;
    if (isBlockRow(row)) {
        row->setExpanded(!row->isExpanded());
    } else {
        view->editItem(row, ValueColumn);
    }
}

QTreeWidgetItem *ConfigWindow::currentBlock() const
{
    QTreeWidgetItem *row = view->currentItem();
    if (row && !isBlockRow(row))
        row = row->parent();
    return row ? row : view->invisibleRootItem();
}

QString ConfigWindow::keyOf(const QTreeWidgetItem *row) const
{
    if (!row || row == view->invisibleRootItem())
        return {};
    const QString above = keyOf(row->parent());
    return above.isEmpty() ? row->text(SettingColumn) : above + u'.' + row->text(SettingColumn);
}

QTreeWidgetItem *ConfigWindow::rowOf(const QString &key) const
{
    QTreeWidgetItemIterator row(view);
    while (*row && keyOf(*row) != key)
        ++row;
    return *row;
}

bool ConfigWindow::isFound(const QTreeWidgetItem *row) const
{
    while (row->parent())
        row = row->parent();
    for (int i = 0; i < view->topLevelItemCount(); ++i) {
        if (isBlockRow(view->topLevelItem(i)))
            return view->topLevelItem(i) == row;
    }
    return false;
}

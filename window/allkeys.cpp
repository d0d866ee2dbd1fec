#include "allkeys.h"

#include "configlistview.h"
#include "fieldnames.h"
#include "keyedit.h"
#include "knownkeys.h"
#include "roomybutton.h"
#include "roomyrows.h"
#include "secrets.h"
#include "settingsmodel.h"
#include "storage.h"
#include "troublelabel.h"

#include <QAction>
#include <QHeaderView>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;
using libconfig::isBlockRow;
using libconfig::SettingColumn;
using libconfig::ValueColumn;

/// Edits a value. One that cannot be stored stays in the editor, with the reason below the tree.
class ValueDelegate : public RoomyRows
{
public:
    explicit ValueDelegate(AllKeys &of) : RoomyRows(of.view), page(of) {}

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &,
                          const QModelIndex &index) const override
    {
        auto *editor = new QLineEdit(parent);
        const QString key = keyOfRow(page.view->currentItem());
        editor->setFrame(false);
        editor->setAccessibleName(key);
        editor->setProperty("key", key);
        editor->setProperty("refused", page.model.refused(key).text);
        page.model.forgetRefusal(key); // it is edited anew
        if (mayBeSecret(key, index.data().toString()))
            editor->setEchoMode(QLineEdit::PasswordEchoOnEdit);
        connect(editor, &QLineEdit::textEdited, &page, [this, editor] { page.explain(objection(editor)); });
        return editor;
    }
    void setEditorData(QWidget *editor, const QModelIndex &index) const override
    {
        const QString refused = editor->property("refused").toString();
        if (refused.isEmpty())
            RoomyRows::setEditorData(editor, index);
        else
            static_cast<QLineEdit *>(editor)->setText(refused);
    }
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override
    {
        const QString why = objection(static_cast<QLineEdit *>(editor));
        if (why.isEmpty())
            RoomyRows::setModelData(editor, model, index);
        else // so that saving tells of it
            page.model.set(editor->property("key").toString(), static_cast<QLineEdit *>(editor)->text());
        page.explain(why);
    }
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        RoomyRows::initStyleOption(option, index);
        option->text = maskedValue(keyOfRow(page.view->itemFromIndex(index)), option->text);
    }
    bool eventFilter(QObject *editor, QEvent *event) override
    {
        const bool isKey = event->type() == QEvent::KeyPress;
        const int key = isKey ? static_cast<QKeyEvent *>(event)->key() : 0;
        const bool isEnd = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab;
        if (isEnd && !objection(qobject_cast<QLineEdit *>(editor)).isEmpty())
            return true;
        return RoomyRows::eventFilter(editor, event);
    }

private:
    static QString objection(const QLineEdit *editor)
    {
        return storageObjection(editor->property("key").toString(), editor->text());
    }

    AllKeys &page;
};

namespace {

QTreeWidgetItem *rowOf(QTreeWidget *view, const QString &key)
{
    QTreeWidgetItemIterator row(view);
    while (*row && keyOfRow(*row) != key)
        ++row;
    return *row;
}

/// As the tree of the model has it, which the view need not show anew then.
bool isSame(libconfig::Config &config, const QTreeWidget *view)
{
    libconfig::Config shown;
    shown.readListView(view);
    TreeState state = stateOf(shown);
    state.name = config.root().tagName();
    return state == stateOf(config);
}

} // namespace

QString keyOfRow(const QTreeWidgetItem *row)
{
    if (!row)
        return {};
    const QString above = keyOfRow(row->parent());
    return above.isEmpty() ? row->text(SettingColumn) : above + u'.' + row->text(SettingColumn);
}

AllKeys::AllKeys(SettingsModel &ofModel, QWidget *parent)
    : QWidget(parent), model(ofModel), view(model.tree().newConfigListView()), reason(new TroubleLabel)
{
    reason->setMargin(8);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(view, 1);
    column->addWidget(reason);
    column->addLayout(newButtons());
    prepareView();
    connect(&model, &SettingsModel::changed, this, &AllKeys::fill);
    selectFirstSetting();
}

QLayout *AllKeys::newButtons()
{
    auto *buttons = new QHBoxLayout;
    buttons->setContentsMargins(12, 6, 12, 12);
    const auto add = [&](const QString &text, auto action) {
        auto *button = new RoomyButton(text);
        connect(button, &QPushButton::clicked, this, action);
        buttons->addWidget(button);
    };
    add(tr("Add setting\u2026"), &AllKeys::addSetting);
    add(tr("Add block\u2026"), &AllKeys::addBlock);
    add(tr("Remove"), &AllKeys::removeCurrent);
    buttons->addStretch(1);
    return buttons;
}

void AllKeys::prepareView()
{
    view->setItemDelegate(new RoomyRows(view));
    view->setItemDelegateForColumn(ValueColumn, new ValueDelegate(*this));
    // The value is edited, whichever column is current.
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setHeaderLabels({tr("Setting"), tr("Value")});
    view->setAccessibleName(tr("All keys"));
    view->setAlternatingRowColors(true);
    view->setFrameShape(QFrame::NoFrame);
    view->header()->resizeSection(SettingColumn, 280);
    auto *remove = new QAction(tr("Remove"), view);
    remove->setShortcut(QKeySequence::Delete);
    remove->setShortcutContext(Qt::WidgetShortcut);
    view->addAction(remove);
    connect(remove, &QAction::triggered, this, &AllKeys::removeCurrent);
    connect(view, &QTreeWidget::itemActivated, this, &AllKeys::editCurrent);
    connect(view, &QTreeWidget::itemChanged, this, &AllKeys::take);
    connect(view, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem *row) {
        explain({});
        Q_EMIT keyChanged(keyOfRow(row));
    });
}

void AllKeys::fill()
{
    if (isSame(model.tree(), view))
        return;
    const QString current = keyOfRow(view->currentItem());
    const QSignalBlocker quiet(view);
    model.tree().buildConfigListView(view);
    view->setCurrentItem(rowOf(view, current));
    if (!view->currentItem())
        selectFirstSetting();
}

/// Not the first row, which is a block with everything in it.
void AllKeys::selectFirstSetting()
{
    QTreeWidgetItem *row = view->topLevelItem(0);
    while (row && isBlockRow(row) && row->childCount() > 0)
        row = row->child(0);
    view->setCurrentItem(row);
}

void AllKeys::take(QTreeWidgetItem *row)
{
    applyView(tr("Change %1").arg(keyOfRow(row)));
}

void AllKeys::applyView(const QString &what)
{
    model.endStep();
    model.edit(what, [this](libconfig::Config &config) {
        libconfig::Config shown;
        shown.readListView(view);
        TreeState state = stateOf(shown);
        state.name = config.root().tagName();
        restore(config, state);
    });
}

void AllKeys::explain(const QString &why)
{
    reason->tell(asSentence(why));
}

QString AllKeys::message() const
{
    return reason->text();
}

void AllKeys::editCurrent()
{
    QTreeWidgetItem *row = view->currentItem();
    if (row && isBlockRow(row))
        row->setExpanded(!row->isExpanded());
    else if (row)
        view->editItem(row, ValueColumn);
}

void AllKeys::jumpTo(const QString &key)
{
    if (QTreeWidgetItem *row = rowOf(view, key)) {
        view->setCurrentItem(row, ValueColumn);
        view->setFocus();
    }
}

bool AllKeys::agreesToRemove(const QTreeWidgetItem *row)
{
    if (!isBlockRow(row) || row->childCount() == 0)
        return true;
    const auto answer =
        QMessageBox::question(this, tr("Remove a block"),
                              tr("Remove the block \u201c%1\u201d with everything in it? You can undo this.")
                                  .arg(row->text(SettingColumn)),
                              QMessageBox::Yes | QMessageBox::Cancel, QMessageBox::Cancel);
    return answer == QMessageBox::Yes;
}

void AllKeys::removeCurrent()
{
    QTreeWidgetItem *row = view->currentItem();
    if (!row || !agreesToRemove(row))
        return;
    const QString what = tr("Remove %1").arg(keyOfRow(row));
    delete row;
    applyView(what);
}

QTreeWidgetItem *AllKeys::currentBlock() const
{
    QTreeWidgetItem *row = view->currentItem();
    if (row && !isBlockRow(row))
        row = row->parent();
    return row ? row : view->invisibleRootItem();
}

void AllKeys::addSetting()
{
    QStringList keys;
    for (const knownkeys::Key &key : knownkeys::all()) {
        if (model.value(key.name).isEmpty())
            keys += key.name;
    }
    const QString block = keyOfRow(currentBlock()) + u'.';
    const auto near = std::ranges::find_if(keys, [&](const QString &key) { return key.startsWith(block); });
    bool isGiven = false;
    const QString key =
        QInputDialog::getItem(this, tr("Add a setting"), tr("Key:"), keys,
                              near == keys.end() ? 0 : int(near - keys.begin()), true, &isGiven);
    if (!isGiven)
        return;
    const QString wrongName = keyObjection(key);
    const QString objection = wrongName.isEmpty() ? model.objectionTo(key, QString()) : wrongName;
    if (!objection.isEmpty()) {
        explain(objection);
        return;
    }
    if (!rowOf(view, key)) {
        model.endStep();
        model.edit(tr("Add %1").arg(key), [&](libconfig::Config &config) { setKey(config, key, QString()); });
    }
    jumpTo(key);
    editCurrent();
}

void AllKeys::addBlock()
{
    const QString inside = keyOfRow(currentBlock());
    const QString name = QInputDialog::getText(this, tr("Add a block"), tr("Name of the block:"));
    if (name.isEmpty())
        return;
    if (!keyObjection(u"block."_s + name).isEmpty()) {
        explain(tr("A name is made of letters, digits, \u201c_\u201d and \u201c-\u201d."));
        return;
    }
    {
        const QSignalBlocker quiet(view);
        libconfig::addBlockRow(currentBlock(), name);
    }
    applyView(tr("Add %1").arg(name));
    jumpTo(inside.isEmpty() ? name : inside + u'.' + name);
}

#include "mergedialog.h"

#include "configfile.h"
#include "fieldnames.h"
#include "keyedit.h"
#include "roomybutton.h"
#include "roomyrows.h"
#include "settingsmodel.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <set>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int keyRole = Qt::UserRole;
constexpr int mineRole = Qt::UserRole + 1;

QString shown(const QString &key, const QString &value)
{
    if (value.isEmpty())
        return QCoreApplication::translate("MergeDialog", "not set");
    return maskedValue(key, value);
}

std::set<QString> keysOf(const QHash<QString, QString> &one, const QHash<QString, QString> &other)
{
    std::set<QString> keys;
    for (const auto *values : {&one, &other}) {
        for (auto at = values->keyBegin(); at != values->keyEnd(); ++at)
            keys.insert(*at);
    }
    return keys;
}

} // namespace

MergeDialog::MergeDialog(SettingsModel &model, ConfigFile &theirFile, QWidget *parent)
    : QDialog(parent), theirs(theirFile), list(new QTreeWidget)
{
    setWindowTitle(tr("The file has changed"));
    auto *text =
        new QLabel(tr("Another program has changed the file. Tick the settings that are to be as they are in "
                      "the file; the others stay as they are here."));
    text->setWordWrap(true);
    list->setHeaderLabels({tr("Setting"), tr("Here"), tr("In the file")});
    list->setRootIsDecorated(false);
    list->setItemDelegate(new RoomyRows(list));
    list->setAccessibleName(tr("Settings that differ"));
    const auto mine = valuesOf(model.state());
    const auto base = valuesOf(model.savedState());
    const auto their = valuesOf(stateOf(theirs.config()));
    for (const QString &key : keysOf(mine, their)) {
        const QString here = mine.value(key);
        const QString there = their.value(key);
        if (here != there && mayKeep(model, key, here, there))
            addDifference(key, here, there, here == base.value(key));
        else if (here != there)
            refuseToKeep(*addDifference(key, here, there, true));
    }
    for (int column = 0; column < 2; ++column)
        list->resizeColumnToContents(column);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->addButton(new RoomyButton(tr("Merge")), QDialogButtonBox::AcceptRole);
    auto *reload = new RoomyButton(tr("Take all from the file"));
    buttons->addButton(reload, QDialogButtonBox::ActionRole);
    connect(reload, &QPushButton::clicked, this, &MergeDialog::takeAllTheirs);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *column = new QVBoxLayout(this);
    column->addWidget(text);
    column->addWidget(list, 1);
    column->addWidget(buttons);
    resize(640, 400);
}

QTreeWidgetItem *MergeDialog::addDifference(const QString &key, const QString &mine,
                                            const QString &theirValue, bool takesTheirs)
{
    auto *row = new QTreeWidgetItem(list, {nameWithPage(key), shown(key, mine), shown(key, theirValue)});
    row->setData(0, keyRole, key);
    row->setData(0, mineRole, mine);
    row->setToolTip(0, key);
    row->setCheckState(0, takesTheirs ? Qt::Checked : Qt::Unchecked);
    return row;
}

/// Whether the key could be in the file as it is here: only what a look-up reaches is set or removed by key.
bool MergeDialog::mayKeep(const SettingsModel &model, const QString &key, const QString &mine,
                          const QString &theirValue)
{
    libconfig::Config &there = theirs.config();
    if (!key.contains(u'.'))
        return false;
    if (mine.isEmpty())
        return there.lookup(key) == theirValue;
    const QDomElement first = there.root().firstChildElement();
    return model.value(key) == mine && (first.isNull() || first.tagName() == key.section(u'.', 0, 0));
}

void MergeDialog::refuseToKeep(QTreeWidgetItem &row)
{
    row.setCheckState(0, Qt::Checked);
    row.setDisabled(true);
    row.setToolTip(0, tr("This can only be as it is in the file."));
}

void MergeDialog::takeAllTheirs()
{
    for (int row = 0; row < list->topLevelItemCount(); ++row)
        list->topLevelItem(row)->setCheckState(0, Qt::Checked);
    accept();
}

TreeState MergeDialog::merged()
{
    const TreeState before = stateOf(theirs.config());
    for (int number = 0; number < list->topLevelItemCount(); ++number) {
        const QTreeWidgetItem *row = list->topLevelItem(number);
        const QString key = row->data(0, keyRole).toString();
        const QString mine = row->data(0, mineRole).toString();
        if (row->checkState(0) == Qt::Checked)
            continue;
        if (mine.isEmpty())
            removeKey(theirs.config(), key);
        else
            setKey(theirs.config(), key, mine);
    }
    const TreeState result = stateOf(theirs.config());
    restore(theirs.config(), before);
    return result;
}

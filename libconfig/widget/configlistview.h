#pragma once

#include <QTreeWidgetItem>

/// The rows of the tree widget that `Config::newConfigListView` makes. A row is a block, which holds rows, or
/// a setting, which has a value. Rows are removed by deleting them; the view owns them.
namespace libconfig {

enum ListViewColumn { SettingColumn, ValueColumn };

bool isBlockRow(const QTreeWidgetItem *row);

/// A new setting in `block` (the view's invisible root for a top-level pair), behind its other settings and
/// in front of its blocks: that is where the writers put it.
QTreeWidgetItem *addSettingRow(QTreeWidgetItem *block, const QString &name, const QString &value);

/// A new block in `block`, behind everything.
QTreeWidgetItem *addBlockRow(QTreeWidgetItem *block, const QString &name);

} // namespace libconfig

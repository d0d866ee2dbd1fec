#include "configlistview.h"

#include "libconfig.h"
#include "orderedattributes.h"

#include <QStyledItemDelegate>
#include <QTreeWidget>

using namespace Qt::Literals::StringLiterals;

namespace libconfig {

namespace {

constexpr int settingRow = QTreeWidgetItem::UserType + 1;
constexpr int blockRow = QTreeWidgetItem::UserType + 2;

/// Names are not edited in place: a renamed key is another setting.
class NamesStay : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QWidget *createEditor(QWidget *, const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return nullptr;
    }
};

void addRows(const QDomElement &element, QTreeWidgetItem *row)
{
    for (const QString &name : OrderedAttributes(element).names())
        addSettingRow(row, name, element.attribute(name));
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isElement())
            addRows(child.toElement(), addBlockRow(row, child.toElement().tagName()));
    }
}

void addElements(Config &config, const QTreeWidgetItem *row, const QDomElement &element)
{
    OrderedAttributes attributes(element);
    for (int i = 0; i < row->childCount(); ++i) {
        const QTreeWidgetItem *child = row->child(i);
        if (isBlockRow(child)) {
            addElements(config, child, config.appendBlock(element, child->text(SettingColumn)));
        } else {
            attributes.set(child->text(SettingColumn), child->text(ValueColumn));
        }
    }
}

} // namespace

bool isBlockRow(const QTreeWidgetItem *row)
{
    return row->type() == blockRow;
}

QTreeWidgetItem *addSettingRow(QTreeWidgetItem *block, const QString &name, const QString &value)
{
    auto *row = new QTreeWidgetItem(QStringList{name, value}, settingRow);
    row->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable | Qt::ItemNeverHasChildren);
    int place = 0;
    while (place < block->childCount() && !isBlockRow(block->child(place)))
        ++place;
    block->insertChild(place, row);
    return row;
}

QTreeWidgetItem *addBlockRow(QTreeWidgetItem *block, const QString &name)
{
    auto *row = new QTreeWidgetItem(QStringList{name}, blockRow);
    row->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    block->addChild(row);
    return row;
}

QTreeWidget *Config::newConfigListView() const
{
    auto *view = new QTreeWidget;
    view->setHeaderLabels({u"Setting"_s, u"Value"_s});
    view->setItemDelegateForColumn(SettingColumn, new NamesStay(view));
    buildConfigListView(view);
    return view;
}

void Config::buildConfigListView(QTreeWidget *view) const
{
    view->clear();
    if (document)
        addRows(document->documentElement(), view->invisibleRootItem());
    view->expandAll();
}

void Config::readListView(const QTreeWidget *view)
{
    document = std::make_unique<QDomDocument>();
    addElements(*this, view->invisibleRootItem(), root());
}

bool Config::loadListView(const QTreeWidget *view)
{
    readListView(view);
    if (fileType == "cfg"_L1)
        return buildConfigFile(QString());
    if (fileType == "xml"_L1)
        return buildConfigXmlFile(QString());
    return false;
}

} // namespace libconfig

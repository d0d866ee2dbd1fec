#include "pagelist.h"

#include "icons.h"
#include "settingsmodel.h"

#include <QApplication>
#include <QPainter>
#include <QScrollBar>
#include <QSet>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int pageRole = Qt::UserRole;
constexpr int changedRole = Qt::UserRole + 1;
constexpr int wrongRole = Qt::UserRole + 2;
constexpr int allKeys = -1;
constexpr int padding = 7;

/// Draws the marks at the right end of a row.
class MarkDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        constexpr int size = 14;
        QStyleOptionViewItem withoutFrame = option; // the colour tells which row is current
        withoutFrame.state &= ~QStyle::State_HasFocus;
        QStyledItemDelegate::paint(painter, withoutFrame, index);
        QPalette palette = option.palette;
        if (option.state & QStyle::State_Selected)
            palette.setColor(QPalette::WindowText, palette.color(QPalette::HighlightedText));
        QRect place(option.rect.right() - size - padding, option.rect.center().y() - size / 2, size, size);
        for (const auto &[role, icon] :
             {std::pair(wrongRole, u"warning"_s), std::pair(changedRole, u"changed"_s)}) {
            if (!index.data(role).toBool())
                continue;
            themedIcon(icon, palette).paint(painter, place);
            place.translate(-size - 2, 0);
        }
    }
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->features |= QStyleOptionViewItem::HasDecoration; // an empty one: the text keeps off the edge
        option->decorationSize = {padding, 1};
    }
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        constexpr int roomForMarks = 48;
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        return {size.width() + roomForMarks, size.height() + 2 * padding};
    }
};

} // namespace

PageList::PageList(SettingsModel &ofModel, QWidget *parent) : QListWidget(parent), model(ofModel)
{
    setFrameShape(QFrame::NoFrame);
    setItemDelegate(new MarkDelegate(this));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QListWidget::currentItemChanged, this, &PageList::tellChoice);
    connect(this, &QListWidget::itemClicked, this,
            &PageList::tellChoice); // also the one that is current already
    list();
}

void PageList::list()
{
    const QSignalBlocker quiet(this);
    const int current = currentRow();
    clear();
    setAccessibleName(tr("Documents and parts"));
    addCaption(tr("Documents"));
    for (size_t number = 0; number < pages().size(); ++number) {
        if (number > 0 && !pages()[number].isDocument() && pages()[number - 1].isDocument())
            addCaption(tr("Application"));
        addPage(pages()[number].title(), int(number));
    }
    addCaption(tr("File"));
    addPage(tr("All keys"), allKeys);
    setCurrentRow(current < 0 ? 1 : current);
    refresh();
    setMinimumWidth(sizeHintForColumn(0) + verticalScrollBar()->sizeHint().width());
    updateGeometry();
}

void PageList::addCaption(const QString &text)
{
    auto *item = new QListWidgetItem(text, this);
    item->setFlags(Qt::NoItemFlags); // the keyboard passes over it
    QFont font = this->font();
    font.setPointSizeF(font.pointSizeF() * 0.82);
    font.setWeight(QFont::DemiBold);
    item->setFont(font);
    item->setForeground(palette().brush(QPalette::PlaceholderText));
    item->setData(pageRole, QVariant());
}

void PageList::addPage(const QString &title, int number)
{
    auto *item = new QListWidgetItem(title, this);
    item->setData(pageRole, number);
}

void PageList::tellChoice()
{
    const QVariant number = currentItem() ? currentItem()->data(pageRole) : QVariant();
    if (!number.isValid())
        return;
    if (number.toInt() == allKeys)
        Q_EMIT allKeysChosen();
    else
        Q_EMIT pageChosen(&pages()[size_t(number.toInt())]);
}

void PageList::select(const Page *page)
{
    const QSignalBlocker quiet(this); // whoever selects knows what to show
    for (int row = 0; row < count(); ++row) {
        const QVariant number = item(row)->data(pageRole);
        if (!number.isValid())
            continue;
        const bool isAllKeys = number.toInt() == allKeys;
        if (page ? !isAllKeys && &pages()[size_t(number.toInt())] == page : isAllKeys)
            setCurrentRow(row);
    }
}

void PageList::refresh()
{
    QSet<const Page *> changed;
    QSet<const Page *> wrong;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, 0);
        const Page *page = pageOf(index.data(SettingsModel::KeyRole).toString());
        if (index.data(SettingsModel::ChangedRole).toBool())
            changed += page;
        if (!index.data(SettingsModel::ProblemRole).toString().isEmpty())
            wrong += page;
    }
    for (int row = 0; row < count(); ++row) {
        const QVariant number = item(row)->data(pageRole);
        if (!number.isValid() || number.toInt() == allKeys)
            continue;
        const Page &page = pages()[size_t(number.toInt())];
        mark(item(row), page, changed.contains(&page), wrong.contains(&page));
    }
}

void PageList::mark(QListWidgetItem *item, const Page &page, bool isChanged, bool isWrong)
{
    item->setData(changedRole, isChanged);
    item->setData(wrongRole, isWrong);
    QStringList words{page.title()};
    if (isChanged)
        words += tr("changed");
    if (isWrong)
        words += tr("something is wrong");
    item->setData(Qt::AccessibleTextRole, words.join(u", "_s));
    item->setToolTip(words.size() > 1 ? words.join(u", "_s) : QString());
}

QSize PageList::sizeHint() const
{
    return {sizeHintForColumn(0) + 2 * padding, 400};
}

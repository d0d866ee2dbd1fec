#include "resultlist.h"

#include "roomyrows.h"
#include "settingsmodel.h"
#include "troublelabel.h"

#include <QHeaderView>
#include <QLabel>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

class ResultFilter : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void find(const QString &newText, bool changed, bool problems)
    {
        text = newText.simplified();
        words = text.split(u' ', Qt::SkipEmptyParts);
        onlyChanged = changed;
        onlyProblems = problems;
        invalidateFilter();
    }
    QString searched() const { return text; }
    bool wantsProblems() const { return onlyProblems; }

    /// Of problems, what is wrong is told in the place of the value.
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (onlyProblems && role == Qt::DisplayRole && index.column() == SettingsModel::ValueColumn)
            return QSortFilterProxyModel::data(index, SettingsModel::ProblemRole);
        return QSortFilterProxyModel::data(index, role);
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (onlyProblems && role == Qt::DisplayRole && section == SettingsModel::ValueColumn)
            return ResultList::tr("Problem");
        return QSortFilterProxyModel::headerData(section, orientation, role);
    }

protected:
    bool filterAcceptsRow(int row, const QModelIndex &) const override
    {
        if (words.isEmpty() && !onlyChanged && !onlyProblems) // nothing is searched, and nothing is shown
            return false;
        const QModelIndex index = sourceModel()->index(row, 0);
        if (onlyChanged && !index.data(SettingsModel::ChangedRole).toBool())
            return false;
        if (onlyProblems && index.data(SettingsModel::ProblemRole).toString().isEmpty())
            return false;
        const QString all = index.data(SettingsModel::SearchRole).toString();
        return std::ranges::all_of(
            words, [&](const QString &word) { return all.contains(word, Qt::CaseInsensitive); });
    }

private:
    QString text;
    QStringList words;
    bool onlyChanged = false;
    bool onlyProblems = false;
};

/// Texts that are too long for their column go on in the next line.
class WrappedRows : public RoomyRows
{
public:
    explicit WrappedRows(QTreeView &of) : RoomyRows(&of), view(of) {}

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const QSize flat = RoomyRows::sizeHint(option, index);
        constexpr int slack = 4; // an exact width may be taken for one that is too small
        const int margin =
            flat.width() - option.fontMetrics.horizontalAdvance(index.data().toString()) - slack;
        const QRect room(0, 0, view.columnWidth(index.column()) - margin, 10'000);
        const QRect text = option.fontMetrics.boundingRect(room, Qt::TextWordWrap, index.data().toString());
        return {flat.width(),
                std::max(flat.height(), flat.height() - option.fontMetrics.height() + text.height())};
    }

private:
    QTreeView &view;
};

ResultList::ResultList(SettingsModel &ofModel, QWidget *parent)
    : QWidget(parent), model(ofModel), filter(new ResultFilter(this)), view(new QTreeView), empty(new QLabel),
      loose(new TroubleLabel)
{
    filter->setSourceModel(&model);
    view->setModel(filter);
    view->setRootIsDecorated(false);
    view->setItemDelegate(new WrappedRows(*view));
    view->setWordWrap(true);
    view->setAlternatingRowColors(true);
    view->setFrameShape(QFrame::NoFrame);
    view->header()->setStretchLastSection(true);
    connect(view->header(), &QHeaderView::sectionResized, view, &QTreeView::doItemsLayout);
    view->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    view->setAccessibleName(tr("Settings found"));
    empty->setWordWrap(true);
    empty->setAlignment(Qt::AlignCenter);
    loose->setMargin(12);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(loose);
    column->addWidget(view, 1);
    column->addWidget(empty, 1);
    connect(view, &QTreeView::activated, this, [this](const QModelIndex &index) {
        Q_EMIT chosen(index.data(SettingsModel::KeyRole).toString());
    });
    connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this, &ResultList::tellCurrent);
    connect(&model, &SettingsModel::findingsChanged, this, &ResultList::refresh);
    connect(&model, &SettingsModel::changed, this, &ResultList::refresh);
}

void ResultList::find(const QString &text, bool onlyChanged, bool onlyProblems)
{
    filter->find(text, onlyChanged, onlyProblems);
    if (filter->rowCount() > 0)
        view->setCurrentIndex(filter->index(0, 0));
    refresh();
    tellCurrent(view->currentIndex());
}

void ResultList::clear()
{
    filter->find({}, false, false);
}

void ResultList::tellCurrent(const QModelIndex &index)
{
    Q_EMIT lookedAt(index.data(SettingsModel::KeyRole).toString());
}

int ResultList::count() const
{
    return filter->rowCount();
}

QStringList ResultList::looseFindings() const
{
    QStringList texts;
    for (const KeyFinding &finding : model.findings()) {
        if (finding.key.isEmpty())
            texts += tr("Line %1: %2").arg(finding.line).arg(finding.text());
    }
    return texts;
}

void ResultList::refresh()
{
    const QStringList others = filter->wantsProblems() ? looseFindings() : QStringList();
    loose->tell(others.join(u'\n'));
    view->setVisible(count() > 0);
    empty->setText(emptyText());
    empty->setVisible(count() == 0);
}

QString ResultList::emptyText() const
{
    if (count() > 0)
        return {};
    if (!filter->searched().isEmpty())
        return tr("No setting has \u201c%1\u201d in its name, its explanation or its value.")
            .arg(filter->searched());
    if (!filter->wantsProblems())
        return tr("Nothing has been changed.");
    return loose->text().isEmpty() ? tr("Nothing is wrong.") : QString();
}

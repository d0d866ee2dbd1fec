#include "settingsform.h"

#include "settingfield.h"
#include "settingsmodel.h"

#include <QLabel>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int edge = 24;
constexpr int gapOfGroups = 18;
constexpr int widest = 620; ///< further apart, name and value no longer look like a pair

QLabel *newHeading(const QString &text, qreal factor)
{
    auto *label = new QLabel(text);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
    return label;
}

} // namespace

SettingsForm::SettingsForm(const Page &page, SettingsModel &ofModel, QWidget *parent)
    : QScrollArea(parent), shown(page), model(ofModel)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    auto *body = new QWidget;
    body->setMaximumWidth(widest);
    auto *column = new QVBoxLayout(body);
    column->setContentsMargins(edge, edge, edge, edge);
    column->setSpacing(0);
    column->addWidget(newHeading(page.title(), 1.5));
    column->addSpacing(gapOfGroups / 2);
    for (int group = 0; group <= int(Group::WithoutEffect); ++group)
        addGroup(Group(group), column);
    column->addStretch(1);
    setWidget(body);
    setMinimumWidth(body->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width());
    if (fold) // only now: the width has room for what is folded away, too
        fold->setChecked(false);
}

void SettingsForm::addGroup(Group group, QVBoxLayout *column)
{
    std::vector<const knownkeys::Key *> keys;
    for (const knownkeys::Key &key : knownkeys::all()) {
        if (key.name.startsWith(shown.path) && groupOf(key) == group)
            keys.push_back(&key);
    }
    if (keys.empty())
        return;
    const auto place = [](const knownkeys::Key *key) { return &settingName(key->name); };
    std::ranges::stable_sort(keys, {}, place); // as the table of names has them
    column->addSpacing(gapOfGroups);
    QVBoxLayout *rows = column;
    if (group == Group::WithoutEffect)
        rows = addFolded(groupTitle(group), column);
    else if (const QString title = groupTitle(group); !title.isEmpty())
        column->addWidget(newHeading(title, 1.1));
    for (const knownkeys::Key *key : keys) {
        all += new SettingField(*key, model);
        rows->addWidget(all.back());
    }
}

QVBoxLayout *SettingsForm::addFolded(const QString &title, QVBoxLayout *column)
{
    auto *folded = new QWidget;
    auto *rows = new QVBoxLayout(folded);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    fold = new QToolButton;
    fold->setObjectName(u"fold"_s);
    fold->setText(title);
    fold->setAutoRaise(true);
    fold->setCheckable(true);
    fold->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    fold->setChecked(true);
    connect(fold, &QToolButton::toggled, folded, [this, folded](bool open) {
        fold->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
        folded->setVisible(open);
    });
    column->addWidget(fold);
    column->addWidget(folded);
    return rows;
}

bool SettingsForm::jumpTo(const QString &key)
{
    const auto found =
        std::ranges::find_if(all, [&](const SettingField *field) { return field->key().name == key; });
    if (found == all.end())
        return false;
    if (fold && groupOf((*found)->key()) == Group::WithoutEffect)
        fold->setChecked(true);
    (*found)->focus()->setFocus(Qt::OtherFocusReason);
    ensureWidgetVisible(*found, 0, edge);
    return true;
}

void SettingsForm::refresh()
{
    for (SettingField *field : all)
        field->refresh();
}

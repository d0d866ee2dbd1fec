#include "firstuse.h"

#include "configfile.h"
#include "pages.h"
#include "roomybutton.h"
#include "settingfield.h"
#include "usercatalogue.h"

#include <QBuffer>
#include <QButtonGroup>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

void addHeading(QVBoxLayout *column, const QString &text, qreal factor)
{
    auto *label = new QLabel(text);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
    label->setWordWrap(true);
    column->addWidget(label);
}

void addChoice(QVBoxLayout *column, QButtonGroup *group, const QString &name, const QString &purpose)
{
    constexpr int indent = 24;
    auto *button = new QRadioButton(name);
    button->setAccessibleDescription(purpose);
    group->addButton(button, int(group->buttons().size()));
    QLabel *label = newSmallLabel(purpose);
    label->setWordWrap(true);
    label->setContentsMargins(indent, 0, 0, 6);
    column->addWidget(button);
    column->addWidget(label);
}

} // namespace

FirstUse::FirstUse(QWidget *parent)
    : QScrollArea(parent), papers(new QButtonGroup(this)), houses(new QButtonGroup(this))
{
    constexpr int edge = 24;
    constexpr int gap = 16;
    auto *body = new QWidget;
    auto *column = new QVBoxLayout(body);
    column->setContentsMargins(edge, edge, edge, edge);
    addIntroduction(column);
    column->addSpacing(gap);
    addHeading(column, tr("Paper"), 1.1);
    for (const presets::Paper &paper : presets::papers)
        addChoice(column, papers, tr("%1 mm").arg(paper.name),
                  tr("%1 characters on a line").arg(paper.columns));
    column->addSpacing(gap);
    addHeading(column, tr("Kind of business"), 1.1);
    for (const presets::House &house : presets::houses)
        addChoice(column, houses, inUserLanguage(house.title), inUserLanguage(house.purpose));
    column->addSpacing(gap);
    addButtons(column);
    column->addStretch(1);
    setWidget(body);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    papers->button(1)->setChecked(true);
    houses->button(0)->setChecked(true);
    setFocusProxy(papers->button(1));
    connect(papers, &QButtonGroup::idToggled, this, &FirstUse::looked);
    connect(houses, &QButtonGroup::idToggled, this, &FirstUse::looked);
}

void FirstUse::addIntroduction(QVBoxLayout *column)
{
    addHeading(column, tr("Set up your paper"), 1.5);
    auto *text = new QLabel(
        tr("There are no settings yet. Choose what comes nearest: the paper on the right shows it. "
           "Everything can be changed afterwards."));
    text->setWordWrap(true);
    column->addWidget(text);
}

void FirstUse::addButtons(QVBoxLayout *column)
{
    auto *use = new RoomyButton(tr("Use these settings"));
    use->setDefault(true);
    auto *decline = new RoomyButton(tr("Start empty"));
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(use);
    buttons->addWidget(decline);
    buttons->addStretch(1);
    column->addLayout(buttons);
    connect(use, &QPushButton::clicked, this, &FirstUse::chosen);
    connect(decline, &QPushButton::clicked, this, &FirstUse::declined);
}

const presets::Paper &FirstUse::paper() const
{
    return presets::papers[papers->checkedId()];
}

const presets::House &FirstUse::house() const
{
    return presets::houses[houses->checkedId()];
}

const Page &FirstUse::page() const
{
    return *pageOf(vocabulary::findDocumentKind(QString(house().kind))->path());
}

QByteArray FirstUse::configuration() const
{
    libconfig::Config config;
    presets::apply(config, house(), paper());
    QBuffer memory;
    memory.open(QIODevice::WriteOnly);
    config.buildConfigFile(memory);
    return memory.data();
}

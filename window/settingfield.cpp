#include "settingfield.h"

#include "icons.h"
#include "settingsmodel.h"
#include "troublelabel.h"
#include "usercatalogue.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

QLabel *newSmallLabel(const QString &text)
{
    constexpr qreal small = 0.82;
    auto *label = new QLabel(text);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * small);
    label->setFont(font);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

SettingField::SettingField(const knownkeys::Key &key, SettingsModel &ofModel, QWidget *parent)
    : QWidget(parent), known(key), model(ofModel),
      editor(newEditor(key, this, [this](const QString &value) { model.set(known.name, value); })),
      state(newSmallLabel(tr("default"))), trouble(new TroubleLabel), resetButton(new QToolButton)
{
    trouble->setContentsMargins(0, 3, 0, 3);
    setObjectName(key.name);
    setThemedIcon(resetButton, u"reset"_s);
    resetButton->setAutoRaise(true);
    resetButton->setToolTip(tr("Reset to the default"));
    resetButton->setAccessibleName(tr("Reset %1 to the default").arg(humanName(key.name)));
    connect(resetButton, &QToolButton::clicked, this, [this] {
        model.set(known.name, QString());
        focus()->setFocus();
    });
    lay(newSmallLabel(key.name.section(u'.', 1)));
    focus()->setAccessibleName(humanName(key.name));
    focus()->installEventFilter(this);
    refresh();
}

/// Undo belongs to the window, which knows all steps, and not to the text field. Only what was refused is no
/// step, and is taken back where it was typed.
bool SettingField::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride || !model.refused(known.name).why.isEmpty())
        return QWidget::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    if (!key->matches(QKeySequence::Undo) && !key->matches(QKeySequence::Redo))
        return QWidget::eventFilter(watched, event);
    event->ignore();
    return true;
}

void SettingField::lay(QLabel *keyLabel)
{
    constexpr int nameWidth = 170;
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 5, 0, 5);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(1);
    if (isFlag()) {
        grid->addWidget(editor->widget(), 0, 0);
    } else {
        name = new QLabel(humanName(known.name));
        name->setBuddy(focus());
        name->setWordWrap(true);
        grid->addWidget(name, 0, 0);
        grid->addWidget(editor->widget(), 0, 1);
    }
    keyLabel->setIndent(isFlag() ? 24 : 0);
    grid->addWidget(keyLabel, 1, 0, 1, 2);
    grid->addWidget(state, 0, 2, Qt::AlignRight | Qt::AlignVCenter); // one of the two is shown
    grid->addWidget(resetButton, 0, 2, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(trouble, 2, 0, 1, 3);
    grid->setColumnMinimumWidth(0, nameWidth);
    grid->setColumnStretch(1, 1);
    for (QWidget *part : {static_cast<QWidget *>(state), static_cast<QWidget *>(resetButton)}) {
        QSizePolicy policy = part->sizePolicy(); // the editors of a page stay equally wide
        policy.setRetainSizeWhenHidden(true);
        part->setSizePolicy(policy);
    }
}

bool SettingField::isFlag() const
{
    return known.kind == vocabulary::ValueKind::Flag;
}

bool SettingField::isSet() const
{
    return !model.value(known.name).isEmpty() || !model.refused(known.name).text.isEmpty();
}

void SettingField::refresh()
{
    const SettingsModel::Refused refused = model.refused(known.name);
    editor->show(refused.why.isEmpty() ? model.value(known.name) : refused.text);
    state->setVisible(!isSet());
    resetButton->setVisible(isSet());
    const QString problem = model.problem(known.name);
    trouble->tell(problem);
    describe(problem);
}

void SettingField::describe(const QString &problem)
{
    const QString help = asSentence(inUserLanguage(known.meaning));
    focus()->setAccessibleDescription(problem.isEmpty() ? help : problem + u"\n"_s + help);
}

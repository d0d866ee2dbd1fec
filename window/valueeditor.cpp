#include "valueeditor.h"

#include "icons.h"
#include "usercatalogue.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>

#include <utility>

using namespace Qt::Literals::StringLiterals;
using vocabulary::ValueKind;

namespace {

constexpr int mostOfANumber = 999;
constexpr int mostCopies = 99;

/// Turning the wheel over a page scrolls it, and changes no number on the way.
class WheelGuard : public QObject
{
public:
    using QObject::QObject;
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus())
            return false;
        event->ignore();
        return true;
    }
};

void guardWheel(QWidget *widget)
{
    widget->setFocusPolicy(Qt::StrongFocus);
    widget->installEventFilter(new WheelGuard(widget));
}

class FlagEditor : public ValueEditor
{
public:
    FlagEditor(const knownkeys::Key &key, QWidget *parent, Changed changed)
        : box(new QCheckBox(humanName(key.name), parent))
    {
        QObject::connect(box, &QCheckBox::clicked, box, [changed = std::move(changed)](bool on) {
            changed(vocabulary::flagWords[on ? 0 : 1]);
        });
    }
    QWidget *widget() override { return box; }
    void show(const QString &value) override
    {
        const QSignalBlocker quiet(box);
        box->setChecked(value == vocabulary::flagOn);
    }

private:
    QCheckBox *box;
};

class NumberEditor : public ValueEditor
{
public:
    NumberEditor(const knownkeys::Key &ofKey, QWidget *parent, Changed changed)
        : key(ofKey), box(new QSpinBox(parent))
    {
        const SettingName &name = settingName(key.name);
        const bool isCopies = name.editor == Editor::Number;
        box->setRange(isCopies ? 1 : 0, isCopies ? mostCopies : mostOfANumber);
        guardWheel(box);
        QObject::connect(box, &QSpinBox::valueChanged, box, [this, changed = std::move(changed)](int number) {
            showUnit();
            changed(QString::number(number));
        });
    }
    QWidget *widget() override { return box; }
    void show(const QString &value) override
    {
        const QSignalBlocker quiet(box);
        const bool isOneCopy = value.isEmpty() && settingName(key.name).editor == Editor::Number;
        const int number = isOneCopy ? 1 : knownkeys::effectiveValue(key, value).toInt();
        if (number < box->minimum() || number > box->maximum()) // what is stored is shown
            box->setRange(std::min(box->minimum(), number), std::max(box->maximum(), number));
        box->setValue(number);
        showUnit();
    }

private:
    void showUnit()
    {
        const QSignalBlocker quiet(box);
        if (const Unit *unit = settingName(key.name).unit)
            box->setSuffix(u' ' + unitOf(*unit, box->value()));
    }

    const knownkeys::Key &key;
    QSpinBox *box;
};

class ChoiceEditor : public ValueEditor
{
public:
    ChoiceEditor(const knownkeys::Key &key, QWidget *parent, Changed changed) : box(new QComboBox(parent))
    {
        box->addItem(QCoreApplication::translate("ValueEditor", "Default: %1").arg(defaultText(key)),
                     QString());
        for (const QLatin1StringView word : vocabulary::wordsOf(key.kind))
            box->addItem(word, QString(word));
        guardWheel(box);
        QObject::connect(box, &QComboBox::activated, box,
                         [this, changed = std::move(changed)] { changed(box->currentData().toString()); });
    }
    QWidget *widget() override { return box; }
    void show(const QString &value) override
    {
        const QSignalBlocker quiet(box);
        box->setCurrentIndex(std::max(0, box->findData(value.toUpper())));
    }

private:
    QComboBox *box;
};

class TextEditor : public ValueEditor
{
public:
    TextEditor(const knownkeys::Key &key, QWidget *parent, const Changed &toCall)
        : page(new QWidget(parent)), line(new QLineEdit), changed(toCall)
    {
        auto *row = new QHBoxLayout(page);
        row->setContentsMargins(0, 0, 0, 0);
        row->addWidget(line, 1);
        line->setMinimumWidth(line->fontMetrics().averageCharWidth() * 20);
        if (line->fontMetrics().horizontalAdvance(defaultText(key)) < line->minimumWidth())
            line->setPlaceholderText(defaultText(key));
        QObject::connect(line, &QLineEdit::textEdited, line, [this](const QString &text) { changed(text); });
        const Editor kind = settingName(key.name).editor;
        if (kind == Editor::Folder || kind == Editor::File)
            row->addWidget(browseButton(kind));
        if (key.kind == ValueKind::Secret)
            row->addWidget(revealButton());
    }
    QWidget *widget() override { return page; }
    QWidget *focus() override { return line; }
    void show(const QString &value) override
    {
        if (line->text() != value)
            line->setText(value);
    }

private:
    QToolButton *browseButton(Editor kind)
    {
        auto *button = new QToolButton;
        setThemedIcon(button, u"folder"_s);
        const QString text = kind == Editor::Folder
                                 ? QCoreApplication::translate("ValueEditor", "Choose a folder\u2026")
                                 : QCoreApplication::translate("ValueEditor", "Choose a file\u2026");
        button->setToolTip(text);
        button->setAccessibleName(text);
        QObject::connect(button, &QToolButton::clicked, line, [this, kind, text] { choose(kind, text); });
        return button;
    }
    void choose(Editor kind, const QString &title)
    {
        const QString path = kind == Editor::Folder
                                 ? QFileDialog::getExistingDirectory(line, title, line->text())
                                 : QFileDialog::getOpenFileName(line, title, line->text());
        if (path.isEmpty())
            return;
        line->setText(path);
        changed(path);
    }
    QToolButton *revealButton()
    {
        line->setEchoMode(QLineEdit::Password);
        auto *button = new QToolButton;
        setThemedIcon(button, u"show"_s);
        button->setCheckable(true);
        const QString text = QCoreApplication::translate("ValueEditor", "Show the password");
        button->setToolTip(text);
        button->setAccessibleName(text);
        QObject::connect(button, &QToolButton::toggled, line, [this](bool on) {
            line->setEchoMode(on ? QLineEdit::Normal : QLineEdit::Password);
        });
        return button;
    }

    QWidget *page;
    QLineEdit *line;
    Changed changed;
};

} // namespace

std::unique_ptr<ValueEditor> newEditor(const knownkeys::Key &key, QWidget *parent,
                                       ValueEditor::Changed changed)
{
    if (settingName(key.name).editor == Editor::Number)
        return std::make_unique<NumberEditor>(key, parent, std::move(changed));
    switch (key.kind) {
    case ValueKind::Flag:
        return std::make_unique<FlagEditor>(key, parent, std::move(changed));
    case ValueKind::Count:
    case ValueKind::Width:
        return std::make_unique<NumberEditor>(key, parent, std::move(changed));
    case ValueKind::Level:
    case ValueKind::LogType:
        return std::make_unique<ChoiceEditor>(key, parent, std::move(changed));
    default:
        return std::make_unique<TextEditor>(key, parent, changed);
    }
}

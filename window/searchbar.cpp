#include "searchbar.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

SearchBar::SearchBar(QWidget *parent)
    : QWidget(parent), changed(newFilter(tr("Changed"))), problems(newFilter(tr("Problems"))),
      words(new QLineEdit)
{
    constexpr int widest = 300;
    words->setObjectName(u"search"_s);
    words->setPlaceholderText(tr("Find a setting"));
    words->setAccessibleName(tr("Find a setting"));
    words->setAccessibleDescription(tr("Looks in names, explanations, keys and values"));
    words->setClearButtonEnabled(true);
    words->setMinimumWidth(words->fontMetrics().averageCharWidth() * 24);
    words->setMaximumWidth(widest);
    problems->setObjectName(u"problems"_s);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch(1);
    row->addWidget(changed);
    row->addWidget(problems);
    row->addWidget(words, 1);
    connect(words, &QLineEdit::textChanged, this, &SearchBar::searched);
    connect(words, &QLineEdit::returnPressed, this, &SearchBar::entered);
}

QToolButton *SearchBar::newFilter(const QString &text)
{
    auto *button = new QToolButton;
    button->setText(text);
    button->setCheckable(true);
    button->setFocusPolicy(Qt::StrongFocus);
    connect(button, &QToolButton::toggled, this, &SearchBar::searched);
    return button;
}

QString SearchBar::text() const
{
    return words->text().simplified();
}

bool SearchBar::onlyChanged() const
{
    return changed->isChecked();
}

bool SearchBar::onlyProblems() const
{
    return problems->isChecked();
}

bool SearchBar::isSearching() const
{
    return !text().isEmpty() || onlyChanged() || onlyProblems();
}

void SearchBar::beginTyping()
{
    words->setFocus();
    words->selectAll();
}

void SearchBar::clear()
{
    words->clear();
    changed->setChecked(false);
    problems->setChecked(false);
}

void SearchBar::showProblems(qsizetype count)
{
    problems->setText(count == 0 ? tr("Problems") : tr("Problems (%1)").arg(count));
}

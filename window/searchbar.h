#pragma once

#include <QWidget>

class QLineEdit;
class QToolButton;

/// What narrows the settings down: words to look for, and filters for what is changed and what is wrong.
class SearchBar : public QWidget
{
    Q_OBJECT

public:
    explicit SearchBar(QWidget *parent = nullptr);

    QString text() const;
    bool onlyChanged() const;
    bool onlyProblems() const;
    /// Whether anything is looked for.
    bool isSearching() const;
    /// Puts the keyboard into the field.
    void beginTyping();
    /// Looks for nothing any more.
    void clear();
    /// How many problems there are.
    void showProblems(qsizetype count);

Q_SIGNALS:
    void searched();
    /// The user is done with the words, and wants to choose.
    void entered();

private:
    QToolButton *newFilter(const QString &text);

    QToolButton *changed;
    QToolButton *problems;
    QLineEdit *words;
};

#pragma once

#include "presets.h"

#include <QScrollArea>

class QButtonGroup;
class QVBoxLayout;
struct Page;

/// The page of a house that has no settings yet: it offers paper and a kind of house, and the window shows
/// their paper before they are chosen.
class FirstUse : public QScrollArea
{
    Q_OBJECT

public:
    explicit FirstUse(QWidget *parent = nullptr);

    const presets::Paper &paper() const;
    const presets::House &house() const;
    /// That of the house's first document.
    const Page &page() const;
    /// What is chosen, as a file in the text form.
    QByteArray configuration() const;

Q_SIGNALS:
    /// Other paper or another house is looked at.
    void looked();
    void chosen();
    void declined();

private:
    void addIntroduction(QVBoxLayout *column);
    void addButtons(QVBoxLayout *column);

    QButtonGroup *papers;
    QButtonGroup *houses;
};

#pragma once

#include <QWidget>

#include <functional>

class QLabel;
class QPushButton;

/// A line across the top of the window that tells something at once, and may offer what to do about it.
class MessageBar : public QWidget
{
    Q_OBJECT

public:
    explicit MessageBar(QWidget *parent = nullptr);

    void tell(const QString &text, const QString &offer = {}, std::function<void()> action = {});
    QString text() const;
    QPushButton *button() const { return offerButton; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QLabel *label;
    QPushButton *offerButton;
    std::function<void()> offered;
};

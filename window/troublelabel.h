#pragma once

#include <QLabel>

/// Tells what is wrong, in a colour that says so on light and on dark ground. Hidden when nothing is.
class TroubleLabel : public QLabel
{
    Q_OBJECT

public:
    explicit TroubleLabel(QWidget *parent = nullptr);

    /// `why` is one reason a line; "" when nothing is wrong.
    void tell(const QString &why);

protected:
    void changeEvent(QEvent *event) override;

private:
    void takeColour();
};

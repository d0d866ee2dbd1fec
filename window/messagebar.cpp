#include "messagebar.h"

#include "roomybutton.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QColor signal(0xf0, 0xb4, 0x29);
constexpr qreal share = 0.25; ///< of the signal's colour in the ground

QColor mixed(const QColor &ground)
{
    const auto mix = [](int one, int other) { return int(one + (other - one) * share); };
    return {mix(ground.red(), signal.red()), mix(ground.green(), signal.green()),
            mix(ground.blue(), signal.blue())};
}

} // namespace

MessageBar::MessageBar(QWidget *parent) : QWidget(parent), label(new QLabel), offerButton(new RoomyButton)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(16, 8, 16, 8);
    label->setWordWrap(true);
    row->addWidget(label, 1);
    row->addWidget(offerButton);
    connect(offerButton, &QPushButton::clicked, this, [this] {
        const auto action = offered; // which may tell something else, and offer that
        action();
    });
    hide();
}

void MessageBar::tell(const QString &text, const QString &offer, std::function<void()> action)
{
    label->setText(u"\u26a0 "_s + text);
    offered = std::move(action);
    offerButton->setText(offer);
    offerButton->setVisible(bool(offered));
    setVisible(true);
}

QString MessageBar::text() const
{
    return isHidden() ? QString() : label->text().mid(2);
}

void MessageBar::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), mixed(palette().color(QPalette::Window)));
}

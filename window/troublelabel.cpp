#include "troublelabel.h"

#include <QEvent>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QColor onLight(0xb3, 0x26, 0x1e);
constexpr QColor onDark(0xff, 0xb4, 0xa9);

} // namespace

TroubleLabel::TroubleLabel(QWidget *parent) : QLabel(parent)
{
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    takeColour();
    hide();
}

void TroubleLabel::tell(const QString &why)
{
    setText(why.isEmpty() ? QString() : u"\u26a0 "_s + QString(why).replace(u'\n', u"\n\u26a0 "_s));
    setVisible(!why.isEmpty());
}

void TroubleLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::ParentChange || event->type() == QEvent::ApplicationPaletteChange)
        takeColour();
}

void TroubleLabel::takeColour()
{
    QPalette colours;
    const bool isDark = colours.color(QPalette::Window).lightness() < 128;
    colours.setColor(QPalette::WindowText, isDark ? onDark : onLight);
    setPalette(colours);
}

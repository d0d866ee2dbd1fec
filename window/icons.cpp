#include "icons.h"

#include <QAbstractButton>
#include <QAction>
#include <QEvent>
#include <QFile>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

QPixmap drawn(const QString &name, const QColor &colour, int size)
{
    QFile file(u":/icons/%1.svg"_s.arg(name));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("there is no icon %s", qPrintable(name));
    QSvgRenderer renderer(file.readAll().replace("currentColor", colour.name().toLatin1()));
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    return pixmap;
}

/// Draws an icon, and again when the palette of a widget is another.
class IconKeeper : public QObject
{
public:
    IconKeeper(QWidget *watchedWidget, const QString &iconName, std::function<void(const QIcon &)> setIcon)
        : QObject(watchedWidget), widget(watchedWidget), name(iconName), set(std::move(setIcon))
    {
        widget->installEventFilter(this);
        set(themedIcon(name, widget->palette()));
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::PaletteChange)
            set(themedIcon(name, widget->palette()));
        return false;
    }

private:
    QWidget *widget;
    QString name;
    std::function<void(const QIcon &)> set;
};

} // namespace

QIcon themedIcon(const QString &name, const QPalette &palette)
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48}) {
        icon.addPixmap(drawn(name, palette.color(QPalette::WindowText), size));
        icon.addPixmap(drawn(name, palette.color(QPalette::Disabled, QPalette::WindowText), size),
                       QIcon::Disabled);
    }
    return icon;
}

void setThemedIcon(QAbstractButton *button, const QString &name)
{
    new IconKeeper(button, name, [button](const QIcon &icon) { button->setIcon(icon); });
}

void setThemedIcon(QAction *action, const QString &name, QWidget *bar)
{
    new IconKeeper(bar, name, [action](const QIcon &icon) { action->setIcon(icon); });
}

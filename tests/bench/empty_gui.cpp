// What any program that draws without a window pays for its start, before it draws anything.

#include <QGuiApplication>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
}

// Opens the window on the file that is its argument, and saves one change after another until it is killed.

#include "windowfixture.h"

#include <QApplication>

using namespace Qt::Literals::StringLiterals;

int main(int argc, char **argv)
{
    const QTemporaryDir home;
    prepareForWindows(home.path());
    const QApplication application(argc, argv);
    SettingsWindow window(QString::fromLocal8Bit(argv[1]));
    for (bool wide = true;; wide = !wide) {
        window.settings().set(u"palvestrin.doc.paperWidth"_s, wide ? u"48"_s : u"32"_s);
        window.save();
        puts("saved"); // the one who kills waits for the first
        fflush(stdout);
    }
}

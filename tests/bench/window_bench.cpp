// How long it takes from a change of a setting to its paper on the screen, for each document: one start of
// palvestrin-print and the painting of the example. Prints the slowest document's median in milliseconds.

#include "pages.h"
#include "paperpane.h"
#include "windowfixture.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QSignalSpy>

#include <algorithm>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int rounds = 31;

double millisecondsOfAnEdit(SettingsWindow &window, const QString &key, int round)
{
    QSignalSpy painted(&window.paperPane(), &PaperPane::painted);
    QElapsedTimer clock;
    clock.start();
    window.settings().set(key, QString::number(40 + round % 2));
    painted.wait();
    return double(clock.nsecsElapsed()) / 1e6;
}

double medianOf(SettingsWindow &window, const Page &page)
{
    window.showPage(page);
    waitForPaper(window);
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round)
        times.push_back(millisecondsOfAnEdit(window, page.path + u"paperWidth"_s, round));
    std::ranges::sort(times);
    return times[rounds / 2];
}

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir home;
    prepareForWindows(home.path());
    const QApplication application(argc, argv);
    const ScratchFolder folder;
    SettingsWindow window(folder.write(u"c.conf"_s, kitchenConfiguration));
    showReady(window);
    double slowest = 0;
    for (const Page &page : pages()) {
        if (page.isDocument())
            slowest = std::max(slowest, medianOf(window, page));
    }
    std::printf("%.1f\n", slowest);
}

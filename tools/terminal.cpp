#include "terminal.h"

#include <QByteArray>

#include <langinfo.h>
#include <locale.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace terminal {

namespace {

winsize size()
{
    winsize found{};
    ioctl(STDOUT_FILENO, TIOCGWINSZ, &found); // stays zero where there is none
    return found;
}

/// What the terminal tells, else what the variable tells.
int sizeOr(int told, const char *variable)
{
    return told > 0 ? told : qMax(0, qEnvironmentVariableIntValue(variable));
}

/// The name of the locale that decides on characters, as it stands in the environment.
QByteArray localeName()
{
    for (const char *variable : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        if (const QByteArray name = qgetenv(variable); !name.isEmpty())
            return name;
    }
    return {};
}

/// A locale that is not installed here, such as the one of a person who came over the network, has at least a
/// name that tells whether it is of UTF-8.
QByteArray encoding()
{
    const locale_t locale = newlocale(LC_CTYPE_MASK, "", nullptr);
    if (!locale)
        return localeName().toUpper().replace("-", "").endsWith("UTF8") ? "UTF-8" : "US-ASCII";
    const QByteArray codeset = nl_langinfo_l(CODESET, locale);
    freelocale(locale);
    return codeset;
}

bool hasColors()
{
    const QByteArray type = qgetenv("TERM");
    return isThere() && !type.isEmpty() && type != "dumb" && qgetenv("NO_COLOR").isEmpty();
}

} // namespace

bool isThere()
{
    return isatty(STDOUT_FILENO) != 0;
}

int rows()
{
    return sizeOr(size().ws_row, "LINES");
}

paper::Screen screen()
{
    paper::Screen screen;
    screen.encoding = encoding();
    screen.columns = isThere() ? sizeOr(size().ws_col, "COLUMNS") : 0;
    screen.hasColors = hasColors();
    return screen;
}

} // namespace terminal

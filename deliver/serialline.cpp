#include "serialline.h"

#include "serialspeeds.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <termios.h>

namespace {

bool setSpeed(termios &settings, int baud)
{
    const auto *speed = std::ranges::find(serialSpeeds, baud, &SerialSpeed::baud);
    if (speed == std::end(serialSpeeds)) {
        errno = EINVAL;
        return false;
    }
    return cfsetspeed(&settings, speed->code) == 0;
}

} // namespace

bool setUpSerialLine(int descriptor, int baud)
{
    termios settings;
    if (tcgetattr(descriptor, &settings) != 0)
        return false;
    cfmakeraw(&settings);
    settings.c_cflag |= CLOCAL | CREAD;
    return (baud == 0 || setSpeed(settings, baud)) && tcsetattr(descriptor, TCSANOW, &settings) == 0;
}

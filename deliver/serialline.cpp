#include "serialline.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <termios.h>

namespace {

struct Speed
{
    int baud;
    speed_t code;
};

constexpr Speed speeds[] = {
    {1200, B1200},   {2400, B2400},   {4800, B4800},     {9600, B9600},     {19200, B19200},
    {38400, B38400}, {57600, B57600}, {115200, B115200}, {230400, B230400},
};

bool setSpeed(termios &settings, int baud)
{
    const auto *speed = std::ranges::find(speeds, baud, &Speed::baud);
    if (speed == std::end(speeds)) {
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

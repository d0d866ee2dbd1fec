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

/// Without it a printer drops what it cannot take, such as the middle of a picture, and confirms the rest. No
/// answer of a printer has a byte that means XON or XOFF.
bool setUpSerialLine(int descriptor, const DeviceAddress &address)
{
    termios settings;
    if (tcgetattr(descriptor, &settings) != 0)
        return false;
    cfmakeraw(&settings);
    settings.c_cflag |= CLOCAL | CREAD;
    if (address.flow == DeviceAddress::Flow::Software)
        settings.c_iflag |= IXON;
    else
        settings.c_cflag |= CRTSCTS;
    return (address.baud == 0 || setSpeed(settings, address.baud)) &&
           tcsetattr(descriptor, TCSANOW, &settings) == 0;
}

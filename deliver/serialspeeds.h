#pragma once

#include <termios.h>

/// A speed that a serial line can be set to.
struct SerialSpeed
{
    int baud;
    speed_t code; ///< as the system calls it
};

inline constexpr SerialSpeed serialSpeeds[] = {
    {1200, B1200},   {2400, B2400},   {4800, B4800},     {9600, B9600},     {19200, B19200},
    {38400, B38400}, {57600, B57600}, {115200, B115200}, {230400, B230400},
};

#pragma once

#include "deviceaddress.h"

/// Makes a serial line pass bytes as they are, with the speed and the flow control of the address. False when
/// the line does not know the speed.
bool setUpSerialLine(int descriptor, const DeviceAddress &address);

#pragma once

/// Makes a serial line pass bytes as they are, with a speed of `baud` unless that is 0, and flow control by
/// the line's own wires as it is set. False when the line does not know the speed.
bool setUpSerialLine(int descriptor, int baud);

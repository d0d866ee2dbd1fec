#pragma once

/// Lists the devices that are there, a line each, as print servers read it.
void listDevices();

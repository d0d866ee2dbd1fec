#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

/// Where a printer is and how it is asked, as the URI of its queue tells:
///
///     palvestrin://HOST[:9100][/][?OPTION=VALUE&...]
///     palvestrin:/dev/...[?OPTION=VALUE&...]
///
/// docs/printing.md lists the options.
struct DeviceAddress
{
    enum class Status {
        Required, ///< nothing is sent before the printer has answered
        Ask,      ///< it is asked, and served without when it never answers
        Never,    ///< it is not asked
    };

    std::string host; ///< "" for a device
    int port = 9100;
    std::string path; ///< of a device, "" for a host
    Status status = Status::Ask;
    /// How long no sign of life is borne once bytes have gone out.
    std::chrono::seconds wait{300};
    /// How a serial line is told that the printer can take no more.
    enum class Flow {
        Software, ///< by bytes: XOFF and XON; wires as they are set
        Hardware, ///< by the wires RTS and CTS
    };
    Flow flow = Flow::Software;
    int baud = 0; ///< of a serial line, of deliver/serialspeeds.h; 0: as it is set

    /// "192.0.2.7, port 9100" or "/dev/usb/lp0".
    std::string shown() const;
};

/// Whether the path names something in the folder of devices.
bool isBelowDev(std::string_view path);

/// The URI for a place that people name: "192.0.2.7", "kitchen:9101?wait=60", "/dev/usb/lp0", or a whole URI.
/// It may be wrong.
std::string deviceUri(const std::string &place);

/// Empty when the URI is wrong; then `trouble` says in a sentence why.
std::optional<DeviceAddress> deviceAddress(const std::string &uri, std::string &trouble);

#include "devicelist.h"

#include "durablefile.h"

#include <cups/backend.h>
#include <glob.h>
#include <string>

namespace {

/// What a USB printer says it is, "" when it does not.
std::string deviceId(const std::string &device)
{
    const std::string name = device.substr(device.rfind('/') + 1);
    std::string id = contentOf("/sys/class/usbmisc/" + name + "/device/ieee1284_id");
    id.resize(id.find_last_not_of('\n') + 1);
    return id;
}

/// The value of a field, by its short or its long name.
std::string field(const std::string &id, const std::string &brief, const std::string &whole)
{
    for (const std::string &name : {";" + brief + ":", ";" + whole + ":"}) {
        const std::string text = ";" + id;
        const std::size_t place = text.find(name);
        if (place != std::string::npos)
            return text.substr(place + name.size(), text.find(';', place + 1) - place - name.size());
    }
    return {};
}

void listDevice(const std::string &device)
{
    const std::string id = deviceId(device);
    const std::string model =
        id.empty() ? "Unknown" : field(id, "MFG", "MANUFACTURER") + ' ' + field(id, "MDL", "MODEL");
    const std::string info = "Receipt printer at " + device;
    cupsBackendReport("direct", ("palvestrin:" + device).c_str(), model.c_str(), info.c_str(), id.c_str(),
                      nullptr);
}

} // namespace

void listDevices()
{
    cupsBackendReport("network", "palvestrin", "Unknown", "Receipt printer that confirms what it printed",
                      nullptr, nullptr);
    glob_t devices{};
    if (glob("/dev/usb/lp*", 0, nullptr, &devices) == 0) {
        for (std::size_t place = 0; place < devices.gl_pathc; ++place)
            listDevice(devices.gl_pathv[place]);
    }
    globfree(&devices);
}

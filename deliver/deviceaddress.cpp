#include "deviceaddress.h"

#include "serialspeeds.h"

#include <algorithm>
#include <arpa/inet.h>
#include <charconv>
#include <cups/http.h>
#include <iterator>
#include <limits>
#include <string_view>

namespace {

constexpr std::string_view scheme = "palvestrin:";
constexpr std::string_view hostScheme = "palvestrin://";

struct StatusWord
{
    std::string_view word;
    DeviceAddress::Status status;
};

constexpr StatusWord statusWords[] = {
    {"required", DeviceAddress::Status::Required},
    {"ask", DeviceAddress::Status::Ask},
    {"never", DeviceAddress::Status::Never},
};

bool takeNumber(std::string_view text, int least, int most, int &number)
{
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool isGood =
        error == std::errc() && end == text.data() + text.size() && value >= least && value <= most;
    if (isGood)
        number = value;
    return isGood;
}

std::string takeStatus(std::string_view value, DeviceAddress &address)
{
    for (const StatusWord &each : statusWords) {
        if (value == each.word) {
            address.status = each.status;
            return {};
        }
    }
    return "status is one of required, ask and never";
}

std::string takeWait(std::string_view value, DeviceAddress &address)
{
    int seconds = 0;
    if (!takeNumber(value, 1, 86400, seconds))
        return "wait is a number of seconds from 1 to 86400";
    address.wait = std::chrono::seconds(seconds);
    return {};
}

std::string shownSpeeds()
{
    std::string text;
    for (const SerialSpeed &speed : serialSpeeds)
        text += (text.empty() ? "" : ", ") + std::to_string(speed.baud);
    return text;
}

std::string takeBaud(std::string_view value, DeviceAddress &address)
{
    int baud = 0;
    const bool isNumber = takeNumber(value, 1, std::numeric_limits<int>::max(), baud);
    if (!isNumber || std::ranges::find(serialSpeeds, baud, &SerialSpeed::baud) == std::end(serialSpeeds))
        return "baud is one of " + shownSpeeds();
    address.baud = baud;
    return {};
}

std::string takeFlow(std::string_view value, DeviceAddress &address)
{
    if (value != "software" && value != "hardware")
        return "flow is one of software and hardware";
    address.flow = value == "software" ? DeviceAddress::Flow::Software : DeviceAddress::Flow::Hardware;
    return {};
}

struct OptionKind
{
    std::string_view name;
    std::string (*take)(std::string_view value, DeviceAddress &address); ///< returns what is wrong
};

constexpr OptionKind optionKinds[] = {
    {"status", takeStatus}, {"wait", takeWait}, {"baud", takeBaud}, {"flow", takeFlow}};

std::string takeOption(std::string_view option, DeviceAddress &address)
{
    const std::size_t equals = option.find('=');
    const std::string_view name = option.substr(0, equals);
    for (const OptionKind &kind : optionKinds) {
        if (name == kind.name && equals != std::string_view::npos)
            return kind.take(option.substr(equals + 1), address);
    }
    return "there is no option \"" + std::string(option) + "\"; there are status, wait, baud and flow";
}

std::string takeOptions(std::string_view options, DeviceAddress &address)
{
    while (!options.empty()) {
        const std::size_t end = options.find('&');
        const std::string trouble = takeOption(options.substr(0, end), address);
        if (!trouble.empty())
            return trouble;
        options = end == std::string_view::npos ? std::string_view() : options.substr(end + 1);
    }
    return {};
}

/// The parts of a URI, as the print server takes it apart.
struct UriParts
{
    char scheme[64];
    char user[64];
    char host[256];
    char resource[1024];
    int port = 0;

    http_uri_status_t take(const std::string &uri)
    {
        return httpSeparateURI(HTTP_URI_CODING_ALL, uri.c_str(), scheme, sizeof scheme, user, sizeof user,
                               host, sizeof host, &port, resource, sizeof resource);
    }
};

/// libcups wants a slash between a port and the options.
std::string withSlash(std::string uri)
{
    const std::size_t end = uri.find_first_of("/?", hostScheme.size());
    if (uri.starts_with(hostScheme) && end != std::string::npos && uri[end] == '?')
        uri.insert(end, 1, '/');
    return uri;
}

bool isHost(const std::string &host)
{
    in_addr number{};
    if (host.find_first_not_of("0123456789.") == std::string::npos)
        return inet_pton(AF_INET, host.c_str(), &number) == 1;
    return host.find_first_of(" !\"$&'()*+,;<=>@\\^`{|}~") == std::string::npos;
}

std::string takeHost(const UriParts &parts, std::string_view path, DeviceAddress &address)
{
    address.host = parts.host;
    if (parts.port > 0)
        address.port = parts.port;
    if (!isHost(address.host))
        return "no host is called \"" + address.host + '"';
    if (*parts.user)
        return "printers have no users; before the host there is nothing";
    return path.size() > 1 ? "behind the host there is no path; options follow a question mark" : "";
}

std::string takePlace(const UriParts &parts, std::string_view path, DeviceAddress &address)
{
    if (*parts.host)
        return takeHost(parts, path, address);
    address.path = path;
    return isBelowDev(path) ? "" : "it names neither a host nor a device below /dev";
}

std::string wrongForm(http_uri_status_t status)
{
    return status == HTTP_URI_STATUS_BAD_PORT
               ? "behind a colon there is a port, from 1 to 65535; an IPv6 address stands in brackets"
               : "it is not of the form palvestrin://HOST or palvestrin:/dev/DEVICE";
}

} // namespace

std::string DeviceAddress::shown() const
{
    return host.empty() ? path : host + ", port " + std::to_string(port);
}

bool isBelowDev(std::string_view path)
{
    return path.starts_with("/dev/") && path.find("/../") == std::string_view::npos && !path.ends_with("/..");
}

std::string deviceUri(const std::string &place)
{
    if (place.starts_with(scheme))
        return withSlash(place);
    return withSlash(std::string(place.starts_with('/') ? scheme : hostScheme) + place);
}

std::optional<DeviceAddress> deviceAddress(const std::string &uri, std::string &trouble)
{
    UriParts parts;
    const http_uri_status_t status = parts.take(withSlash(uri));
    if (status < HTTP_URI_STATUS_OK || std::string_view(parts.scheme) != "palvestrin") {
        trouble = wrongForm(status);
        return {};
    }
    const std::string_view resource = parts.resource;
    const std::size_t question = resource.find('?');
    DeviceAddress address;
    trouble = takePlace(parts, resource.substr(0, question), address);
    if (trouble.empty() && question != std::string_view::npos)
        trouble = takeOptions(resource.substr(question + 1), address);
    return trouble.empty() ? std::optional(address) : std::nullopt;
}

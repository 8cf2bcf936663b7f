// SPDX-License-Identifier: MIT
// Parses and formats the addresses of cameras.
#include "virtualcamera/cameraaddress.h"

#include <algorithm>
#include <charconv>
#include <tuple>

namespace virtualsky
{
namespace
{
constexpr std::string_view indiPrefix = "indi://", filesPrefix = "files:";
constexpr std::uint16_t standardPort = 7624; // of INDI, registered with IANA
constexpr std::size_t longestPart = 250;     // bytes of a host's or a device's name

std::nullopt_t refuse(std::string *fault, const char *text)
{
    if (fault)
        *fault = text;
    return std::nullopt;
}

bool isPlain(std::string_view text)
{
    return !text.empty() && text.size() <= longestPart &&
           std::none_of(text.begin(), text.end(),
                        [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; });
}

// Splits "HOST:PORT"; the host keeps no brackets.
bool takeHost(std::string_view text, CameraAddress &address)
{
    std::string_view port;
    if (!text.empty() && text.front() == '[') {
        const std::size_t end = text.find(']');
        if (end == std::string_view::npos)
            return false;
        port = text.substr(end + 1);
        text = text.substr(1, end - 1);
    } else if (const std::size_t colon = text.find(':'); colon != std::string_view::npos) {
        port = text.substr(colon);
        text = text.substr(0, colon);
    }
    if (!isPlain(text) || text.find(' ') != std::string_view::npos)
        return false;
    address.host = text;
    if (port.empty())
        return true;
    const char *const end = port.data() + port.size();
    const auto result = std::from_chars(port.data() + 1, end, address.port);
    return port.front() == ':' && port.size() > 1 && result.ec == std::errc() &&
           result.ptr == end && address.port > 0;
}
} // namespace

bool CameraAddress::operator==(const CameraAddress &o) const
{
    return std::tie(source, host, port, device, pattern) ==
           std::tie(o.source, o.host, o.port, o.device, o.pattern);
}

std::optional<CameraAddress> parseIndiAddress(std::string_view text, std::string *fault)
{
    CameraAddress address;
    address.source = Source::Indi;
    const std::size_t slash = text.find('/');
    if (slash == std::string_view::npos || !takeHost(text.substr(0, slash), address) ||
        !isPlain(text.substr(slash + 1)))
        return refuse(fault, "must be HOST/DEVICE or HOST:PORT/DEVICE");
    address.device = text.substr(slash + 1);
    return address;
}

std::optional<CameraAddress> parseCameraAddress(std::string_view text, std::string *fault)
{
    CameraAddress address;
    if (text == "sky")
        return address;
    if (text.substr(0, indiPrefix.size()) == indiPrefix) {
        const auto indi = parseIndiAddress(text.substr(indiPrefix.size()));
        return indi ? indi : refuse(fault, "must be indi://HOST/DEVICE or indi://HOST:PORT/DEVICE");
    }
    if (text.substr(0, filesPrefix.size()) == filesPrefix && text.size() > filesPrefix.size()) {
        address.source = Source::Files;
        address.pattern = text.substr(filesPrefix.size());
        return address;
    }
    return refuse(fault, "must be sky, indi://HOST[:PORT]/DEVICE or files:PATTERN");
}

std::string addressText(const CameraAddress &address)
{
    if (address.source == Source::Files)
        return std::string(filesPrefix) + address.pattern;
    if (address.source == Source::Sky)
        return "sky";
    const bool brackets = address.host.find(':') != std::string::npos;
    return std::string(indiPrefix) + (brackets ? '[' + address.host + ']' : address.host) +
           (address.port == standardPort ? "" : ':' + std::to_string(address.port)) + '/' +
           address.device;
}
} // namespace virtualsky

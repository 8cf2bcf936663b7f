// SPDX-License-Identifier: MIT
// Reads a server's messages and writes ours.
#include "framesources/indiclient.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <string_view>
#include <utility>

#include "framesources/indireader.h"
#include "framesources/indisocket.h"
#include "framesources/indivalues.h"

namespace framesources
{
namespace
{
using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;
constexpr milliseconds socketTimeout{2000};
constexpr milliseconds longestReading{100}; // on end, of a server that never pauses

std::string escaped(const std::string &text)
{
    // Nothing of it is destroyed: a camera's thread may outlive main().
    static constexpr std::pair<char, std::string_view> entities[] = {
        {'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'\'', "&apos;"}, {'"', "&quot;"}};
    std::string out;
    for (const char c : text) {
        const auto *const entity =
            std::find_if(std::begin(entities), std::end(entities),
                         [c](const auto &candidate) { return candidate.first == c; });
        if (entity != std::end(entities))
            out += entity->second;
        else
            out += c;
    }
    return out;
}

/// Without an exponent, and with a point in every locale; reads back as the same number.
std::string numberText(double value)
{
    char digits[512];
    const auto result =
        std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed);
    return result.ec == std::errc() ? std::string(digits, result.ptr) : "0";
}

/// An opening tag with the attributes that most messages have.
std::string begin(const char *tag, const std::string &device, const std::string &name)
{
    return std::string("<") + tag + " device='" + escaped(device) + "' name='" + escaped(name) +
           "'>";
}

std::string element(const char *tag, const std::string &name, const std::string &value)
{
    return std::string("<") + tag + " name='" + escaped(name) + "'>" + value + "</" + tag + ">";
}
} // namespace

struct IndiClient::Connection {
    explicit Connection(const std::string &device) : values(device) {}

    IndiSocket socket;
    IndiReader reader;
    IndiValues values;
    bool hasNews = false;
};

IndiClient::IndiClient(std::string serverHost, std::uint16_t serverPort, std::string deviceName)
    : host(std::move(serverHost)),
      port(serverPort),
      device(std::move(deviceName)),
      connection(std::make_unique<Connection>(device))
{
}

IndiClient::~IndiClient() = default;

bool IndiClient::connectServer()
{
    if (!connection->socket.open(host, port, socketTimeout))
        return false;
    send("<getProperties version='1.7'/>\n");
    return true;
}

bool IndiClient::isConnected() const
{
    return connection->socket.isOpen();
}

void IndiClient::waitForNews(milliseconds longest)
{
    const auto take = [this](XMLEle *message, std::vector<std::string> &blobs) {
        connection->hasNews = true;
        if (std::string_view(tagXMLEle(message)) == "pingRequest")
            send("<pingReply uid='" + escaped(findXMLAttValu(message, "uid")) + "'/>\n");
        connection->values.take(message, blobs);
    };
    const Clock::time_point began = Clock::now();
    connection->hasNews = false;
    while (connection->socket.isOpen()) {
        const auto passed = std::chrono::floor<milliseconds>(Clock::now() - began);
        const bool isEnough = passed >= (connection->hasNews ? longestReading : longest);
        const auto wait = connection->hasNews || isEnough ? milliseconds(0) : longest - passed;
        const std::string_view bytes = connection->socket.receive(wait);
        if (!connection->reader.read(bytes, take))
            connection->socket.close();
        if (bytes.empty() || isEnough)
            return;
    }
}

std::vector<std::string> IndiClient::devices() const
{
    return connection->values.names;
}

std::vector<std::string> IndiClient::cameras() const
{
    return connection->values.imaging;
}

std::string IndiClient::takeMessage()
{
    return std::exchange(connection->values.remark, {});
}

bool IndiClient::has(const std::string &property) const
{
    return connection->values.properties.count(property) != 0;
}

unsigned IndiClient::removals() const
{
    return connection->values.removals;
}

IndiState IndiClient::state(const std::string &property) const
{
    const auto found = connection->values.properties.find(property);
    return found == connection->values.properties.end() ? IndiState::Idle : found->second.state;
}

std::optional<IndiNumber> IndiClient::number(const std::string &property,
                                             const std::string &element) const
{
    const auto found = connection->values.properties.find(property);
    if (found == connection->values.properties.end())
        return std::nullopt;
    const auto number = found->second.numbers.find(element);
    return number == found->second.numbers.end() ? std::nullopt : std::optional(number->second);
}

std::optional<bool> IndiClient::isOn(const std::string &property, const std::string &element) const
{
    const auto found = connection->values.properties.find(property);
    if (found == connection->values.properties.end())
        return std::nullopt;
    const auto on = found->second.switches.find(element);
    return on == found->second.switches.end() ? std::nullopt : std::optional(on->second);
}

std::string IndiClient::text(const std::string &property, const std::string &element) const
{
    const auto found = connection->values.properties.find(property);
    if (found == connection->values.properties.end())
        return {};
    const auto text = found->second.texts.find(element);
    return text == found->second.texts.end() ? std::string() : text->second;
}

std::optional<IndiBlob> IndiClient::takeBlob()
{
    const auto blob = std::exchange(connection->values.blob, std::nullopt);
    return blob ? std::optional(decoded(*blob)) : std::nullopt;
}

void IndiClient::send(const std::string &message)
{
    connection->socket.send(message);
}

void IndiClient::askForPictures()
{
    send(begin("enableBLOB", device, pictureProperty) + "Also</enableBLOB>\n");
}

void IndiClient::sendNumbers(const std::string &property, const Values &values)
{
    std::string message = begin("newNumberVector", device, property);
    for (const auto &[name, value] : values)
        message += element("oneNumber", name, numberText(value));
    send(message + "</newNumberVector>\n");
}

void IndiClient::sendSwitch(const std::string &property, const std::string &element)
{
    send(begin("newSwitchVector", device, property) +
         framesources::element("oneSwitch", element, "On") + "</newSwitchVector>\n");
}
} // namespace framesources

// SPDX-License-Identifier: MIT
// What does an INDI server say of one device, and what is sent to it?
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace framesources
{
struct IndiNumber {
    double value = 0.0, least = 0.0, most = 0.0; ///< most not above least: no limits are known
};

enum class IndiState { Idle, Ok, Busy, Alert };

struct IndiBlob {
    std::string bytes;
    std::string format; ///< such as ".fits", ".stream", ".stream_jpg"
};

/// One connection to a server, for one thread. What the server says is read in `waitForNews`, by
/// INDI's parser; nothing else waits. INDI's own connection is not used: it has a second thread,
/// which has data races if the server disappears during a send, and it ends the program where a
/// look-up of the host takes longer than its time limit.
class IndiClient
{
public:
    IndiClient(std::string serverHost, std::uint16_t serverPort, std::string deviceName);
    ~IndiClient();
    IndiClient(const IndiClient &) = delete;
    IndiClient &operator=(const IndiClient &) = delete;

    /// Waits at most two seconds.
    bool connectServer();
    /// False from when the server has gone.
    bool isConnected() const;

    /// Waits until something new came, or the time is over. All that has come is then processed.
    void waitForNews(std::chrono::milliseconds longest);

    /// The names of all devices of the server, in the order of their appearance.
    std::vector<std::string> devices() const;
    /// Those of them that are cameras, as far as the server has said.
    std::vector<std::string> cameras() const;
    /// The latest message of the device; then forgets it.
    std::string takeMessage();

    bool has(const std::string &property) const;
    /// How often the device or a property that a camera needs was taken back.
    unsigned removals() const;
    IndiState state(const std::string &property) const;
    std::optional<IndiNumber> number(const std::string &property, const std::string &element) const;
    /// Of a switch; nothing if there is no such element.
    std::optional<bool> isOn(const std::string &property, const std::string &element) const;

    /// Of a text; empty if there is no such element.
    std::string text(const std::string &property, const std::string &element) const;

    /// The latest picture that was not taken yet.
    std::optional<IndiBlob> takeBlob();
    /// From now on the server sends the pictures of the first sensor.
    void askForPictures();

    using Values = std::vector<std::pair<std::string, double>>;
    void sendNumbers(const std::string &property, const Values &values);
    void sendSwitch(const std::string &property, const std::string &element);

private:
    struct Connection;
    void send(const std::string &message);

    const std::string host;
    const std::uint16_t port;
    const std::string device;
    const std::unique_ptr<Connection> connection;
};
} // namespace framesources

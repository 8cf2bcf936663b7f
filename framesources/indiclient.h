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

/// One connection to a server, by INDI's own client library. What the server says is kept as plain
/// values under a lock of its own, so that INDI's thread and ours never share its objects. One
/// thread uses the members; a call that sends may wait for the network. That thread's SIGPIPE is
/// blocked from `connectServer` on.
class IndiClient
{
public:
    IndiClient(const std::string &host, std::uint16_t port, std::string device);
    ~IndiClient();
    IndiClient(const IndiClient &) = delete;
    IndiClient &operator=(const IndiClient &) = delete;

    /// Waits at most two seconds.
    bool connectServer();
    /// False from when the server has gone.
    bool isConnected() const;

    /// Waits until something new came, or the time is over.
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

    /// The latest picture that was not taken yet.
    std::optional<IndiBlob> takeBlob();
    /// From now on the server sends the pictures of the first sensor.
    void askForPictures();

    using Values = std::vector<std::pair<std::string, double>>;
    void sendNumbers(const std::string &property, const Values &values);
    void sendSwitch(const std::string &property, const std::string &element);

private:
    class Listener;
    const std::string device;
    const std::unique_ptr<Listener> listener;
};
} // namespace framesources

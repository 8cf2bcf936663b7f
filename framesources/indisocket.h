// SPDX-License-Identifier: MIT
// How do bytes get to a server and back without anybody waiting for the network?
#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace framesources
{
/// One connection by TCP, over IPv4 or IPv6, for one thread.
class IndiSocket
{
public:
    IndiSocket() = default;
    /// Gives the server a moment to take what was sent last.
    ~IndiSocket();
    IndiSocket(const IndiSocket &) = delete;
    IndiSocket &operator=(const IndiSocket &) = delete;

    /// Looks the host up and tries its addresses in turn.
    bool open(const std::string &host, std::uint16_t port, std::chrono::milliseconds longest);
    /// False from when the server has gone.
    bool isOpen() const { return handle >= 0; }
    void close();

    /// Never waits: what the network does not take yet is kept, and sent by `receive`. A server
    /// that reads nothing for so long that a megabyte is kept counts as gone.
    void send(std::string_view bytes);

    /// What came, valid until the next call; empty: nothing in that time, or the server has gone.
    std::string_view receive(std::chrono::milliseconds longest);

private:
    void flush();

    int handle = -1;
    std::string unsent;
    std::vector<char> received;
};
} // namespace framesources

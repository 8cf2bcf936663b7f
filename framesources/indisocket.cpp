// SPDX-License-Identifier: MIT
// A connection whose calls do not block.
#include "framesources/indisocket.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <future>
#include <memory>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace framesources
{
namespace
{
using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;
constexpr std::size_t maxUnsent = std::size_t(1) << 20; // bytes
constexpr std::size_t chunk = std::size_t(1) << 18;     // bytes read at once
constexpr milliseconds farewell{300};                   // for the server to take the rest, and end

struct Address {
    sockaddr_storage place = {};
    socklen_t size = 0;
};

std::vector<Address> lookUp(const std::string &host, std::uint16_t port)
{
    addrinfo hints = {};
    hints.ai_family = AF_UNSPEC;
    hints.ai_socktype = SOCK_STREAM;
    addrinfo *found = nullptr;
    if (::getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &found) != 0)
        return {};
    std::vector<Address> all;
    for (const addrinfo *one = found; one; one = one->ai_next) {
        Address address;
        if (one->ai_addrlen > sizeof address.place)
            continue;
        std::memcpy(&address.place, one->ai_addr, one->ai_addrlen);
        address.size = one->ai_addrlen;
        all.push_back(address);
    }
    ::freeaddrinfo(found);
    return all;
}

/// The resolver may take longer than anybody waits: it has a thread of its own, which then ends
/// unheard.
std::vector<Address> lookUpBefore(Clock::time_point deadline, const std::string &host,
                                  std::uint16_t port)
{
    std::packaged_task<std::vector<Address>()> task([host, port] { return lookUp(host, port); });
    std::future<std::vector<Address>> result = task.get_future();
    std::thread(std::move(task)).detach();
    if (result.wait_until(deadline) != std::future_status::ready)
        return {};
    return result.get();
}

milliseconds until(Clock::time_point deadline)
{
    const auto left = std::chrono::ceil<milliseconds>(deadline - Clock::now());
    return std::max(left, milliseconds(0));
}

/// Waits for some of the events; those that happened, 0 if none did in time.
short waitFor(int handle, short events, Clock::time_point deadline)
{
    for (;;) {
        pollfd wait = {handle, events, 0};
        const int ready = ::poll(&wait, 1, int(until(deadline).count()));
        if (ready > 0)
            return wait.revents;
        if (ready == 0 || errno != EINTR)
            return 0;
    }
}

/// A connection to a free port of this machine may meet itself.
bool isOwnEcho(int handle)
{
    Address own, other;
    own.size = other.size = sizeof own.place;
    return ::getsockname(handle, reinterpret_cast<sockaddr *>(&own.place), &own.size) == 0 &&
           ::getpeername(handle, reinterpret_cast<sockaddr *>(&other.place), &other.size) == 0 &&
           own.size == other.size && std::memcmp(&own.place, &other.place, own.size) == 0;
}

int connectTo(const Address &address, Clock::time_point deadline)
{
    const int handle =
        ::socket(address.place.ss_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (handle < 0)
        return -1;
    int fault = 0;
    socklen_t size = sizeof fault;
    const int began =
        ::connect(handle, reinterpret_cast<const sockaddr *>(&address.place), address.size);
    const bool connected =
        (began == 0 || (errno == EINPROGRESS && waitFor(handle, POLLOUT, deadline) != 0)) &&
        ::getsockopt(handle, SOL_SOCKET, SO_ERROR, &fault, &size) == 0 && fault == 0 &&
        !isOwnEcho(handle);
    if (connected) {
        const int on = 1; // commands are small, and go at once
        ::setsockopt(handle, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
        return handle;
    }
    ::close(handle);
    return -1;
}
} // namespace

IndiSocket::~IndiSocket()
{
    const Clock::time_point deadline = Clock::now() + farewell;
    while (isOpen() && !unsent.empty() && Clock::now() < deadline)
        receive(milliseconds(10));
    // Closed with something unread, the connection would be reset, and what is on its way lost.
    if (isOpen() && ::shutdown(handle, SHUT_WR) == 0)
        while (isOpen() && Clock::now() < deadline)
            receive(until(deadline));
    close();
}

void IndiSocket::close()
{
    if (isOpen())
        ::close(handle);
    handle = -1;
    unsent.clear();
}

bool IndiSocket::open(const std::string &host, std::uint16_t port, milliseconds longest)
{
    close();
    const Clock::time_point deadline = Clock::now() + longest;
    const std::vector<Address> addresses = lookUpBefore(deadline, host, port);
    for (std::size_t i = 0; i < addresses.size() && !isOpen(); ++i) {
        const auto share = until(deadline) / int(addresses.size() - i);
        handle = connectTo(addresses[i], Clock::now() + share);
    }
    return isOpen();
}

void IndiSocket::flush()
{
    std::size_t done = 0;
    while (isOpen() && done < unsent.size()) {
        const ssize_t sent =
            ::send(handle, unsent.data() + done, unsent.size() - done, MSG_NOSIGNAL);
        if (sent > 0)
            done += std::size_t(sent);
        else if (errno == EAGAIN || errno == EWOULDBLOCK)
            break;
        else if (errno != EINTR)
            return close();
    }
    unsent.erase(0, done);
}

void IndiSocket::send(std::string_view bytes)
{
    if (!isOpen())
        return;
    unsent += bytes;
    flush();
    if (unsent.size() > maxUnsent)
        close();
}

std::string_view IndiSocket::receive(milliseconds longest)
{
    received.resize(chunk);
    const Clock::time_point deadline = Clock::now() + longest;
    while (isOpen()) {
        const short wanted = short(POLLIN | (unsent.empty() ? 0 : POLLOUT));
        const short events = waitFor(handle, wanted, deadline);
        if (events == 0)
            return {};
        if (events & POLLOUT)
            flush();
        if (!isOpen() || !(events & ~POLLOUT))
            continue;
        const ssize_t got = ::recv(handle, received.data(), received.size(), 0);
        if (got > 0)
            return {received.data(), std::size_t(got)};
        if (got == 0 || (errno != EAGAIN && errno != EWOULDBLOCK && errno != EINTR))
            close();
    }
    return {};
}
} // namespace framesources

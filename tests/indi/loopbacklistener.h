// SPDX-License-Identifier: MIT
// A port of this machine at which a test's server waits for its clients.
#pragma once

#include <QtGlobal>
#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

class LoopbackListener
{
public:
    LoopbackListener() : listener(::socket(AF_INET, SOCK_STREAM, 0))
    {
        sockaddr_in address = loopback(0);
        ::bind(listener, reinterpret_cast<sockaddr *>(&address), sizeof address);
        ::listen(listener, 8);
        socklen_t size = sizeof address;
        ::getsockname(listener, reinterpret_cast<sockaddr *>(&address), &size);
        ownPort = ntohs(address.sin_port);
    }
    ~LoopbackListener() { ::close(listener); }
    LoopbackListener(const LoopbackListener &) = delete;
    LoopbackListener &operator=(const LoopbackListener &) = delete;

    quint16 port() const { return ownPort; }
    /// The next client's socket, the caller's to close; -1 if none came within 20 milliseconds.
    int accept() const
    {
        pollfd wait = {listener, POLLIN, 0};
        return ::poll(&wait, 1, 20) > 0 ? ::accept(listener, nullptr, nullptr) : -1;
    }
    static sockaddr_in loopback(quint16 port)
    {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_port = htons(port);
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        return address;
    }

private:
    const int listener;
    quint16 ownPort = 0;
};

// SPDX-License-Identifier: MIT
// A server that goes at random moments, while its client sends.
#pragma once

#include <QtGlobal>
#include <arpa/inet.h>
#include <atomic>
#include <chrono>
#include <netinet/in.h>
#include <poll.h>
#include <random>
#include <string>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

/// Sends a definition after the other to each client, reads what comes now and then, and ends the
/// connection within some milliseconds; every other one by a reset.
class LeavingServer
{
public:
    LeavingServer() : listener(::socket(AF_INET, SOCK_STREAM, 0))
    {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        ::bind(listener, reinterpret_cast<sockaddr *>(&address), sizeof address);
        ::listen(listener, 8);
        socklen_t size = sizeof address;
        ::getsockname(listener, reinterpret_cast<sockaddr *>(&address), &size);
        ownPort = ntohs(address.sin_port);
        thread = std::thread([this] { run(); });
    }
    ~LeavingServer()
    {
        stop = true;
        thread.join();
        ::close(listener);
    }
    LeavingServer(const LeavingServer &) = delete;
    LeavingServer &operator=(const LeavingServer &) = delete;

    quint16 port() const { return ownPort; }

private:
    void run()
    {
        std::mt19937 random(7);
        for (unsigned time = 0; !stop; ++time) {
            pollfd wait = {listener, POLLIN, 0};
            if (::poll(&wait, 1, 20) <= 0)
                continue;
            const int client = ::accept(listener, nullptr, nullptr);
            serve(client, std::chrono::microseconds(random() % 8000));
            if (time % 2 == 1) {
                const linger reset = {1, 0};
                ::setsockopt(client, SOL_SOCKET, SO_LINGER, &reset, sizeof reset);
            }
            ::close(client);
        }
    }

    static void serve(int client, std::chrono::microseconds stay)
    {
        using Clock = std::chrono::steady_clock;
        const Clock::time_point end = Clock::now() + stay;
        char heard[65536];
        int number = 0;
        while (Clock::now() < end) {
            const std::string name = "PROPERTY_" + std::to_string(++number);
            const std::string message =
                "<defNumberVector device='Camera' name='" + name +
                "' state='Ok' perm='rw'><defNumber name='A' format='%g' min='0' max='1' step='0'>1"
                "</defNumber></defNumberVector>\n";
            ::send(client, message.data(), message.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
            if (number % 8 == 0)
                (void)::recv(client, heard, sizeof heard, MSG_DONTWAIT);
        }
    }

    const int listener;
    quint16 ownPort = 0;
    std::atomic<bool> stop{false};
    std::thread thread;
};

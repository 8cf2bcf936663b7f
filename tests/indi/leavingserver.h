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

#include "tests/indi/loopbacklistener.h"

/// Sends a definition after the other to each client, reads what comes now and then, and ends the
/// connection within some milliseconds; every other one by a reset.
class LeavingServer
{
public:
    LeavingServer()
    {
        thread = std::thread([this] { run(); });
    }
    ~LeavingServer()
    {
        stop = true;
        thread.join();
    }
    LeavingServer(const LeavingServer &) = delete;
    LeavingServer &operator=(const LeavingServer &) = delete;

    quint16 port() const { return listener.port(); }

private:
    void run()
    {
        std::mt19937 random(7);
        for (unsigned time = 0; !stop; ++time) {
            const int client = listener.accept();
            if (client < 0)
                continue;
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

    const LoopbackListener listener;
    std::atomic<bool> stop{false};
    std::thread thread;
};

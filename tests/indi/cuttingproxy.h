// SPDX-License-Identifier: MIT
// A network between client and server that breaks after a number of bytes, or garbles pictures.
#pragma once

#include <QTcpServer>
#include <arpa/inet.h>
#include <atomic>
#include <netinet/in.h>
#include <poll.h>
#include <random>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "tests/indi/loopbacklistener.h"

/// Passes one connection after the other on to a port of this machine, on a thread of its own.
class CuttingProxy
{
public:
    explicit CuttingProxy(quint16 target) : targetPort(target)
    {
        thread = std::thread([this] { run(); });
    }
    ~CuttingProxy()
    {
        stop = true;
        thread.join();
    }
    CuttingProxy(const CuttingProxy &) = delete;
    CuttingProxy &operator=(const CuttingProxy &) = delete;

    quint16 port() const { return listener.port(); }
    /// From the server, from now on; then nothing is let through until `heal`.
    void cutAfter(int bytes) { left = bytes; }
    bool isCut() const { return left == 0; }
    void heal() { left = -1; }
    /// From the server, whether one byte of 64 within the pictures becomes another.
    void garble(bool on) { isGarbling = on; }

private:
    static bool isReadable(int socket, int milliseconds)
    {
        pollfd wait = {socket, POLLIN, 0};
        return ::poll(&wait, 1, milliseconds) > 0;
    }

    void run()
    {
        while (!stop) {
            const int client = listener.accept();
            if (client < 0)
                continue;
            const int server = ::socket(AF_INET, SOCK_STREAM, 0);
            sockaddr_in address = LoopbackListener::loopback(targetPort);
            if (left != 0 &&
                ::connect(server, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0)
                pass(client, server);
            ::close(client);
            ::close(server);
        }
    }

    void pass(int client, int server)
    {
        while (!stop && left != 0) {
            pollfd both[2] = {{client, POLLIN, 0}, {server, POLLIN, 0}};
            if (::poll(both, 2, 20) <= 0)
                continue;
            if (both[0].revents != 0 && !move(client, server, false))
                return;
            if (both[1].revents != 0 && !move(server, client, true))
                return;
        }
    }

    bool move(int from, int to, bool counted)
    {
        char bytes[65536];
        std::size_t most = sizeof bytes;
        const int allowed = left;
        if (counted && allowed >= 0)
            most = std::min(most, std::size_t(allowed));
        ssize_t got = most > 0 ? ::read(from, bytes, most) : 0;
        if (got <= 0)
            return false;
        if (counted)
            spoil(bytes, got);
        for (ssize_t sent = 0; sent < got;) {
            const ssize_t now = ::send(to, bytes + sent, std::size_t(got - sent), MSG_NOSIGNAL);
            if (now <= 0)
                return false;
            sent += now;
        }
        if (counted && allowed >= 0) {
            int expected = allowed;
            left.compare_exchange_strong(expected, allowed - int(got));
        }
        return true;
    }

    void spoil(char *bytes, ssize_t count)
    {
        constexpr int longestMarkup = 1000; // bytes without a tag's end
        for (char *byte = bytes; byte != bytes + count; ++byte) {
            sinceTag = *byte == '<' || *byte == '>' ? 0 : sinceTag + 1;
            if (isGarbling && sinceTag > longestMarkup && random() % 64 == 0 && *byte != '\n')
                *byte = char(random() | 64); // no tag begins here
        }
    }

    const quint16 targetPort;
    const LoopbackListener listener;
    std::atomic<int> left{-1}; // bytes; -1 = no end
    std::atomic<bool> isGarbling{false};
    int sinceTag = 0; // bytes
    std::mt19937 random{11};
    std::atomic<bool> stop{false};
    std::thread thread;
};

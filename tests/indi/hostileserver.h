// SPDX-License-Identifier: MIT
// A server that speaks INDI for one camera and then sends whatever the test says.
#pragma once

#include <QByteArray>
#include <algorithm>
#include <arpa/inet.h>
#include <atomic>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

/// Defines a connected camera to each client, then sends the harm, to the first one alone, and a
/// good frame every 50 milliseconds.
class HostileServer
{
public:
    HostileServer(QByteArray harmSent, QByteArray goodSent)
        : harm(std::move(harmSent)),
          good(std::move(goodSent)),
          listener(::socket(AF_INET, SOCK_STREAM, 0))
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
    ~HostileServer()
    {
        stop = true;
        thread.join();
        ::close(listener);
    }
    HostileServer(const HostileServer &) = delete;
    HostileServer &operator=(const HostileServer &) = delete;

    quint16 port() const { return ownPort; }
    int harmsDone() const { return harms; }

    static QByteArray blob(const QByteArray &format, const QByteArray &size,
                           const QByteArray &content)
    {
        return "<setBLOBVector device='Camera' name='CCD1' state='Ok' timeout='60'>"
               "<oneBLOB name='CCD1' size='" +
               size + "' format='" + format + "'>" + content + "</oneBLOB></setBLOBVector>\n";
    }

private:
    static QByteArray definitions()
    {
        const QByteArray head = " device='Camera' label='' group='' state='Ok' perm='rw' "
                                "timeout='60'";
        const auto number = [](const char *name, const char *value) {
            return QByteArray("<defNumber name='") + name +
                   "' label='' format='%g' min='0' max='5000' step='1'>" + value + "</defNumber>";
        };
        return "<defSwitchVector name='CONNECTION' rule='OneOfMany'" + head +
               "><defSwitch name='CONNECT' label=''>On</defSwitch>"
               "<defSwitch name='DISCONNECT' label=''>Off</defSwitch></defSwitchVector>\n"
               "<defNumberVector name='CCD_EXPOSURE'" +
               head + ">" + number("CCD_EXPOSURE_VALUE", "1") +
               "</defNumberVector>\n<defNumberVector name='CCD_INFO'" + head + ">" +
               number("CCD_MAX_X", "40") + number("CCD_MAX_Y", "24") +
               "</defNumberVector>\n<defNumberVector name='CCD_BINNING'" + head + ">" +
               number("HOR_BIN", "1") + number("VER_BIN", "1") +
               "</defNumberVector>\n<defNumberVector name='CCD_FRAME'" + head + ">" +
               number("X", "0") + number("Y", "0") + number("WIDTH", "40") +
               number("HEIGHT", "24") + "</defNumberVector>\n<defBLOBVector name='CCD1'" + head +
               "><defBLOB name='CCD1' label=''/></defBLOBVector>\n";
    }

    static bool send(int client, const QByteArray &bytes)
    {
        for (int sent = 0; sent < bytes.size();) {
            const ssize_t now = ::send(client, bytes.constData() + sent,
                                       std::size_t(bytes.size() - sent), MSG_NOSIGNAL);
            if (now <= 0)
                return false;
            sent += int(now);
        }
        return true;
    }

    void run()
    {
        while (!stop) {
            pollfd wait = {listener, POLLIN, 0};
            if (::poll(&wait, 1, 20) <= 0)
                continue;
            const int client = ::accept(listener, nullptr, nullptr);
            serve(client);
            ::close(client);
        }
    }

    void serve(int client)
    {
        char asked[4096]; // what the client says is read, but does not matter
        if (::read(client, asked, sizeof asked) <= 0 || !send(client, definitions()))
            return;
        bool done = false;
        while (!stop) {
            pollfd wait = {client, POLLIN, 0};
            if (::poll(&wait, 1, 50) > 0) {
                if (::read(client, asked, sizeof asked) <= 0)
                    return;
                if (!done && QByteArray(asked).contains("CCD_EXPOSURE")) { // it wants frames
                    done = true;
                    if (harms++ == 0 && !send(client, harm))
                        return;
                }
            }
            if (done && !send(client, good))
                return;
        }
    }

    const QByteArray harm, good;
    const int listener;
    quint16 ownPort = 0;
    std::atomic<bool> stop{false};
    std::atomic<int> harms{0};
    std::thread thread;
};

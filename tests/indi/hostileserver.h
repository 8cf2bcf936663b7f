// SPDX-License-Identifier: MIT
// A server that speaks INDI for one camera and then sends whatever the test says.
#pragma once

#include <QByteArray>
#include <QMutex>
#include <algorithm>
#include <arpa/inet.h>
#include <atomic>
#include <chrono>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "tests/indi/loopbacklistener.h"

/// Defines a connected camera to each client, then sends the harm, to the first one alone, and a
/// good frame every 50 milliseconds.
class HostileServer
{
public:
    /// @param width, height of the sensor, pixels
    /// @param pauseBetween two good frames, milliseconds
    HostileServer(QByteArray harmSent, QByteArray goodSent, int width = 40, int height = 24,
                  int pauseBetween = 50)
        : harm(std::move(harmSent)),
          sensorWidth(QByteArray::number(width)),
          sensorHeight(QByteArray::number(height)),
          pause(pauseBetween),
          good(std::move(goodSent))
    {
        thread = std::thread([this] { run(); });
    }
    ~HostileServer()
    {
        stop = true;
        thread.join();
    }
    HostileServer(const HostileServer &) = delete;
    HostileServer &operator=(const HostileServer &) = delete;

    quint16 port() const { return listener.port(); }
    int harmsDone() const { return harms; }
    /// Ends the connection; from now on the device is called "Camera 2", or "Camera" again.
    void rename(bool another) { isRenamed = another; }
    /// How many clients have come.
    int connections() const { return clients; }
    /// When each client came.
    std::vector<std::chrono::steady_clock::time_point> arrivals() const
    {
        const QMutexLocker lock(&mutex);
        return cameAt;
    }
    /// Ends each connection after so many good frames, 0: at once, -1: not at all.
    void leaveAfter(int frames) { framesAllowed = frames; }
    /// From now on each client is offered video, with these frames; an exposure has one good frame.
    /// A client that has video already gets the other frames at once.
    void offerStream(const QByteArray &frame)
    {
        define("<defSwitchVector name='CCD_VIDEO_STREAM' device='Camera' state='Ok' perm='rw' "
               "rule='OneOfMany'><defSwitch name='STREAM_ON'>Off</defSwitch>"
               "<defSwitch name='STREAM_OFF'>On</defSwitch></defSwitchVector>\n");
        const QMutexLocker lock(&mutex);
        streamed = frame;
    }
    int streamedFrames() const { return streamedSoFar; }
    /// From now on these are the good frames.
    void answer(const QByteArray &frame)
    {
        const QMutexLocker lock(&mutex);
        good = frame;
    }
    /// Whether video has no frames.
    void mute(bool on) { isMute = on; }
    /// From now on exposures are defined to no client.
    void withholdExposures() { hasExposures = false; }
    /// Whether video goes on when it is switched off; exposures then wait for its end.
    void linger(bool on) { lingers = on; }
    /// Ends the connection.
    void drop() { ++drops; }
    /// From now on more is defined to each client.
    void define(const QByteArray &properties)
    {
        const QMutexLocker lock(&mutex);
        more = properties;
    }
    /// All that the clients have said.
    QByteArray heard() const
    {
        const QMutexLocker lock(&mutex);
        return said;
    }

    static QByteArray blob(const QByteArray &format, const QByteArray &size,
                           const QByteArray &content)
    {
        return "<setBLOBVector device='Camera' name='CCD1' state='Ok' timeout='60'>"
               "<oneBLOB name='CCD1' size='" +
               size + "' format='" + format + "'>" + content + "</oneBLOB></setBLOBVector>\n";
    }

private:
    QByteArray definitions() const
    {
        const QMutexLocker lock(&mutex);
        const QByteArray head = " device='Camera' label='' group='' state='Ok' perm='rw' "
                                "timeout='60'";
        const auto number = [](const char *name, const QByteArray &value) {
            return QByteArray("<defNumber name='") + name +
                   "' label='' format='%g' min='0' max='5000' step='1'>" + value + "</defNumber>";
        };
        return "<defSwitchVector name='CONNECTION' rule='OneOfMany'" + head +
               "><defSwitch name='CONNECT' label=''>On</defSwitch>"
               "<defSwitch name='DISCONNECT' label=''>Off</defSwitch></defSwitchVector>\n"
               "<defNumberVector name='" +
               (hasExposures ? "CCD_EXPOSURE'" : "SOMETHING'") + head + ">" +
               number("CCD_EXPOSURE_VALUE", "1") +
               "</defNumberVector>\n<defNumberVector name='CCD_INFO'" + head + ">" +
               number("CCD_MAX_X", sensorWidth) + number("CCD_MAX_Y", sensorHeight) +
               "</defNumberVector>\n<defNumberVector name='CCD_BINNING'" + head + ">" +
               number("HOR_BIN", "1") + number("VER_BIN", "1") +
               "</defNumberVector>\n<defNumberVector name='CCD_FRAME'" + head + ">" +
               number("X", "0") + number("Y", "0") + number("WIDTH", sensorWidth) +
               number("HEIGHT", sensorHeight) + "</defNumberVector>\n<defBLOBVector name='CCD1'" +
               head + "><defBLOB name='CCD1' label=''/></defBLOBVector>\n" + more;
    }

    /// False: the client has gone.
    bool hear(int client, QByteArray &words)
    {
        words.resize(4096);
        const ssize_t got = ::read(client, words.data(), std::size_t(words.size()));
        words.resize(int(std::max<ssize_t>(got, 0)));
        const QMutexLocker lock(&mutex);
        said += words;
        return got > 0;
    }

    static bool send(int client, const QByteArray &bytes, bool renamed)
    {
        if (renamed)
            return send(client, QByteArray(bytes).replace("device='Camera'", "device='Camera 2'"),
                        false);
        for (int sent = 0; sent < bytes.size();) {
            const ssize_t now = ::send(client, bytes.constData() + sent,
                                       std::size_t(bytes.size() - sent), MSG_NOSIGNAL);
            if (now <= 0)
                return false;
            sent += int(now);
        }
        return true;
    }

    QByteArray goodFrame() const
    {
        const QMutexLocker lock(&mutex);
        return good;
    }

    QByteArray streamedFrame() const
    {
        const QMutexLocker lock(&mutex);
        return streamed;
    }

    void run()
    {
        while (!stop) {
            const int client = listener.accept();
            if (client < 0)
                continue;
            serve(client);
            ::close(client);
        }
    }

    void serve(int client)
    {
        const bool renamed = isRenamed;
        const int allowed = framesAllowed;
        ++clients;
        {
            const QMutexLocker lock(&mutex);
            cameAt.push_back(std::chrono::steady_clock::now());
        }
        QByteArray asked;
        if (allowed == 0 || !hear(client, asked) || !send(client, definitions(), renamed))
            return;
        using Clock = std::chrono::steady_clock;
        bool done = false;
        int frames = 0;
        Clock::time_point sent = Clock::now();
        const int before = drops;
        const bool hasVideo = !streamedFrame().isEmpty();
        bool isVideoOn = false, hadVideo = false, isExposing = false;
        while (!stop && isRenamed == renamed && drops == before) {
            pollfd wait = {client, POLLIN, 0};
            if (::poll(&wait, 1, 5) > 0) {
                if (!hear(client, asked))
                    return;
                isExposing |= asked.contains("CCD_EXPOSURE_VALUE");
                if (asked.contains("STREAM_O"))
                    isVideoOn = asked.lastIndexOf("STREAM_ON") > asked.lastIndexOf("STREAM_OFF");
                hadVideo |= isVideoOn;
                if (!done && (isVideoOn || asked.contains("CCD_EXPOSURE"))) { // it wants frames
                    done = true;
                    if (harms++ == 0 && !send(client, harm, renamed))
                        return;
                }
            }
            if (!done || Clock::now() - sent < std::chrono::milliseconds(pause))
                continue;
            sent = Clock::now();
            if (hasVideo) {
                const bool isVideo = isVideoOn || (hadVideo && lingers);
                if (isVideo ? !isMute && !send(client, streamedFrame(), renamed)
                            : isExposing && !send(client, goodFrame(), renamed))
                    return;
                streamedSoFar += isVideo && !isMute ? 1 : 0;
                isExposing &= isVideo;
                continue;
            }
            if (!send(client, goodFrame(), renamed) || ++frames == allowed)
                return;
        }
    }

    const QByteArray harm, sensorWidth, sensorHeight;
    const int pause; // milliseconds
    const LoopbackListener listener;
    std::atomic<bool> stop{false};
    std::atomic<bool> isRenamed{false};
    std::atomic<int> harms{0}, clients{0};
    std::atomic<int> framesAllowed{-1}, drops{0}, streamedSoFar{0};
    std::atomic<bool> isMute{false}, lingers{false}, hasExposures{true};
    mutable QMutex mutex; // guards what follows
    QByteArray good, more, said, streamed;
    std::vector<std::chrono::steady_clock::time_point> cameAt;
    std::thread thread;
};

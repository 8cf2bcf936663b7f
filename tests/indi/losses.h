// SPDX-License-Identifier: MIT
// How does a camera by INDI get lost?
#pragma once

#include <QRandomGenerator>

#include "tests/indi/cuttingproxy.h"
#include "tests/indi/indiserver.h"

enum class Loss { Killed, Stopped, DriverKilled, Renamed, Cut, Garbage };

struct NamedLoss {
    Loss loss;
    const char *name;
};
inline constexpr NamedLoss losses[] = {
    {Loss::Killed, "server killed"},         {Loss::Stopped, "server stopped"},
    {Loss::DriverKilled, "driver killed"},   {Loss::Renamed, "device renamed"},
    {Loss::Cut, "network cut at some byte"}, {Loss::Garbage, "garbage in the frames"}};

/// INDI's server with a camera behind a network that breaks. No call waits for a camera.
class LosableCamera
{
public:
    explicit LosableCamera(bool hasVideo = false)
        : driver(driverOf(hasVideo)), device(hasVideo ? videoCamera : simulatedCamera)
    {
    }

    /// From now on the other camera has the device's name, that of the simulated one. True once it
    /// is there.
    bool replace(bool hasVideo)
    {
        server.end();
        driver = driverOf(hasVideo);
        server.variables["VIDEO_CAMERA_NAME"] = device;
        return server.start({driver}, device);
    }

    /// True once the camera is there.
    bool start() { return server.start({driver}, device); }
    quint16 port() const { return proxy.port(); }

    /// @param seed of the byte after which the network is cut
    void lose(Loss loss, unsigned seed)
    {
        QRandomGenerator random(seed);
        switch (loss) {
        case Loss::Killed:
            return server.end();
        case Loss::Stopped:
            return server.signal(SIGSTOP);
        case Loss::DriverKilled: // the server starts it again
            return server.signalDrivers(SIGKILL);
        case Loss::Renamed:
            server.tell("stop " + driver);
            return server.tell("start " + driver + " -n \"Another Camera\"");
        case Loss::Cut:
            return proxy.cutAfter(random.bounded(1, 3000000));
        case Loss::Garbage:
            return proxy.garble(true);
        }
    }

    /// Then the camera appears by itself.
    void restore(Loss loss)
    {
        switch (loss) {
        case Loss::Killed:
            (void)server.launch({driver});
            return;
        case Loss::Stopped:
            return server.signal(SIGCONT);
        case Loss::DriverKilled:
            return;
        case Loss::Renamed:
            server.tell("stop " + driver + " -n \"Another Camera\"");
            return server.tell("start " + driver);
        case Loss::Cut:
            return proxy.heal();
        case Loss::Garbage:
            return proxy.garble(false);
        }
    }

    static const char *driverOf(bool hasVideo)
    {
        return hasVideo ? "indi_test_video" : "indi_simulator_ccd";
    }

    QByteArray driver;
    const char *const device;
    IndiServer server;
    CuttingProxy proxy{server.port};
};

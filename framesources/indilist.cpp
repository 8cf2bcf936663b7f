// SPDX-License-Identifier: MIT
// Lists an INDI server's devices.
#include "framesources/indilist.h"

#include <chrono>

#if QUORVANDEL_INDI
#include "framesources/indiclient.h"
#endif

namespace framesources
{
#if QUORVANDEL_INDI
namespace
{
using namespace std::chrono_literals;

/// Waits until `done`; a server's news may come far more often than its pauses end.
template <typename Done>
bool waitUntil(IndiClient &client, std::chrono::milliseconds longest, Done done)
{
    const auto end = std::chrono::steady_clock::now() + longest;
    while (!done() && std::chrono::steady_clock::now() < end)
        client.waitForNews(50ms);
    return done();
}

ListedDevice describe(const virtualsky::CameraAddress &server, const std::string &name)
{
    ListedDevice device;
    device.name = name;
    device.address = server;
    device.address.source = virtualsky::Source::Indi;
    device.address.device = name;
    IndiClient client(server.host, server.port, name);
    if (!client.connectServer() ||
        !waitUntil(client, 3s, [&] { return client.has("CONNECTION"); })) {
        device.remark = "the device does not answer";
        return device;
    }
    const auto connected = [&client] {
        return client.isOn("CONNECTION", "CONNECT").value_or(false);
    };
    const auto images = [&client] {
        return client.has("CCD_EXPOSURE") || client.has("CCD_VIDEO_STREAM");
    };
    const bool wasConnected = connected();
    if (!wasConnected)
        client.sendSwitch("CONNECTION", "CONNECT");
    if (!waitUntil(client, 5s,
                   [&] { return connected() || client.state("CONNECTION") == IndiState::Alert; }) ||
        !connected()) {
        const std::string message = client.takeMessage();
        device.remark = "it does not connect" + (message.empty() ? "" : ": " + message);
        return device;
    }
    device.isCamera = waitUntil(client, 1500ms, images);
    if (device.isCamera) // video is defined last
        waitUntil(client, 500ms, [&client] { return client.has("CCD_VIDEO_STREAM"); });
    device.remark = !device.isCamera                 ? "no camera"
                    : client.has("CCD_VIDEO_STREAM") ? "a camera with video"
                                                     : "a camera";
    if (!wasConnected)
        client.sendSwitch("CONNECTION", "DISCONNECT");
    return device;
}
} // namespace

std::vector<ListedDevice> listIndi(const virtualsky::CameraAddress &server)
{
    ListedDevice none;
    IndiClient client(server.host, server.port, "");
    if (!client.connectServer()) {
        none.remark = "there is no server at port " + std::to_string(server.port);
        return {none};
    }
    waitUntil(client, 1s, [] { return false; }); // nothing says which device is the last
    std::vector<ListedDevice> all;
    for (const std::string &name : client.devices())
        all.push_back(describe(server, name));
    if (all.empty()) {
        none.remark = "the server has no devices";
        return {none};
    }
    return all;
}
#else
std::vector<ListedDevice> listIndi(const virtualsky::CameraAddress &)
{
    ListedDevice none;
    none.remark = "this program was built without INDI";
    return {none};
}
#endif
} // namespace framesources

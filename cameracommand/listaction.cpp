// SPDX-License-Identifier: MIT
// Which cameras are there: those of the maker's library, and those of an INDI server.
#include <cstdio>
#include <string>

#include "camera/veldix.h"
#include "cameracommand/actions.h"
#include "cameracommand/grabbing.h"
#include "cameracommand/makerslist.h"
#include "framesources/indilist.h"

int listCameras(const CameraCommandLine &wishes)
{
    virtualsky::CameraAddress address;
    const std::string host = wishes.target.empty() ? "localhost" : wishes.target;
    if (const auto parsed = virtualsky::parseIndiAddress(host + "/any"))
        address = *parsed;
    else {
        complain("list takes a host, or a host and a port: HOST:PORT");
        return misused;
    }
    const MakersList makers = listMakersCameras(makersLibrary);
    for (const std::string &line : makers.lines)
        std::printf("maker's library: %s\n", line.c_str());
    int cameras = makers.usable;
    for (const framesources::ListedDevice &device : framesources::listIndi(address)) {
        const std::string where = device.name.empty() ? host : addressText(device.address);
        std::printf("%s: %s\n", device.name.empty() ? ("INDI on " + where).c_str() : where.c_str(),
                    device.remark.c_str());
        cameras += device.isCamera ? 1 : 0;
    }
    return cameras > 0 ? succeeded : failed;
}

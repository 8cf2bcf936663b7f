// SPDX-License-Identifier: MIT
// Which devices has an INDI server, and what is wrong with each?
#pragma once

#include <string>
#include <vector>

#include "virtualcamera/cameraaddress.h"

namespace framesources
{
struct ListedDevice {
    std::string name;                  ///< empty: the remark is about the server
    virtualsky::CameraAddress address; ///< that --camera takes
    std::string remark;                ///< what it is, or what is wrong
    bool isCamera = false;             ///< and connected, so that it can be used
};

/// Asks the server at an address, whatever its device, for a few seconds at most. Devices that are
/// not connected are connected for the question.
std::vector<ListedDevice> listIndi(const virtualsky::CameraAddress &server);
} // namespace framesources

// SPDX-License-Identifier: MIT
// The sixteen operations of a camera library by name, so that each can be made to fail.
#pragma once

#include <array>
#include <bitset>
#include <string_view>

namespace virtualsky
{
inline constexpr std::array<std::string_view, 16> operationNames = {
    "InitVELDIXResource", "ScanVELDIX",          "GetVELDIXId",    "OpenVELDIX",
    "SetVELDIXReadMode",  "SetVELDIXStreamMode", "InitVELDIX",     "SetVELDIXBitsMode",
    "SetVELDIXBinMode",   "SetVELDIXResolution", "GetVELDIXParam", "SetVELDIXParam",
    "BeginVELDIXLive",    "GetVELDIXLiveFrame",  "StopVELDIXLive", "CloseVELDIX"};

/// Same order as `operationNames`.
enum class Operation {
    InitResource,
    Scan,
    GetId,
    Open,
    SetReadMode,
    SetStreamMode,
    Init,
    SetBitsMode,
    SetBinMode,
    SetResolution,
    GetParam,
    SetParam,
    BeginLive,
    GetLiveFrame,
    StopLive,
    Close
};

using OperationSet = std::bitset<operationNames.size()>;
} // namespace virtualsky

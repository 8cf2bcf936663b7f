// SPDX-License-Identifier: MIT
// Which camera does "sky", "indi://HOST[:PORT]/DEVICE" or "files:PATTERN" name?
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace virtualsky
{
/// Where frames come from.
enum class Source { Sky, Indi, Files };

/// The environment variable that names the camera of the shipped library; it precedes the sky
/// file's key `source`. `quorvandel --camera` sets it.
inline constexpr char cameraVariable[] = "QUORVANDEL_CAMERA";

struct CameraAddress {
    Source source = Source::Sky;
    std::string host; ///< of the INDI server
    std::uint16_t port = 7624;
    std::string device;  ///< of the INDI server, as it names it
    std::string pattern; ///< of the files: a file, a folder or a pattern with * ? [ ]

    bool operator==(const CameraAddress &other) const;
    bool operator!=(const CameraAddress &other) const { return !(*this == other); }
};

/// @param fault receives what is wrong, as "must be ..."; may be null
std::optional<CameraAddress> parseCameraAddress(std::string_view text,
                                                std::string *fault = nullptr);

/// "HOST[:PORT]/DEVICE"; an IPv6 address as host stands in [ ].
std::optional<CameraAddress> parseIndiAddress(std::string_view text, std::string *fault = nullptr);

/// The text that parseCameraAddress reads back.
std::string addressText(const CameraAddress &address);
} // namespace virtualsky

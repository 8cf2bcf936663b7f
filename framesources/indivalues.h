// SPDX-License-Identifier: MIT
// What has an INDI server said of its devices, as plain values?
#pragma once

#include <libindi/lilxml.h>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "framesources/indiclient.h"

namespace framesources
{
/// A picture as it came: base64, perhaps compressed.
struct EncodedBlob {
    std::string text;
    std::string format; ///< ".z" at its end: compressed
    long size = 0;      ///< bytes uncompressed, as the sender says
};

/// Of a finite number in a message, such as "12.5" or "-0:30:36", whatever the program's locale.
std::optional<double> parseNumber(std::string_view text);

/// The bytes of a picture; as far as they can be decoded.
IndiBlob decoded(const EncodedBlob &blob);

/// The properties of one device, and the names of all.
class IndiValues
{
public:
    explicit IndiValues(std::string deviceName) : device(std::move(deviceName)) {}

    /// @param blobs the texts of the message's BLOBs, which may be taken
    void take(XMLEle *message, std::vector<std::string> &blobs);

    struct Property {
        IndiState state = IndiState::Idle;
        std::map<std::string, IndiNumber> numbers;
        std::map<std::string, bool> switches;
        std::map<std::string, std::string> texts;
    };
    std::map<std::string, Property> properties; // of the device
    std::vector<std::string> names;             // of devices
    std::vector<std::string> imaging;           // devices with exposures or pictures
    unsigned removals = 0;
    std::string remark; // the device's latest
    std::optional<EncodedBlob> blob;

private:
    void define(XMLEle *message, const std::string &owner, const std::string &name);
    void update(XMLEle *message, const std::string &name, std::vector<std::string> &blobs);
    static void setElements(XMLEle *message, Property &property);
    void remove(const std::string &owner, const std::string &name);

    const std::string device;
};

/// The property of a camera's pictures.
constexpr char pictureProperty[] = "CCD1";
} // namespace framesources

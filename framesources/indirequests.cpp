// SPDX-License-Identifier: MIT
// INDI's standard properties of a camera.
#include "framesources/indirequests.h"

#include <cmath>

#include "framesources/indivalues.h"
#include "pictures/grey.h"

namespace framesources
{
namespace
{
constexpr double streamedRate = 50.0; // frames a second: a limit near the camera's rate halves it

/// Binning may change the pattern in a way that no device tells.
std::string streamPattern(const IndiClient &client, const Readout &readout)
{
    if (readout.binning > 1)
        return {};
    const auto offset = [&client](const char *element) {
        const double value = parseNumber(client.text("CCD_CFA", element)).value_or(0.0);
        return std::abs(value) < 1e6 ? int(value) : 0;
    };
    return pictures::shiftedPattern(client.text("CCD_CFA", "CFA_TYPE"), offset("CFA_OFFSET_X"),
                                    offset("CFA_OFFSET_Y"));
}
} // namespace

void requestSwitches(IndiClient &client, std::set<std::string> &switched)
{
    static constexpr std::pair<const char *, const char *> switches[] = {
        {"CCD_VIDEO_STREAM", "STREAM_OFF"}, // left on by a program that is gone
        {"UPLOAD_MODE", "UPLOAD_CLIENT"},
        {"CCD_TRANSFER_FORMAT", "FORMAT_FITS"},
        {"CCD_COMPRESSION", "INDI_DISABLED"},
        {"CCD_FRAME_TYPE", "FRAME_LIGHT"}};
    for (const auto &[property, element] : switches)
        if (const auto on = client.isOn(property, element);
            on && switched.insert(property).second && !*on)
            client.sendSwitch(property, element);
}

bool requestGain(IndiClient &client, double gain)
{
    static constexpr std::pair<const char *, const char *> places[] = {{"CCD_GAIN", "GAIN"},
                                                                       {"CCD_CONTROLS", "Gain"}};
    for (const auto &[property, element] : places)
        if (const auto limits = client.number(property, element); limits) {
            if (limits->most > limits->least)
                client.sendNumbers(property,
                                   {{element, deviceGain(gain, limits->least, limits->most)}});
            return true;
        }
    return false;
}

void requestReadout(IndiClient &client, const Readout &readout)
{
    if (client.number("CCD_BINNING", "HOR_BIN"))
        client.sendNumbers("CCD_BINNING", {{"HOR_BIN", double(readout.binning)},
                                           {"VER_BIN", double(readout.binning)}});
    client.sendNumbers("CCD_FRAME", {{"X", double(readout.region.x)},
                                     {"Y", double(readout.region.y)},
                                     {"WIDTH", double(readout.region.width)},
                                     {"HEIGHT", double(readout.region.height)}});
}

void requestStream(IndiClient &client, double seconds)
{
    if (const auto limits = client.number("STREAMING_EXPOSURE", "STREAMING_EXPOSURE_VALUE")) {
        IndiClient::Values values = {
            {"STREAMING_EXPOSURE_VALUE", withinLimits(seconds, limits->least, limits->most)}};
        if (client.number("STREAMING_EXPOSURE", "STREAMING_DIVISOR_VALUE"))
            values.emplace_back("STREAMING_DIVISOR_VALUE", 1.0);
        client.sendNumbers("STREAMING_EXPOSURE", values);
    }
    // INDI's own limit is ten; a network that is too slow for this one gets fewer.
    if (const auto limit = client.number("LIMITS", "LIMITS_PREVIEW_FPS"); limit)
        if (const double rate = withinLimits(streamedRate, limit->least, limit->most);
            limit->value < rate)
            client.sendNumbers("LIMITS", {{"LIMITS_PREVIEW_FPS", rate}});
    client.sendSwitch("CCD_VIDEO_STREAM", "STREAM_ON");
}

bool requestExposure(IndiClient &client, double seconds)
{
    const auto limits = client.number("CCD_EXPOSURE", "CCD_EXPOSURE_VALUE");
    if (limits)
        client.sendNumbers("CCD_EXPOSURE", {{"CCD_EXPOSURE_VALUE",
                                             withinLimits(seconds, limits->least, limits->most)}});
    return bool(limits);
}

void requestEnd(IndiClient &client, bool ofStream, bool ofExposure)
{
    if (ofStream)
        client.sendSwitch("CCD_VIDEO_STREAM", "STREAM_OFF");
    if (ofExposure && client.has("CCD_ABORT_EXPOSURE"))
        client.sendSwitch("CCD_ABORT_EXPOSURE", "ABORT");
}

StreamShape streamShape(const IndiClient &client, const Readout &readout)
{
    const auto width = client.number("CCD_STREAM_FRAME", "WIDTH");
    const auto height = client.number("CCD_STREAM_FRAME", "HEIGHT");
    StreamShape shape;
    if (width && height && width->value >= 1.0 && width->value < 65536.0 && height->value >= 1.0 &&
        height->value < 65536.0)
        shape.size = cv::Size(int(width->value), int(height->value));
    else
        shape.size = readout.region.size() / readout.binning;
    shape.mosaic = client.has("CCD_CFA");
    shape.pattern = streamPattern(client, readout);
    return shape;
}
} // namespace framesources

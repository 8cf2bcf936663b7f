// SPDX-License-Identifier: MIT
// The sequence of calls from the search for cameras to a camera that is ready for live video.
#include "camera/cameraopening.h"

#include "camera/veldix.h"

#include <QString>
#include <QtDebug>
#include <algorithm>
#include <array>
#include <cstring>

namespace
{
constexpr auto modelName = "QUORVANDEL";

/// The model in an ID of the form model-serial; empty for an ID without '-'.
QString modelOf(const char *id)
{
    const QString text = QString::fromLatin1(id);
    const int dash = text.lastIndexOf('-');
    return dash < 0 ? QString() : text.left(dash);
}

/// The ID of camera `index` into `id`; false if the library has none, or one too long to be given
/// back as it is. The library is given far more room than its IDs need.
bool readId(int index, char (&id)[maxIdSize])
{
    std::array<char, 16384> buffer{};
    if (GetVELDIXId(index, buffer.data()) != 0)
        return false;
    buffer.back() = '\0';
    const std::size_t length = std::strlen(buffer.data());
    if (length >= sizeof id) {
        qCritical("camera %d is left out: its ID of %zu characters is too long", index, length);
        return false;
    }
    std::copy_n(buffer.begin(), length + 1, std::begin(id));
    return true;
}
} // namespace

std::vector<std::string> findCameras(std::size_t most)
{
    std::vector<std::string> found;
    const std::int32_t count = std::min(ScanVELDIX(), maxCameras);
    for (std::int32_t index = 0; index < count && found.size() < most; ++index) {
        char id[maxIdSize] = {};
        if (readId(index, id) && modelOf(id) == modelName)
            found.emplace_back(id);
    }
    return found;
}

OpeningResult openCamera(CameraSession &session)
{
    void *const handle = OpenVELDIX(session.camera.cameraId);
    session.handle.set(handle);
    if (!handle) {
        qCritical("OpenVELDIX failure!");
        session.camera.cameraConnected = false;
        return OpeningResult::NoHandle;
    }
    if (SetVELDIXReadMode(handle, 0) == veldixError)
        qCritical("SetVELDIXReadMode 0 Failure");
    if (SetVELDIXStreamMode(handle, static_cast<std::uint8_t>(session.camera.streamMode)) != 0) {
        qCritical("SetVELDIXStreamMode 1 Failure");
        return OpeningResult::StreamModeRefused;
    }
    if (InitVELDIX(handle) != 0) {
        qCritical("InitVELDIX failure!");
        session.camera.cameraConnected = false;
        return OpeningResult::NotInitialised;
    }
    return OpeningResult::Opened;
}

void configureCamera(CameraSession &session)
{
    void *const handle = session.handle.get();
    CameraState &s = session.camera;
    if (SetVELDIXBitsMode(handle, s.bits) == 0)
        qDebug() << "SetVELDIXBitsMode" << s.bits;
    if (SetVELDIXBinMode(handle, s.binX, s.binY) == 0)
        qDebug() << "SetVELDIXBinMode" << s.binX << s.binY;
    if (SetVELDIXResolution(handle, s.roiX, s.roiY, s.roiWidth, s.roiHeight) == 0)
        qDebug() << "SetVELDIXResolution" << s.roiX << s.roiY << s.roiWidth << s.roiHeight;
    s.exposure = GetVELDIXParam(handle, CONTROL_EXPOSURE);
    s.gain = GetVELDIXParam(handle, CONTROL_GAIN);
    if (SetVELDIXParam(handle, CONTROL_USBTRAFFIC, s.usbTraffic) == 0)
        qDebug() << "SetVELDIXParam CONTROL_USBTRAFFIC" << s.usbTraffic;
    if (SetVELDIXParam(handle, CONTROL_SPEED, s.speed) == 0)
        qDebug() << "SetVELDIXParam CONTROL_SPEED" << s.speed;
}

// SPDX-License-Identifier: MIT
// What did the user choose? Kept in `quorvandel-assistant.ini` in the user's configuration folder.
#pragma once

#include "astrometry/places.h"
#include "recognition/mounterror.h"

#include <QString>
#include <optional>

namespace assistant
{
struct Settings {
    std::optional<astrometry::Site> site;
    recognition::PoleTarget target = recognition::PoleTarget::True;
    double pressure = 1013.25; ///< hectopascals
    double temperature = 10.0; ///< degrees Celsius
    QString language;          ///< code as in the table of languages; empty: the system's
    bool redTheme = false;
    bool sound = false;
    bool speech = false;
    QString cameraId;             ///< the last one used
    double goalArcseconds = 20.0; ///< below it the mount counts as aligned
    bool recording = false;       ///< frames are recorded
    QString recordingFolder;
    double recordingLimitMegabytes = 2000.0;
};
} // namespace assistant

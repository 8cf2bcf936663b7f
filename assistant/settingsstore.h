// SPDX-License-Identifier: MIT
// What does the assistant remember from one run to the next, and how is it stored?
#pragma once

#include "assistant/settings.h"

#include <QString>
#include <optional>

namespace assistant
{
/// `quorvandel-assistant.ini` in the user's configuration folder.
QString settingsPath();

/// Reads what is valid: a missing file or key, a value that is no number or out of range gives the
/// default. Never constructs objects from the file's texts; needs no more memory for a large file.
Settings loadSettings(const QString &path);

/// Replaces the file in one step, with its folder if need be, and waits for nobody. False, with a
/// warning in the log that says why, if it cannot be written: the old one stays.
bool saveSettings(const QString &path, const Settings &settings);

/// Degrees, north positive, from the wizard's settings file; its default is no latitude that
/// anybody entered, and the sign follows the region. The longitude there is without a side: its
/// field goes from 0 to 180, so that 70 may be east or west.
std::optional<double> latitudeOfWizard(const QString &wizardSettings);

/// What the user entered in quorvandel, which keeps its settings beside its executable: in the
/// user's data folder, or, when it is started from where it was built, beside this program.
std::optional<double> latitudeOfTheOtherProgram();

/// "LATITUDE,LONGITUDE" in degrees with decimal points, north and east positive; nothing for
/// anything else.
std::optional<astrometry::Site> parseSite(const QString &text);
} // namespace assistant

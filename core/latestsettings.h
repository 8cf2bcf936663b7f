// SPDX-License-Identifier: MIT
// Which settings are saved if the window's thread cannot do it?
#pragma once

#include "core/settingsfile.h"

#include <QMutex>
#include <optional>

/// A copy of the settings in force, with its locks, for any thread. The GUI thread notes them
/// before each of its calls into the camera library, during which they cannot change, and now and
/// then.
class LatestSettings
{
public:
    void note(const Settings &settings);
    /// Saves the settings noted last to `path`. False if there are none yet, if they cannot be
    /// written, or if another thread is saving and does not finish in time.
    /// @param milliseconds for another thread that saves; negative = without a limit
    bool save(const QString &path, int milliseconds = -1);

private:
    QMutex noting; ///< guards `latest`
    QMutex saving; ///< held while the file is written
    std::optional<Settings> latest;
};

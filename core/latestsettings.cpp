// SPDX-License-Identifier: MIT
// Copies the settings from one thread to another.
#include "core/latestsettings.h"

#include "core/locker.h"

void LatestSettings::note(const Settings &settings)
{
    const Locker lock(noting);
    latest = settings;
}

bool LatestSettings::save(const QString &path, int milliseconds)
{
    std::optional<Settings> settings;
    {
        const Locker lock(noting);
        settings = latest;
    }
    if (!settings)
        return false;
    const Locker lock(saving, milliseconds);
    return lock && writeSettings(path, *settings);
}

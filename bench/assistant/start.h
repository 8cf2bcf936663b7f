// SPDX-License-Identifier: MIT
// Where does an alignment begin? Skies, mounts and cameras at random.
#pragma once

#include "assistant/settings.h"
#include "virtualcamera/skystate.h"

#include <cstdint>

/// The sky of one alignment; the same for the same number. Bolts up to 5 degrees off, any roll, the
/// axis up to 2 degrees off the frame's centre, either hemisphere; tracking, refraction, channels
/// and thin cloud go through all their combinations.
virtualsky::SkyState startingSky(std::uint64_t number);

/// What a user of that sky would have entered: site, and the air if there is any.
assistant::Settings settingsFor(const virtualsky::SkyState &sky);

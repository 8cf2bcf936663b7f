// SPDX-License-Identifier: MIT
// Which keys does the sky file have, and how is each read, checked and written?
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "astrometry/utcdate.h"
#include "virtualcamera/skyfault.h"
#include "virtualcamera/skystate.h"

namespace virtualsky
{
inline constexpr double boltLimit = 20.0; ///< of the bolts, degrees either way
using astrometry::firstYear;
using astrometry::lastYear;

/// A date, or the word that stands for none.
struct DateMember {
    std::optional<double> SkyState::*member;
    std::string_view none;
};

/// A text, and what may be wrong with it.
struct TextMember {
    std::string SkyState::*member;
    std::optional<SkyFault> (*fault)(std::string_view text);
};

struct SkyKey {
    std::string_view section;
    std::string_view name;
    std::variant<double SkyState::*, unsigned SkyState::*, bool SkyState::*,
                 OperationSet SkyState::*, Picture SkyState::*, Source SkyState::*,
                 Pace SkyState::*, Mirrored SkyState::*, LensScale SkyState::*, TextMember,
                 DateMember>
        member;
    double least = 0.0; ///< of numbers, included
    double most = 0.0;  ///< of numbers, included
};

/// All keys in the order in which a file is written.
const std::vector<SkyKey> &skyKeys();

/// Sets the member; returns what is wrong with the text, or nothing if it was accepted.
std::optional<SkyFault> setKey(SkyState &state, const SkyKey &key, std::string_view text);

/// The member as the text that `setKey` reads back to the same value.
std::string keyText(const SkyState &state, const SkyKey &key);

using astrometry::formatDate;
using astrometry::parseDate;
} // namespace virtualsky

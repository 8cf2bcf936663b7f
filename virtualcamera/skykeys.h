// SPDX-License-Identifier: MIT
// Which keys does the sky file have, and how is each read, checked and written?
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "virtualcamera/skystate.h"

namespace virtualsky
{
inline constexpr double boltLimit = 20.0; ///< of the bolts, degrees either way
inline constexpr int firstYear = 1973;    ///< of dates: UTC has whole leap seconds from then on
inline constexpr int lastYear = 2100;

/// A date, or the word that stands for none.
struct DateMember {
    std::optional<double> SkyState::*member;
    std::string_view none;
};

struct SkyKey {
    std::string_view section;
    std::string_view name;
    std::variant<double SkyState::*, unsigned SkyState::*, bool SkyState::*,
                 OperationSet SkyState::*, Picture SkyState::*, DateMember>
        member;
    double least = 0.0; ///< of numbers, included
    double most = 0.0;  ///< of numbers, included
};

/// All keys in the order in which a file is written.
const std::vector<SkyKey> &skyKeys();

/// Sets the member; gives back what is wrong with the text, or nothing when it was taken.
std::optional<std::string> setKey(SkyState &state, const SkyKey &key, std::string_view text);

/// The member as the text that `setKey` reads back to the same value.
std::string keyText(const SkyState &state, const SkyKey &key);

/// "2026-11-20T20:00:00Z" (UTC, firstYear to lastYear, seconds with up to three decimals) to
/// seconds since 1970; nothing for anything else.
std::optional<double> parseDate(std::string_view text);
/// The other way round, to the nearest millisecond; the seconds' decimals only where there are any.
std::string formatDate(double utcSeconds);
} // namespace virtualsky

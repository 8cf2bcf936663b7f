// SPDX-License-Identifier: MIT
// Which second is "2026-11-20T20:00:00Z", and the other way round?
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace astrometry
{
inline constexpr int firstYear = 1973; ///< of dates: UTC has whole leap seconds from then on
inline constexpr int lastYear = 2100;

/// "2026-11-20T20:00:00Z" (UTC, firstYear to lastYear, seconds with up to three decimals) to
/// seconds since 1970; nothing for anything else.
std::optional<double> parseDate(std::string_view text);

/// The other way round, to the nearest millisecond; the seconds' decimals only where there are any.
std::string formatDate(double utcSeconds);
} // namespace astrometry

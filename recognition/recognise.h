// SPDX-License-Identifier: MIT
// Which stars of the pole's sky are these, and where among them is the pole of date?
//
// Pixels: x right, y down, (0, 0) the centre of the top-left pixel. Sky directions are unit vectors
// of the celestial intermediate frame of date (z the true pole of date, see astrometry/places.h).
// Method, accuracy and limits: docs/recognition.md.
#pragma once

#include "astrometry/places.h"
#include "astrometry/refraction.h"
#include "recognition/hemisphere.h"
#include "recognition/mapping.h"
#include "recognition/star.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace recognition
{
/// Where and through which air the frame was taken. With it, the stars' places are refracted
/// before they are compared, and the pole is where the Earth's axis itself points to.
struct Observer {
    astrometry::Site site;
    astrometry::RefractionConstants air;
};

/// Greatest scale that can be asked for, arcseconds a pixel.
inline constexpr double coarsestScale = 600.0;

struct RecognitionOptions {
    double utcSeconds = 0.0;              ///< middle of the exposure, UTC since 1970; required
    std::optional<Hemisphere> hemisphere; ///< absent: both are tried
    /// Arcseconds a pixel at the frame's centre, above 0. Triangles of stars miss the scale by some
    /// thousandths, so that a range should be wider than one percent.
    double minScale = 2.0;
    double maxScale = 70.0;           ///< not below minScale, up to `coarsestScale`
    std::optional<bool> mirrored;     ///< absent: both are tried
    std::optional<Observer> observer; ///< absent: no refraction is applied
    double acceptedChance = 1e-9;     ///< greatest chance probability that is accepted, 0 to 1
};

enum class RecognitionStatus {
    Recognised,
    TooFewStars,   ///< fewer than `minStars` were given
    NoMatch,       ///< enough stars, but no part of the pole's sky is like them
    InvalidOptions ///< out of range: width or height (1 to 65536), scales (see RecognitionOptions),
                   ///< date (1900 to 2200), accepted chance (above 0, below 1)
};

/// Fewer stars than this are never recognised.
inline constexpr std::size_t minStars = 6;
/// So many are recognised in nearly every frame, if they are real and the brightest; with fewer it
/// is luck. `reason` asks for these.
inline constexpr std::size_t enoughStars = 8;

struct MatchedStar {
    std::size_t detected;  ///< index into the stars that were given
    std::size_t catalogue; ///< index into astrometry::catalogue()
    PixelPlace place;      ///< where the mapping puts the catalogue's star
    double residual;       ///< arcseconds between the detected star and that place
};

/// Except for `extracted`, what follows `status` is set only if it is Recognised.
struct Recognition {
    RecognitionStatus status = RecognitionStatus::NoMatch;
    std::size_t extracted = 0; ///< how many stars were given
    Hemisphere hemisphere = Hemisphere::North;
    double utcSeconds = 0.0; ///< as in the options
    bool observed = false;   ///< refraction was applied: the options had an observer
    int width = 0;           ///< pixels of the frame
    int height = 0;
    SkyMapping mapping;
    /// The true pole of date; it may be outside the frame. Without an observer it is the point
    /// that the stars as they show turn about, which refraction lifts above the Earth's axis.
    PixelPlace pole = {0.0, 0.0};
    Covariance poleCovariance;        ///< pixels squared
    double poleSigmaArcseconds = 0.0; ///< root of the mean of the two variances, on the sky
    double scale = 0.0;               ///< arcseconds a pixel at the frame's centre
    double rollDegrees = 0.0;         ///< -180 to 180; see rollOf
    bool mirrored = false;            ///< the frame shows the sky as in a mirror
    /// Arcseconds, both axes: of the residuals of the matched stars without a near neighbour, whose
    /// light would move their centres. 0 if all have one.
    double rms = 0.0;
    double chance = 1.0;              ///< upper bound of the probability of a match by chance
    std::vector<MatchedStar> matched; ///< brightest first
};

/// Recognises the stars of one frame, blind or with what the options give.
/// @param stars brightest first, as `extractStars` gives them; places that are not finite are
/// ignored @param width, height pixels of the frame
/// Thread-safe. The first call builds the index of a hemisphere (some ten milliseconds, once).
Recognition recognise(const std::vector<DetectedStar> &stars, int width, int height,
                      const RecognitionOptions &options);

/// A sentence about the outcome that a person can act on.
std::string reason(const Recognition &recognition);

/// Roll: the direction in the picture in which the hour circle of right ascension 0 (equinox of
/// date) leaves the pole; degrees, 0 up, positive clockwise on the screen.
double rollOf(const SkyMapping &mapping, Hemisphere hemisphere, double utcSeconds);

/// What to call a star of the catalogue: its name, else its HD number, else its place.
std::string starName(std::size_t catalogueIndex);
} // namespace recognition

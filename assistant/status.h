// SPDX-License-Identifier: MIT
// What does the assistant know at one moment, and what should it say?
//
// Pixels: x right, y down, (0, 0) the centre of the frame's top-left pixel. A plain value: the
// guide makes one for every frame, the window draws it.
#pragma once

#include "assistant/aim.h"
#include "astrometry/places.h"
#include "recognition/mapping.h"
#include "recognition/mounterror.h"
#include "recognition/recognise.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace assistant
{
/// Where the user is; each stage ends by itself.
enum class Stage {
    Connect, ///< no camera yet
    Sky,     ///< until the pole's sky is recognised
    Axis,    ///< the RA axis is turned
    Bolts    ///< the bolts are turned
};

/// What to say; the numbers that each carries are in `Advice`.
enum class AdviceCode {
    ConnectCamera,   ///< press Connect
    NoCamera,        ///< no camera was found
    CameraUnusable,  ///< the camera library cannot be used; `text`: why, empty: not known
    CameraRefuses,   ///< the camera `text` is there and cannot be opened; tried again
    CameraLost,      ///< no frame for `first` seconds; frames are awaited
    CameraHangs,     ///< the camera library has not answered for `first` seconds
    Searching,       ///< the first frames are being looked at
    CoverOn,         ///< no light at all
    ExposeLonger,    ///< `first` stars were found, too few
    ExposeShorter,   ///< the sky is saturated
    NoSky,           ///< the picture does not show the sky at night
    Focus,           ///< `first`: the stars' width, pixels
    HoldStill,       ///< stars are trailed: the mount moves or shakes
    Clouds,          ///< stars were recognised before, now they are too few
    NotThePole,      ///< `first` stars, but not those of the pole
    PoleThatWay,     ///< the pole is `first` degrees outside, `second`: direction on the screen,
                     ///< degrees, 0 up, positive clockwise
    WrongHemisphere, ///< the site's latitude has the other sign than the sky that is seen
    ClockUnsure,     ///< the computer's clock is not synchronised
    ClockBehind,     ///< the clock reads earlier than a moment that has passed
    ClockJumped,     ///< the clock was set by `first` seconds during the alignment
    TurnAxis,        ///< turn the RA axis, either way; `first`: degrees turned so far
    TurnFurther,     ///< `first`: degrees turned so far
    StopTurning,     ///< enough: the axis is known to `first` arcseconds
    Bumped,          ///< tripod or bolts were moved while the axis was turned; measured again
    AxisSlipped,     ///< the camera moved against the axis; the axis is measured again
    TurnBolts,       ///< `first`: total error, arcseconds
    NearlyThere,     ///< below 1 arcminute
    Aligned,         ///< below the goal
    SiteMissing,     ///< without the site there are no altitude and azimuth
    SiteTooFarNorth, ///< azimuth has no meaning within 1 degree of the Earth's pole
    RecordingFailed, ///< the recording stopped; `text`: the folder, which cannot be written
    RecordingFull    ///< the recording reached its limit
};

struct Advice {
    AdviceCode code = AdviceCode::ConnectCamera;
    double first = 0.0;
    double second = 0.0;
    std::string text;
};

/// The RA axis as far as it is known.
struct AxisProgress {
    std::optional<recognition::PixelPlace> place; ///< absent until it can be computed
    /// After little turn: shown with its ellipse, no error is computed from it.
    bool isEarly = false;
    recognition::Covariance covariance; ///< pixels squared
    double sigmaArcseconds = 0.0;
    /// Greatest minus least angle of the first frames of all kept places.
    double turnedDegrees = 0.0;
    /// That count: sharp, not more of one place than needed, and without those that show the axis
    /// elsewhere than the first ones.
    std::size_t frames = 0;
    bool enough = false;
};

/// The error of the axis against the chosen pole.
struct ErrorFigures {
    recognition::Measured total; ///< on the sky, 0 or more
    /// Absent without a site. The angles that the bolts turn: altitude positive above the pole,
    /// azimuth, about the vertical, positive east of it.
    std::optional<recognition::Measured> altitude, azimuth;
};

struct Status {
    std::uint64_t frame = 0;    ///< counts the frames of this connection, from 1
    double utcSeconds = 0.0;    ///< middle of the exposure
    double steadySeconds = 0.0; ///< the same by a clock that nobody sets; for durations
    int width = 0, height = 0;  ///< of the frame
    Stage stage = Stage::Connect;
    std::vector<Advice> advice; ///< most important first; never empty
    /// Of this frame; never null. Its status tells whether the sky is recognised.
    std::shared_ptr<const recognition::Recognition> sky;
    std::vector<recognition::DetectedStar> stars; ///< that sky->matched indexes
    double fwhm = 0.0;                            ///< pixels; 0 without stars
    /// The pole that is aligned on (true or refracted), and its covariance.
    std::optional<recognition::PixelPlace> pole;
    recognition::Covariance poleCovariance;
    AxisProgress axis;
    std::optional<ErrorFigures> error; ///< absent until axis and pole are known
    /// The first of this alignment, as the present settings count it.
    std::optional<ErrorFigures> firstError;
    std::optional<astrometry::Site> site; ///< that both errors were computed with
    Aim aim;                              ///< that both errors refer to
    double exposureMicroseconds = 0.0;
    bool automaticExposure = true;
};
} // namespace assistant

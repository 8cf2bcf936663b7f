// SPDX-License-Identifier: MIT
// Where is the pole in the next frame of a live picture?
//
// Centres are adaptive moments in windows (Bernstein and Jarvis 2002, AJ 123, 583, see
// extraction.h); with the stars known, only the mapping is fitted (see recognise.h).
// Method: docs/recognition.md, "Following, axis and mount".
#pragma once

#include "recognition/extraction.h"
#include "recognition/recognise.h"

#include <opencv2/core.hpp>
#include <optional>
#include <vector>

namespace recognition
{
struct FollowerOptions {
    /// As for `recognise`; utcSeconds is replaced by each frame's own time.
    RecognitionOptions recognition;
    int windowRadius = 6;      ///< pixels about a star's expected place, 4 to 64
    int searchRadius = 24;     ///< pixels, for the brightest ones, which show how the field moved
    std::size_t maxStars = 30; ///< measured in a frame, at least minStars
};

/// Measures only windows around the stars of the last frame, as long as they are found there. If
/// they are not, searches the whole frame with the scale, mirroring and hemisphere that were found
/// before and, in every other such frame, beginning with the first, without them too. Frames of
/// another size than before are searched without them. Between frames the field may shift by
/// `searchRadius`, and turn by as much as leaves its stars in their windows: half a degree. Not for
/// two threads at a time.
class Follower
{
public:
    explicit Follower(const FollowerOptions &options) : given(options) {}

    /// @param frame 8 or 16 bit, 1 or 3 channels @param utcSeconds middle of the exposure
    /// @return what `recognise` gives; `matched[i].detected` indexes `stars()`. Recognised by
    /// windows or by a search. TooFewStars and NoMatch only after a search of the whole frame:
    /// `searched().status` says what is wrong with the frame, if anything is. InvalidOptions for an
    /// empty frame, a time outside 1900 to 2200, or options out of range. What was learned is kept
    /// until a frame of another size comes.
    Recognition follow(const cv::Mat &frame, double utcSeconds);

    /// The stars that the last frame's recognition rests on.
    const std::vector<DetectedStar> &stars() const { return measured; }
    /// What the last search of a whole frame found, without its stars: those are in `stars()`.
    const Extraction &searched() const { return wholeFrame; }
    /// Whether the last frame was recognised by windows alone.
    bool followed() const { return byWindows; }
    /// Forgets everything; the next frame is searched blind.
    void reset();

private:
    struct Target {
        std::size_t catalogue;
        PixelPlace place; // where it would be if nothing had moved
    };
    struct Shift {
        double x, y;
    };

    struct Measured {
        std::vector<DetectedStar> stars;
        std::vector<std::size_t> catalogue; // of each star
        std::size_t tried = 0;
    };

    Measured measure(const cv::Mat &frame, const std::vector<Target> &expected, Shift shift) const;
    std::optional<Recognition> byLastFrame(const cv::Mat &frame, double utcSeconds);
    std::optional<Shift> shiftOf(const cv::Mat &frame, const std::vector<Target> &targets) const;
    Recognition byWholeFrame(const cv::Mat &frame, double utcSeconds);
    RecognitionOptions narrowed(RecognitionOptions options) const;
    void enrol(const Recognition &recognition);
    void refreshPlaces(double utcSeconds);
    std::vector<Target> targets() const;

    FollowerOptions given;
    std::optional<Recognition> last;
    // The stars to look for, brightest first, and their places as seen at `enrolled`.
    std::vector<std::size_t> roster;
    std::vector<astrometry::Vector3> rosterPlaces;
    double enrolled = 0.0;
    std::vector<DetectedStar> measured;
    Extraction wholeFrame;
    bool byWindows = false;
    unsigned unlike = 0; // frames since the last recognised one that were not like it
};
} // namespace recognition

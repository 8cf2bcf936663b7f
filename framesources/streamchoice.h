// SPDX-License-Identifier: MIT
// When are a device's frames taken from its video stream, and when by single exposures?
#pragma once

#include <chrono>

namespace framesources
{
/// A stream that is silent for too long gives way to single exposures. It is tried again a moment
/// after a new connection, and after pauses that grow. Until it was steady it is given up soon, so
/// that a try costs few frames; so is a stream that goes on with a new connection. After a
/// failed try, a new connection does not trigger another: the try may have ended the last one. A
/// connection that ends before the stream's first frame is such a failure.
class StreamChoice
{
public:
    using Time = std::chrono::steady_clock::time_point;

    struct Pauses {              ///< seconds
        double silence = 6.0;    ///< of a stream, beyond the exposure
        double attempt = 2.0;    ///< the same until it was steady again
        double connection = 5.0; ///< after it; by then exposures have come
        double first = 60.0;     ///< then twice as long each time
        double longest = 16 * 60.0;
        double steady = 120.0; ///< of a stream; after it the pauses begin again
    };

    /// @param isWanted false: never
    StreamChoice(bool isWanted, const Pauses &some)
        : wanted(isWanted), pauses(some), pause(some.first)
    {
    }

    bool isUsed(Time now) const { return wanted && (!failed || now >= retryAt); }
    /// How long a stream may be silent, seconds beyond the exposure.
    double patience() const { return onProbation ? pauses.attempt : pauses.silence; }

    void connected(Time now);
    /// The stream was switched on.
    void began() { hasCome = false; }
    /// A frame of the stream came.
    /// @return false if one had come before, since the last failure
    bool came(Time now);
    /// The stream was silent for too long.
    /// @return false if no frame had come since the last failure
    bool fell(Time now);
    /// The connection was lost while the stream was on. As `fell`, but false where a frame had come
    /// since the stream began: that says nothing against it.
    bool lost(Time now) { return !hasCome && fell(now); }

private:
    const bool wanted;
    const Pauses pauses;
    bool failed = false;      // the latest that is known of the stream
    bool onProbation = false; // from a failure or a loss until it was steady
    bool tryFailed = false, wasConnected = false;
    bool hasCome = false; // a frame since the stream was switched on
    double pause;         // seconds until the next try
    Time retryAt, since;  // valid while failed; since when the stream comes
};
} // namespace framesources

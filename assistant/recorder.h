// SPDX-License-Identifier: MIT
// Which frames are kept on disk for a report, and for how long is there room?
#pragma once

#include "assistant/settings.h"
#include "assistant/status.h"

#include <QString>
#include <opencv2/core.hpp>
#include <optional>

namespace assistant
{
/// Writes frames as FITS files, at most one in `interval` seconds, until those in the folder, of
/// earlier runs too, reach the limit, or the disk refuses. Not for two threads at a time.
class Recorder
{
public:
    static constexpr double interval = 1.0; ///< seconds

    /// Starts or stops. With another folder, another limit or a new start, the frames that are in
    /// the folder are counted again.
    void use(const Settings &settings);

    /// @param utcSeconds middle of the exposure @param exposureSeconds its length
    /// @return what to say while recording is asked for and cannot go on
    std::optional<Advice> record(const cv::Mat &frame, double utcSeconds, double exposureSeconds);

    std::size_t files() const { return written; }

private:
    bool isOn = false;
    QString folder;
    double limit = 0.0;         ///< bytes
    std::optional<double> used; ///< bytes of all frames in the folder; not yet counted
    double last = 0.0;          ///< utc of the last frame that was written
    std::size_t written = 0;
    std::optional<Advice> fault;
};

/// One image as a FITS file of the standard's version 4.0: 8 or 16 bits; three channels become
/// three planes, red, green, blue. Rows from the top, as ROWORDER says.
QByteArray fitsOf(const cv::Mat &frame, double utcSeconds, double exposureSeconds);
} // namespace assistant

// SPDX-License-Identifier: MIT
// Frames from files: pictures one after the other, and the frames of SER videos.
#pragma once

#include <atomic>
#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "framesources/filelist.h"
#include "framesources/nativecamera.h"
#include "pictures/serfile.h"
#include "virtualcamera/skystate.h"

namespace framesources
{
/// Seconds from one frame to the next, at least a thirtieth: the exposure, or at the frames' own
/// pace the time between their dates, at most ten seconds, where both have one.
/// @param earlier, later UTC seconds since 1970
double pauseBetween(virtualsky::Pace pace, double exposureSeconds, std::optional<double> earlier,
                    std::optional<double> later);

/// Shows the files oldest first. The last one stays: it is delivered again and again, until newer
/// files come. A file that cannot be read is named to `report` once and left out.
class FilesCamera : public NativeCamera
{
public:
    FilesCamera(std::string filesPattern, virtualsky::Pace filesPace, Report reportFault);

    std::optional<NativeFrame> next(const Wish &wish) override;
    bool isPresent() const override { return present.load(std::memory_order_relaxed); }

private:
    using Clock = std::chrono::steady_clock;

    void scan();
    bool openNext();
    std::optional<NativeFrame> nextOfOpenFile();
    void leaveOut(const ListedFile &file, const std::string &reason);

    const std::string pattern;
    const virtualsky::Pace pace;
    const Report report;
    std::atomic<bool> present{true};

    std::vector<ListedFile> known; // seen already, shown or left out
    std::vector<ListedFile> waiting;
    bool saidNothing = false; // that no file matches
    std::unique_ptr<pictures::SerFile> video;
    ListedFile open; // the file of `video`
    int videoFrame = 0;
    std::optional<NativeFrame> last, ready; // ready: read, and shown when it is due
    Clock::time_point shown, scanned;
    bool begun = false;
};
} // namespace framesources

// SPDX-License-Identifier: MIT
// Plays files in the order of their dates.
#include "framesources/filescamera.h"

#include <algorithm>
#include <thread>

namespace framesources
{
namespace
{
using namespace std::chrono_literals;
constexpr double shortestPause = 1.0 / 30.0, longestFramePause = 10.0; // seconds
constexpr auto waitSlice = 20ms;                                       // of waiting
constexpr auto scanPause = 1s; // between two looks for newer files

NativeFrame frameOf(PictureFile &&file)
{
    const cv::Size size = file.pixels.size();
    return {std::move(file.pixels), file.mosaic, 1, size, file.date, std::move(file.pattern)};
}
} // namespace

double pauseBetween(virtualsky::Pace pace, double exposureSeconds, std::optional<double> earlier,
                    std::optional<double> later)
{
    double pause = exposureSeconds;
    if (pace == virtualsky::Pace::Own && earlier && later)
        pause = std::min(*later - *earlier, longestFramePause);
    return std::max(pause, shortestPause);
}

FilesCamera::FilesCamera(std::string filesPattern, virtualsky::Pace filesPace, Report reportFault)
    : pattern(std::move(filesPattern)), pace(filesPace), report(std::move(reportFault))
{
    present = !matchingFiles(pattern).empty();
}

void FilesCamera::scan()
{
    const Clock::time_point now = Clock::now();
    if (begun && now - scanned < scanPause)
        return;
    begun = true;
    scanned = now;
    std::vector<ListedFile> found = matchingFiles(pattern); // in the order of their paths
    const auto isKnown = [this](const ListedFile &file) {
        const auto place = std::lower_bound(
            known.begin(), known.end(), file,
            [](const ListedFile &a, const ListedFile &b) { return a.path < b.path; });
        return place != known.end() && *place == file;
    };
    for (ListedFile &file : found) {
        if (isKnown(file))
            continue;
        setDate(file);
        waiting.push_back(file);
    }
    known = std::move(found);
    sortByDate(waiting);
    present.store(!known.empty() || last, std::memory_order_relaxed);
    if (known.empty() && !saidNothing)
        report("no file matches");
    saidNothing = known.empty();
}

void FilesCamera::leaveOut(const ListedFile &file, const std::string &reason)
{
    report(file.path + ": " + reason + " It is left out.");
}

/// False = nothing to open.
bool FilesCamera::openNext()
{
    if (waiting.empty())
        scan();
    if (waiting.empty())
        return false;
    const ListedFile file = waiting.front();
    waiting.erase(waiting.begin());
    if (pictures::isSerName(file.path)) {
        video = std::make_unique<pictures::SerFile>(file.path);
        videoFrame = 0;
        open = file;
        if (video->complaint().empty())
            return true;
        leaveOut(file, video->complaint());
        video.reset();
        return true;
    }
    PictureFile picture = readPicture(file.path);
    if (!picture.complaint.empty()) {
        leaveOut(file, picture.complaint);
        return true;
    }
    const bool dated = picture.date.has_value();
    ready = frameOf(std::move(picture));
    if (!dated)
        ready->date = file.date;
    return true;
}

std::optional<NativeFrame> FilesCamera::nextOfOpenFile()
{
    if (!video)
        return std::nullopt;
    PictureFile picture;
    if (videoFrame < video->header().frames) {
        picture = video->frame(videoFrame++);
        if (picture.complaint.empty())
            return frameOf(std::move(picture));
        leaveOut(open, picture.complaint);
    }
    video.reset();
    return std::nullopt;
}

std::optional<NativeFrame> FilesCamera::next(const Wish &wish)
{
    if (!wish.wanted) {
        std::this_thread::sleep_for(waitSlice);
        if (!isPresent())
            scan();
        return std::nullopt;
    }
    if (!ready && !(ready = nextOfOpenFile()))
        if (openNext() && !ready)
            return std::nullopt; // a video that is open now, or a file that was left out
    const NativeFrame *const coming = ready ? &*ready : last ? &*last : nullptr;
    if (!coming) {
        std::this_thread::sleep_for(waitSlice);
        return std::nullopt;
    }
    const bool again = !ready;
    const double pause =
        pauseBetween(again ? virtualsky::Pace::Exposure : pace, wish.exposureSeconds,
                     last ? last->date : std::nullopt, coming->date);
    if (last && std::chrono::duration<double>(Clock::now() - shown).count() < pause) {
        std::this_thread::sleep_for(1ms);
        return std::nullopt;
    }
    shown = Clock::now();
    if (!again) {
        last = std::move(ready);
        ready.reset();
    }
    return last;
}
} // namespace framesources

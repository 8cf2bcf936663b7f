// SPDX-License-Identifier: MIT
// Frames into files: grab and record.
#include <array>
#include <cstdio>
#include <ctime>
#include <opencv2/imgcodecs.hpp>
#include <sys/stat.h>
#include <vector>

#include "cameracommand/actions.h"
#include "cameracommand/grabbing.h"
#include "pictures/fitsfile.h"
#include "pictures/grey.h"
#include "pictures/wholefile.h"

namespace
{
bool endsIn(const std::string &path, const std::string &suffix)
{
    if (path.size() <= suffix.size())
        return false;
    std::string end = path.substr(path.size() - suffix.size());
    for (char &c : end)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
    return end == suffix;
}

bool isFitsName(const std::string &path)
{
    return endsIn(path, ".fits") || endsIn(path, ".fit");
}

std::string framePath(const std::string &folder, int number)
{
    std::array<char, 32> name{};
    std::snprintf(name.data(), name.size(), "/frame-%06d.fits", number);
    return folder + name.data();
}

/// Frames that are in the folder already stay.
int firstFree(const std::string &folder)
{
    struct stat status = {};
    int number = 1;
    while (::stat(framePath(folder, number).c_str(), &status) == 0)
        ++number;
    return number;
}

/// PNG is a picture to look at, FITS what the sensor saw: a mosaic stays one if its pattern is
/// known, for programs that make colours of it.
/// @return an empty text = it is written
std::string write(const std::string &path, const framesources::NativeFrame &frame, double exposure)
{
    // Binning mixes the colours, whatever the file says.
    const bool raw = frame.binning == 1 && !frame.pattern.empty() && isFitsName(path);
    const bool coloured = frame.pixels.channels() == 3 && !isFitsName(path);
    const cv::Mat pixels =
        raw || coloured ? frame.pixels : pictures::greyOf(frame.pixels, frame.mosaic);
    if (isFitsName(path))
        return pictures::writeFits(path, pixels,
                                   frame.date ? *frame.date : double(std::time(nullptr)), exposure,
                                   raw ? frame.pattern : std::string());
    std::vector<unsigned char> bytes;
    try {
        if (!cv::imencode(".png", pixels, bytes))
            return "it cannot be encoded";
    } catch (const cv::Exception &error) {
        return "it cannot be encoded: " + error.err;
    }
    return pictures::writeWhole(path, {reinterpret_cast<const char *>(bytes.data()), bytes.size()});
}
} // namespace

int grabFrame(const CameraCommandLine &wishes)
{
    if (!isFitsName(wishes.target) && !endsIn(wishes.target, ".png")) {
        complain("the file's name must end in .png, .fits or .fit");
        return misused;
    }
    const auto camera = openCamera(wishes, chosenSource(wishes));
    const auto frame = camera ? awaitFrame(*camera, wishes) : std::nullopt;
    if (!frame)
        return failed;
    if (const std::string fault = write(wishes.target, *frame, wishes.exposureSeconds);
        !fault.empty()) {
        complain(wishes.target + ": " + fault);
        return failed;
    }
    std::printf("%s: %d x %d pixels, %d bits\n", wishes.target.c_str(), frame->pixels.cols,
                frame->pixels.rows, frame->pixels.depth() == CV_8U ? 8 : 16);
    return succeeded;
}

int recordFrames(const CameraCommandLine &wishes)
{
    ::mkdir(wishes.target.c_str(), 0777);
    struct stat status = {};
    if (::stat(wishes.target.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) {
        complain(wishes.target + ": it is no folder and cannot be made one");
        return failed;
    }
    const auto camera = openCamera(wishes, chosenSource(wishes));
    const int first = firstFree(wishes.target);
    for (int i = 0; i < wishes.frames; ++i) {
        const auto frame = camera ? awaitFrame(*camera, wishes) : std::nullopt;
        if (!frame)
            return failed;
        const std::string path = framePath(wishes.target, first + i);
        if (const std::string fault = write(path, *frame, wishes.exposureSeconds); !fault.empty()) {
            complain(path + ": " + fault);
            return failed;
        }
    }
    std::printf("%d frames are in %s\n", wishes.frames, wishes.target.c_str());
    return succeeded;
}

// SPDX-License-Identifier: MIT
// The lens' values as lines of the sky file.
#include "cameracommand/lenswriting.h"

#include <array>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

#include "cameracommand/grabbing.h"
#include "cameracommand/skyvalues.h"
#include "virtualcamera/skyfile.h"

namespace
{
using virtualsky::LensScale;
using virtualsky::Mirrored;
using virtualsky::SkyState;
using virtualsky::Source;

constexpr char cameraSection[] = "camera";
constexpr double sameScale = 0.01; // two checks of one lens differ by less, as a part of the scale

std::string text(double number)
{
    std::array<char, 32> out{};
    std::snprintf(out.data(), out.size(), "%.3f", number);
    return out.data();
}

const char *word(Mirrored mirrored)
{
    return mirrored == Mirrored::Auto ? "auto" : mirrored == Mirrored::True ? "true" : "false";
}

bool isOfAnotherLens(const SkyState &state, const MeasuredLens &lens)
{
    if (state.scale.kind != LensScale::Kind::Given)
        return false;
    const bool mirrorsOtherwise =
        state.mirrored != Mirrored::Auto && (state.mirrored == Mirrored::True) != lens.mirrored;
    return std::abs(lens.scale / state.scale.arcseconds - 1.0) > sameScale || mirrorsOtherwise;
}

/// The file's text, empty if there is no file; nothing, with a message, if it is not to be changed.
std::optional<std::string> changeableText(const std::string &path)
{
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0 && errno == ENOENT)
        return std::string();
    std::string found, fault;
    try {
        found = virtualsky::readText(path);
    } catch (const virtualsky::SkyFileError &error) {
        fault = error.what();
    }
    // It would be replaced by a file of this user, which its owner could not read.
    if (fault.empty() && status.st_uid != ::geteuid())
        fault = "it belongs to another user";
    if (fault.empty() && ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0)
        fault = "it must not be written to";
    if (fault.empty())
        return found;
    complain(path + ": " + fault + "; nothing is changed");
    return std::nullopt;
}

void printChange(const std::string &path, const std::string &before, const std::string &after,
                 const char *key)
{
    const std::optional<SkyLine> old = skyLine(before, cameraSection, key),
                                 now = skyLine(after, cameraSection, key);
    if (now)
        std::printf("%s, line %d: %s (%s)\n", path.c_str(), now->number, now->text.c_str(),
                    !old                     ? "new"
                    : old->text == now->text ? "as before"
                                             : ("before: " + old->text).c_str());
}
} // namespace

std::string reasonToLeave(LensWriting writing, Source checked, const SkyState &state,
                          const MeasuredLens &lens)
{
    if (writing == LensWriting::Always)
        return {};
    if (writing == LensWriting::Never)
        return "--no-write";
    if (checked == Source::Sky)
        return "scale and mirrored are of no effect on the virtual sky and the maker's camera";
    if (checked == Source::Files && state.source != Source::Files && isOfAnotherLens(state, lens))
        return "it holds the values of another lens than that of these pictures, scale = " +
               text(state.scale.arcseconds) + ", mirrored = " + word(state.mirrored) +
               "; check --write replaces them";
    return {};
}

bool writeLens(const std::string &skyFile, const MeasuredLens &lens)
{
    const std::optional<std::string> before = changeableText(skyFile);
    if (!before)
        return false;
    // A new line comes first in its section: this leaves scale above the others.
    std::string after = *before;
    const bool hasSoften = lens.soften || skyLine(*before, cameraSection, "soften");
    if (hasSoften)
        after = withSkyValue(after, cameraSection, "soften", lens.soften ? "true" : "false");
    after = withSkyValue(after, cameraSection, "mirrored", lens.mirrored ? "true" : "false");
    after = withSkyValue(after, cameraSection, "scale", text(lens.scale));
    try {
        virtualsky::parse(after);
    } catch (const virtualsky::SkyFileError &error) {
        complain(skyFile + ": " + error.what() + "; nothing is changed");
        return false;
    }
    if (after.size() > virtualsky::largestSkyFile) {
        complain(skyFile + ": it is too long for another line; nothing is changed");
        return false;
    }
    if (!virtualsky::writeAtomically(skyFile, after)) {
        complain(skyFile + ": it cannot be written: " + std::strerror(errno) +
                 "; nothing is changed");
        return false;
    }
    for (const char *key : {"scale", "mirrored"})
        printChange(skyFile, *before, after, key);
    if (hasSoften)
        printChange(skyFile, *before, after, "soften");
    return true;
}

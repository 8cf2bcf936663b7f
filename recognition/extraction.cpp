// SPDX-License-Identifier: MIT
// The steps from a frame to its stars, and the verdict on them.
#include "recognition/extraction.h"

#include <algorithm>
#include <cmath>

#include "recognition/blankareas.h"
#include "recognition/detection.h"
#include "recognition/frameaccess.h"
#include "recognition/measuredstars.h"
#include "recognition/skybackground.h"

namespace recognition
{
namespace
{
constexpr double searchedPixels = 1.6e6;   // larger frames are searched binned, for memory and time
constexpr double detectionThreshold = 4.0; // times the smoothed noise
constexpr double quantisationNoise = 0.2886751; // one sigma of rounding to whole values
constexpr double nearFullScale = 0.9;
constexpr int coarserSearches = 3;     // each twice as coarse as the one before
constexpr double widthToCoarsen = 3.6; // pixels of the searched picture
constexpr double longTrail = 1.8;      // length over width
constexpr std::size_t starsForShape = 4;
constexpr double skyRoughness = 4.0; // above it what passes for noise is the picture of something
constexpr std::size_t candidatesAStar = 3; // looked at for every star that is wanted

int searchBin(const cv::Mat &frame)
{
    int bin = 1;
    const auto along = [&bin](int pixels) -> int { return pixels / bin; };
    while (double(along(frame.cols)) * double(along(frame.rows)) > searchedPixels)
        ++bin;
    return bin;
}

void keepBrightest(std::vector<Candidate> &candidates, std::size_t most)
{
    if (candidates.size() > most)
        candidates.resize(most);
}

// Wide stars are found in coarser pictures of the same sky.
// @param blankShare part of the sky's pixels that show nothing
DetectionResult search(cv::Mat1f &sky, double blankShare, int bin, const ExtractionOptions &options,
                       MeasuredStars &stars)
{
    const auto most = std::size_t(std::max(options.maxStars, 1));
    for (int level = 0; level <= coarserSearches; ++level) {
        Detection found = detect(sky, blankShare, bin, detectionThreshold);
        if (found.result != DetectionResult::Done)
            return level == 0 ? found.result : DetectionResult::Done;
        keepBrightest(found.candidates, candidatesAStar * most + 100);
        stars.add(found, bin, options.minSnr, most);
        const bool enough = stars.isWidthSure() && stars.fwhm() < widthToCoarsen * bin;
        if (enough || sky.cols / 2 < minSide || sky.rows / 2 < minSide)
            break;
        sky = halved(sky);
        bin *= 2;
    }
    return DetectionResult::Done;
}

ExtractionStatus verdict(const Extraction &found, const ExtractionOptions &options)
{
    const bool few = found.stars.size() < std::size_t(std::max(options.minStars, 0));
    if (found.stars.size() >= starsForShape) {
        if (found.elongation > longTrail)
            return ExtractionStatus::Trailed;
        if (found.fwhm > options.widestFwhm)
            return ExtractionStatus::OutOfFocus;
    }
    return few ? ExtractionStatus::TooFewStars : ExtractionStatus::Ok;
}

// @param roughness of the background @param full the frame's greatest value
void report(MeasuredStars &stars, double roughness, double full, const ExtractionOptions &options,
            Extraction &out)
{
    out.elongation = stars.elongation();
    stars.sift();
    out.fwhm = stars.fwhm();
    for (const MeasuredStar &found : stars.all())
        out.stars.push_back(found.star);
    out.status = verdict(out, options);
    if (out.status == ExtractionStatus::Ok)
        return;
    // Why there are no better stars.
    if (out.background > nearFullScale * full)
        out.status = ExtractionStatus::SaturatedSky;
    else if (roughness > skyRoughness)
        out.status = ExtractionStatus::NoSky;
    if (out.status == ExtractionStatus::NoSky)
        out.stars.clear();
}
} // namespace

Extraction extractStars(const cv::Mat &frame, const ExtractionOptions &options)
{
    Extraction out;
    out.status = checkFrame(frame);
    if (out.status != ExtractionStatus::Ok)
        return out;
    const int bin = searchBin(frame);
    cv::Mat1f sky = binnedFrame(frame, bin);
    const double full = fullScale(frame);
    const float corner = sky(0, 0);
    const FlatAreas flat = blankFlatAreas(sky, float(nearFullScale * full));
    if (flat.isWhole) {
        out.background = double(corner);
        out.status = double(corner) > nearFullScale * full ? ExtractionStatus::SaturatedSky
                                                           : ExtractionStatus::Black;
        return out;
    }
    const double minNoise = quantisationNoise / (bin * std::sqrt(double(frame.channels())));
    const std::optional<SkyBackground> background = SkyBackground::measure(sky, float(minNoise));
    if (!background) {
        out.status = ExtractionStatus::NoSky;
        return out;
    }
    out.background = double(background->medianLevel());
    out.noise = double(background->medianNoise()) * bin;
    background->normalise(sky);
    if (bin == 1)
        removeHotPixels(sky);
    MeasuredStars stars(frame, *background, bin);
    if (search(sky, flat.blankShare, bin, options, stars) != DetectionResult::Done) {
        out.status = ExtractionStatus::NoSky;
        return out;
    }
    report(stars, background->roughness(), full, options, out);
    return out;
}
} // namespace recognition

// SPDX-License-Identifier: MIT
// The background's grid begins with SEP's, measured on a part of the pixels, and is refined on
// them.
#include "recognition/skybackground.h"

#include "recognition/sepheader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <memory>
#include <numeric>

#include <vector>

namespace recognition
{
namespace
{
constexpr int columnStride = 2;  // between the pixels that are looked at
constexpr int tallPicture = 800; // pixels: its tiles hold enough in every fourth row
constexpr int usualTile = 64;    // pixels
constexpr int minTile = 16;      // pixels
constexpr int filterTiles = 3;   // a median of 3 x 3 tiles against bright stars
constexpr double filterLimit = 0.0;
constexpr float clipSigmas = 2.5f;
constexpr float cutOffDepth = 2.0f; // times the noise: one pixel in a thousand is lower

int tilesAlong(int pixels)
{
    const int tile = std::clamp(pixels / 4, minTile, usualTile);
    return std::max(1, static_cast<int>(std::lround(double(pixels) / tile)));
}

int rowStride(const cv::Mat1f &image)
{
    return image.rows >= tallPicture ? 4 : 2;
}

cv::Mat1f thinned(const cv::Mat1f &image, int rowStep, int columnStep)
{
    cv::Mat1f out((image.rows + rowStep - 1) / rowStep, (image.cols + columnStep - 1) / columnStep);
    for (int y = 0; y < out.rows; ++y) {
        const float *in = image[y * rowStep];
        float *to = out[y];
        for (int x = 0; x < out.cols; ++x)
            to[x] = in[x * columnStep];
    }
    return out;
}

// Nodes with a ring about them that goes on as straight as the outer two of each line.
cv::Mat1f withRing(const cv::Mat1f &nodes)
{
    cv::Mat1f out(nodes.rows + 2, nodes.cols + 2);
    nodes.copyTo(out(cv::Rect(1, 1, nodes.cols, nodes.rows)));
    const auto beyond = [](float outer, float inner) { return 2.0f * outer - inner; };
    const int right = nodes.cols + 1, bottom = nodes.rows + 1;
    const int nextRight = std::max(right - 2, 1), nextBottom = std::max(bottom - 2, 1);
    const int second = std::min(2, right - 1), secondRow = std::min(2, bottom - 1);
    for (int y = 1; y < bottom; ++y) {
        out(y, 0) = beyond(out(y, 1), out(y, second));
        out(y, right) = beyond(out(y, right - 1), out(y, nextRight));
    }
    for (int x = 0; x <= right; ++x) {
        out(0, x) = beyond(out(1, x), out(secondRow, x));
        out(bottom, x) = beyond(out(bottom - 1, x), out(nextBottom, x));
    }
    return out;
}

float medianOf(const cv::Mat1f &nodes)
{
    std::vector<float> inner;
    for (int y = 1; y + 1 < nodes.rows; ++y)
        inner.insert(inner.end(), nodes[y] + 1, nodes[y] + nodes.cols - 1);
    const auto middle = inner.begin() + static_cast<std::ptrdiff_t>(inner.size() / 2);
    std::nth_element(inner.begin(), middle, inner.end());
    return *middle;
}

// Where most pixels have one value, as where the darkest are cut off at 0, the brighter ones still
// show the noise: the 84th of 100 is one sigma above the median.
float noiseOfBrighter(const cv::Mat1f &tile, float level)
{
    std::vector<float> values;
    for (int y = 0; y < tile.rows; ++y)
        std::copy_if(tile[y], tile[y] + tile.cols, std::back_inserter(values),
                     [](float value) { return value > blankValue; });
    if (values.empty())
        return 0.0f;
    const auto place = values.begin() + std::ptrdiff_t(0.8413 * double(values.size()));
    std::nth_element(values.begin(), place, values.end());
    return *place - level;
}

// The plane that a tile's pixels scatter about.
struct Plane {
    float level = 0.0f;                 // at the tile's middle
    float slopeX = 0.0f, slopeY = 0.0f; // values a pixel
    float sigma = 0.0f;
    float middleX = 0.0f,
          middleY = 0.0f; // pixels of the tile: of a whole one, the last may be less
};

// Count, sum and sum of squares of the pixels within a reach of the plane, less the plane; in
// lanes, so that the compiler may add several at a time.
class ClippedSums
{
public:
    ClippedSums(const cv::Mat1f &tile, const Plane &plane, float reach)
    {
        const float middleX = plane.middleX, middleY = plane.middleY;
        for (int y = 0; y < tile.rows; ++y)
            addRow(tile[y], tile.cols,
                   plane.level + plane.slopeY * (float(y) - middleY) - plane.slopeX * middleX,
                   plane.slopeX, reach);
    }
    float count() const { return total(counts); }
    float sum() const { return total(sums); }
    float squares() const { return total(squaresOf); }

private:
    static constexpr int lanes = 8;
    using Lanes = std::array<float, lanes>;

    void add(float value, std::size_t lane, float plane, float reach)
    {
        const float rest = value - plane;
        const float part = std::abs(rest) <= reach ? rest : 0.0f;
        counts[lane] += std::abs(rest) <= reach ? 1.0f : 0.0f;
        sums[lane] += part;
        squaresOf[lane] += part * part;
    }
    void addRow(const float *row, int width, float start, float slope, float reach)
    {
        int x = 0;
        for (; x + lanes <= width; x += lanes)
            for (int lane = 0; lane < lanes; ++lane)
                add(row[x + lane], std::size_t(lane), start + slope * float(x + lane), reach);
        for (; x < width; ++x)
            add(row[x], 0, start + slope * float(x), reach);
    }
    static float total(const Lanes &values)
    {
        return std::accumulate(values.begin(), values.end(), 0.0f);
    }

    Lanes counts = {}, sums = {}, squaresOf = {};
};

// SEP's mode of whole values is good to some tenths of a value only, and its noise has the gradient
// within a tile in it. Mean and scatter of the pixels without stars are much better.
void settle(const cv::Mat1f &tile, float minNoise, Plane &plane)
{
    constexpr int rounds = 5;
    constexpr float settled = 0.03f;        // of the noise
    constexpr float keptVariance = 0.9113f; // of a normal distribution cut off at 2.5 sigma
    for (int round = 0; round < rounds; ++round) {
        const ClippedSums sums(tile, plane, clipSigmas * plane.sigma);
        const float n = sums.count();
        if (!(n > 1.0f))
            return;
        const float shift = sums.sum() / n;
        const float variance = (sums.squares() / n - shift * shift) / keptVariance;
        const float sigma = std::max(std::sqrt(std::max(variance, 0.0f)), minNoise);
        const bool still =
            std::abs(shift) < settled * sigma && std::abs(plane.sigma - sigma) < settled * sigma;
        plane.level += shift;
        plane.sigma = sigma;
        if (still)
            return;
    }
}

// Whether the darker pixels are cut off, at 0 mostly.
bool isCutOff(const cv::Mat1f &tile, const Plane &plane)
{
    float darkest = plane.level;
    for (int y = 0; y < tile.rows; ++y)
        for (const float *value = tile[y]; value != tile[y] + tile.cols; ++value)
            darkest = *value > blankValue ? std::min(darkest, *value) : darkest;
    return plane.level - darkest < cutOffDepth * plane.sigma;
}

// A first plane without slopes.
Plane levelPlane(const cv::Mat1f &tile, float level, float sigma, float minNoise)
{
    Plane plane;
    plane.level = level;
    plane.sigma = std::max(sigma, minNoise);
    if (!isCutOff(tile, plane)) {
        settle(tile, minNoise, plane);
        return plane;
    }
    // This is no normal distribution: its mean, and the scatter of its brighter half.
    plane.sigma = std::max(plane.sigma, noiseOfBrighter(tile, level));
    const ClippedSums sums(tile, plane, clipSigmas * plane.sigma);
    if (sums.count() > 0.0f)
        plane.level += sums.sum() / sums.count();
    return plane;
}

class Tiles
{
public:
    Tiles(const cv::Mat1f &image, cv::Size tileSize) : looked(image), size(tileSize) {}

    cv::Mat1f area(int i, int j) const
    {
        return looked(cv::Rect(i * size.width, j * size.height, size.width, size.height) &
                      cv::Rect(0, 0, looked.cols, looked.rows));
    }
    /// Improves levels and noise twice: the first levels give the slopes within the tiles.
    void refine(cv::Mat1f &levels, cv::Mat1f &sigma, float minNoise) const
    {
        cv::Mat1b cutOff(levels.size());
        for (int j = 0; j < levels.rows; ++j)
            for (int i = 0; i < levels.cols; ++i) {
                const cv::Mat1f tile = area(i, j);
                const Plane plane = levelPlane(tile, levels(j, i), sigma(j, i), minNoise);
                cutOff(j, i) = isCutOff(tile, plane);
                levels(j, i) = plane.level;
                sigma(j, i) = plane.sigma;
            }
        const cv::Mat1f around = withRing(levels);
        for (int j = 0; j < levels.rows; ++j)
            for (int i = 0; i < levels.cols; ++i) {
                Plane plane = {levels(j, i),
                               0.5f * (around(j + 1, i + 2) - around(j + 1, i)) / float(size.width),
                               0.5f * (around(j + 2, i + 1) - around(j, i + 1)) /
                                   float(size.height),
                               sigma(j, i),
                               0.5f * float(size.width - 1),
                               0.5f * float(size.height - 1)};
                if (!cutOff(j, i))
                    settle(area(i, j), minNoise, plane);
                levels(j, i) = plane.level;
                sigma(j, i) = plane.sigma;
            }
    }

private:
    const cv::Mat1f &looked;
    cv::Size size;
};

// One sigma of a pixel as the differences of neighbours have it.
double noiseOfNeighbours(const cv::Mat1f &image, double minNoise)
{
    std::vector<float> steps;
    for (int y = 0; y < image.rows; y += 6)
        for (int x = 1; x < image.cols; x += 8)
            if (image(y, x) > blankValue && image(y, x - 1) > blankValue)
                steps.push_back(std::abs(image(y, x) - image(y, x - 1)));
    if (steps.empty())
        return minNoise;
    const auto middle = steps.begin() + std::ptrdiff_t(steps.size() / 2);
    std::nth_element(steps.begin(), middle, steps.end());
    return std::max(1.4826 / std::sqrt(2.0) * double(*middle), minNoise);
}

struct BackgroundDeleter {
    void operator()(sep_bkg *background) const { sep_bkg_free(background); }
};
using BackgroundKeeper = std::unique_ptr<sep_bkg, BackgroundDeleter>;

// What SEP finds in a thinned picture: one node a tile.
BackgroundKeeper roughBackground(cv::Mat1f &picture, cv::Size tile)
{
    sep_image image = {};
    image.data = picture.data;
    image.dtype = SEP_TFLOAT;
    image.w = picture.cols;
    image.h = picture.rows;
    image.gain = 1.0;
    sep_bkg *measured = nullptr;
    const int status = sep_background(&image, tile.width, tile.height, filterTiles, filterTiles,
                                      filterLimit, &measured);
    return BackgroundKeeper(status == 0 ? measured : nullptr);
}
} // namespace

std::optional<SkyBackground> SkyBackground::measure(const cv::Mat1f &image, float minNoise)
{
    const int rowStep = rowStride(image);
    const cv::Mat1f looked = thinned(image, rowStep, columnStride);
    const int nx = tilesAlong(image.cols), ny = tilesAlong(image.rows);
    // SEP's part is a beginning: it need not see all that is looked at.
    const int coarser = rowStep > columnStride ? 2 : 1;
    cv::Size tile((looked.cols + nx - 1) / nx, (looked.rows + ny - 1) / ny);
    tile.width += tile.width % coarser;
    cv::Mat1f rough = thinned(looked, 1, coarser);
    const BackgroundKeeper measured = roughBackground(rough, {tile.width / coarser, tile.height});
    if (!measured)
        return std::nullopt;
    SkyBackground out;
    out.tileWidth = tile.width * columnStride;
    out.tileHeight = tile.height * rowStep;
    cv::Mat1f back(measured->ny, measured->nx, measured->back);
    cv::Mat1f sigma(measured->ny, measured->nx, measured->sigma);
    if (!cv::checkRange(back) || !cv::checkRange(sigma))
        return std::nullopt;
    Tiles(looked, tile).refine(back, sigma, minNoise);
    out.level = withRing(back);
    out.inverseNoise = withRing(cv::Mat1f(1.0f / sigma));
    out.neighbourNoise = noiseOfNeighbours(looked, double(minNoise));
    // Beyond the outer nodes a straight line may reach 0.
    for (float &value : out.inverseNoise)
        value = std::clamp(value, 1e-9f, 1.0f / minNoise);
    return out;
}

float SkyBackground::medianLevel() const
{
    return medianOf(level);
}

float SkyBackground::medianNoise() const
{
    return 1.0f / medianOf(inverseNoise);
}

float SkyBackground::valueAt(const cv::Mat1f &nodes, double x, double y) const
{
    const double u = std::clamp((x + 0.5) / tileWidth + 0.5, 0.0, nodes.cols - 1.001);
    const double v = std::clamp((y + 0.5) / tileHeight + 0.5, 0.0, nodes.rows - 1.001);
    const int i = static_cast<int>(u), j = static_cast<int>(v);
    const float fu = static_cast<float>(u - i), fv = static_cast<float>(v - j);
    const float upper = nodes(j, i) * (1.0f - fu) + nodes(j, i + 1) * fu;
    const float lower = nodes(j + 1, i) * (1.0f - fu) + nodes(j + 1, i + 1) * fu;
    return upper * (1.0f - fv) + lower * fv;
}

void SkyBackground::normaliseRow(float *row, int y, int width) const
{
    const double v = std::clamp((y + 0.5) / tileHeight + 0.5, 0.0, level.rows - 1.001);
    const int j = static_cast<int>(v);
    const float part = static_cast<float>(v - j);
    const auto nodeOf = [&](const cv::Mat1f &nodes, int i) {
        return nodes(j, i) * (1.0f - part) + nodes(j + 1, i) * part;
    };
    int x = 0;
    for (int i = 0; i + 1 < level.cols && x < width; ++i) {
        // Node i is half a tile before the start of tile i, the ring's first one half a tile
        // outside.
        const double place = (i - 0.5) * tileWidth - 0.5;
        const int end = i + 2 == level.cols
                            ? width
                            : std::min(width, static_cast<int>(std::ceil(place + tileWidth)));
        const auto across = static_cast<float>(1.0 / tileWidth), before = static_cast<float>(place);
        const float levelStep = (nodeOf(level, i + 1) - nodeOf(level, i)) * across;
        const float scaleStep = (nodeOf(inverseNoise, i + 1) - nodeOf(inverseNoise, i)) * across;
        const float levelAt0 = nodeOf(level, i) - levelStep * before;
        const float scaleAt0 = nodeOf(inverseNoise, i) - scaleStep * before;
        for (; x < end; ++x) {
            const float at = static_cast<float>(x);
            const float value = (row[x] - levelAt0 - levelStep * at) * (scaleAt0 + scaleStep * at);
            row[x] = row[x] <= blankValue ? 0.0f : value;
        }
    }
}

void SkyBackground::normalise(cv::Mat1f &image) const
{
    for (int y = 0; y < image.rows; ++y)
        normaliseRow(image[y], y, image.cols);
}
} // namespace recognition

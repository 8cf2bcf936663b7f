// SPDX-License-Identifier: MIT
// The background's grid comes from SEP, measured on every second pixel of every second row.
#include "recognition/skybackground.h"

#include "recognition/sepheader.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include <vector>

namespace recognition
{
namespace
{
constexpr int stride = 2;      // between the pixels that are looked at
constexpr int usualTile = 64;  // pixels
constexpr int leastTile = 16;  // pixels
constexpr int filterTiles = 3; // a median of 3 x 3 tiles against bright stars
constexpr double filterLimit = 0.0;
constexpr float clipSigmas = 2.5f;

int tilesAlong(int pixels)
{
    const int tile = std::clamp(pixels / 4, leastTile, usualTile);
    return std::max(1, static_cast<int>(std::lround(double(pixels) / tile)));
}

cv::Mat1f everySecond(const cv::Mat1f &image)
{
    cv::Mat1f out((image.rows + stride - 1) / stride, (image.cols + stride - 1) / stride);
    for (int y = 0; y < out.rows; ++y) {
        const float *in = image[y * stride];
        float *to = out[y];
        for (int x = 0; x < out.cols; ++x)
            to[x] = in[x * stride];
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

// SEP's mode of whole values is good to some tenths of a value only. The mean of a tile's values
// about it, without stars, is much better where the noise is a few values.
float meanAbout(const cv::Mat1f &tile, float level, float sigma)
{
    constexpr int rounds = 2;
    const float reach = clipSigmas * sigma;
    for (int round = 0; round < rounds; ++round) {
        float sum = 0.0f, count = 0.0f;
        for (int y = 0; y < tile.rows; ++y) {
            const float *row = tile[y];
            for (int x = 0; x < tile.cols; ++x) {
                const float part = std::abs(row[x] - level) <= reach ? 1.0f : 0.0f;
                sum += part * (row[x] - level);
                count += part;
            }
        }
        if (count > 0.0f)
            level += sum / count;
    }
    return level;
}

void refine(cv::Mat1f &levels, const cv::Mat1f &sigma, const cv::Mat1f &looked, cv::Size tile,
            float leastNoise)
{
    const cv::Rect all(0, 0, looked.cols, looked.rows);
    for (int j = 0; j < levels.rows; ++j)
        for (int i = 0; i < levels.cols; ++i) {
            const cv::Rect area =
                cv::Rect(i * tile.width, j * tile.height, tile.width, tile.height) & all;
            levels(j, i) = meanAbout(looked(area), levels(j, i), std::max(sigma(j, i), leastNoise));
        }
}

struct BackgroundDeleter {
    void operator()(sep_bkg *background) const { sep_bkg_free(background); }
};
} // namespace

std::optional<SkyBackground> SkyBackground::measure(const cv::Mat1f &image, float leastNoise)
{
    cv::Mat1f looked = everySecond(image);
    const int nx = tilesAlong(image.cols), ny = tilesAlong(image.rows);
    sep_image picture = {};
    picture.data = looked.data;
    picture.dtype = SEP_TFLOAT;
    picture.w = looked.cols;
    picture.h = looked.rows;
    picture.gain = 1.0;
    const int width = (looked.cols + nx - 1) / nx, height = (looked.rows + ny - 1) / ny;
    sep_bkg *measured = nullptr;
    if (sep_background(&picture, width, height, filterTiles, filterTiles, filterLimit, &measured) !=
        0)
        return std::nullopt;
    const std::unique_ptr<sep_bkg, BackgroundDeleter> keeper(measured);
    SkyBackground out;
    out.tileWidth = width * stride;
    out.tileHeight = height * stride;
    cv::Mat1f back(measured->ny, measured->nx, measured->back);
    const cv::Mat1f sigma(measured->ny, measured->nx, measured->sigma);
    cv::Mat1f inverse(sigma.size());
    std::transform(sigma.begin(), sigma.end(), inverse.begin(), [leastNoise](float noise) {
        return 1.0f / (noise > leastNoise ? noise : leastNoise);
    });
    if (!cv::checkRange(back))
        return std::nullopt;
    refine(back, sigma, looked, {width, height}, leastNoise);
    out.level = withRing(back);
    out.inverseNoise = withRing(inverse);
    // Beyond the outer nodes a straight line may reach 0.
    for (float &value : out.inverseNoise)
        value = std::clamp(value, 1e-9f, 1.0f / leastNoise);
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

void SkyBackground::fillRow(const cv::Mat1f &nodes, int y, std::vector<float> &columns) const
{
    const double v = std::clamp((y + 0.5) / tileHeight + 0.5, 0.0, nodes.rows - 1.001);
    const int j = static_cast<int>(v);
    const float part = static_cast<float>(v - j);
    const int width = static_cast<int>(columns.size());
    int x = 0;
    for (int i = 0; i + 1 < nodes.cols && x < width; ++i) {
        const float left = nodes(j, i) * (1.0f - part) + nodes(j + 1, i) * part;
        const float right = nodes(j, i + 1) * (1.0f - part) + nodes(j + 1, i + 1) * part;
        const float step = (right - left) / static_cast<float>(tileWidth);
        // Node i lies half a tile before tile i begins, the ring's first one half a tile outside.
        const double place = (i - 0.5) * tileWidth - 0.5;
        const int last = i + 2 == nodes.cols
                             ? width
                             : std::min(width, static_cast<int>(std::ceil(place + tileWidth)));
        const float origin = left - step * static_cast<float>(place);
        for (; x < last; ++x)
            columns[static_cast<std::size_t>(x)] = origin + step * static_cast<float>(x);
    }
}

void SkyBackground::normalise(cv::Mat1f &image) const
{
    std::vector<float> levels(static_cast<std::size_t>(image.cols)), scales(levels.size());
    for (int y = 0; y < image.rows; ++y) {
        fillRow(level, y, levels);
        fillRow(inverseNoise, y, scales);
        float *row = image[y];
        for (std::size_t x = 0; x < levels.size(); ++x)
            row[x] = row[x] <= blankValue ? 0.0f : (row[x] - levels[x]) * scales[x];
    }
}
} // namespace recognition

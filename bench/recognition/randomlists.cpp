// SPDX-License-Identifier: MIT
// Draws star lists at random.
#include "bench/recognition/randomlists.h"

#include <cmath>
#include <iterator>
#include <limits>

#include "virtualcamera/noise.h"

namespace
{
using recognition::DetectedStar;
using recognition::PixelPlace;

constexpr int maxStars = 60;
constexpr int minStarsOfShort = 5, maxStarsOfShort = 12;
constexpr std::uint64_t firstShort = 1000000; // list

class ListDraw
{
public:
    explicit ListDraw(std::mt19937_64 &engine) : random(engine) {}
    double between(double low, double high)
    {
        return std::uniform_real_distribution<double>(low, high)(random);
    }
    int whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); }

private:
    std::mt19937_64 &random;
};

/// What the places of one list have in common.
struct Layout {
    ListKind kind;
    double width, height, angle, step; ///< pixels, radians
};

/// Short lists are the likelier ones to be mistaken for the sky: half have 8 stars or fewer.
int starsOf(std::uint64_t number, ListDraw &draw)
{
    const bool isShort = number >= firstShort;
    const double least = isShort ? minStarsOfShort + 1.0 : 1.0;
    const double most = isShort ? maxStarsOfShort + 2.0 : maxStars + 2.0;
    return int(std::exp(draw.between(std::log(least), std::log(most)))) - 1;
}

PixelPlace placeOf(const Layout &layout, int i, const std::vector<DetectedStar> &before,
                   ListDraw &draw)
{
    const double midX = 0.5 * layout.width, midY = 0.5 * layout.height;
    const PixelPlace even = {draw.between(0.0, layout.width), draw.between(0.0, layout.height)};
    switch (layout.kind) {
    case ListKind::Line: // as lamps are
        return {midX + i * layout.step * std::cos(layout.angle),
                midY + i * layout.step * std::sin(layout.angle)};
    case ListKind::Grid: { // as windows are
        const int row = i / 8;
        return {(i % 8) * layout.step, row * layout.step};
    }
    case ListKind::Crowd:
        return {0.4 * layout.width + draw.between(0.0, 60.0),
                0.4 * layout.height + draw.between(0.0, 60.0)};
    case ListKind::OnePlace:
        return {midX, midY};
    case ListKind::Circle:
        return {midX + 5.0 * layout.step * std::cos(0.3 * i),
                midY + 5.0 * layout.step * std::sin(0.3 * i)};
    case ListKind::Pairs: // each second star within a pixel of the one before
        if (i % 2 == 1)
            return {before.back().x + draw.between(-1.0, 1.0),
                    before.back().y + draw.between(-1.0, 1.0)};
        return even;
    case ListKind::Even:
    case ListKind::Spoilt:
        break;
    }
    return even;
}
} // namespace

std::string nameOf(ListKind kind)
{
    static const char *const names[listKinds] = {"even",      "line",   "grid",  "crowd",
                                                 "one place", "circle", "pairs", "spoilt values"};
    return names[int(kind)];
}

RandomList randomList(std::uint64_t number)
{
    std::mt19937_64 random(virtualsky::frameSeed(11, number));
    ListDraw draw(random);
    RandomList list;
    list.kind = ListKind(number % listKinds);
    list.width = draw.whole(1, 5000);
    list.height = draw.whole(1, 4000);
    list.options.utcSeconds = draw.between(1.58e9, 2.24e9); // 2020 to 2040
    if (draw.whole(0, 1) == 0) {
        list.options.minScale = draw.between(1.0, 100.0); // arcseconds a pixel
        list.options.maxScale = list.options.minScale * draw.between(1.0, 3.0);
    }
    if (draw.whole(0, 1) == 0)
        list.options.hemisphere =
            draw.whole(0, 1) == 0 ? recognition::Hemisphere::North : recognition::Hemisphere::South;
    if (draw.whole(0, 3) == 0)
        list.options.mirrored = draw.whole(0, 1) == 0;
    const Layout layout = {list.kind, double(list.width), double(list.height),
                           draw.between(0.0, 7.0), draw.between(1.0, 60.0)};
    const int count = starsOf(number, draw);
    for (int i = 0; i < count; ++i) {
        const PixelPlace place = placeOf(layout, i, list.stars, draw);
        list.stars.push_back({place.x, place.y, draw.between(1.0, 1e5), draw.between(3.0, 300.0),
                              draw.between(1.0, 8.0), draw.whole(0, 9) == 0});
    }
    if (list.kind == ListKind::Spoilt)
        spoil(list.stars, random);
    return list;
}

void spoil(std::vector<DetectedStar> &stars, std::mt19937_64 &random)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double values[] = {std::numeric_limits<double>::quiet_NaN(),
                                 infinity,
                                 -infinity,
                                 -1e300,
                                 1e300,
                                 0.0,
                                 -1.0,
                                 1e-300};
    ListDraw draw(random);
    for (DetectedStar &star : stars) {
        double *const members[] = {&star.x, &star.y, &star.flux, &star.snr, &star.fwhm};
        if (draw.whole(0, 1) == 0)
            *members[draw.whole(0, int(std::size(members)) - 1)] =
                values[draw.whole(0, int(std::size(values)) - 1)];
    }
}

// SPDX-License-Identifier: MIT
// Draws "virtual sky" into a frame.
#include "virtualcamera/label.h"

#include <cstddef>

namespace virtualsky
{
namespace
{
constexpr int contrast = 90; ///< of 255

constexpr bool isChanged(int x, int y)
{
    return x >= 0 && y >= 0 && x < labelWidth && y < labelHeight &&
           labelPicture[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] == '#';
}

constexpr int changedAround(int x, int y)
{
    int count = 0;
    for (int dy = -1; dy <= 1; ++dy)
        for (int dx = -1; dx <= 1; ++dx)
            count += isChanged(x + dx, y + dy) ? 1 : 0;
    return count;
}

constexpr bool escapesMedian()
{
    for (int y = -1; y <= labelHeight; ++y)
        for (int x = -1; x <= labelWidth; ++x)
            if (changedAround(x, y) > 4)
                return false;
    return true;
}
static_assert(escapesMedian(), "the label could be taken for stars");
static_assert(labelBelow >= 1 && labelLeft >= 1, "a median filter repeats the edge's pixels");
static_assert(labelHeight + labelBelow <= 20, "stars can be picked there");

std::uint8_t changed(std::uint8_t value)
{
    return static_cast<std::uint8_t>(value < 128 ? value + contrast : value - contrast);
}
} // namespace

void drawLabel(int width, int height, unsigned channels, std::uint8_t *frame)
{
    if (width < labelWidth + 2 * labelLeft || height < labelHeight + 2 * labelBelow)
        return;
    const int top = height - labelBelow - labelHeight;
    for (int y = 0; y < labelHeight; ++y) {
        const std::ptrdiff_t start = std::ptrdiff_t{top + y} * width + labelLeft;
        for (int x = 0; x < labelWidth; ++x) {
            if (!isChanged(x, y))
                continue;
            std::uint8_t *const pixel = frame + (start + x) * static_cast<std::ptrdiff_t>(channels);
            for (unsigned channel = 0; channel < channels; ++channel)
                pixel[channel] = changed(pixel[channel]);
        }
    }
}
} // namespace virtualsky

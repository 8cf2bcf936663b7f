// SPDX-License-Identifier: MIT
// What tells a picture of the virtual sky from one of a real camera?
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace virtualsky
{
inline constexpr int labelLeft = 8;  ///< pixels left of the label
inline constexpr int labelBelow = 3; ///< rows below it: it lies within the lowest 16

/// The label, '#' where a pixel is changed. Its strokes are one pixel wide and have gaps where they
/// would meet: no square of 3 x 3 pixels holds more than four changed ones, so that the median of
/// each is still one of the sky's values, and no search for stars behind a median filter finds any.
inline constexpr std::array<std::string_view, 13> labelPicture = {
    "....................#....................#..............#.............",
    ".........#..........#....................#..............#.............",
    "....................#....................#..............#.............",
    "#.....#..#...###..##.##..#....#...###.#..#........####..#....#..#....#",
    "#.....#..#..#.......#....#....#..#....#..#.......#......#...#...#....#",
    ".#...#...#..#.......#....#....#..#....#..#.......#......#..#....#....#",
    ".#...#...#..#.......#....#....#..#....#..#........###...#.#.....#....#",
    "..#.#....#..#.......#....#....#..#....#..#...........#..#..#....#....#",
    "...#.....#..#.......#....#....#..#....#..#...........#..#...#...#....#",
    "...#.....#..#........##...####....###.#..#.......####...#....#...###.#",
    ".....................................................................#",
    ".....................................................................#",
    "..................................................................###."};

inline constexpr int labelWidth = static_cast<int>(labelPicture.front().size());
inline constexpr int labelHeight = static_cast<int>(labelPicture.size());

/// Writes the label into the lowest rows, lighter than a dark sky and darker than a bright one. A
/// frame that it does not fit into stays as it is.
/// @param frame rows of width * channels bytes, from the top
void drawLabel(int width, int height, unsigned channels, std::uint8_t *frame);
} // namespace virtualsky

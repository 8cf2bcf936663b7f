// SPDX-License-Identifier: MIT
// What distinguishes a picture of the virtual sky from one of a real camera?
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace virtualsky
{
inline constexpr int labelLeft = 8;  ///< pixels left of the label
inline constexpr int labelBelow = 3; ///< rows below it: the label is within the lowest 16 rows

/// The label; '#' is a changed pixel. Its strokes are one pixel wide and have gaps at the joints:
/// no square of 3 x 3 pixels contains more than four changed pixels. The median of each square is
/// therefore still a sky value, and a star search after a median filter does not find the label.
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

/// Draws the label into the lowest rows, lighter than a dark sky and darker than a bright one. A
/// frame that is too small stays unchanged.
/// @param frame rows of width * channels bytes, from the top
void drawLabel(int width, int height, unsigned channels, std::uint8_t *frame);
} // namespace virtualsky

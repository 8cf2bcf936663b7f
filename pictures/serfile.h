// SPDX-License-Identifier: MIT
// Which frames are in a SER file, the format of planetary cameras' videos?
//
// Reference: SER format description, version 3 (Grischa Hahn, 2014).
#pragma once

#include <cstdint>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "pictures/picturefile.h"

namespace pictures
{
struct SerHeader {
    std::int32_t colour = 0; ///< 0 grey, 8 to 11 Bayer, 16 to 19 complementary, 100 RGB, 101 BGR
    std::int32_t width = 0, height = 0;
    std::int32_t depth = 8;  ///< bits of a sample, 1 to 16; above 8 a sample takes two bytes
    std::int32_t frames = 0; ///< complete ones that the file holds
};

/// An open SER file: uncompressed, 8 or 16 bits, grey, Bayer or colour. A file that is cut off ends
/// with its last complete frame. Not thread-safe.
class SerFile
{
public:
    explicit SerFile(const std::string &path);

    /// What is wrong with the file; empty = nothing.
    const std::string &complaint() const { return fault; }
    const SerHeader &header() const { return head; }

    /// @param number from 0
    PictureFile frame(int number);

private:
    void readHeader();
    void findByteOrder();
    void readDates();
    std::int64_t frameBytes() const;
    bool readFrame(int number, cv::Mat &pixels);

    std::ifstream file;
    std::string fault;
    SerHeader head;
    bool swapped = false;            // samples of two bytes are stored with the high one first
    std::vector<std::int64_t> ticks; // of each frame, 100 ns since the year 1; may be empty
};

/// Whether the name ends in ".ser", in any case.
bool isSerName(const std::string &path);
} // namespace pictures

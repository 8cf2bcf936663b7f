// SPDX-License-Identifier: MIT
// Reads SER files frame by frame.
#include "pictures/serfile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <opencv2/imgproc.hpp>
#include <sys/stat.h>

namespace pictures
{
namespace
{
constexpr std::int64_t headerBytes = 178, tickBytes = 8;
constexpr char signature[] = "LUCAM-RECORDER";
constexpr std::int32_t longestFrameSide = 32767;
constexpr double ticksPerSecond = 1e7;
constexpr double unixEpoch = 62135596800.0; // seconds from 0001-01-01 to 1970-01-01

std::int32_t int32At(const char *bytes)
{
    std::uint32_t value = 0;
    for (int i = 3; i >= 0; --i)
        value = value << 8 | static_cast<unsigned char>(bytes[i]);
    return static_cast<std::int32_t>(value);
}

std::int64_t int64At(const char *bytes)
{
    std::uint64_t value = 0;
    for (int i = 7; i >= 0; --i)
        value = value << 8 | static_cast<unsigned char>(bytes[i]);
    return static_cast<std::int64_t>(value);
}

bool isKnownColour(std::int32_t colour)
{
    return colour == 0 || (colour >= 8 && colour <= 11) || (colour >= 16 && colour <= 19) ||
           colour == 100 || colour == 101;
}

int channelsOf(const SerHeader &head)
{
    return head.colour >= 100 ? 3 : 1;
}

// How much neighbours in a row differ: the wrong order of bytes makes a picture of noise.
double roughness(const cv::Mat &samples, bool swap)
{
    double sum = 0.0;
    for (int y = 0; y < samples.rows; ++y) {
        const std::uint16_t *const row = samples.ptr<std::uint16_t>(y);
        const auto value = [row, swap](int x) {
            const unsigned v = row[x];
            return double(swap ? (v << 8 & 0xff00u) | v >> 8 : v);
        };
        const int step = samples.channels();
        for (int x = 2 * step; x < samples.cols * step; ++x) // 2: the same colour of a mosaic
            sum += std::abs(value(x) - value(x - 2 * step));
    }
    return sum;
}

void swapBytes(cv::Mat &samples)
{
    for (int y = 0; y < samples.rows; ++y) {
        std::uint16_t *const row = samples.ptr<std::uint16_t>(y);
        for (int x = 0; x < samples.cols * samples.channels(); ++x)
            row[x] = static_cast<std::uint16_t>(row[x] << 8 | row[x] >> 8);
    }
}
} // namespace

SerFile::SerFile(const std::string &path)
{
    struct stat status = {};
    if (::stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) {
        fault = "It is not an ordinary file.";
        return;
    }
    errno = 0;
    file.open(path, std::ios::binary);
    if (!file)
        fault = std::string("It cannot be read: ") + std::strerror(errno != 0 ? errno : EIO) + ".";
    else
        readHeader();
    if (fault.empty() && head.depth > 8)
        findByteOrder();
    if (fault.empty())
        readDates();
}

std::int64_t SerFile::frameBytes() const
{
    return std::int64_t(head.width) * head.height * channelsOf(head) * (head.depth > 8 ? 2 : 1);
}

void SerFile::readHeader()
{
    std::array<char, headerBytes> bytes = {};
    if (!file.read(bytes.data(), headerBytes) ||
        std::memcmp(bytes.data(), signature, sizeof signature - 1) != 0) {
        fault = "It is not a SER file.";
        return;
    }
    head.colour = int32At(&bytes[18]);
    head.width = int32At(&bytes[26]);
    head.height = int32At(&bytes[30]);
    head.depth = int32At(&bytes[34]);
    head.frames = int32At(&bytes[38]);
    if (!isKnownColour(head.colour) || head.depth < 1 || head.depth > 16 || head.width < 1 ||
        head.height < 1 || head.width > longestFrameSide || head.height > longestFrameSide) {
        fault = "It is a SER file of a kind that cannot be read.";
        return;
    }
    file.seekg(0, std::ios::end);
    const std::int64_t complete = (std::int64_t(file.tellg()) - headerBytes) / frameBytes();
    head.frames = std::int32_t(std::min<std::int64_t>(head.frames, complete));
    if (head.frames < 1)
        fault = "It is a SER file without a complete frame.";
}

// The header's own field is of no use: programs disagree about its meaning.
void SerFile::findByteOrder()
{
    cv::Mat first;
    if (readFrame(0, first))
        swapped = roughness(first, true) < roughness(first, false);
}

void SerFile::readDates()
{
    const std::size_t count = std::size_t(head.frames);
    std::vector<char> bytes(count * tickBytes);
    file.clear();
    file.seekg(headerBytes + frameBytes() * head.frames);
    if (!file.read(bytes.data(), std::streamsize(bytes.size())))
        return;
    for (std::size_t i = 0; i < count; ++i)
        ticks.push_back(int64At(&bytes[i * tickBytes]));
}

bool SerFile::readFrame(int number, cv::Mat &pixels)
{
    pixels.create(head.height, head.width,
                  CV_MAKETYPE(head.depth > 8 ? CV_16U : CV_8U, channelsOf(head)));
    file.clear();
    file.seekg(headerBytes + frameBytes() * number);
    return bool(file.read(reinterpret_cast<char *>(pixels.data), frameBytes()));
}

PictureFile SerFile::frame(int number)
{
    PictureFile out;
    out.complaint = fault;
    if (!fault.empty())
        return out;
    try {
        if (number < 0 || number >= head.frames || !readFrame(number, out.pixels)) {
            out.pixels.release();
            out.complaint = "It has no frame " + std::to_string(number + 1) + ".";
            return out;
        }
        if (swapped)
            swapBytes(out.pixels);
        if (head.colour == 100)
            cv::cvtColor(out.pixels, out.pixels, cv::COLOR_RGB2BGR);
    } catch (const std::exception &) { // too large for the memory
        out.pixels.release();
        out.complaint = "Its frames are too large.";
        return out;
    }
    out.mosaic = head.colour >= 8 && head.colour <= 19;
    if (out.mosaic && head.colour <= 11) // above: other colours than red, green and blue
        out.pattern = std::array{"RGGB", "GRBG", "GBRG", "BGGR"}[std::size_t(head.colour) - 8];
    const std::size_t index = std::size_t(number);
    if (index < ticks.size() && ticks[index] > 0)
        out.date = double(ticks[index]) / ticksPerSecond - unixEpoch;
    return out;
}

bool isSerName(const std::string &path)
{
    const std::size_t length = path.size();
    return length >= 4 && path[length - 4] == '.' && (path[length - 3] | 32) == 's' &&
           (path[length - 2] | 32) == 'e' && (path[length - 1] | 32) == 'r';
}
} // namespace pictures

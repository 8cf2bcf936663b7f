// SPDX-License-Identifier: MIT
// Decoding by OpenCV, of bytes that are read once.
#include "recognise/picturefile.h"

#include "recognise/exifdate.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <opencv2/imgcodecs.hpp>

namespace
{
constexpr std::streamoff mostBytes = std::streamoff(1) << 29; // 24 megapixels of 16 bits are less

std::string readFile(const std::string &path, std::string &complaint)
{
    errno = 0;
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    const std::streamoff size = file ? std::streamoff(file.tellg()) : -1;
    std::string bytes;
    if (size > mostBytes) {
        complaint = "The file is too large.";
    } else if (size >= 0 && file.seekg(0)) {
        bytes.resize(std::size_t(size));
        file.read(bytes.data(), size);
    }
    if (complaint.empty() && (!file || size < 0))
        complaint =
            std::string("It cannot be read: ") + std::strerror(errno != 0 ? errno : EIO) + ".";
    return bytes;
}
} // namespace

PictureFile readPicture(const std::string &path)
{
    PictureFile out;
    std::string bytes = readFile(path, out.complaint);
    if (!out.complaint.empty())
        return out;
    constexpr int flags = cv::IMREAD_ANYDEPTH | cv::IMREAD_ANYCOLOR | cv::IMREAD_IGNORE_ORIENTATION;
    try {
        if (!bytes.empty())
            out.pixels = cv::imdecode(cv::Mat(1, int(bytes.size()), CV_8UC1, bytes.data()), flags);
    } catch (const std::exception &) {
        out.pixels.release(); // too large a picture, or a damaged one
    }
    if (out.pixels.empty())
        out.complaint = "It is not a PNG, JPEG or TIFF picture that can be read.";
    else
        out.date = dateOfPicture(bytes);
    return out;
}

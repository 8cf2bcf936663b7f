// SPDX-License-Identifier: MIT
// Decoding by OpenCV and CFITSIO, of bytes that are read once.
#include "pictures/picturefile.h"

#include "pictures/depth.h"
#include "pictures/exifdate.h"
#include "pictures/fitsfile.h"
#include "pictures/jpegend.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <opencv2/imgcodecs.hpp>
#include <sys/stat.h>

namespace
{
constexpr std::streamoff maxBytes = std::streamoff(1) << 29; // 24 megapixels of 16 bits are less

std::string readFile(const std::string &path, std::string &complaint)
{
    errno = 0;
    struct stat status = {};
    // Opening a pipe would wait for its writer.
    if (::stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) {
        complaint = "It is not an ordinary file.";
        return {};
    }
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    const std::streamoff size = file ? std::streamoff(file.tellg()) : -1;
    std::string bytes;
    if (size > maxBytes) {
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

PictureFile decodePicture(std::string &bytes)
{
    if (pictures::isFits(bytes))
        return pictures::decodeFits(bytes);
    PictureFile out;
    constexpr int flags = cv::IMREAD_ANYDEPTH | cv::IMREAD_ANYCOLOR | cv::IMREAD_IGNORE_ORIENTATION;
    try {
        if (!bytes.empty())
            out.pixels = cv::imdecode(cv::Mat(1, int(bytes.size()), CV_8UC1, bytes.data()), flags);
    } catch (const std::exception &) {
        out.pixels.release(); // too large a picture, or a damaged one
    }
    if (!out.pixels.empty() && out.pixels.depth() != CV_8U && out.pixels.depth() != CV_16U)
        out.pixels = pictures::to16Bits(out.pixels);
    if (out.pixels.empty())
        out.complaint = "It is not a PNG, JPEG, TIFF or FITS picture that can be read.";
    else
        out.date = dateOfPicture(bytes);
    return out;
}

PictureFile readPicture(const std::string &path)
{
    PictureFile out;
    std::string bytes = readFile(path, out.complaint);
    if (out.complaint.empty() && pictures::isCutJpeg(bytes))
        out.complaint = "It is a JPEG picture whose end is missing.";
    return out.complaint.empty() ? decodePicture(bytes) : out;
}

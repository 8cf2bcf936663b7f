// SPDX-License-Identifier: MIT
// Decodes FITS, JPEG and raw frames; the bytes are not trusted.
#include "framesources/indiframe.h"

#include <cstring>
#include <opencv2/imgproc.hpp>

#include "pictures/picturefile.h"

namespace framesources
{
namespace
{
std::optional<NativeFrame> decodeRaw(const IndiBlob &blob, const StreamShape &stream)
{
    const std::size_t area = std::size_t(stream.size.width) * std::size_t(stream.size.height);
    const int type = blob.bytes.size() == area       ? CV_8UC1
                     : blob.bytes.size() == 2 * area ? CV_16UC1
                     : blob.bytes.size() == 3 * area ? CV_8UC3
                                                     : -1;
    if (area == 0 || type < 0)
        return std::nullopt;
    NativeFrame frame;
    frame.pixels.create(stream.size, type);
    std::memcpy(frame.pixels.data, blob.bytes.data(), blob.bytes.size());
    if (type == CV_8UC3)
        cv::cvtColor(frame.pixels, frame.pixels, cv::COLOR_RGB2BGR);
    frame.mosaic = stream.mosaic && type != CV_8UC3;
    if (frame.mosaic)
        frame.pattern = stream.pattern;
    return frame;
}
} // namespace

std::optional<NativeFrame> decodeBlob(IndiBlob &blob, const StreamShape &stream, std::string &fault)
{
    if (blob.format == ".stream") {
        if (auto frame = decodeRaw(blob, stream))
            return frame;
        fault = "a streamed frame of " + std::to_string(blob.bytes.size()) +
                " bytes does not fit " + std::to_string(stream.size.width) + " x " +
                std::to_string(stream.size.height) + " pixels";
        return std::nullopt;
    }
    PictureFile picture = decodePicture(blob.bytes);
    if (picture.complaint.empty())
        return NativeFrame{std::move(picture.pixels), picture.mosaic, 1, {}, picture.date,
                           std::move(picture.pattern)};
    fault = "a frame cannot be read: " + picture.complaint;
    return std::nullopt;
}
} // namespace framesources

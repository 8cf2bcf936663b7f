// SPDX-License-Identifier: MIT
// FITS by CFITSIO, from and to memory.
#include "pictures/fitsfile.h"

#include "pictures/depth.h"
#include "pictures/grey.h"
#include "pictures/wholefile.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <fitsio.h>
#include <opencv2/imgproc.hpp>
#include <vector>

#include "astrometry/utcdate.h"

namespace pictures
{
namespace
{
constexpr long longestSide = 32767;            // pixels
constexpr double maxPixels = 64.0 * (1 << 20); // of one plane

/// A FITS file that is open; closes itself.
class OpenFits
{
public:
    explicit OpenFits(std::string &bytes) : data(bytes.data()), size(bytes.size())
    {
        fits_open_memfile(&file, "picture", READONLY, &data, &size, 0, nullptr, &status);
    }
    ~OpenFits()
    {
        int ignored = 0;
        if (file)
            fits_close_file(file, &ignored);
        fits_clear_errmsg();
    }
    OpenFits(const OpenFits &) = delete;
    OpenFits &operator=(const OpenFits &) = delete;

    std::string text(const char *key)
    {
        char value[FLEN_VALUE] = "";
        int missing = 0;
        fits_read_key(file, TSTRING, key, value, nullptr, &missing);
        fits_clear_errmsg();
        return missing == 0 ? value : "";
    }

    std::optional<double> number(const char *key)
    {
        double value = 0.0;
        int missing = 0;
        fits_read_key(file, TDOUBLE, key, &value, nullptr, &missing);
        fits_clear_errmsg();
        return missing == 0 && std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
    }

    fitsfile *file = nullptr;
    int status = 0;

private:
    void *data;
    std::size_t size;
};

struct Shape {
    int type = 0; ///< as the values are once BSCALE and BZERO are applied: BYTE_IMG, ...
    int planes = 0;
    cv::Size size;
};

// Whether the unit's data are there in full: CFITSIO reads what is cut off as zeros.
bool isComplete(OpenFits &fits, const Shape &shape, std::size_t bytes)
{
    LONGLONG begin = 0, end = 0;
    fits_get_hduaddrll(fits.file, nullptr, &begin, &end, &fits.status);
    int stored = 0, ignored = 0;
    if (fits_is_compressed_image(fits.file, &ignored) == 0) { // the last block may be unfilled
        fits_get_img_type(fits.file, &stored, &fits.status);
        end = begin + LONGLONG(std::abs(stored) / 8) * shape.planes * shape.size.area();
    }
    return fits.status == 0 && end <= LONGLONG(bytes);
}

// Moves to the first picture; no planes = there is none.
Shape findPicture(OpenFits &fits)
{
    int units = 0;
    fits_get_num_hdus(fits.file, &units, &fits.status);
    for (int unit = 1; unit <= units && fits.status == 0; ++unit) {
        int kind = 0, type = 0, axes = 0;
        long sides[3] = {0, 0, 1};
        fits_movabs_hdu(fits.file, unit, &kind, &fits.status);
        if (fits.status != 0 || kind != IMAGE_HDU)
            continue;
        fits_get_img_dim(fits.file, &axes, &fits.status);
        if (axes < 2 || axes > 3)
            continue;
        fits_get_img_size(fits.file, axes, sides, &fits.status);
        fits_get_img_equivtype(fits.file, &type, &fits.status);
        const bool fair =
            sides[0] > 0 && sides[1] > 0 && sides[0] <= longestSide && sides[1] <= longestSide &&
            double(sides[0]) * double(sides[1]) <= maxPixels && (sides[2] == 1 || sides[2] == 3);
        if (fits.status == 0 && fair)
            return {type, int(sides[2]), cv::Size(int(sides[0]), int(sides[1]))};
    }
    return {};
}

template <typename Value>
cv::Mat readPlane(OpenFits &fits, const Shape &shape, int plane, int fitsType, int matType)
{
    cv::Mat pixels(shape.size, matType);
    const LONGLONG count = LONGLONG(shape.size.area());
    fits_read_img(fits.file, fitsType, 1 + plane * count, count, nullptr, pixels.ptr<Value>(),
                  nullptr, &fits.status);
    return pixels;
}

cv::Mat readPixels(OpenFits &fits, const Shape &shape)
{
    std::vector<cv::Mat> planes;
    for (int plane = shape.planes; plane-- > 0;) // blue green red
        if (shape.type == BYTE_IMG)
            planes.push_back(readPlane<std::uint8_t>(fits, shape, plane, TBYTE, CV_8UC1));
        else if (shape.type == USHORT_IMG)
            planes.push_back(readPlane<std::uint16_t>(fits, shape, plane, TUSHORT, CV_16UC1));
        else
            planes.push_back(readPlane<float>(fits, shape, plane, TFLOAT, CV_32FC1));
    if (fits.status != 0)
        return {};
    cv::Mat pixels;
    cv::merge(planes, pixels);
    return pixels.depth() == CV_32F ? to16Bits(pixels) : pixels;
}

// "2026-11-20T20:00:00.123", with or without more decimals and Z.
std::optional<double> parseFitsDate(std::string text)
{
    if (!text.empty() && text.back() == 'Z')
        text.pop_back();
    double fraction = 0.0;
    if (const std::size_t point = text.find('.'); point != std::string::npos) {
        char *end = nullptr;
        fraction = std::strtod(text.c_str() + point, &end);
        if (*end != '\0' || !(fraction >= 0.0 && fraction < 1.0))
            return std::nullopt;
        text.resize(point);
    }
    const auto whole = astrometry::parseDate(text + (text.size() == 10 ? "T00:00:00Z" : "Z"));
    return whole ? std::optional<double>(*whole + fraction) : std::nullopt;
}

std::optional<double> dateOf(OpenFits &fits)
{
    if (const auto middle = parseFitsDate(fits.text("DATE-AVG")))
        return middle;
    const std::optional<double> begin = parseFitsDate(fits.text("DATE-OBS"));
    const double exposure = fits.number("EXPTIME").value_or(fits.number("EXPOSURE").value_or(0.0));
    constexpr double longest = 86400.0;
    if (begin && exposure > 0.0 && exposure < longest)
        return *begin + exposure / 2.0;
    return begin;
}

// XBAYROFF and YBAYROFF: where the pattern begins.
std::string patternOf(OpenFits &fits)
{
    const auto offset = [&fits](const char *key) {
        const double value = fits.number(key).value_or(0.0);
        return std::abs(value) < longestSide ? int(value) : 0;
    };
    return shiftedPattern(fits.text("BAYERPAT"), offset("XBAYROFF"), offset("YBAYROFF"));
}

std::string fitsFault(int status)
{
    char text[FLEN_STATUS] = "";
    fits_get_errstatus(status, text);
    return text;
}

/// A FITS file that is written to memory.
class NewFits
{
public:
    explicit NewFits(std::size_t dataBytes)
    {
        constexpr std::size_t block = 2880, blocks = 4; // of header and padding
        fits_create_memfile(&file, &data, &allocated, dataBytes + blocks * block, &std::realloc,
                            &status);
    }
    ~NewFits()
    {
        close();
        std::free(data);
    }
    NewFits(const NewFits &) = delete;
    NewFits &operator=(const NewFits &) = delete;

    /// Its bytes; valid while this lives. Nothing is added afterwards.
    std::string_view finish()
    {
        LONGLONG end = 0;
        fits_get_hduaddrll(file, nullptr, nullptr, &end, &status);
        close();
        const bool isWhole = status == 0 && end > 0 && std::size_t(end) <= allocated;
        if (status == 0 && !isWhole)
            status = WRITE_ERROR;
        return {static_cast<const char *>(data), isWhole ? std::size_t(end) : 0};
    }

    fitsfile *file = nullptr;
    int status = 0;

private:
    void close()
    {
        int closing = 0;
        if (file)
            fits_close_file(file, &closing);
        file = nullptr;
        status = status != 0 ? status : closing;
        fits_clear_errmsg();
    }

    void *data = nullptr;
    std::size_t allocated = 0;
};
} // namespace

bool isFits(std::string_view bytes)
{
    return bytes.substr(0, 9) == "SIMPLE  =";
}

PictureFile decodeFits(std::string &bytes)
{
    PictureFile out;
    try {
        OpenFits fits(bytes);
        const Shape shape = fits.status == 0 ? findPicture(fits) : Shape();
        if (fits.status == 0 && shape.planes == 0)
            out.complaint = "It is a FITS file without a picture that can be used.";
        else if (fits.status == 0 && !isComplete(fits, shape, bytes.size()))
            fits.status = END_OF_FILE;
        else if (fits.status == 0)
            out.pixels = readPixels(fits, shape);
        if (fits.status != 0)
            out.complaint = "It is a damaged FITS file: " + fitsFault(fits.status) + ".";
        if (!out.complaint.empty())
            return out;
        out.date = dateOf(fits);
        out.mosaic = shape.planes == 1 && !fits.text("BAYERPAT").empty();
        if (fits.text("ROWORDER") == "BOTTOM-UP")
            cv::flip(out.pixels, out.pixels, 0);
        else if (out.mosaic) // programs disagree about the pattern of rows in the other order
            out.pattern = patternOf(fits);
    } catch (const std::exception &error) { // too large for the memory
        out.pixels.release();
        out.complaint = std::string("It is a FITS file that cannot be read: ") + error.what();
    }
    return out;
}

std::optional<double> dateOfFits(std::string &bytes)
{
    OpenFits fits(bytes);
    if (fits.status != 0)
        return std::nullopt;
    if (findPicture(fits).planes == 0) {
        fits.status = 0;
        fits_movabs_hdu(fits.file, 1, nullptr, &fits.status);
    }
    return fits.status == 0 ? dateOf(fits) : std::nullopt;
}

std::string writeFits(const std::string &path, const cv::Mat &picture, std::optional<double> date,
                      double exposure, const std::string &pattern)
{
    const cv::Mat pixels = picture.isContinuous() ? picture : picture.clone();
    const bool deep = pixels.depth() == CV_16U;
    long sides[2] = {pixels.cols, pixels.rows};
    NewFits fits(pixels.total() * pixels.elemSize());
    int &status = fits.status;
    fits_create_img(fits.file, deep ? USHORT_IMG : BYTE_IMG, 2, sides, &status);
    if (date) {
        const std::string begin = astrometry::formatDate(*date - exposure / 2.0);
        const std::string plain = begin.substr(0, begin.size() - 1); // FITS has no Z
        fits_write_key(fits.file, TSTRING, "DATE-OBS", const_cast<char *>(plain.c_str()),
                       "UTC, start of the exposure", &status);
    }
    if (exposure > 0.0)
        fits_write_key(fits.file, TDOUBLE, "EXPTIME", &exposure, "seconds", &status);
    char order[] = "TOP-DOWN";
    fits_write_key(fits.file, TSTRING, "ROWORDER", order, "the first row is the top one", &status);
    if (!pattern.empty())
        fits_write_key(fits.file, TSTRING, "BAYERPAT", const_cast<char *>(pattern.c_str()),
                       "from the top left", &status);
    fits_write_img(fits.file, deep ? TUSHORT : TBYTE, 1, LONGLONG(pixels.total()),
                   const_cast<unsigned char *>(pixels.ptr()), &status);
    const std::string_view bytes = fits.finish();
    return status != 0 ? fitsFault(status) : writeWhole(path, bytes);
}
} // namespace pictures

// SPDX-License-Identifier: MIT
// Reads what precedes the pixels, and the parts behind them that may hold a date.
#include "framesources/filedate.h"

#include <algorithm>
#include <cstdint>
#include <fcntl.h>
#include <string_view>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include "pictures/exifdate.h"
#include "pictures/fitsfile.h"
#include "pictures/serfile.h"

namespace framesources
{
namespace
{
constexpr std::size_t headBytes = std::size_t(1) << 17; // EXIF of a JPEG is less, and at its start
constexpr std::size_t fitsHead = std::size_t(1) << 15, longestFitsHead = std::size_t(1) << 22;

/// A file of which only some parts are read: memory of its size in which the rest is zero. Memory
/// that nobody touches costs nothing, and a file that is cut short meanwhile does no harm.
class PartlyRead
{
public:
    explicit PartlyRead(const std::string &path)
        : file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK))
    {
        struct stat status = {};
        if (file < 0 || ::fstat(file, &status) != 0 || !S_ISREG(status.st_mode) ||
            status.st_size <= 0)
            return;
        void *const memory = ::mmap(nullptr, std::size_t(status.st_size), PROT_READ | PROT_WRITE,
                                    MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (memory == MAP_FAILED)
            return;
        bytes = static_cast<char *>(memory);
        size = std::size_t(status.st_size);
    }
    ~PartlyRead()
    {
        if (bytes)
            ::munmap(bytes, size);
        if (file >= 0)
            ::close(file);
    }
    PartlyRead(const PartlyRead &) = delete;
    PartlyRead &operator=(const PartlyRead &) = delete;

    void read(std::size_t place, std::size_t count)
    {
        if (place < size) [[maybe_unused]]
            const ssize_t got =
                ::pread(file, bytes + place, std::min(count, size - place), off_t(place));
    }
    std::string_view view() const { return {bytes, size}; }

private:
    const int file;
    char *bytes = nullptr;
    std::size_t size = 0;
};

std::size_t number(std::string_view bytes, std::size_t place, bool little)
{
    std::size_t value = 0;
    for (std::size_t i = 0; i < 4 && place + 4 <= bytes.size(); ++i)
        value = value << 8 | static_cast<unsigned char>(bytes[place + (little ? 3 - i : i)]);
    return value;
}

/// The directory may be anywhere; its texts are near it.
void readTiffDirectory(PartlyRead &file)
{
    constexpr std::size_t before = std::size_t(1) << 15;
    const std::size_t place = number(file.view(), 4, file.view()[0] == 'I');
    file.read(place > before ? place - before : 0, headBytes);
}

/// The chunk of the date may be behind the pixels: what each chunk is, and that one.
void readPngChunks(PartlyRead &file)
{
    constexpr std::size_t mark = 8, head = 8, sum = 4; // bytes
    int chunks = 10000;                                // more are no picture
    const std::string_view bytes = file.view();
    for (std::size_t place = mark; place + head <= bytes.size() && --chunks > 0;) {
        file.read(place, head);
        const std::size_t length = number(bytes, place, false);
        if (bytes.substr(place + 4, 4) == "eXIf")
            return file.read(place, std::min(head + length + sum, headBytes));
        place += head + length + sum;
    }
}

std::optional<double> dateOfFits(PartlyRead &file)
{
    std::string head(file.view().substr(0, fitsHead));
    if (const auto date = pictures::dateOfFits(head))
        return date;
    // The header ends behind what was read, or the picture is in an extension.
    bool isComplete = false;
    constexpr std::size_t card = 80;
    for (std::size_t place = 0; place + card <= head.size() && !isComplete; place += card)
        isComplete = head.compare(place, 8, "END     ") == 0;
    if (isComplete && head.find("NAXIS   =                    0") == std::string::npos)
        return std::nullopt;
    file.read(0, longestFitsHead);
    std::string longer(file.view().substr(0, longestFitsHead));
    return pictures::dateOfFits(longer);
}
} // namespace

std::optional<double> dateInFile(const std::string &path)
{
    if (pictures::isSerName(path)) {
        pictures::SerFile video(path);
        return video.complaint().empty() ? video.frame(0).date : std::nullopt;
    }
    PartlyRead file(path);
    file.read(0, fitsHead);
    const std::string_view bytes = file.view();
    if (pictures::isFits(bytes))
        return dateOfFits(file);
    file.read(0, headBytes);
    if (bytes.size() > headBytes && bytes.substr(0, 4) == "\x89PNG")
        readPngChunks(file);
    else if (bytes.size() > headBytes && (bytes[0] == 'I' || bytes[0] == 'M'))
        readTiffDirectory(file);
    return dateOfPicture(bytes);
}
} // namespace framesources

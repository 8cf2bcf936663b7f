// SPDX-License-Identifier: MIT
// A temporary file in the same folder, then its name.
#include "pictures/wholefile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace pictures
{
namespace
{
/// A short name, since the other one may be as long as a name can be; of no picture's suffix.
/// @return the descriptor; negative: errno says why
int createBeside(const std::filesystem::path &file, std::string &name)
{
    const std::string begin = ".quorvandel-" + std::to_string(::getpid()) + '-';
    constexpr int tries = 100; // left by other processes of this number
    int descriptor = -1;
    for (int i = 0; i < tries; ++i) {
        name = (file.parent_path() / (begin + std::to_string(i) + ".part")).string();
        descriptor = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (descriptor >= 0 || errno != EEXIST)
            break;
    }
    return descriptor;
}

bool writeAll(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR)
            return false;
        bytes.remove_prefix(written > 0 ? std::size_t(written) : 0);
    }
    return true;
}

std::string faultOf(int number)
{
    return std::string("it cannot be written: ") + std::strerror(number);
}
} // namespace

std::string writeWhole(const std::string &path, std::string_view bytes)
{
    std::error_code isNew;
    std::filesystem::path file = std::filesystem::canonical(path, isNew);
    if (isNew)
        file = path;
    std::string aside;
    const int descriptor = createBeside(file, aside);
    if (descriptor < 0)
        return faultOf(errno);
    struct stat status = {};
    if (::stat(file.c_str(), &status) == 0)
        ::fchmod(descriptor, status.st_mode & 0777); // a refusal is no failure
    const bool isWritten = writeAll(descriptor, bytes);
    int fault = isWritten ? 0 : errno;
    if (::close(descriptor) != 0 && isWritten)
        fault = errno;
    if (fault == 0 && std::rename(aside.c_str(), file.c_str()) == 0)
        return {};
    fault = fault != 0 ? fault : errno;
    ::unlink(aside.c_str());
    return faultOf(fault);
}
} // namespace pictures

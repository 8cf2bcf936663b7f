// SPDX-License-Identifier: MIT
// Where is the sky file, and how is it read and written atomically?
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <mutex>

#include "files/wholefile.h"
#include "virtualcamera/privatefolder.h"
#include "virtualcamera/skyfile.h"

namespace virtualsky
{
namespace
{
class File
{
public:
    // O_NONBLOCK: opening a pipe in the file's place must not block.
    explicit File(const std::string &path)
        : descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK))
    {
    }
    ~File()
    {
        if (descriptor >= 0)
            ::close(descriptor);
    }
    File(const File &) = delete;
    File &operator=(const File &) = delete;
    const int descriptor;
};
bool makeFolders(const std::string &path)
{
    for (std::size_t at = path.find('/', 1); at != std::string::npos; at = path.find('/', at + 1))
        if (::mkdir(path.substr(0, at).c_str(), 0700) != 0 && errno != EEXIST)
            return false;
    return true;
}

// The target of a chain of symbolic links, existing or not; the path itself if it is not a link.
// Empty, with errno set, if the chain is endless.
std::string behindLinks(std::string path)
{
    constexpr int longestChain = 40; // the kernel's limit
    for (int link = 0; link < longestChain; ++link) {
        std::string target(4096, '\0');
        const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
        if (length <= 0)
            return path;
        target.resize(static_cast<std::size_t>(length));
        path = target[0] == '/' ? target : path.substr(0, path.rfind('/') + 1) + target;
    }
    errno = ELOOP;
    return {};
}

// The folder in /tmp, where anybody may have put one. What is said is said once in a process.
std::string sharedPlace()
{
    const std::string name = "quorvandel-" + std::to_string(::geteuid());
    const std::string folder = privateFolder("/tmp", name);
    if (folder == "/tmp/" + name)
        return folder;
    static std::once_flag once;
    std::call_once(once, [&] {
        std::fprintf(
            stderr,
            "virtual sky: /tmp/%s is not a folder of this user alone (mode 0700, no link): "
            "%s is used\n",
            name.c_str(), folder.empty() ? "no sky file" : folder.c_str());
    });
    return folder.empty() ? "/dev/null" : folder; // nothing can be below it
}
} // namespace

std::string readText(const std::string &path)
{
    const File file(path);
    struct stat status = {};
    if (file.descriptor < 0 || ::fstat(file.descriptor, &status) != 0)
        throw SkyFileError(0, {}, SkyFault::ofSystem(errno));
    if (!S_ISREG(status.st_mode))
        throw SkyFileError(0, {}, {SkyFaultCode::NotOrdinaryFile});
    std::string text(largestSkyFile + 1, '\0');
    std::size_t length = 0;
    while (length < text.size()) {
        const ssize_t got = ::read(file.descriptor, text.data() + length, text.size() - length);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            throw SkyFileError(0, {}, SkyFault::ofSystem(errno));
        if (got == 0)
            break;
        length += static_cast<std::size_t>(got);
    }
    if (length > largestSkyFile)
        throw SkyFileError(0, {}, {SkyFaultCode::TooLong});
    text.resize(length);
    return text;
}

bool writeAtomically(const std::string &name, std::string_view text)
{
    constexpr mode_t newMode = 0600;
    const std::string path = behindLinks(name);
    return !path.empty() && makeFolders(path) && files::replaceFile(path, text, newMode);
}

std::string skyFilePath()
{
    const auto variable = [](const char *name) {
        const char *value = std::getenv(name);
        return std::string(value ? value : "");
    };
    if (const std::string path = variable("QUORVANDEL_SKY"); !path.empty())
        return path;
    // Relative paths in the variable must be ignored (XDG base directories).
    if (const std::string folder = variable("XDG_RUNTIME_DIR"); !folder.empty() && folder[0] == '/')
        return folder + "/quorvandel/sky.ini";
    return sharedPlace() + "/sky.ini";
}
} // namespace virtualsky

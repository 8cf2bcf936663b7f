// SPDX-License-Identifier: MIT
// Loads and unloads a library in a child process.
#include "camera/loadprobe.h"

#include <QByteArray>
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <dlfcn.h>
#include <fcntl.h>
#include <link.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace
{
using Clock = std::chrono::steady_clock;
/// A copy can hang although the library is sound: another thread may have held a lock at the fork,
/// of an allocator that does not care for forks, for example. So a second copy decides.
constexpr std::chrono::seconds loadTimeouts[] = {std::chrono::seconds(4), std::chrono::seconds(6)};
/// For what the library does as it is unloaded; the program never unloads one that it uses.
constexpr std::chrono::seconds unloadTimeout(2);
constexpr std::chrono::milliseconds pause(2);

/// The loaded objects in the order of loading: address of each, and its program headers.
std::vector<dl_phdr_info> loadedObjects()
{
    std::vector<dl_phdr_info> objects;
    const auto add = [](dl_phdr_info *info, std::size_t, void *list) {
        static_cast<std::vector<dl_phdr_info> *>(list)->push_back(*info);
        return 0;
    };
    dl_iterate_phdr(add, &objects);
    return objects;
}

ElfW(Dyn) * dynamicSection(const dl_phdr_info &object)
{
    for (int i = 0; i < object.dlpi_phnum; ++i)
        if (object.dlpi_phdr[i].p_type == PT_DYNAMIC)
            return reinterpret_cast<ElfW(Dyn) *>(object.dlpi_addr + object.dlpi_phdr[i].p_vaddr);
    return nullptr;
}

/// Runs an object's destructors and exit handlers, as the loader does at the end of a process.
void finalise(const dl_phdr_info &object)
{
    using Finaliser = void (*)();
    Finaliser *functions = nullptr;
    std::size_t count = 0;
    Finaliser last = nullptr;
    for (const ElfW(Dyn) *entry = dynamicSection(object); entry && entry->d_tag != DT_NULL;
         ++entry) {
        if (entry->d_tag == DT_FINI_ARRAY)
            functions = reinterpret_cast<Finaliser *>(object.dlpi_addr + entry->d_un.d_ptr);
        else if (entry->d_tag == DT_FINI_ARRAYSZ)
            count = entry->d_un.d_val / sizeof(Finaliser);
        else if (entry->d_tag == DT_FINI)
            last = reinterpret_cast<Finaliser>(object.dlpi_addr + entry->d_un.d_ptr);
    }
    while (functions && count > 0)
        functions[--count]();
    if (last)
        last();
}

/// Only the calling thread exists in the child, and it never returns from here. The C library and
/// its loader are usable in the child, whatever locks other threads held at the fork. exit() is
/// not: the program's own exit handlers wait for threads that do not exist here. So what it would
/// do for the library is done alone, first by unloading it, then for those objects that stay
/// loaded.
[[noreturn]] void loadAndEnd(const char *name, int report)
{
    const rlimit noCore{0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    for (const int number : {SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT})
        std::signal(number, SIG_DFL);
    const std::vector<dl_phdr_info> before = loadedObjects();
    void *const library = dlopen(name, RTLD_NOW | RTLD_LOCAL);
    const char returned = 0;
    [[maybe_unused]] const ssize_t written = write(report, &returned, sizeof returned);
    if (library)
        dlclose(library);
    for (const dl_phdr_info &object : loadedObjects())
        if (std::none_of(before.begin(), before.end(), [&](const dl_phdr_info &earlier) {
                return earlier.dlpi_addr == object.dlpi_addr;
            }))
            finalise(object);
    _exit(0);
}

bool hasReported(int report)
{
    char byte = 0;
    return read(report, &byte, sizeof byte) == sizeof byte;
}

enum class Trial { Returned, Ended, Hung };

/// Whether the child reports in time that loading has returned. Waits for its end, too.
Trial awaitReport(pid_t child, int report, std::chrono::seconds patience)
{
    bool returned = false;
    auto end = Clock::now() + patience;
    while (Clock::now() < end) {
        if (!returned && hasReported(report)) {
            returned = true;
            end = Clock::now() + unloadTimeout;
        }
        // Other code may have waited for it already.
        if (const pid_t ended = waitpid(child, nullptr, WNOHANG);
            ended == child || (ended < 0 && errno != EINTR))
            return returned || hasReported(report) ? Trial::Returned : Trial::Ended;
        std::this_thread::sleep_for(pause);
    }
    kill(child, SIGKILL);
    while (waitpid(child, nullptr, 0) < 0 && errno == EINTR)
        continue;
    return returned ? Trial::Returned : Trial::Hung;
}

Trial tryToLoad(const char *name, std::chrono::seconds patience)
{
    int report[2];
    if (pipe2(report, O_CLOEXEC | O_NONBLOCK) != 0)
        return Trial::Returned;
    const pid_t child = fork();
    if (child == 0)
        loadAndEnd(name, report[1]);
    const Trial trial = child < 0 ? Trial::Returned : awaitReport(child, report[0], patience);
    close(report[0]);
    close(report[1]);
    return trial;
}
} // namespace

bool canLoadSafely(const QByteArray &name)
{
    const char *const text = name.constData(); // the child calls no Qt code
    Trial trial = Trial::Hung;
    for (const std::chrono::seconds timeout : loadTimeouts)
        if (trial == Trial::Hung)
            trial = tryToLoad(text, timeout);
    return trial == Trial::Returned;
}

// SPDX-License-Identifier: MIT
// Loads a library in a child process.
#include "camera/loadprobe.h"

#include <QByteArray>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <dlfcn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace
{
constexpr std::chrono::seconds patience(10);
constexpr std::chrono::milliseconds pause(2);
/// The child's exit status if loading returns; a value that no library is expected to exit with.
constexpr int returned = 115;

/// Only the calling thread exists in the child, and it never returns from here. The C library and
/// its loader are usable in the child, whatever locks other threads held at the fork.
[[noreturn]] void loadAndEnd(const char *name)
{
    const rlimit noCore{0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    for (const int number : {SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT})
        std::signal(number, SIG_DFL);
    dlopen(name, RTLD_NOW | RTLD_LOCAL);
    _exit(returned);
}

/// Whether the child finished loading in time. True if its exit status is unknown because other
/// code has already waited for it.
bool cameBack(pid_t child)
{
    const auto end = std::chrono::steady_clock::now() + patience;
    for (;;) {
        int status = 0;
        const pid_t ended = waitpid(child, &status, WNOHANG);
        if (ended == child)
            return WIFEXITED(status) && WEXITSTATUS(status) == returned;
        if (ended < 0 && errno != EINTR)
            return true;
        if (std::chrono::steady_clock::now() > end)
            break;
        std::this_thread::sleep_for(pause);
    }
    kill(child, SIGKILL);
    while (waitpid(child, nullptr, 0) < 0 && errno == EINTR)
        continue;
    return false;
}
} // namespace

bool canLoadSafely(const QByteArray &name)
{
    const char *const text = name.constData(); // the child calls no Qt code
    const pid_t child = fork();
    if (child == 0)
        loadAndEnd(text);
    return child < 0 || cameBack(child);
}

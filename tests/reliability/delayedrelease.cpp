// SPDX-License-Identifier: MIT
// What if a thread loses the processor between the two steps of QSemaphore::release()? Preloaded
// into a program, this library delays every second step, and counts at the end what the steps met.
//
// RELEASE_DELAY is the delay in microseconds. RELEASE_WAKES=1 also wakes the waiting thread before
// the step, as the kernel may do at any time. For Qt 5.15 as Debian 12 builds it for x86-64; in any
// other library it finds no second step and ends the program.
#include <QSemaphore>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <dlfcn.h>
#include <linux/futex.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <ucontext.h>
#include <unistd.h>

namespace
{
// `lock and %rax,(%rdi)`: the semaphore's address is in rdi, the mask in rax.
constexpr std::array<unsigned char, 4> secondStep{0xf0, 0x48, 0x21, 0x07};
constexpr std::size_t offset = 0x2e; // of the second step in the function
constexpr unsigned char breakpoint = 0xcc;

std::atomic<int> steps{0}, strays{0}, canaries{0};
long delayMicroseconds = 0;
bool wakes = false;

std::uint64_t canaryOfThisThread()
{
    std::uint64_t canary = 0;
    __asm__("mov %%fs:0x28,%0" : "=r"(canary));
    return canary;
}

void wakeWaiters(std::uint64_t *semaphore)
{
    auto *const halves = reinterpret_cast<std::uint32_t *>(semaphore);
    for (const int half : {0, 1})
        syscall(SYS_futex, halves + half, FUTEX_WAKE_PRIVATE, 0x7fffffff, nullptr, nullptr, 0);
}

/// In place of the second step.
void delayedStep(int, siginfo_t *, void *context)
{
    const int savedErrno = errno;
    greg_t *const registers = static_cast<ucontext_t *>(context)->uc_mcontext.gregs;
    auto *const semaphore = reinterpret_cast<std::uint64_t *>(registers[REG_RDI]);
    if (wakes)
        wakeWaiters(semaphore);
    const timespec pause{0, delayMicroseconds * 1000};
    nanosleep(&pause, nullptr);
    const std::uint64_t before =
        __atomic_fetch_and(semaphore, std::uint64_t(registers[REG_RAX]), __ATOMIC_SEQ_CST);
    ++steps;
    // A semaphore's halves are small counts; the highest bit marks a waiting thread.
    constexpr std::uint64_t largest = 4096;
    if ((before >> 32 & 0x7fffffff) > largest || (before & 0xffffffff) > largest)
        ++strays;
    if (before == canaryOfThisThread())
        ++canaries;
    registers[REG_RIP] += greg_t(secondStep.size()) - 1; // the breakpoint was its first byte
    errno = savedErrno;
}

__attribute__((constructor)) void readDelay()
{
    const char *const microseconds = std::getenv("RELEASE_DELAY");
    delayMicroseconds = microseconds ? std::atol(microseconds) : 0;
    wakes = std::getenv("RELEASE_WAKES") != nullptr;
    void (QSemaphore::*const member)(int) = &QSemaphore::release;
    unsigned char *function = nullptr;
    std::memcpy(&function, &member, sizeof function);
    unsigned char *const step = function + offset;
    if (std::memcmp(step, secondStep.data(), secondStep.size()) != 0) {
        std::fputs("delayedrelease: this is another QSemaphore::release()\n", stderr);
        std::_Exit(EXIT_FAILURE);
    }
    struct sigaction action = {};
    action.sa_sigaction = delayedStep;
    action.sa_flags = SA_SIGINFO | SA_RESTART;
    sigaction(SIGTRAP, &action, nullptr);
    const auto pageSize = std::uintptr_t(sysconf(_SC_PAGESIZE));
    void *const page = reinterpret_cast<void *>(std::uintptr_t(step) & ~(pageSize - 1));
    mprotect(page, pageSize, PROT_READ | PROT_WRITE | PROT_EXEC);
    *step = breakpoint;
    mprotect(page, pageSize, PROT_READ | PROT_EXEC);
}

__attribute__((destructor)) void end()
{
    std::fprintf(stderr, "delayedrelease: %d second steps, %d in other memory, %d on a canary\n",
                 steps.load(), strays.load(), canaries.load());
}
} // namespace

// SPDX-License-Identifier: MIT
// Replaces the C library's allocation functions in the process and records the call stacks of large
// requests.
#include "bench/largeallocations.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <cxxabi.h>
#include <dlfcn.h>
#include <execinfo.h>

extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);
void *__libc_memalign(std::size_t alignment, std::size_t size);
}

namespace
{
constexpr int depth = 24;
constexpr std::size_t capacity = 20000;

struct Request {
    std::size_t size;
    int frames;
    std::array<void *, depth> chain;
};

std::array<Request, capacity> requests;
std::atomic<std::size_t> requestCount{capacity}; // nothing is recorded at capacity

void note(std::size_t size)
{
    if (size < largeBlock || requestCount.load() >= capacity)
        return;
    const std::size_t index = requestCount.fetch_add(1);
    if (index >= capacity)
        return;
    requests[index].size = size;
    requests[index].frames = backtrace(requests[index].chain.data(), depth);
}

std::string nameOf(void *address)
{
    Dl_info info{};
    if (!dladdr(address, &info) || !info.dli_sname)
        return {};
    int status = 0;
    char *const readable = abi::__cxa_demangle(info.dli_sname, nullptr, nullptr, &status);
    std::string name = status == 0 ? readable : info.dli_sname;
    std::free(readable);
    return name.substr(0, name.find('('));
}

/// The named callers, innermost first, without the allocation functions.
std::string describe(const Request &request)
{
    std::string text = std::to_string(request.size) + " bytes:";
    int named = 0;
    for (int i = 2; i < request.frames && named < 7; ++i) {
        const std::string name = nameOf(request.chain[std::size_t(i)]);
        if (name.empty())
            continue;
        text += (named++ ? " < " : " ") + name;
    }
    return text;
}
} // namespace

#define REPLACES_LIBC extern "C" __attribute__((visibility("default")))

REPLACES_LIBC void *malloc(std::size_t size) noexcept
{
    note(size);
    return __libc_malloc(size);
}

REPLACES_LIBC void *calloc(std::size_t count, std::size_t size) noexcept
{
    note(count * size);
    return __libc_calloc(count, size);
}

REPLACES_LIBC void *realloc(void *block, std::size_t size) noexcept
{
    note(size);
    return __libc_realloc(block, size);
}

REPLACES_LIBC void *memalign(std::size_t alignment, std::size_t size) noexcept
{
    note(size);
    return __libc_memalign(alignment, size);
}

REPLACES_LIBC void *aligned_alloc(std::size_t alignment, std::size_t size) noexcept
{
    return memalign(alignment, size);
}

REPLACES_LIBC int posix_memalign(void **block, std::size_t alignment, std::size_t size) noexcept
{
    *block = memalign(alignment, size);
    return *block ? 0 : ENOMEM;
}

void countLargeAllocations()
{
    std::array<void *, depth> loadsTheUnwinder;
    backtrace(loadsTheUnwinder.data(), depth);
    requestCount = 0;
}

std::map<std::string, int> largeAllocations()
{
    const std::size_t count = std::min(requestCount.exchange(capacity), capacity);
    std::map<std::string, int> counts;
    for (std::size_t i = 0; i < count; ++i)
        ++counts[describe(requests[i])];
    return counts;
}

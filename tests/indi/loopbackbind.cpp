// SPDX-License-Identifier: MIT
// INDI's server listens on all of the machine's addresses and has no option against it. Preloaded
// into it, this makes every address of IPv4 the loopback one; the drivers do not inherit it.
#include <cstdlib>
#include <cstring>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

__attribute__((constructor)) static void load()
{
    ::unsetenv("LD_PRELOAD");
}

extern "C" __attribute__((visibility("default"))) int bind(int socket, const sockaddr *address,
                                                           socklen_t length) noexcept
{
    sockaddr_in place = {};
    if (address && length == sizeof place && address->sa_family == AF_INET) {
        std::memcpy(&place, address, sizeof place);
        place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        return int(::syscall(SYS_bind, socket, &place, sizeof place));
    }
    return int(::syscall(SYS_bind, socket, address, length));
}

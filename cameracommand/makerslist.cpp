// SPDX-License-Identifier: MIT
// The child asks the library and writes to a pipe what it is about to call and what it got.
#include "cameracommand/makerslist.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <exception>
#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "camera/cameraopening.h"

namespace
{
using Clock = std::chrono::steady_clock;
constexpr auto endPatience = std::chrono::seconds(2); // for what the library does at the end
constexpr char there[] = "it is there and cannot be used: ";

/// What a line in the pipe is; its first character.
enum Mark : char { Call = 'c', Text = 't', Camera = 'u', End = 'e' };

/// The child's side of the pipe.
class Teller
{
public:
    explicit Teller(int descriptor) : pipe(descriptor) {}

    void tell(Mark mark, std::string text) const
    {
        for (char &c : text)
            c = c == '\n' || c == '\r' ? ' ' : c;
        const std::string line = char(mark) + text + '\n';
        for (std::size_t done = 0; done < line.size();) {
            const ssize_t written = ::write(pipe, line.data() + done, line.size() - done);
            if (written < 0)
                return;
            done += std::size_t(written);
        }
    }
    void fault(const std::string &text) const { tell(Text, there + text); }

private:
    const int pipe;
};

/// Tells what camera `index` is. The library is given far more room than its IDs need.
void tellCamera(const Teller &teller, std::uint32_t (*getId)(std::int32_t, char *),
                std::int32_t index)
{
    std::array<char, 16384> buffer{};
    teller.tell(Call, "GetVELDIXId");
    if (getId(index, buffer.data()) != 0)
        return teller.tell(Text, "a camera without an ID");
    buffer.back() = '\0';
    const std::string id = buffer.data();
    if (id.size() < std::size_t(maxIdSize))
        teller.tell(Camera, id);
    else
        teller.tell(Text, "a camera that cannot be used: its ID of " + std::to_string(id.size()) +
                              " characters is too long");
}

void tellCameras(const Teller &teller, void *library)
{
    using Init = std::uint32_t (*)();
    using Scan = std::int32_t (*)();
    using GetId = std::uint32_t (*)(std::int32_t, char *);
    const auto init = reinterpret_cast<Init>(::dlsym(library, "InitVELDIXResource"));
    const auto scan = reinterpret_cast<Scan>(::dlsym(library, "ScanVELDIX"));
    const auto getId = reinterpret_cast<GetId>(::dlsym(library, "GetVELDIXId"));
    if (!init || !scan || !getId)
        return teller.fault("it lacks functions");
    teller.tell(Call, "InitVELDIXResource");
    if (init() != 0)
        return teller.fault("it does not start");
    teller.tell(Call, "ScanVELDIX");
    const std::int32_t count = std::min(scan(), maxCameras);
    if (count <= 0)
        teller.tell(Text, "it finds no camera");
    for (std::int32_t i = 0; i < count; ++i)
        tellCamera(teller, getId, i);
}

/// Ends by exit(), so that the library gives back what it holds.
[[noreturn]] void askAndEnd(const char *name, int pipe)
{
    const rlimit noCore{0, 0};
    ::setrlimit(RLIMIT_CORE, &noCore);
    for (const int number : {SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT})
        std::signal(number, SIG_DFL);
    const Teller teller(pipe);
    teller.tell(Call, "loading");
    void *const library = ::dlopen(name, RTLD_NOW | RTLD_LOCAL);
    try {
        if (library)
            tellCameras(teller, library);
        else
            teller.tell(Text, ::dlerror());
    } catch (const std::exception &exception) {
        teller.fault(std::string("it threw an exception: ") +
                     (exception.what() ? exception.what() : ""));
    } catch (...) {
        teller.fault("it threw an exception: no std::exception");
    }
    teller.tell(End, {});
    if (library)
        ::dlclose(library);
    std::exit(0);
}

/// The parent's side.
class Listener
{
public:
    Listener(pid_t childProcess, int descriptor, std::chrono::milliseconds forEachCall)
        : child(childProcess), pipe(descriptor), patience(forEachCall)
    {
    }

    MakersList listen()
    {
        since = Clock::now();
        // The pipe may stay open: the library may have started processes.
        while (!ended && (hasEnded() || Clock::now() - since < patience)) {
            const bool wasOver = isOver;
            read(wasOver ? 0 : 50);
            if (wasOver)
                break; // whatever it told before its end has been read
        }
        if (!ended)
            result.lines.push_back(there + (isOver ? howItEnded() : howItHangs()));
        awaitEnd();
        return std::move(result);
    }

private:
    void read(int milliseconds)
    {
        pollfd waiting = {pipe, POLLIN, 0};
        std::array<char, 4096> bytes;
        while (::poll(&waiting, 1, milliseconds) > 0) {
            const ssize_t got = ::read(pipe, bytes.data(), bytes.size());
            if (got <= 0) { // the end
                ::usleep(2000);
                break;
            }
            unread.append(bytes.data(), std::size_t(got));
            milliseconds = 0;
        }
        for (std::size_t end; (end = unread.find('\n')) != std::string::npos;
             unread.erase(0, end + 1))
            take(unread[0], unread.substr(1, end - 1));
    }

    void take(char mark, const std::string &text)
    {
        since = Clock::now();
        if (mark == Call)
            call = text;
        else if (mark == End)
            ended = true;
        else
            result.lines.push_back(text);
        result.usable += mark == Camera ? 1 : 0;
    }

    bool hasEnded()
    {
        if (!isOver)
            isOver = ::waitpid(child, &status, WNOHANG) == child;
        return isOver;
    }

    std::string inCall() const { return call == "loading" ? "as it is loaded" : "in " + call; }
    std::string howItHangs() const
    {
        const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(patience);
        return "it does not return within " + std::to_string(seconds.count()) + " seconds " +
               inCall();
    }
    std::string howItEnded() const
    {
        if (WIFSIGNALED(status))
            return "it crashes " + inCall() + ": " + ::strsignal(WTERMSIG(status));
        return "it ends its process " + inCall() + ", with status " +
               std::to_string(WEXITSTATUS(status));
    }

    void awaitEnd()
    {
        const auto end = Clock::now() + (ended ? endPatience : std::chrono::seconds(0));
        while (!hasEnded() && Clock::now() < end)
            ::usleep(2000);
        if (isOver)
            return;
        ::kill(child, SIGKILL);
        ::waitpid(child, &status, 0);
    }

    const pid_t child;
    const int pipe;
    const std::chrono::milliseconds patience;
    MakersList result;
    std::string unread, call = "loading";
    Clock::time_point since; // it last told something
    bool ended = false;      // it told everything
    bool isOver = false;     // the process
    int status = 0;
};
} // namespace

MakersList listMakersCameras(const char *library, std::chrono::milliseconds patience)
{
    std::fflush(nullptr); // or the child prints it again
    int pipe[2];
    if (::pipe2(pipe, O_CLOEXEC) != 0)
        return {{std::string("it cannot be asked: ") + std::strerror(errno)}, 0};
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(pipe[0]);
        askAndEnd(library, pipe[1]);
    }
    ::close(pipe[1]);
    MakersList list;
    if (child > 0)
        list = Listener(child, pipe[0], patience).listen();
    else
        list.lines.push_back(std::string("it cannot be asked: ") + std::strerror(errno));
    ::close(pipe[0]);
    return list;
}

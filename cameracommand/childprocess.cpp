// SPDX-License-Identifier: MIT
// The child writes to a pipe what it is about to call; the parent reads that and waits for its end.
#include "cameracommand/childprocess.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace
{
using Clock = std::chrono::steady_clock;
using Fate = ChildEnd::Fate;
constexpr auto endTimeout = std::chrono::seconds(2); // for what libraries do at the end
constexpr auto killTimeout = std::chrono::seconds(1);
constexpr std::chrono::milliseconds look(50); // at the pipe

/// What a line in the pipe is; its first character.
enum Mark : char { Call = 'c', Line = 'l', End = 'e' };

/// The parent's side.
class Listener
{
public:
    Listener(pid_t childProcess, int descriptor, const Patience &forEachCall)
        : child(childProcess), pipe(descriptor), patience(forEachCall)
    {
    }

    ChildEnd listen()
    {
        // Counted by looks and not by a clock: neither process may have run meanwhile.
        std::chrono::milliseconds silence(0);
        // The pipe may stay open: a library may have started processes.
        while (!isFinished && (hasEnded() || silence < patience(result.call))) {
            const bool wasOver = isOver;
            const bool isNews = read(wasOver ? std::chrono::milliseconds(0) : look);
            silence = isNews || result.call.empty() ? std::chrono::milliseconds(0) : silence + look;
            if (wasOver)
                break; // whatever it told before its end has been read
        }
        result.fate = isFinished ? Fate::Returned : Fate::Failed;
        if (!isFinished)
            result.fault = isOver ? howItEnded() : howItHangs();
        awaitEnd();
        return std::move(result);
    }

private:
    /// @return whether anything came
    bool read(std::chrono::milliseconds wait)
    {
        pollfd waiting = {pipe, POLLIN, 0};
        std::array<char, 4096> bytes;
        bool isNews = false;
        while (::poll(&waiting, 1, int(wait.count())) > 0) {
            const ssize_t got = ::read(pipe, bytes.data(), bytes.size());
            if (got <= 0) { // the end
                ::usleep(useconds_t(1000 * wait.count()));
                break;
            }
            unread.append(bytes.data(), std::size_t(got));
            wait = std::chrono::milliseconds(0);
            isNews = true;
        }
        for (std::size_t end; (end = unread.find('\n')) != std::string::npos;
             unread.erase(0, end + 1))
            take(unread[0], unread.substr(1, end - 1));
        return isNews;
    }

    void take(char mark, const std::string &text)
    {
        if (mark == Call)
            result.call = text;
        if (mark == Line)
            result.lines.push_back(text);
        if (mark != End)
            return;
        result.status = std::atoi(text.c_str());
        isFinished = true;
    }

    bool hasEnded()
    {
        if (isOver)
            return true;
        const pid_t ended = ::waitpid(child, &status, WNOHANG);
        isStatusKnown = ended == child;
        isOver = isStatusKnown || (ended < 0 && errno != EINTR); // or other code has waited for it
        return isOver;
    }

    std::string inCall() const
    {
        if (result.call.empty())
            return {};
        return result.call == "loading" ? " as it is loaded" : " in " + result.call;
    }
    std::string howItHangs() const
    {
        const auto seconds =
            std::chrono::duration_cast<std::chrono::seconds>(patience(result.call));
        return "it does not return within " + std::to_string(seconds.count()) + " seconds" +
               inCall();
    }
    std::string howItEnded() const
    {
        if (!isStatusKnown)
            return "it ends its process" + inCall();
        if (WIFSIGNALED(status))
            return "it crashes" + inCall() + ": " + ::strsignal(WTERMSIG(status));
        return "it ends its process" + inCall() + ", with status " +
               std::to_string(WEXITSTATUS(status));
    }

    void awaitEnd()
    {
        const auto end = Clock::now() + (isFinished ? endTimeout : std::chrono::seconds(0));
        while (!hasEnded() && Clock::now() < end)
            ::usleep(2000);
        if (isOver)
            return;
        ::kill(child, SIGKILL);
        // A process that waits within the kernel, for a broken cable say, is left to it.
        for (const auto last = Clock::now() + killTimeout; !hasEnded() && Clock::now() < last;)
            ::usleep(2000);
    }

    const pid_t child;
    const int pipe;
    const Patience &patience;
    ChildEnd result;
    std::string unread;
    bool isFinished = false;    // it told its status
    bool isOver = false;        // the process; its number may be another's from now on
    bool isStatusKnown = false; // of a process that is over
    int status = 0;
};

[[noreturn]] void workAndEnd(const std::function<int(const ChildReport &)> &work, int pipe,
                             pid_t parent)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent)
        ::_exit(EXIT_FAILURE);
    const rlimit noCore{0, 0};
    ::setrlimit(RLIMIT_CORE, &noCore);
    for (const int number : {SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT})
        std::signal(number, SIG_DFL);
    std::setvbuf(stdout, nullptr, _IOLBF, 0); // a crash loses no line
    const ChildReport report(pipe);
    const int status = work(report);
    report.finish(status);
    std::exit(status);
}
} // namespace

void ChildReport::write(char mark, std::string text) const
{
    for (char &c : text)
        c = c == '\n' || c == '\r' ? ' ' : c;
    const std::string line = mark + text + '\n';
    for (std::size_t done = 0; done < line.size();) {
        const ssize_t written = ::write(pipe, line.data() + done, line.size() - done);
        if (written < 0 && errno != EINTR)
            return;
        done += written > 0 ? std::size_t(written) : 0;
    }
}

void ChildReport::call(const char *name) const
{
    write(Call, name ? name : "");
}

void ChildReport::tell(const std::string &line) const
{
    write(Line, line);
}

void ChildReport::finish(int status) const
{
    write(End, std::to_string(status));
}

ChildEnd runInChild(const std::function<int(const ChildReport &)> &work, const Patience &patience)
{
    std::fflush(nullptr); // or the child prints it again
    ChildEnd end;
    int pipe[2];
    if (::pipe2(pipe, O_CLOEXEC) != 0) {
        end.fault = std::strerror(errno);
        return end;
    }
    // Who started this process may have ignored the signal: then no child leaves a status.
    std::signal(SIGCHLD, SIG_DFL);
    const pid_t parent = ::getpid();
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(pipe[0]);
        workAndEnd(work, pipe[1], parent);
    }
    if (child < 0)
        end.fault = std::strerror(errno);
    ::close(pipe[1]);
    if (child > 0)
        end = Listener(child, pipe[0], patience).listen();
    ::close(pipe[0]);
    return end;
}

#include "system/process.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <system_error>
#include <utility>

namespace ostrel::tool {

namespace {

std::system_error failure(const char* what) { return {errno, std::generic_category(), what}; }

std::string signal_name(int number)
{
    switch (number) {
        case SIGABRT:
            return "SIGABRT";
        case SIGSEGV:
            return "SIGSEGV";
        case SIGBUS:
            return "SIGBUS";
        case SIGFPE:
            return "SIGFPE";
        case SIGILL:
            return "SIGILL";
        case SIGKILL:
            return "SIGKILL";
        default:
            return "signal " + std::to_string(number);
    }
}

}  // namespace

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept
{
    if (this != &other) {
        close();
        number_ = other.release();
    }
    return *this;
}

void Descriptor::close()
{
    if (number_ >= 0) ::close(number_);
    number_ = -1;
}

int Descriptor::release() { return std::exchange(number_, -1); }

Pipe make_pipe()
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) throw failure("cannot create a pipe");
    return {Descriptor(ends[0]), Descriptor(ends[1])};
}

pid_t fork_guarded()
{
    const pid_t parent = getpid();
    const pid_t child = fork();
    if (child < 0) throw failure("cannot start a process");
    if (child > 0) {
        setpgid(child, child);  // both processes do this, because either may run first
        return child;
    }
    setpgid(0, 0);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) _exit(0);
    // The limit does not apply to core files piped to a handler, so the process is also not dumpable.
    const rlimit none{0, 0};
    setrlimit(RLIMIT_CORE, &none);
    prctl(PR_SET_DUMPABLE, 0);
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGTTOU, SIG_IGN);
    // The child must not handle these signals as the supervisor does.
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    return 0;
}

Ending wait_for(pid_t child)
{
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) continue;
    if (WIFSIGNALED(status)) return {true, WTERMSIG(status)};
    return {false, WEXITSTATUS(status)};
}

void stop(pid_t child)
{
    kill(-child, SIGKILL);
    wait_for(child);
}

bool mentions_assertion(std::string_view printed)
{
    return printed.find("Assertion `") != std::string_view::npos;
}

std::string describe_ending(const Ending& ending, bool by_assertion)
{
    if (!ending.by_signal) return "the process ended with status " + std::to_string(ending.number);
    if (ending.number == SIGABRT && by_assertion) {
        return "an assertion ended the process (SIGABRT)";
    }
    return signal_name(ending.number) + " ended the process";
}

std::string describe_no_return(double seconds)
{
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "the check did not return within %g s", seconds);
    return text.data();
}

void occupy_standard_descriptors()
{
    for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(number, F_GETFD) < 0) open("/dev/null", number == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}

void say(std::string_view text)
{
    try {
        write_all(STDERR_FILENO, text);
    } catch (const std::system_error&) {
        return;
    }
}

Fitted write_what_fits(int descriptor, std::string_view text)
{
    Fitted fitted;
    while (fitted.size < text.size()) {
        const ssize_t written = write(descriptor, text.data() + fitted.size, text.size() - fitted.size);
        if (written >= 0) {
            fitted.size += static_cast<std::size_t>(written);
        } else if (errno == EAGAIN) {
            pollfd waiting{descriptor, POLLOUT, 0};
            poll(&waiting, 1, -1);
        } else if (errno != EINTR) {
            fitted.error = errno;
            break;
        }
    }
    return fitted;
}

void take_back(int descriptor, std::size_t size)
{
    struct stat file = {};
    if (size == 0 || fstat(descriptor, &file) != 0 || !S_ISREG(file.st_mode)) return;
    const off_t end = lseek(descriptor, 0, SEEK_CUR);
    if (end != file.st_size || end < static_cast<off_t>(size)) return;
    const off_t kept = end - static_cast<off_t>(size);
    if (ftruncate(descriptor, kept) == 0) lseek(descriptor, kept, SEEK_SET);
}

bool write_all(int descriptor, std::string_view text)
{
    const Fitted fitted = write_what_fits(descriptor, text);
    if (fitted.error == 0) return true;
    if (fitted.error == EPIPE) return false;
    errno = fitted.error;
    throw failure("cannot write the results");
}

}  // namespace ostrel::tool

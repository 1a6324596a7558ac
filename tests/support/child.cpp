#include "tests/support/child.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <ostream>
#include <system_error>
#include <thread>

namespace ostrel::tests {

namespace {

using Clock = std::chrono::steady_clock;

void check(bool succeeded, const char* what)
{
    if (!succeeded) throw std::system_error(errno, std::generic_category(), what);
}

[[noreturn]] void become_child(const std::function<int()>& body, int out, int err)
{
    // Kills a child that never returns when its parent is killed.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    // A core limit of 0 does not apply to a core that is piped to a handler program, but a process that is
    // not dumpable produces no core.
    prctl(PR_SET_DUMPABLE, 0);
    const rlimit no_core = {0, 0};
    setrlimit(RLIMIT_CORE, &no_core);
    dup2(out, STDOUT_FILENO);
    dup2(err, STDERR_FILENO);
    const int status = body();
    std::fflush(nullptr);
    _exit(status);
}

// drain appends the bytes that can be read now and returns whether more may follow.
bool drain(int descriptor, std::string& text)
{
    std::array<char, 65536> bytes;  // NOLINT(cppcoreguidelines-pro-type-member-init)
    const ssize_t size = read(descriptor, bytes.data(), bytes.size());
    if (size > 0) text.append(bytes.data(), static_cast<std::size_t>(size));
    return size > 0 || (size < 0 && errno == EINTR);
}

int remaining_ms(Clock::time_point deadline)
{
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
    return left.count() > 0 ? static_cast<int>(left.count()) : 0;
}

}  // namespace

void PrintTo(const ChildEnd& end, std::ostream* stream)
{
    if (end.timed_out) {
        *stream << "still running at the limit";
    } else if (end.signal != 0) {
        *stream << "ended by signal " << end.signal << " (" << strsignal(end.signal) << ")";
    } else {
        *stream << "returned " << end.status;
    }
    *stream << "\n  out " << end.out.substr(0, 400) << "\n  err " << end.err.substr(0, 4000);
}

Child::Child(const std::function<int()>& body) : start_(Clock::now())
{
    std::array<int, 2> out{};
    std::array<int, 2> err{};
    check(pipe2(out.data(), O_CLOEXEC) == 0 && pipe2(err.data(), O_CLOEXEC) == 0, "pipe2");
    fcntl(out[0], F_SETFL, O_NONBLOCK);  // the last read after a kill must not wait for more
    fcntl(err[0], F_SETFL, O_NONBLOCK);
    std::fflush(nullptr);  // otherwise the child would print the parent's unflushed output too
    pid_ = fork();
    check(pid_ >= 0, "fork");
    if (pid_ == 0) become_child(body, out[1], err[1]);
    close(out[1]);
    close(err[1]);
    out_ = out[0];
    err_ = err[0];
}

Child::~Child()
{
    if (pid_ > 0) {
        kill(pid_, SIGKILL);
        waitpid(pid_, nullptr, 0);
    }
    close(out_);
    close(err_);
}

ChildEnd Child::wait(std::chrono::milliseconds limit)
{
    const Clock::time_point deadline = start_ + limit;
    ChildEnd end;
    std::array<pollfd, 2> streams = {{{out_, POLLIN, 0}, {err_, POLLIN, 0}}};
    while ((streams[0].fd >= 0 || streams[1].fd >= 0) && remaining_ms(deadline) > 0) {
        if (poll(streams.data(), streams.size(), remaining_ms(deadline)) <= 0) continue;
        // poll ignores a negative descriptor, which marks a stream that has ended.
        if (streams[0].revents != 0 && !drain(out_, end.out)) streams[0].fd = -1;
        if (streams[1].revents != 0 && !drain(err_, end.err)) streams[1].fd = -1;
    }
    int status = 0;
    while (waitpid(pid_, &status, WNOHANG) == 0) {
        if (remaining_ms(deadline) == 0) {
            end.timed_out = true;
            kill(pid_, SIGKILL);
            waitpid(pid_, &status, 0);
            break;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    pid_ = -1;
    while (drain(out_, end.out) || drain(err_, end.err)) continue;
    if (end.timed_out) return end;
    if (WIFSIGNALED(status)) end.signal = WTERMSIG(status);
    if (WIFEXITED(status)) end.status = WEXITSTATUS(status);
    return end;
}

ChildEnd run_in_child(std::chrono::milliseconds limit, const std::function<int()>& body)
{
    return Child(body).wait(limit);
}

}  // namespace ostrel::tests

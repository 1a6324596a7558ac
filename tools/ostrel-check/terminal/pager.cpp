#include "terminal/pager.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>

#include "system/process.h"

namespace ostrel::tool {

namespace {

constexpr int kNotFound = 127;  // exit status of a shell that cannot find a command

// NOLINTBEGIN(concurrency-mt-unsafe): there is one thread

// pager returns the command to run, or NULL if no pager is to be used.
const char* pager()
{
    const char* terminal = std::getenv("TERM");
    if (isatty(STDOUT_FILENO) != 1 || terminal == nullptr || std::string_view(terminal) == "dumb")
        return nullptr;
    const char* chosen = std::getenv("PAGER");
    if (chosen == nullptr) return "if command -v less >/dev/null; then exec less; else exec cat; fi";
    return std::string_view(chosen).empty() || std::string_view(chosen) == "cat" ? nullptr : chosen;
}

[[noreturn]] void run_pager(const char* command, const Descriptor& page)
{
    dup2(page.number(), STDIN_FILENO);
    std::signal(SIGPIPE, SIG_DFL);
    setenv("LESS", "FRX", 0);
    execl("/bin/sh", "sh", "-c", command, nullptr);
    _exit(kNotFound);
}

// NOLINTEND(concurrency-mt-unsafe)

}  // namespace

void show_page(std::string_view text)
{
    const char* command = pager();
    Pipe pipe = command == nullptr ? Pipe() : make_pipe();
    const pid_t child = command == nullptr ? -1 : fork();
    if (child == 0) run_pager(command, pipe.reading);
    if (child < 0) {
        write_all(STDOUT_FILENO, text);
        return;
    }
    // The pager handles the interrupt keys, so this process ignores their signals.
    std::signal(SIGINT, SIG_IGN);
    std::signal(SIGQUIT, SIG_IGN);
    pipe.reading.close();
    write_all(pipe.writing.number(), text);
    pipe.writing.close();
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) continue;
    if (WIFEXITED(status) && WEXITSTATUS(status) == kNotFound) write_all(STDOUT_FILENO, text);
}

}  // namespace ostrel::tool

// This file is linked into the libraries that count executed code, so that a child process writes its counts
// even if a signal ends it or its call never returns.

#ifdef __clang__
extern "C" int __llvm_profile_write_file();
#else
extern "C" {
#include <gcov.h>
}
#endif
#include <pthread.h>
#include <sys/time.h>

#include <csignal>

namespace {

void write_counts()
{
#ifdef __clang__
    __llvm_profile_write_file();
#else
    __gcov_dump();
    __gcov_reset();
#endif
}

void dump(int signal_number)
{
    write_counts();
    if (signal_number == SIGALRM) return;
    std::signal(signal_number, SIG_DFL);
    std::raise(signal_number);
}

// The tests kill a call after 300 ms. After 100 ms, a call that never returns has reached its endless loop.
void start_timer()
{
    const itimerval once = {{0, 0}, {0, 100000}};
    setitimer(ITIMER_REAL, &once, nullptr);
}

[[gnu::constructor]] void install()
{
    std::signal(SIGABRT, dump);
    std::signal(SIGSEGV, dump);
    std::signal(SIGALRM, dump);
    pthread_atfork(nullptr, nullptr, start_timer);
}

}  // namespace

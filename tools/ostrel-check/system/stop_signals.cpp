#include "system/stop_signals.h"

#include <unistd.h>

#include <cerrno>

namespace ostrel::tool {

namespace {

volatile std::sig_atomic_t signal_number = 0;
volatile std::sig_atomic_t news = -1;  // the descriptor to which the handler writes a byte

void take_signal(int number)
{
    const int saved = errno;
    if (signal_number == 0) signal_number = number;
    [[maybe_unused]] const ssize_t written = write(news, "s", 1);
    errno = saved;
}

void take(int number, struct sigaction& before)
{
    struct sigaction action = {};
    action.sa_handler = take_signal;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigaction(number, nullptr, &before);
    if (before.sa_handler != SIG_IGN) sigaction(number, &action, nullptr);
}

}  // namespace

StopSignals::StopSignals() : pipe_(make_pipe())
{
    news = pipe_.writing.number();
    take(SIGINT, interrupt_);
    take(SIGTERM, terminate_);
}

StopSignals::~StopSignals()
{
    sigaction(SIGINT, &interrupt_, nullptr);
    sigaction(SIGTERM, &terminate_, nullptr);
}

int StopSignals::number() { return signal_number; }

}  // namespace ostrel::tool

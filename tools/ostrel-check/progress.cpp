#include "progress.h"

#include <unistd.h>

#include <string>

#include "process.h"

namespace ostrel::tool {

Meter::Meter() : is_wanted_(isatty(STDERR_FILENO) == 1) {}

void Meter::show(std::uint64_t cases)
{
    using std::chrono::duration;
    constexpr duration<double> kPatience(1.0);
    constexpr duration<double> kPause(0.2);
    const Clock::time_point now = Clock::now();
    if (!is_wanted_ || now - begin_ < kPatience || (is_shown_ && now - shown_at_ < kPause)) return;
    const auto seconds = duration<double>(now - begin_).count();
    const auto rate = static_cast<std::uint64_t>(static_cast<double>(cases) / seconds);
    say("\r" + std::to_string(cases) + " cases in " + std::to_string(static_cast<int>(seconds)) + " s, " +
        std::to_string(rate) + " a second\x1B[K");
    is_shown_ = true;
    shown_at_ = now;
}

void Meter::clear()
{
    if (is_shown_) say("\r\x1B[K");
    is_shown_ = false;
}

}  // namespace ostrel::tool

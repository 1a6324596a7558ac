#include "terminal/progress.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "system/process.h"

namespace ostrel::tool {

namespace {

// time_in_words returns a readable duration such as "45 s", "12 min" or "3 h 5 min".
std::string time_in_words(double seconds)
{
    constexpr std::uint64_t kMinute = 60;
    constexpr double kLongest = 1e6 * 3600;
    const auto whole = static_cast<std::uint64_t>(std::clamp(seconds, 0.0, kLongest));
    if (whole < 2 * kMinute) return std::to_string(whole) + " s";
    const std::uint64_t minutes = whole / kMinute;
    if (minutes < 2 * kMinute) return std::to_string(minutes) + " min";
    return std::to_string(minutes / kMinute) + " h " + std::to_string(minutes % kMinute) + " min";
}

}  // namespace

std::optional<std::uint64_t> size_of(const std::vector<std::string>& files)
{
    std::uint64_t size = 0;
    for (const std::string& file : files) {
        struct stat found = {};
        const bool is_standard = file == "-";
        if ((is_standard ? fstat(STDIN_FILENO, &found) : stat(file.c_str(), &found)) != 0) continue;
        if (!S_ISREG(found.st_mode)) return {};
        const off_t at = is_standard ? lseek(STDIN_FILENO, 0, SEEK_CUR) : 0;
        if (found.st_size > at) size += static_cast<std::uint64_t>(found.st_size - at);
    }
    return size;
}

std::string describe(const Advance& advance, double seconds, std::optional<std::uint64_t> size,
                     std::uint64_t skipped)
{
    const double rate = seconds > 0 ? static_cast<double>(advance.cases) / seconds : 0;
    std::string text;
    const bool is_known = size && *size > 0;
    const std::uint64_t bytes = is_known ? std::min(advance.bytes, *size) : 0;
    if (is_known)
        text += std::to_string(
                    static_cast<unsigned>(100.0 * static_cast<double>(bytes) / static_cast<double>(*size))) +
                "%, ";
    text += std::to_string(advance.cases) + (advance.cases == 1 ? " case, " : " cases, ");
    text += std::to_string(advance.refused) + " refused, ";
    text += std::to_string(static_cast<std::uint64_t>(rate)) + " a second, ";
    if (is_known && bytes > skipped) {
        const double left = static_cast<double>(*size - bytes) / static_cast<double>(bytes - skipped);
        return text + time_in_words(left * seconds) + " left";
    }
    return text + time_in_words(seconds);
}

Meter::Meter(std::optional<std::uint64_t> size) : is_wanted_(isatty(STDERR_FILENO) == 1), size_(size) {}

bool Meter::is_due() const
{
    using std::chrono::duration;
    constexpr duration<double> kPatience(1.0);
    constexpr duration<double> kPause(0.2);
    const Clock::time_point now = Clock::now();
    return is_wanted_ && now - begin_ >= kPatience && (!is_shown_ || now - shown_at_ >= kPause);
}

void Meter::show(const Advance& advance)
{
    const std::chrono::duration<double> seconds = Clock::now() - begin_;
    say("\r" + describe(advance, seconds.count(), size_, skipped_) + "\x1B[K");
    is_shown_ = true;
    shown_at_ = Clock::now();
}

void Meter::clear_keys() const
{
    if (is_wanted_) say("\r\x1B[K");
}

void Meter::clear()
{
    if (is_shown_) say("\r\x1B[K");
    is_shown_ = false;
}

}  // namespace ostrel::tool

#include "support/search.h"

#include <cstddef>
#include <cstring>

namespace ostrel {

namespace {

// MaximalSuffix follows the suffix of a growing text that is the largest by byte order. Its period is the
// least distance by which the matched part of a search can move on (M. Crochemore, "String-matching on
// ordered alphabets", 1992): with it the search needs no table.
struct MaximalSuffix {
    std::size_t begin = 0;
    std::size_t rival = 1;   // where the suffix that it is compared with begins
    std::size_t common = 0;  // how many bytes of the two are known to agree, within one period
    std::size_t period = 1;

    void extend(const char* text, std::size_t length)
    {
        while (rival + common < length) {
            const auto kept = static_cast<unsigned char>(text[begin + common]);
            const auto other = static_cast<unsigned char>(text[rival + common]);
            if (kept == other) {
                if (++common < period) continue;
                rival += period;
            } else if (kept > other) {
                rival += common + 1;
                period = rival - begin;
            } else {
                begin = rival;
                ++rival;
                period = 1;
            }
            common = 0;
        }
    }
};

std::size_t larger(std::size_t a, std::size_t b) { return a > b ? a : b; }

std::size_t smaller(std::size_t a, std::size_t b) { return a < b ? a : b; }

}  // namespace

bool contains(std::string_view text, std::string_view part)
{
    MaximalSuffix suffix;  // of what matched and the byte behind it
    std::size_t matched = 0;
    while (part.size() <= text.size()) {
        while (matched < part.size() && part[matched] == text[matched]) ++matched;
        if (matched == part.size()) return true;
        suffix.extend(text.data(), matched + 1);
        const std::size_t period = suffix.period;
        if (suffix.begin < period && std::strncmp(text.data(), text.data() + period, suffix.begin) == 0) {
            // What matched repeats itself after one period: the match moves on by that much and keeps the
            // rest.
            text.remove_prefix(period);
            matched -= smaller(matched, period);
            if (suffix.rival - suffix.begin > period) {
                suffix.rival -= period;
                continue;
            }
        } else {
            text.remove_prefix(larger(suffix.begin, smaller(matched - suffix.begin, suffix.rival)) + 1);
            matched = 0;
        }
        suffix = MaximalSuffix();
    }
    return false;
}

}  // namespace ostrel

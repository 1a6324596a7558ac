// Build: what a gateway's build chooses, and what its C library does, as data for an evaluation.
#ifndef OSTREL_RULES_BUILD_H
#define OSTREL_RULES_BUILD_H

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace ostrel::rules {

struct Build {
    // Atoi says what becomes of a number that does not fit an int.
    enum class Atoi {
        kLong64,    // read as a long of 64 bits, which has its bounds; of that the low 32 bits
        kLong32,    // the bounds of an int
        kWrapping,  // the low 32 bits
    };

    std::string_view model = "M2840";
    std::string_view account_realm = "@example.net";
    std::string_view setup_realm = "@setup.example.net";
    Atoi atoi = Atoi::kLong64;
    // The channels that the wireless driver lists. Nothing: it is not known.
    std::optional<std::vector<int>> channels = std::nullopt;
};

// atoi_here asks this machine's C library.
Build::Atoi atoi_here();

// Number is what atoi reads at the beginning of a text.
struct Number {
    int value = 0;
    bool beyond_int = false;  // the value is this build's; another build's may be another
    std::size_t begin = 0;    // where the sign and the digits stand
    std::size_t end = 0;
};

Number read_number(std::string_view text, Build::Atoi atoi);

}  // namespace ostrel::rules

#endif

// Build: the options of a gateway's build and the behaviour of its C library, as data for an evaluation.
#ifndef OSTREL_RULES_BUILD_H
#define OSTREL_RULES_BUILD_H

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace ostrel::rules {

struct Build {
    // Atoi is the way in which a number that does not fit in an int is read.
    enum class Atoi {
        kLong64,    // the low 32 bits of a long of 64 bits, which saturates
        kLong32,    // as an int that saturates
        kWrapping,  // the low 32 bits
    };

    std::string_view model = "M2840";
    std::string_view account_realm = "@example.net";
    std::string_view setup_realm = "@setup.example.net";
    Atoi atoi = Atoi::kLong64;
    // The channels that the wireless driver lists; nullopt if unknown.
    std::optional<std::vector<int>> channels = std::nullopt;
};

// atoi_here tests the C library that is running.
Build::Atoi atoi_here();

// Number is the number that atoi reads at the start of a text.
struct Number {
    int value = 0;
    bool beyond_int = false;  // other builds may read a different value
    std::size_t begin = 0;    // of the sign and the digits
    std::size_t end = 0;
};

Number read_number(std::string_view text, Build::Atoi atoi);

}  // namespace ostrel::rules

#endif

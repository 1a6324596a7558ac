// The options of a gateway's build and the behaviour of its C library, on which an evaluation depends.
#ifndef OSTREL_RULES_BUILD_H
#define OSTREL_RULES_BUILD_H

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace ostrel::rules {

struct Build {
    // Atoi states how the C library's atoi reads a number that does not fit in an int.
    enum class Atoi {
        kLong64,    // as the low 32 bits of a 64-bit long, which saturates
        kLong32,    // as the highest or the lowest int
        kWrapping,  // as the low 32 bits of the number
    };

    std::string_view model = "M2840";
    std::string_view account_realm = "@example.net";
    std::string_view setup_realm = "@setup.example.net";
    Atoi atoi = Atoi::kLong64;
    // The channels that the wireless driver lists, or nullopt if they are unknown.
    std::optional<std::vector<int>> channels = std::nullopt;
};

// atoi_here determines which kind of atoi this program's C library has.
Build::Atoi atoi_here();

// Number is the number that atoi reads at the beginning of a string.
struct Number {
    int value = 0;
    bool beyond_int = false;  // other builds may read a different value
    std::size_t begin = 0;    // the offset of the sign or the first digit
    std::size_t end = 0;      // the offset after the last digit
};

Number read_number(std::string_view text, Build::Atoi atoi);

}  // namespace ostrel::rules

#endif

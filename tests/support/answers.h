// Answers: which answer of a row holds. Some depend on the C library.
#ifndef OSTREL_TESTS_SUPPORT_ANSWERS_H
#define OSTREL_TESTS_SUPPORT_ANSWERS_H

#include <array>
#include <nlohmann/json_fwd.hpp>

namespace ostrel::tests {

// Atoi is what a C library's atoi makes of a number that does not fit an int. The values are bits.
enum class Atoi {
    kLong64 = 1,    // read as a long of 64 bits, which has its bounds; of that the low 32 bits
    kLong32 = 2,    // the bounds of an int
    kWrapping = 4,  // the low 32 bits
};

inline constexpr std::array kAtois = {Atoi::kLong64, Atoi::kLong32, Atoi::kWrapping};

// atoi_at_hand asks the C library of this program.
Atoi atoi_at_hand();

// has_answer_for tells whether the row has an answer for such a C library alone.
bool has_answer_for(const nlohmann::json& row, Atoi atoi);

// answered is the row with the answer for such a C library as its only one.
nlohmann::json answered(const nlohmann::json& row, Atoi atoi);

}  // namespace ostrel::tests

#endif

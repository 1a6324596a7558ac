// Answers: which answer of a row holds. Some depend on the C library.
#ifndef OSTREL_VECTORS_ANSWERS_H
#define OSTREL_VECTORS_ANSWERS_H

#include <array>
#include <nlohmann/json_fwd.hpp>

#include "rules/build.h"

namespace ostrel::vectors {

using Atoi = rules::Build::Atoi;

inline constexpr std::array kAtois = {Atoi::kLong64, Atoi::kLong32, Atoi::kWrapping};

// has_answer_for tells whether the row has an answer for such a C library alone.
bool has_answer_for(const nlohmann::json& row, Atoi atoi);

// answered is the row with the answer for such a C library as its only one.
nlohmann::json answered(const nlohmann::json& row, Atoi atoi);

}  // namespace ostrel::vectors

#endif

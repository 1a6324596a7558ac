// The answers in a row, some of which depend on the C library.
#ifndef OSTREL_VECTORS_ANSWERS_H
#define OSTREL_VECTORS_ANSWERS_H

#include <array>
#include <nlohmann/json_fwd.hpp>

#include "rules/build.h"

namespace ostrel::vectors {

using Atoi = rules::Build::Atoi;

inline constexpr std::array kAtois = {Atoi::kLong64, Atoi::kLong32, Atoi::kWrapping};

// has_answer_for returns whether the row has a separate answer for this kind of C library.
bool has_answer_for(const nlohmann::json& row, Atoi atoi);

// answered returns the row with only the answer that applies to this kind of C library.
nlohmann::json answered(const nlohmann::json& row, Atoi atoi);

}  // namespace ostrel::vectors

#endif

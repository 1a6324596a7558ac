// Aim chooses the inputs of one function so that every step and condition of its description is met often. It
// keeps inputs that met a step or condition, and makes new inputs from those that met the rarest one.
#ifndef OSTREL_FUZZ_AIM_H
#define OSTREL_FUZZ_AIM_H

#include <cstdint>
#include <string>
#include <vector>

#include "oracle/mutator.h"
#include "rules/evaluate.h"

namespace ostrel::fuzz {

class Aim {
 public:
    Aim(const rules::Check& check, std::vector<std::string> seeds, std::uint64_t seed);

    // next returns an input. It is valid until the next call.
    const std::string& next();

    // learn receives the counts after an input has run.
    void learn(const std::string& input, const rules::Counts& counts);

 private:
    struct Met {
        std::uint64_t times = 0;
        std::vector<std::string> inputs;
    };

    void learn(const std::string& input, Met& met, std::uint64_t times) const;
    [[nodiscard]] const Met* least_met() const;

    const rules::Check& check_;
    std::vector<std::string> seeds_;
    std::size_t next_seed_ = 0;
    oracle::Mutator mutator_;
    std::vector<Met> mets_;  // one for each step, followed by one for each condition
    std::uint64_t turn_ = 0;
};

}  // namespace ostrel::fuzz

#endif

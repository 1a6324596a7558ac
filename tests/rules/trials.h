// Trials: the calls in which a description is compared with the library.
#ifndef OSTREL_TESTS_RULES_TRIALS_H
#define OSTREL_TESTS_RULES_TRIALS_H

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "rules/evaluate.h"
#include "tests/rules/contents.h"
#include "tests/support/vectors.h"

namespace ostrel::tests {

// build_atoi names the same for a build.
rules::Build::Atoi build_atoi(Atoi atoi);

// library_build is the build of the library that is loaded: a variant says what it chooses in the environment.
const rules::Build& library_build();

// trial_builds are those of trials: the library's, with another list of channels in each.
const std::vector<rules::Build>& trial_builds();

Outcome outcome_of(const rules::Answer& answer);

// reason_fault says what is wrong with the reason of a refusal; nothing where it can be told.
std::string reason_fault(const rules::Answer& answer);

// Trials makes the calls of one function: the rows, the rows with other texts in place of one, and changed ones.
class Trials {
 public:
    Trials(const catalogue::Function& function, const rules::Check& check);

    void run(std::size_t changed, catalogue::Capture& capture);

    std::size_t calls = 0;
    std::size_t refusals = 0;
    std::string difference;  // of the first call in which the two differ
    rules::Counts counts;

 private:
    void add(const std::vector<catalogue::Value>& values);
    void add_others(const std::vector<catalogue::Value>& values, const std::set<std::string>& texts);
    bool agrees(std::string_view input, catalogue::Capture& capture);

    const catalogue::Function& function_;
    const rules::Check& check_;
    Contents contents_;
    std::vector<std::string> inputs_;
    std::size_t inputs_run_ = 0;
    std::vector<catalogue::Value> values_;
    catalogue::Caller caller_;
};

}  // namespace ostrel::tests

#endif

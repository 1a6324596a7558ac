// Calls one function to test the constraints of its arguments.
#ifndef OSTREL_TESTS_RULES_EXPERIMENT_H
#define OSTREL_TESTS_RULES_EXPERIMENT_H

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "calling/caller.h"
#include "calling/capture.h"
#include "rules/constraints.h"
#include "tests/rules/obedience.h"

namespace ostrel::tests {

class Experiment {
 public:
    Experiment(const catalogue::Function& function, const rules::Check& check);

    // change makes the given number of calls with changed rows. Accepted values must obey the constraints.
    void change(std::size_t times, calling::Capture& capture);

    // vary inserts candidates for an argument into accepted rows. Accepted values must obey the constraints.
    // Recommended values and, if the constraints are sufficient, those that obey them must be accepted.
    void vary(std::size_t argument, calling::Capture& capture);

    // pass_null returns the predicted outcomes for NULL and, if the call can be made, the actual ones.
    std::set<rules::NullOutcome> pass_null(std::size_t argument, calling::Capture& capture);

    [[nodiscard]] const rules::Constraints* constraints(std::size_t argument) const
    {
        const auto found = constraints_.find(argument);
        return found == constraints_.end() ? nullptr : &found->second;
    }

    std::string difference;  // describes the first value that contradicts the constraints
    std::size_t accepted = 0;
    std::size_t refused = 0;

 private:
    using Values = std::vector<catalogue::Value>;

    // call returns whether the library accepts the values, or nothing if the call must not be made or its
    // result may depend on the C library.
    std::optional<bool> call(const Values& values, calling::Capture& capture);
    void tell(std::string_view what, const Values& values, std::size_t argument);
    void compare(const Values& values, std::size_t argument, bool is_accepted);
    [[nodiscard]] Values candidates_for(std::size_t argument) const;

    const catalogue::Function& function_;
    const rules::Check& check_;
    std::map<std::size_t, rules::Constraints> constraints_;  // by argument
    bool reads_number_ = false;                              // whether any argument is read as a number
    std::vector<Values> rows_;
    Obedience obedience_;
    calling::Caller caller_;
};

}  // namespace ostrel::tests

#endif

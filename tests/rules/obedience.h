// Tests whether a value obeys the constraints of its argument, one constraint at a time.
#ifndef OSTREL_TESTS_RULES_OBEDIENCE_H
#define OSTREL_TESTS_RULES_OBEDIENCE_H

#include <map>
#include <regex>
#include <string>
#include <vector>

#include "catalogue/catalogue.h"
#include "rules/constraints.h"

namespace ostrel::tests {

class Obedience {
 public:
    // fault returns the first constraint that the text violates, or an empty string.
    std::string fault(const rules::Form& form, const std::string& text);

    // fault_of does the same for an argument of a call. A value that is neither text nor number obeys.
    std::string fault_of(const rules::Constraints& constraints, const std::vector<catalogue::Value>& values,
                         std::size_t argument);

 private:
    bool matches(const std::string& pattern, const std::string& text);
    std::string list_fault(const rules::Form& form, char separator, const std::string& text);

    std::map<std::string, std::wregex> patterns_;
};

}  // namespace ostrel::tests

#endif

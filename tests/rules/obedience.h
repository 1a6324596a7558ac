// Obedience: whether a value has what the constraints of its argument say, each word judged for itself.
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
    // fault returns the first constraint that a text violates, or an empty text.
    std::string fault(const rules::Form& form, const std::string& text);

    // fault_of does that for an argument of a call. NULL and other kinds than texts and numbers obey.
    std::string fault_of(const rules::Constraints& constraints, const std::vector<catalogue::Value>& values,
                         std::size_t argument);

 private:
    bool matches(const std::string& pattern, const std::string& text);
    std::string list_fault(const rules::Form& form, char separator, const std::string& text);

    std::map<std::string, std::wregex> patterns_;
};

}  // namespace ostrel::tests

#endif

// The requirements on an argument that follow from the check's description, for use in programs and forms.
// They do not cover numbers that do not fit in an int, because builds read such numbers differently.
#ifndef OSTREL_RULES_CONSTRAINTS_H
#define OSTREL_RULES_CONSTRAINTS_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "rules/build.h"
#include "rules/claim.h"
#include "rules/null.h"
#include "rules/vocabulary.h"

namespace ostrel::rules {

// Form is the required form of a string. All members that are set apply.
struct Form {
    std::optional<std::size_t> min_length;  // in bytes
    std::optional<std::size_t> max_length;
    std::vector<long long> lengths = {};  // set if not all lengths from minimum to maximum are allowed
    std::optional<Set> characters;
    std::optional<std::vector<std::string>> keywords;
    std::vector<std::string> prefixes = {};
    bool ignores_case = false;         // applies to the ASCII letters in keywords and prefixes
    std::vector<Runs> shapes = {};     // the string has one of these shapes
    std::optional<long long> minimum;  // the lowest allowed value of the number that atoi reads
    std::optional<long long> maximum;
    std::optional<char> separator;  // set if the string is a list
    Set trimmed = {};               // bytes that are removed from both ends of each item
    std::optional<std::size_t> min_items;
    std::optional<std::size_t> max_items;
    std::vector<Form> item = {};  // at most one, with the requirements on each item
    // An ECMA-262 regular expression, if bytes, lengths and keywords are not sufficient.
    std::string pattern = {};
    std::vector<Form> recommended = {};  // at most one: the form to offer users if more is accepted
    bool reads_number = false;  // a number is read, so numbers that do not fit in an int are not covered

    bool operator==(const Form&) const = default;
};

struct Constraints {
    Form form = {};
    std::vector<Limit> limits = {};            // set by other arguments
    std::vector<std::size_t> depends_on = {};  // other arguments on which the accepted values depend
    bool is_necessary = false;  // there are requirements, and every accepted value satisfies them
    // Every value that satisfies the requirements is accepted if the other arguments are valid.
    bool is_sufficient = false;
    bool is_schema_sufficient = false;  // lengths, keywords with their case, and the pattern are sufficient
    bool is_secret = false;
    std::optional<NullOutcome> null = {};  // the effect of NULL, unless the argument is a number
};

// has_constraints returns true if the check returns a result code and the argument is a single string or a
// number that the check reads.
bool has_constraints(const Check& check, std::size_t argument);

Constraints constraints_of(const Check& check, std::size_t argument, const Build& build);

}  // namespace ostrel::rules

#endif

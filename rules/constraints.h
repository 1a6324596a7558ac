// Constraints: the requirements on an argument, as far as its description proves them, for programs and forms.
//
// They do not cover numbers beyond an int, which builds read differently.
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

// Form is the required form of a text. All members that are set apply.
struct Form {
    std::optional<std::size_t> min_length;  // in bytes
    std::optional<std::size_t> max_length;
    std::vector<long long> lengths = {};  // if not all lengths from minimum to maximum are allowed
    std::optional<Set> characters;
    std::optional<std::vector<std::string>> keywords;
    std::vector<std::string> prefixes = {};
    bool ignores_case = false;         // of ASCII letters, in keywords and prefixes
    std::vector<Runs> shapes = {};     // the text has one of them
    std::optional<long long> minimum;  // of the number that atoi reads
    std::optional<long long> maximum;
    std::optional<char> separator;  // it is a list
    Set trimmed = {};               // bytes that are removed from both ends of each item
    std::optional<std::size_t> min_items;
    std::optional<std::size_t> max_items;
    std::vector<Form> item = {};  // one: the requirements on each item
    // A regular expression of ECMA-262, if bytes, lengths and keywords are not sufficient.
    std::string pattern = {};
    std::vector<Form> recommended = {};  // one: what a form should offer, if more is accepted
    bool reads_number = false;           // so numbers beyond an int are not covered

    bool operator==(const Form&) const = default;
};

struct Constraints {
    Form form = {};
    std::vector<Limit> limits = {};            // set by other arguments
    std::vector<std::size_t> depends_on = {};  // other arguments on which the accepted values depend
    bool is_necessary = false;                 // some member is set, and every accepted value satisfies all
    bool is_sufficient = false;  // every value that satisfies it is accepted if the other arguments are valid
    bool is_schema_sufficient = false;  // the same with only lengths, keywords in their case and the pattern
    bool is_secret = false;
    std::optional<NullOutcome> null = {};  // of a text
};

// has_constraints returns true for an argument that is passed to a check with a verdict and is a single text or a
// number.
bool has_constraints(const Check& check, std::size_t argument);

// constraints_of returns the constraints of the check on an argument.
Constraints constraints_of(const Check& check, std::size_t argument, const Build& build);

}  // namespace ostrel::rules

#endif

// Constraints: what an argument has to be, as far as its description proves it, for programs and forms.
//
// Nothing is said of numbers beyond an int, which builds read differently.
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

// Form is what a text must be: all that is said must hold. What is not there says nothing.
struct Form {
    std::optional<std::size_t> min_length;  // in bytes
    std::optional<std::size_t> max_length;
    std::vector<long long> lengths = {};  // where some between the least and the greatest are missing
    std::optional<Set> characters;
    std::optional<std::vector<std::string>> keywords;
    std::vector<std::string> prefixes = {};
    bool ignores_case = false;         // of ASCII letters, in keywords and prefixes
    std::vector<Runs> shapes = {};     // it has one of them
    std::optional<long long> minimum;  // of the number that atoi reads
    std::optional<long long> maximum;
    std::optional<char> separator;  // it is a list
    Set trimmed = {};               // bytes that are taken off both ends of each item
    std::optional<std::size_t> min_items;
    std::optional<std::size_t> max_items;
    std::vector<Form> item = {};  // one: what each item must be
    // All of it as an expression of ECMA-262, where bytes, lengths and keywords do not say it all.
    std::string pattern = {};
    std::vector<Form> recommended = {};  // one: what a form should offer, where more than that is accepted
    bool reads_number = false;           // so that numbers beyond an int are outside of what is said

    bool operator==(const Form&) const = default;
};

struct Constraints {
    Form form = {};
    std::vector<Limit> limits = {};            // set by other arguments
    std::vector<std::size_t> depends_on = {};  // other arguments that decide which values are right
    bool is_necessary = false;                 // something is said, and every value that is accepted obeys
    bool is_sufficient = false;  // every value that obeys is accepted, the other arguments being right
    bool is_schema_sufficient =
        false;  // and so it is by lengths, keywords in their case and the pattern alone
    bool is_secret = false;
    std::optional<NullOutcome> null = {};  // of a text
};

// has_constraints tells whether anything can be said of an argument: it is given to a check that answers with a
// verdict, and it is a single text or a number.
bool has_constraints(const Check& check, std::size_t argument);

// constraints_of says what the check accepts there.
Constraints constraints_of(const Check& check, std::size_t argument, const Build& build);

}  // namespace ostrel::rules

#endif

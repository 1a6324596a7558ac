// The values of expressions over unknown arguments, such as part of an argument or a literal.
#ifndef OSTREL_RULES_TERM_H
#define OSTREL_RULES_TERM_H

#include <cstddef>
#include <string>
#include <vector>

#include "rules/claim.h"

namespace ostrel::rules {

struct Term {
    enum class Kind {
        kUnset,    // not remembered yet
        kUnknown,  // depends on the variables
        kPart,     // the part of the variable that remains after all cuts, in order
        kLength,   // the length of such a part, plus number
        kCount,    // the number of times that the byte occurs in such a part, plus number
        kText,     // a literal
        kNumber,   // a literal
        kDays,     // the number of days in a month; of contains the year and the month
        kSet,      // a literal
    };

    Kind kind = Kind::kUnset;
    Variables variables = {};  // the variables on which the term depends
    std::size_t variable = 0;
    bool is_integer = false;  // the variable is an int
    std::vector<Cut> cuts = {};
    char byte = '\0';
    long long number = 0;
    std::string text = {};
    Set set = {};
    std::vector<Term> of = {};

    bool operator==(const Term&) const = default;
};

inline Term unknown_term(Variables variables)
{
    Term term{Term::Kind::kUnknown};
    term.variables = std::move(variables);
    return term;
}

inline Term part_of(std::size_t variable, bool is_integer = false)
{
    Term term{Term::Kind::kPart, {variable}, variable, is_integer};
    return term;
}

inline Term term_of(std::string_view text)
{
    Term term{Term::Kind::kText};
    term.text = text;
    return term;
}

inline Term term_of(long long number)
{
    Term term{Term::Kind::kNumber};
    term.number = number;
    return term;
}

}  // namespace ostrel::rules

#endif

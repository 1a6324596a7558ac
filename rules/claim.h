// Claim: the implication of a condition for one argument, the target, whatever the others are.
#ifndef OSTREL_RULES_CLAIM_H
#define OSTREL_RULES_CLAIM_H

#include <cstddef>
#include <set>
#include <vector>

#include "rules/language/language.h"

namespace ostrel::rules {

// Variables are arguments of the check, by number.
using Variables = std::set<std::size_t>;

// Limit is a limit set by another argument.
struct Limit {
    enum class Kind { kMinLength, kMaxLength, kMinimum, kMaximum, kCharacters };

    Kind kind;
    std::size_t argument;

    bool operator==(const Limit&) const = default;
};

// Factors is a condition written as a conjunction.
struct Factors {
    Language own = {};  // depends only on the target
    std::vector<Limit> limits = {};
    bool is_entangled = false;  // a factor depends on the target and others, or is unknown
    Variables entangled = {};   // the others in limits and in that factor

    bool operator==(const Factors&) const = default;
};

struct Claim {
    Language holds;          // every text of the target for which the condition can hold
    Language fails;          // every text for which it can fail
    bool is_decided = true;  // the target alone decides, so the two languages are disjoint
    bool is_about_target = true;
    Variables others = {};     // other arguments that it depends on
    bool are_negated = false;  // factors are those of the negation
    Factors factors = {};

    bool operator==(const Claim&) const = default;
};

// Claims creates claims that share one pool of languages.
class Claims {
 public:
    explicit Claims(Languages& languages) : languages_(languages) {}

    Claim decided(Language holds);
    Claim always() { return decided(languages_.any()); }
    Claim never() { return decided(languages_.nothing()); }

    // unknown is a claim that may hold or not, depending on these arguments, or on the target alone if there are none.
    Claim unknown(Variables variables, std::size_t target);

    // beyond states that the limit set by the other argument is exceeded.
    Claim beyond(Limit limit);

    Claim negated(Claim claim);
    Claim both(const Claim& a, const Claim& b);
    Claim either(const Claim& a, const Claim& b);

 private:
    Languages& languages_;
};

}  // namespace ostrel::rules

#endif

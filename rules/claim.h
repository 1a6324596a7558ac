// A claim states what a condition implies for one argument, the target, whatever the other arguments are.
#ifndef OSTREL_RULES_CLAIM_H
#define OSTREL_RULES_CLAIM_H

#include <cstddef>
#include <set>
#include <vector>

#include "rules/language/language.h"

namespace ostrel::rules {

// Variables is a set of the check's arguments, by index.
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
    Language own = {};  // the factor that depends only on the target
    std::vector<Limit> limits = {};
    bool is_entangled = false;  // a factor depends on the target and other arguments, or is unknown
    Variables entangled = {};   // the other arguments in limits and in the entangled factor

    bool operator==(const Factors&) const = default;
};

struct Claim {
    Language holds;          // every value of the target for which the condition can hold
    Language fails;          // every value of the target for which the condition can fail
    bool is_decided = true;  // only the target matters, so the two languages are disjoint
    bool is_about_target = true;
    Variables others = {};     // the other arguments on which the condition depends
    bool are_negated = false;  // factors describes the negation of the condition
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

    // unknown returns a claim that may or may not hold, depending on the given variables or, if there are
    // none, only on the target.
    Claim unknown(Variables variables, std::size_t target);

    // beyond returns the claim that the limit set by another argument is violated.
    Claim beyond(Limit limit);

    Claim negated(Claim claim);
    Claim both(const Claim& a, const Claim& b);
    Claim either(const Claim& a, const Claim& b);

 private:
    Languages& languages_;
};

}  // namespace ostrel::rules

#endif

// Claim: what a condition says of one argument, the target, whatever the others are.
#ifndef OSTREL_RULES_CLAIM_H
#define OSTREL_RULES_CLAIM_H

#include <cstddef>
#include <set>
#include <vector>

#include "rules/language/language.h"

namespace ostrel::rules {

// Variables are arguments of the check, by their number.
using Variables = std::set<std::size_t>;

// Limit is one that another argument sets.
struct Limit {
    enum class Kind { kMinLength, kMaxLength, kMinimum, kMaximum, kCharacters };

    Kind kind;
    std::size_t argument;

    bool operator==(const Limit&) const = default;
};

// Factors is a condition taken apart: all of it holds where each part does.
struct Factors {
    Language own = {};  // of the target alone
    std::vector<Limit> limits = {};
    bool is_entangled = false;  // and there is a part that needs the target and others, or what nobody knows
    Variables entangled = {};   // the others in limits and in that part

    bool operator==(const Factors&) const = default;
};

struct Claim {
    Language holds;          // every text of the target for which the condition can hold
    Language fails;          // every text for which it can fail
    bool is_decided = true;  // the target alone decides, so that no text is in both
    bool is_about_target = true;
    Variables others = {};     // arguments that it depends on besides
    bool are_negated = false;  // factors are those of the opposite
    Factors factors = {};

    bool operator==(const Claim&) const = default;
};

// Claims makes claims, about texts of one pool of languages.
class Claims {
 public:
    explicit Claims(Languages& languages) : languages_(languages) {}

    Claim decided(Language holds);
    Claim always() { return decided(languages_.any()); }
    Claim never() { return decided(languages_.nothing()); }

    // unknown depends on these arguments in a way that is not looked into. Where these are none, no other argument
    // can make it right.
    Claim unknown(Variables variables, std::size_t target);

    // beyond says that the other argument's limit is not kept.
    Claim beyond(Limit limit);

    Claim negated(Claim claim);
    Claim both(const Claim& a, const Claim& b);
    Claim either(const Claim& a, const Claim& b);

 private:
    Languages& languages_;
};

}  // namespace ostrel::rules

#endif

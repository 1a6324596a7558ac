// The values of one argument, the target, for which a check returns 0, derived from the check's steps without
// calling the check.
//
// If the exact set of values cannot be expressed, a larger set is used. So a claim may be too weak, but it is
// never false. Numbers that do not fit in an int are treated as having their exact value.
#ifndef OSTREL_RULES_ACCEPTANCE_H
#define OSTREL_RULES_ACCEPTANCE_H

#include <optional>
#include <vector>

#include "rules/build.h"
#include "rules/claim.h"
#include "rules/term.h"
#include "rules/vocabulary.h"

namespace ostrel::rules {

class Acceptance {
 public:
    Acceptance(Languages& languages, const Build& build, const Check& check, std::size_t target)
        : languages_(languages),
          claims_(languages),
          build_(build),
          check_(check),
          target_(target),
          variables_(check.arguments.size())
    {
    }

    // claim returns the condition under which the check returns 0 if the target is not NULL. The check must
    // read the target.
    Claim claim();

 private:
    // Scope is the state of one check while its steps are followed: the check itself, or one that it calls.
    struct Scope {
        std::vector<Term> slots;
        Term item = {};
        bool is_called = false;
    };

    // Outcome states for which values steps return 0, skip to the next item, or continue after the last step.
    struct Outcome {
        Claim accepts;
        Claim skips;
        Claim goes_on;
    };

    Outcome follow(const std::vector<Step>& steps, Scope& scope);
    Outcome follow(const Step& step, Scope& scope);
    Outcome choose(const Step& step, Scope& scope);
    Outcome repeat(const Step& step, Scope& scope);
    std::optional<Claim> for_items(const Term& list, const Step& step, Scope scope);
    Claim accepted_by(const Check& check, Scope& scope);
    Outcome going_on(Claim claim) { return {claims_.never(), claims_.never(), std::move(claim)}; }
    void write(const Step& step, Scope& scope);
    void forget(const std::vector<Write>& writes, Scope& scope);
    void forget(const std::vector<Step>& steps, Scope& scope);

    Claim condition(const Condition& condition, const Scope& scope);
    Claim unnegated(const Condition& condition, const Scope& scope);
    Claim outside(const Condition& condition, const Scope& scope);
    Claim length(const Condition& condition, const Scope& scope);
    Claim number(const Condition& condition, const Scope& scope);
    Claim above_days(const Term& judged, const Term& days);
    Claim in_leap_year(const Term& year);
    Claim equality(const Condition& condition, const Scope& scope);
    Claim row(const Condition& condition, const Scope& scope);
    Claim refused_by(const Condition& condition, const Scope& scope);
    Claim all_of(const std::vector<Condition>& parts, const Scope& scope);

    Claim text_in(const Term& term, Language language);
    Claim number_in(const Term& term, const Intervals& numbers);
    Claim unknown(const Term& a, const Term& b = {});
    bool is_limit(const Term& judged, const Term& limit) const;

    Term term(const Expression& expression, const Scope& scope);
    Term cut(const Expression& expression, const Scope& scope);
    Term slice(const Expression& expression, const Scope& scope);
    Term sum(const Expression& expression, const Scope& scope);
    Term measure(const Expression& expression, const Scope& scope);
    Term unknown_of(const Expression& expression, const Scope& scope);
    [[nodiscard]] Term anything() const;

    Languages& languages_;
    Claims claims_;
    const Build& build_;
    const Check& check_;
    std::size_t target_;
    std::size_t variables_;  // the number of variables: arguments and list items
};

}  // namespace ostrel::rules

#endif

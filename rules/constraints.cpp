#include "rules/constraints.h"

#include "rules/acceptance.h"
#include "rules/form.h"

namespace ostrel::rules {

bool has_constraints(const Check& check, std::size_t argument)
{
    const Argument& given = check.arguments[argument];
    const bool is_given = given.kind != Argument::Kind::kBlocks && given.kind != Argument::Kind::kIntegerOut;
    return check.is_verdict && is_given && !given.is_output;
}

Constraints constraints_of(const Check& check, std::size_t argument, const Build& build)
{
    const Argument& given = check.arguments[argument];
    const bool is_number = given.kind == Argument::Kind::kInteger || given.kind == Argument::Kind::kUnsigned;
    Languages languages;
    const Claim claim = Acceptance(languages, build, check, argument).claim();
    const bool is_entangled = claim.are_negated || claim.factors.is_entangled;
    bool says_all = false;

    Constraints result;
    result.form = is_number ? form_of_number(languages, claim.holds, says_all)
                            : form_of_text(languages, claim.holds, says_all);
    if (!claim.are_negated) result.limits = claim.factors.limits;
    const Variables& others = claim.are_negated ? claim.others : claim.factors.entangled;
    result.depends_on.assign(others.begin(), others.end());
    result.is_sufficient = says_all && !is_entangled;
    const bool says_nothing = result.form == Form() && result.limits.empty();
    result.is_necessary = result.is_sufficient || !says_nothing;
    result.is_secret = given.is_secret;
    if (!is_number) result.null = null_outcome_of(check, argument);
    return result;
}

}  // namespace ostrel::rules

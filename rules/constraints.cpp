#include "rules/constraints.h"

#include <algorithm>

#include "rules/acceptance.h"
#include "rules/form.h"

namespace ostrel::rules {

namespace {

bool says_anything(Form form)
{
    form.reads_number = false;
    form.recommended.clear();
    return form != Form();
}

}  // namespace

bool has_constraints(const Check& check, std::size_t argument)
{
    const Argument& given = check.arguments[argument];
    return check.is_verdict && given.kind != Argument::Kind::kBlocks && !given.is_only_written();
}

Constraints constraints_of(const Check& check, std::size_t argument, const Build& build)
{
    const Argument& given = check.arguments[argument];
    Languages languages;
    const Claim claim = Acceptance(languages, build, check, argument).claim();
    const bool is_entangled = claim.is_about_target && (claim.are_negated || claim.factors.is_entangled);
    Said said =
        given.is_number() ? form_of_number(languages, claim.holds) : form_of_text(languages, claim.holds);

    Constraints result;
    result.form = std::move(said.form);
    if (!claim.are_negated) result.limits = claim.factors.limits;
    const auto is_of_number = [](const Limit& limit) {
        return limit.kind == Limit::Kind::kMinimum || limit.kind == Limit::Kind::kMaximum;
    };
    if (!given.is_number() && std::ranges::any_of(result.limits, is_of_number))
        result.form.reads_number = true;
    const Variables& others = claim.are_negated ? claim.others : claim.factors.entangled;
    if (claim.is_about_target) result.depends_on.assign(others.begin(), others.end());
    result.is_sufficient = said.is_all && !is_entangled;
    result.is_schema_sufficient = said.is_all_in_schema && !is_entangled;
    result.is_necessary = result.is_sufficient || says_anything(result.form) || !result.limits.empty();
    result.is_secret = given.is_secret;
    if (!given.is_number()) result.null = null_outcome(check, argument, build);
    return result;
}

}  // namespace ostrel::rules

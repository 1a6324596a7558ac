#include "rules/claim.h"

namespace ostrel::rules {

Claim Claims::decided(Language holds)
{
    Claim claim{holds, languages_.negated(holds)};
    claim.is_about_target = holds != languages_.any() && holds != languages_.nothing();
    claim.factors.own = holds;
    return claim;
}

Claim Claims::unknown(Variables variables, std::size_t target)
{
    Claim claim{languages_.any(), languages_.any(), false};
    claim.is_about_target = variables.erase(target) > 0 || variables.empty();
    claim.others = std::move(variables);
    claim.factors.own = languages_.any();
    claim.factors.is_entangled = claim.is_about_target;
    if (claim.is_about_target) claim.factors.entangled = claim.others;
    return claim;
}

Claim Claims::beyond(Limit limit)
{
    Claim claim{languages_.any(), languages_.any(), false};
    claim.others = {limit.argument};
    claim.are_negated = true;
    claim.factors = {languages_.any(), {limit}, false, claim.others};
    return claim;
}

Claim Claims::negated(Claim claim)
{
    if (claim.is_decided) return decided(claim.fails);
    std::swap(claim.holds, claim.fails);
    claim.are_negated = !claim.are_negated;
    return claim;
}

Claim Claims::both(const Claim& a, const Claim& b)
{
    const Language holds = languages_.both({a.holds, b.holds});
    if (a.is_decided && b.is_decided) return decided(holds);
    if (a == always() || b == never()) return b;
    if (b == always() || a == never()) return a;
    Claim claim{holds, languages_.either({a.fails, b.fails}), false};
    claim.is_about_target = a.is_about_target || b.is_about_target;
    claim.factors.own = languages_.any();
    for (const Claim* one : {&a, &b}) {
        claim.others.insert(one->others.begin(), one->others.end());
        if (!one->is_about_target) continue;
        Factors& factors = claim.factors;
        if (one->are_negated) {
            factors.is_entangled = true;
            factors.entangled.insert(one->others.begin(), one->others.end());
            continue;
        }
        factors.own = languages_.both({factors.own, one->factors.own});
        factors.limits.insert(factors.limits.end(), one->factors.limits.begin(), one->factors.limits.end());
        factors.is_entangled = factors.is_entangled || one->factors.is_entangled;
        factors.entangled.insert(one->factors.entangled.begin(), one->factors.entangled.end());
    }
    return claim;
}

Claim Claims::either(const Claim& a, const Claim& b)
{
    const Claim not_a = negated(a);
    const Claim not_b = negated(b);
    return negated(both(not_a, not_b));
}

}  // namespace ostrel::rules

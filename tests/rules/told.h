// A description's answer to a call, and the sentence about a refusal.
#ifndef OSTREL_TESTS_RULES_TOLD_H
#define OSTREL_TESTS_RULES_TOLD_H

#include <string>
#include <string_view>
#include <vector>

#include "rules/evaluate.h"
#include "rules/rules.h"
#include "rules/sentences.h"
#include "rules/words.h"

namespace ostrel::rules {

inline Answer answer_of(std::string_view name, const std::vector<Value>& values, const Build& build = {})
{
    return evaluate(*find(name), values, build);
}

// answer_of evaluates steps that are not part of any real check.
inline Answer answer_of(std::vector<Step> steps, const std::vector<Value>& values, const Build& build = {})
{
    std::vector<ArgumentWords> arguments;
    for (const char* name : {"one", "two", "three"}) {
        if (arguments.size() < values.size()) arguments.push_back(text(name, "a text"));
    }
    return evaluate(registered(check("a_check", std::move(arguments), std::move(steps))), values, build);
}

inline std::string told(const Answer& answer)
{
    return answer.is_refusal ? sentence(answer.reason) : "accepted";
}

inline std::string told(std::string_view name, const std::vector<Value>& values)
{
    return told(answer_of(name, values));
}

}  // namespace ostrel::rules

#endif

#include "rules/json_schema.h"

#include "rules/constraints.h"
#include "rules/language/pattern.h"
#include "rules/rules.h"

namespace ostrel::rules {

namespace {

// single_text gives the argument that a check judges, if it is a text and nothing else is given.
std::optional<std::size_t> single_text(const Check& check)
{
    std::optional<std::size_t> found;
    for (std::size_t i = 0; i < check.arguments.size(); ++i) {
        const Argument& argument = check.arguments[i];
        if (argument.kind == Argument::Kind::kIntegerOut || argument.is_output) continue;
        const bool is_text =
            argument.kind == Argument::Kind::kText || argument.kind == Argument::Kind::kBuffer;
        if (found || !is_text || !has_constraints(check, i)) return std::nullopt;
        found = i;
    }
    return found;
}

SchemaDefinition definition(const Check& check, std::size_t argument, const Build& build)
{
    const Constraints constraints = constraints_of(check, argument, build);
    const Form& form = constraints.form;
    SchemaDefinition result{&check, &check.arguments[argument]};
    result.min_length = form.min_length.value_or(0);
    result.max_length = form.max_length;
    result.pattern = form.pattern;
    if (form.keywords && !form.ignores_case) result.texts = form.keywords;
    if (form.characters && form.pattern.empty()) {
        Languages languages;
        result.pattern = pattern_of(languages, languages.repeated(*form.characters)).value_or("");
    }
    result.is_exact = constraints.is_sufficient;
    result.reads_number = form.reads_number;
    return result;
}

}  // namespace

std::vector<SchemaDefinition> schema_definitions(const Build& build)
{
    std::vector<SchemaDefinition> result;
    for (const Check& check : checks()) {
        if (const auto argument = single_text(check)) result.push_back(definition(check, *argument, build));
    }
    return result;
}

}  // namespace ostrel::rules

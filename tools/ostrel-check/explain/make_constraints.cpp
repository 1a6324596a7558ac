// make_constraints FILE writes a source file with the constraints that the descriptions in rules/ imply.
// The build runs it, because deriving the constraints each time a command runs would take too long.

#include <algorithm>
#include <fstream>
#include <nlohmann/json.hpp>

#include "catalogue/value_json.h"
#include "rules/constraints.h"
#include "rules/language/pattern.h"
#include "rules/rules.h"

namespace ostrel::tool {

namespace {

using catalogue::utf8_from_bytes;
using nlohmann::ordered_json;
using rules::Constraints;
using rules::Form;
using rules::Limit;
using rules::NullOutcome;

rules::Build this_build()
{
    rules::Build build;
    build.model = OSTREL_MODEL;
    build.account_realm = OSTREL_ACCOUNT_REALM;
    build.setup_realm = OSTREL_SETUP_REALM;
    return build;
}

std::string_view name_of(Limit::Kind kind)
{
    switch (kind) {
        case Limit::Kind::kMinLength:
            return "min_length";
        case Limit::Kind::kMaxLength:
            return "max_length";
        case Limit::Kind::kMinimum:
            return "minimum";
        case Limit::Kind::kMaximum:
            return "maximum";
        case Limit::Kind::kCharacters:
            break;
    }
    return "characters";
}

std::string_view name_of(NullOutcome outcome)
{
    switch (outcome) {
        case NullOutcome::kAccepted:
            return "accepted";
        case NullOutcome::kRefused:
            return "refused";
        case NullOutcome::kAssertion:
            return "assertion";
        case NullOutcome::kFault:
            return "fault";
        case NullOutcome::kDepends:
            break;
    }
    return "depends";
}

ordered_json json_of(const std::vector<std::string>& texts)
{
    ordered_json result = ordered_json::array();
    for (const std::string& text : texts) result.push_back(utf8_from_bytes(text));
    return result;
}

ordered_json json_of(const std::vector<rules::Runs>& shapes)
{
    ordered_json result = ordered_json::array();
    for (const rules::Runs& shape : shapes) {
        ordered_json groups = ordered_json::array();
        for (const rules::Run& run : shape) {
            groups.push_back({{"characters", utf8_from_bytes(run.characters.members())},
                              {"least", run.least},
                              {"most", run.most}});
        }
        result.push_back(groups);
    }
    return result;
}

template <typename T>
void add(ordered_json& object, const char* name, const std::optional<T>& value)
{
    if (value) object[name] = *value;
}

ordered_json json_of(const Form& form)
{
    ordered_json result = ordered_json::object();
    add(result, "min_length", form.min_length);
    add(result, "max_length", form.max_length);
    if (!form.lengths.empty()) result["lengths"] = form.lengths;
    if (form.characters) result["characters"] = utf8_from_bytes(form.characters->members());
    if (form.keywords) result["keywords"] = json_of(*form.keywords);
    if (!form.prefixes.empty()) result["prefixes"] = json_of(form.prefixes);
    if (form.keywords || !form.prefixes.empty()) result["case_sensitive"] = !form.ignores_case;
    if (!form.shapes.empty()) result["shape"] = json_of(form.shapes);
    add(result, "minimum", form.minimum);
    add(result, "maximum", form.maximum);
    if (form.separator) result["separator"] = std::string(1, *form.separator);
    if (!form.trimmed.empty()) result["trimmed"] = utf8_from_bytes(form.trimmed.members());
    add(result, "min_items", form.min_items);
    add(result, "max_items", form.max_items);
    if (!form.item.empty()) result["item"] = json_of(form.item.front());
    if (!form.pattern.empty()) result["pattern"] = form.pattern;
    if (form.reads_number) result["reads_number"] = true;
    if (!form.recommended.empty()) result["recommended"] = json_of(form.recommended.front());
    return result;
}

ordered_json json_of(const Constraints& constraints, const rules::Check& check)
{
    ordered_json result = {{"necessary", constraints.is_necessary},
                           {"sufficient", constraints.is_sufficient},
                           {"exact", constraints.is_necessary && constraints.is_sufficient}};
    result.update(json_of(constraints.form));
    for (const Limit& limit : constraints.limits)
        result["limits"][std::string(name_of(limit.kind))] = check.arguments[limit.argument].name;
    for (const std::size_t other : constraints.depends_on)
        result["depends_on"].push_back(check.arguments[other].name);
    if (constraints.is_secret) result["secret"] = true;
    if (constraints.null) result["null"] = name_of(*constraints.null);
    return result;
}

// definition_of returns the JSON Schema definition of a string argument.
ordered_json definition_of(const Constraints& constraints, const rules::Argument& argument)
{
    const Form& form = constraints.form;
    ordered_json result = {{"description", argument.what}, {"type", "string"}};
    if (form.min_length) result["minLength"] = *form.min_length;
    add(result, "maxLength", form.max_length);
    if (form.keywords && form.keywords->empty()) {
        result["not"] = ordered_json::object();
    } else if (form.keywords && !form.ignores_case) {
        result["enum"] = json_of(*form.keywords);
    }
    if (!form.pattern.empty()) {
        result["pattern"] = form.pattern;
    } else if (form.characters) {
        rules::Languages languages;
        add(result, "pattern", rules::pattern_of(languages, languages.repeated(*form.characters)));
    }
    if (argument.is_secret) result["writeOnly"] = true;
    if (constraints.is_schema_sufficient) result["x-ostrel-exact"] = true;
    if (form.reads_number) result["x-ostrel-reads-number"] = true;
    return result;
}

// judges_text returns whether an argument is a string and the check's only input.
bool judges_text(const rules::Check& check, std::size_t argument)
{
    using Kind = rules::Argument::Kind;
    const Kind kind = check.arguments[argument].kind;
    return (kind == Kind::kText || kind == Kind::kBuffer) &&
           std::ranges::count(check.arguments, false, &rules::Argument::is_only_written) == 1;
}

struct Derived {
    ordered_json constraints = ordered_json::object();
    ordered_json definitions = ordered_json::object();
};

Derived derive()
{
    Derived result;
    for (const rules::Check& check : rules::checks()) {
        const std::string name(check.name);
        ordered_json& arguments = result.constraints[name] = ordered_json::array();
        for (std::size_t i = 0; i < check.arguments.size(); ++i) {
            ordered_json& argument = arguments.emplace_back(nullptr);
            if (!rules::has_constraints(check, i)) continue;
            const Constraints constraints = rules::constraints_of(check, i, this_build());
            argument = json_of(constraints, check);
            if (judges_text(check, i))
                result.definitions[name] = definition_of(constraints, check.arguments[i]);
        }
    }
    return result;
}

ordered_json schema_of(ordered_json definitions)
{
    return {
        {"$schema", "https://json-schema.org/draft/2020-12/schema"},
        {"title", "What the checks of libostrel_check.so accept"},
        {"description",
         "A definition for each check that has a single string argument. Each character of a string stands "
         "for "
         "the byte of the same number. A definition with x-ostrel-exact agrees with its check on every "
         "string "
         "of U+0001 to U+007E. One without it accepts every string that the check accepts, and others. With "
         "x-ostrel-reads-number, this does not cover strings with a number that does not fit in an int."},
        {"$defs", std::move(definitions)}};
}

std::string function(std::string_view name, const ordered_json& json, int indent)
{
    return "std::string_view " + std::string(name) + "() { return R\"~text~(" + json.dump(indent) +
           "\n)~text~\"; }\n\n";
}

bool write(const char* path)
{
    const Derived derived = derive();
    std::ofstream file(path);
    file << "// Generated by the build from the descriptions in rules/.\n"
         << "#include \"explain/constraints.h\"\n\n"
         << "namespace ostrel::tool {\n\n"
         << function("constraints", derived.constraints, -1)
         << function("json_schema", schema_of(derived.definitions), 1) << "}  // namespace ostrel::tool\n";
    file.close();
    return file.good();
}

}  // namespace

}  // namespace ostrel::tool

int main(int argc, char** argv) { return argc == 2 && ostrel::tool::write(argv[1]) ? 0 : 1; }

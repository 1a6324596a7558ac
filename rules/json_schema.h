// JSON Schema: what each check of a single text accepts, in the words that a schema of JSON has for strings.
#ifndef OSTREL_RULES_JSON_SCHEMA_H
#define OSTREL_RULES_JSON_SCHEMA_H

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "rules/build.h"
#include "rules/vocabulary.h"

namespace ostrel::rules {

// SchemaDefinition is for one check. In a string each character is the byte of the same number.
struct SchemaDefinition {
    const Check* check;
    const Argument* argument;
    std::size_t min_length = 0;
    std::optional<std::size_t> max_length = {};
    std::optional<std::vector<std::string>> texts = {};  // no others; where these are none, no string suits
    std::string pattern = {};
    // Schema and library agree on every string of U+0001 to U+007E whose numbers fit an int; or else the schema lets
    // all pass that the library accepts, and more.
    bool is_exact = false;
    bool reads_number = false;
};

std::vector<SchemaDefinition> schema_definitions(const Build& build);

}  // namespace ostrel::rules

#endif

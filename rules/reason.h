// Reason: why a step decided, as data. sentences.h puts it into a sentence.
#ifndef OSTREL_RULES_REASON_H
#define OSTREL_RULES_REASON_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "rules/set.h"

namespace ostrel::rules {

// Datum is nothing, a number, a text, a set of bytes, or a list of texts or numbers. The texts of a list belong to the
// description, which outlives the list.
using Datum = std::variant<std::monostate, long long, std::string, Set, std::vector<std::string_view>,
                           std::vector<long long>>;

// Span is part of a text.
struct Span {
    std::size_t begin = 0;
    std::size_t size = 0;
};

struct Reason {
    std::string_view id;                  // empty: no condition, the step always decides
    std::optional<std::size_t> argument;  // from 0; nullopt: no single one
    std::string_view name;                // of the argument
    std::string part;                   // such as "the host" or "label 2"; empty: all of the argument or item
    std::optional<std::size_t> item;    // of a list, or the key of a block, from 0
    std::string item_text;              // its text
    std::optional<std::size_t> offset;  // from 0, in the text of the argument or of the key
    std::optional<Span> judged;         // what was judged, in the same text
    std::string_view conversion;        // of that text before it was judged, or empty
    Datum found;
    Datum allowed;
    std::optional<long long> read_as;  // the number that atoi reads, if the text is not just an int
    std::string_view limit;            // of a number beyond an int: the id for the number that is read

    // clear resets the reason for reuse. A reason without an id is already empty.
    void clear()
    {
        if (id.empty()) return;
        id = name = conversion = limit = {};
        argument = item = offset = std::nullopt;
        judged.reset();
        read_as.reset();
        part.clear();
        item_text.clear();
        found = std::monostate();
        allowed = std::monostate();
    }
};

}  // namespace ostrel::rules

#endif

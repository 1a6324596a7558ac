// Reason: why a step decided, as data. sentences.h makes a sentence of it.
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

// Datum is a number, a text, a set of bytes, or a list of texts or numbers; or nothing. A list of texts is of the
// description, which outlives it.
using Datum = std::variant<std::monostate, long long, std::string, Set, std::vector<std::string_view>,
                           std::vector<long long>>;

// Span is a piece of a text.
struct Span {
    std::size_t begin = 0;
    std::size_t size = 0;
};

struct Reason {
    std::string_view id;                  // empty: no condition, the step always decides
    std::optional<std::size_t> argument;  // which one, from 0; nothing: none alone
    std::string_view name;                // of the argument
    std::string part;  // of it, as in "the host" or "label 2"; empty: all of it, or of the item
    std::optional<std::size_t> item;    // of a list, or the key of a block, from 0
    std::string item_text;              // what stands there
    std::optional<std::size_t> offset;  // from 0, in the argument's text or, of a block, in the key's
    std::optional<Span> judged;         // what was judged, in the text that offset counts in
    std::string_view conversion;        // what was done first to the text that offset counts in; or empty
    Datum found;
    Datum allowed;
    std::optional<long long> read_as;  // what this build's atoi makes of a text that is not just an int
    std::string_view limit;            // of a number beyond an int: the id that the number read has

    // clear makes it ready for the next one. One without an id is empty.
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

// The reason why a step determined the result, as data. sentences.h turns it into a sentence.
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

// Datum is empty, or is a number, a string, a set of bytes, or a list of strings or numbers. The strings in a
// list belong to the description, which outlives the list.
using Datum = std::variant<std::monostate, long long, std::string, Set, std::vector<std::string_view>,
                           std::vector<long long>>;

struct Span {
    std::size_t begin = 0;
    std::size_t size = 0;
};

struct Reason {
    std::string_view id;                  // empty if the step has no condition
    std::optional<std::size_t> argument;  // the index of the argument, or nullopt if there is no single one
    std::string_view name;                // the name of the argument
    std::string part;                     // such as "the host" or "label 2"; empty if no part is named
    std::optional<std::size_t> item;      // the index of the item in a list, or of the key in a block
    std::string item_text;                // the contents of the item
    std::optional<std::size_t> offset;    // the offset from the beginning of the argument or the key
    std::optional<Span> judged;           // the part of the argument or the key that was judged
    std::string_view conversion;          // describes how the argument was converted first, or is empty
    Datum found;
    Datum allowed;
    std::optional<long long> read_as;  // the number that atoi reads, if the string is not exactly an int
    std::string_view limit;  // for number_beyond_int, the id that applies to the number that atoi reads

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

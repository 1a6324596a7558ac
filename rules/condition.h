// Conditions: the tests of texts and numbers.
#ifndef OSTREL_RULES_CONDITION_H
#define OSTREL_RULES_CONDITION_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "rules/build.h"
#include "rules/expression.h"

namespace ostrel::rules {

struct Check;

// Group is one element of a shape: least to most bytes of one set.
struct Group {
    Set set;
    std::size_t least = 1;
    std::size_t most = 1;
    std::vector<Line> lines = {};  // printed if this group is at fault
};

// Shape is a sequence of groups. A group of variable length has no byte in common with the next one.
using Shape = std::vector<Group>;

// GrammarFault locates where a text violates a grammar. The sentence of the id uses found and allowed.
struct GrammarFault {
    std::string_view id;
    std::size_t offset = 0;
    std::string found = {};
    std::string allowed = {};
};

// Grammar is written by hand, for rules that the vocabulary cannot express. ids lists every id that it returns.
struct Grammar {
    std::string_view what;                   // the name of a valid text: "an IPv4 address"
    std::vector<std::string_view> ids;       // of its faults
    std::vector<std::string_view> accepted;  // valid texts
    std::vector<std::string_view> refused;   // texts that violate it, in the order of ids
    std::optional<GrammarFault> (*judge)(std::string_view text, const Build& build);
};

// Table is a list of rows whose cells belong together.
struct Table {
    std::vector<std::string_view> columns;  // their contents, in words
    std::vector<std::vector<std::string_view>> rows;
};

// Match defines how a text or a number must match a column of a row.
struct Match {
    enum class How {
        kEqual,   // it is the text of the cell
        kPart,    // it occurs in the text of the cell
        kNumber,  // it is the number of the cell
    };

    std::size_t column;
    How how;
    Expression value;
};

// Condition holds or does not. If it holds, it provides the reason for a refusal.
struct Condition {
    enum class Kind {
        kAlways,
        kNull,       // (argument)
        kEmpty,      // (text)
        kShorter,    // (text, number): it has fewer bytes
        kLonger,     // (text, number): it has more bytes
        kLength,     // (text): its length is one of numbers
        kOutside,    // (text, set): it has a byte that is not in the set
        kKeyword,    // (text): it is one of words
        kPrefix,     // (text): it begins with one of words
        kSuffix,     // (text, text): it ends with the second, and has something before that
        kBelow,      // (number, number): it is lower than the second
        kAbove,      // (number, number): it is higher than the second
        kAmong,      // (number): it is one of numbers
        kBetween,    // (number): it is from the first of numbers to the second
        kMultiple,   // (number, number): it is a multiple of the second
        kEqual,      // (text, text) or, if one is a number, (number, number)
        kContains,   // (text, text): the second occurs in it
        kShape,      // (text): it has one of shapes
        kGrammar,    // (text): it violates the grammar
        kRow,        // a row of the table satisfies all matches; cells are those of the first matching row
        kRefusedBy,  // (arguments): the other check does not return 0
        kListed,  // (number): among the first numbers[0] that the wireless driver lists, none above numbers[1]
        kLastItem,  // in a list: nothing follows the item
        kAllOf,     // (parts): the reason is that of the last
        kAnyOf,     // (parts): the reason is that of the first that holds
    };

    Kind kind = Kind::kAlways;
    bool is_negated = false;
    std::vector<Expression> operands = {};
    std::vector<std::string_view> words = {};
    bool ignores_case = false;  // of ASCII letters, in words
    std::vector<long long> numbers = {};
    std::vector<Shape> shapes = {};
    const Grammar* grammar = nullptr;
    const Table* table = nullptr;
    std::vector<Match> matches = {};
    std::string_view check = {};  // the name of the other check
    std::vector<Condition> parts = {};
    std::string_view id = {};  // of the reason, instead of that of the kind

    std::size_t number = 0;         // in its check: set at registration
    const Check* target = nullptr;  // the other check: set after registration
};

}  // namespace ostrel::rules

#endif

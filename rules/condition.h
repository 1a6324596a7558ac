// The conditions in descriptions, which test strings and numbers.
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

// Group is one element of a shape. It matches a run of bytes from one set, with a length from least to most.
struct Group {
    Set set;
    std::size_t least = 1;
    std::size_t most = 1;
    std::vector<Line> lines = {};  // printed if the string does not match this group
};

// Shape is a sequence of groups. A group of variable length shares no byte with the next group.
using Shape = std::vector<Group>;

// GrammarFault describes where a string violates a grammar. The sentence for the id uses found and allowed.
struct GrammarFault {
    std::string_view id;
    std::size_t offset = 0;
    std::string found = {};
    std::string allowed = {};
};

// Grammar is a hand-written rule that the vocabulary cannot express.
struct Grammar {
    std::string_view what;                   // what a valid string is called, such as "an IPv4 address"
    std::vector<std::string_view> ids;       // every id that judge can return
    std::vector<std::string_view> accepted;  // examples of valid strings
    std::vector<std::string_view> refused;   // examples of invalid strings, in the order of ids
    std::optional<GrammarFault> (*judge)(std::string_view text, const Build& build);
};

struct Table {
    std::vector<std::string_view> columns;  // a description of each column
    std::vector<std::vector<std::string_view>> rows;
};

// Match defines how a string or a number must match the cell in one column.
struct Match {
    enum class How {
        kEqual,   // the value is the string in the cell
        kPart,    // the value occurs in the string in the cell
        kNumber,  // the value is the number in the cell
    };

    std::size_t column;
    How how;
    Expression value;
};

// Condition is a test. If it holds, it provides the reason for a refusal.
struct Condition {
    // The operands of each kind are in parentheses.
    enum class Kind {
        kAlways,
        kNull,       // (argument)
        kEmpty,      // (string)
        kShorter,    // (string, number): the string has fewer bytes
        kLonger,     // (string, number): the string has more bytes
        kLength,     // (string): its length is one of the numbers
        kOutside,    // (string, set): the string contains a byte that is not in the set
        kKeyword,    // (string): it is one of the words
        kPrefix,     // (string): it begins with one of the words
        kSuffix,     // (string, suffix): the string ends with the suffix and has at least one byte before it
        kBelow,      // (number, limit): the number is lower than the limit
        kAbove,      // (number, limit): the number is higher than the limit
        kAmong,      // (number): it is one of the numbers
        kBetween,    // (number): it is at least numbers[0] and at most numbers[1]
        kMultiple,   // (number, divisor): the number is a multiple of the divisor
        kEqual,      // (string, string) or, if one of them is a number, (number, number)
        kContains,   // (string, part): the part occurs in the string
        kShape,      // (string): it matches one of the shapes
        kGrammar,    // (string): it violates the grammar
        kRow,        // a row of the table satisfies all matches; kCell then refers to the first such row
        kRefusedBy,  // (arguments): the other check does not return 0
        // (number): it is one of the first numbers[0] channels that the wireless driver lists, and none of
        // these is above numbers[1]
        kListed,
        kLastItem,  // the item is the last one in its list
        kAllOf,     // (parts): all parts hold; the reason is that of the last part
        kAnyOf,     // (parts): at least one part holds; the reason is that of the first such part
    };

    Kind kind = Kind::kAlways;
    bool is_negated = false;
    std::vector<Expression> operands = {};
    std::vector<std::string_view> words = {};
    bool ignores_case = false;  // applies to the ASCII letters in words
    std::vector<long long> numbers = {};
    std::vector<Shape> shapes = {};
    const Grammar* grammar = nullptr;
    const Table* table = nullptr;
    std::vector<Match> matches = {};
    std::string_view check = {};  // the name of the other check
    std::vector<Condition> parts = {};
    std::string_view id = {};  // the id of the reason, if it is not the usual one for this kind

    std::size_t number = 0;         // the condition's number in its check; set at registration
    const Check* target = nullptr;  // the other check; set after registration
};

}  // namespace ostrel::rules

#endif

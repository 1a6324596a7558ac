// The expressions that conditions test, and lines of output.
#ifndef OSTREL_RULES_EXPRESSION_H
#define OSTREL_RULES_EXPRESSION_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "rules/set.h"

namespace ostrel::rules {

// Conversion is hand-written code that derives one string from another.
struct Conversion {
    std::string_view what;  // such as "with character references replaced"
    std::string (*convert)(std::string_view text);
    std::vector<std::string> changed = {};  // examples of changed strings, one for each kind of change
};

// Expression is a string, a number or a set. A string that is used as a number is read as atoi reads it.
struct Expression {
    // The operands of each kind are in parentheses.
    enum class Kind {
        kName,          // an argument or a remembered value; "" names the item, or else the first argument
        kText,          // a literal
        kNumber,        // a literal
        kSet,           // a literal
        kModel,         // the product model of the build
        kAccountRealm,  // the realm of the ISP's access accounts
        kSetupRealm,    // the realm of the ISP's set-up accounts
        kNowhere,       // the target of a write by another check, if this check ignores the write
        kItem,          // the current item of a list, or the current key of a block
        kIndex,         // the index of this item, from 0
        kRest,          // the rest of the list after this item and its separator
        kByte,          // the offending byte, in a line
        kOffset,        // the offset of the offending byte, in a line
        kBeforeFirst,   // (string, separator): the whole string if there is no separator
        kBeforeLast,    // (string, separator): the whole string if there is no separator
        kAfterFirst,    // (string, separator): empty if there is no separator
        kAfterLast,     // (string, separator): the whole string if there is no separator
        kThroughLast,   // (string, separator): includes the last separator; empty if there is no separator
        kSlice,         // (string, offset, count): shorter if the string ends earlier
        kJoined,        // (strings): concatenated
        kConverted,     // (string): the result of the conversion
        kLength,        // (string): its length in bytes
        kCount,         // (string, byte or number): how often the byte, or the number's lowest 8 bits, occurs
        kSum,           // (numbers)
        kLarger,        // (numbers): the largest
        kDays,          // (year, month): the number of days in the month; 0 if the month is invalid
        kCell,          // the string in a column of the table row that a condition last found
    };

    Expression(const char* name) : text(name) {}
    Expression(int literal) : kind(Kind::kNumber), number(literal) {}
    Expression(const Set& literal) : kind(Kind::kSet), set(literal) {}
    Expression(Kind what, std::vector<Expression> operands) : kind(what), of(std::move(operands)) {}

    Kind kind = Kind::kName;
    std::string_view text = {};
    long long number = 0;
    Set set = {};
    const Conversion* conversion = nullptr;
    std::vector<Expression> of = {};
    std::string_view part = {};  // the name that sentences use for this part of an argument
    std::size_t slot = 0;        // the index of the named value; set at registration
};

// Line is printed with each <name> replaced by its value. The name is that of an argument or a remembered
// value, or <item>, <index>, <byte> or <offset>.
struct Line {
    enum class Stream { kOut, kErr };
    struct Part {
        std::string_view text;  // printed if there is no value
        std::optional<Expression> value;
    };

    std::string_view text;
    Stream stream = Stream::kOut;
    bool is_flushed = true;
    std::vector<Part> parts = {};  // set at registration
};

}  // namespace ostrel::rules

#endif

// Expressions and lines: the texts and numbers that conditions judge, and the output.
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

// Conversion derives a text from another one; it is written by hand.
struct Conversion {
    std::string_view what;  // "with character references replaced"
    std::string (*convert)(std::string_view text);
    std::vector<std::string> changed = {};  // texts that it changes, one for each kind of change
};

// Expression is a text, a number or a set. A text used as a number is read as atoi reads it.
struct Expression {
    enum class Kind {
        kName,  // an argument or a remembered value; "": the subject, which is the item or the first argument
        kText,  // a literal
        kNumber,        // a literal
        kSet,           // a literal
        kModel,         // the product model of the build
        kAccountRealm,  // the realm of the ISP's access accounts
        kSetupRealm,    // the realm of the ISP's set-up accounts
        kNowhere,       // the target of another check's write that this one ignores
        kItem,          // in a list: the item or the key
        kIndex,         // in a list: the number of the item, from 0
        kRest,          // in a list: what follows the separator after the item
        kByte,          // in a line: the byte at fault
        kOffset,        // in a line: its offset
        kBeforeFirst,   // (text, separator): all of it if there is no separator
        kBeforeLast,    // (text, separator): all of it if there is no separator
        kAfterFirst,    // (text, separator): empty if there is no separator
        kAfterLast,     // (text, separator): all of it if there is no separator
        kThroughLast,   // (text, separator): up to and including the last one; empty if there is none
        kSlice,         // (text, offset, count): shorter if the text ends before
        kJoined,        // (texts): concatenated
        kConverted,     // (text): as converted
        kLength,        // (text): its size in bytes
        kCount,         // (text, byte): how often the byte occurs; of a number, its lowest 8 bits
        kSum,           // (numbers)
        kLarger,        // (numbers): the largest
        kDays,          // (year, month): the number of days in the month; 0 if it is invalid
        kCell,          // the text of a column, in the row that a condition found last
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
    std::string_view part = {};  // the name of part of an argument in sentences
    std::size_t slot = 0;        // of a name: set at registration
};

// Line is printed with each <name> replaced by its value: an argument, a remembered value, <item>, <index>, <byte> or
// <offset>.
struct Line {
    enum class Stream { kOut, kErr };
    struct Part {
        std::string_view text;  // if there is no value
        std::optional<Expression> value;
    };

    std::string_view text;
    Stream stream = Stream::kOut;
    bool is_flushed = true;
    std::vector<Part> parts = {};  // set at registration
};

}  // namespace ostrel::rules

#endif

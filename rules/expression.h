// Expressions and lines: the texts and numbers that conditions judge, and what is printed.
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

// Conversion is written by hand: a text that is made of another.
struct Conversion {
    std::string_view what;  // "with character references replaced"
    std::string (*convert)(std::string_view text);
    std::vector<std::string> changed = {};  // texts that it changes, one for each way
};

// Expression is a text, a number or a set. A text that stands where a number is needed is read as atoi reads it.
struct Expression {
    enum class Kind {
        kName,    // an argument or what was remembered; "": what is judged, the item or the first argument
        kText,    // a text as it stands
        kNumber,  // a number as it stands
        kSet,     // a set as it stands
        kModel,   // the product model that the build chose
        kAccountRealm,  // the realm of the ISP's access accounts
        kSetupRealm,    // the realm of the ISP's set-up accounts
        kNowhere,       // for an argument that another check writes to and this one does not look at
        kItem,          // in a list: the item or the key
        kIndex,         // in a list: the number of the item, from 0
        kRest,          // in a list: what follows the separator after the item
        kByte,          // in a line: the byte at fault
        kOffset,        // in a line: its offset
        kBeforeFirst,   // (text, separator): all of it where the separator is missing
        kBeforeLast,    // (text, separator): all of it where the separator is missing
        kAfterFirst,    // (text, separator): empty where the separator is missing
        kAfterLast,     // (text, separator): all of it where the separator is missing
        kThroughLast,   // (text, separator): up to and with the last one; empty where it is missing
        kSlice,         // (text, offset, count): as much of it as there is
        kJoined,        // (texts): one after the other
        kConverted,     // (text): as a conversion makes it
        kLength,        // (text): its bytes
        kCount,         // (text, byte): how often the byte occurs; a number counts with its lowest 8 bits
        kSum,           // (numbers)
        kLarger,        // (numbers): the largest
        kDays,          // (year, month): how many days the month has; 0: there is none such
        kCell,          // in the row that a condition found last: the text of a column
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
    std::string_view part = {};  // of a piece of an argument: what sentences call it
    std::size_t slot = 0;        // of a name: set when the check is registered
};

// Line is printed as it stands, with what <name> names in place of it: an argument, what was remembered, <item>,
// <index>, <byte> or <offset>.
struct Line {
    enum class Stream { kOut, kErr };
    struct Part {
        std::string_view text;  // when there is no value
        std::optional<Expression> value;
    };

    std::string_view text;
    Stream stream = Stream::kOut;
    bool is_flushed = true;
    std::vector<Part> parts = {};  // set when the check is registered
};

}  // namespace ostrel::rules

#endif

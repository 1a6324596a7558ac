// The data types of which a description consists. words.h declares the functions that create the data. All
// strings are literals, or exist until the program ends.
#ifndef OSTREL_RULES_VOCABULARY_H
#define OSTREL_RULES_VOCABULARY_H

#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "rules/condition.h"
#include "rules/expression.h"
#include "rules/set.h"

namespace ostrel::rules {

// Code is the result that a step returns: a number, or the result of the check that its condition calls.
struct Code {
    Code(int fixed) : number(fixed) {}
    Code(Expression computed) : number(std::move(computed)) {}

    Expression number;
    bool is_its = false;                              // the result of the other check is returned
    std::vector<std::pair<int, int>> exchanges = {};  // codes of the other check, and their replacements

    [[nodiscard]] int exchanged(int code) const
    {
        for (const auto& [from, to] : exchanges) {
            if (code == from) return to;
        }
        return code;
    }
};

struct Write {
    Expression target;  // the name of an argument, or the item
    Expression value;
    bool is_terminated = true;
};

struct List {
    Expression of;
    char separator = '\0';  // '\0' if the items are the keys of a block
    // These bytes are removed from both ends of each item, and from the beginning of the rest.
    Set trimmed = {};
    std::string_view part = {};  // the name of an item in sentences; if empty, "item"
};

struct Step {
    enum class Kind {
        kRefuse,        // if the condition holds, prints and returns the code, with the condition's reason
        kAccept,        // if the condition holds, prints, writes and returns the code, which is not a refusal
        kPrint,         // if the condition holds, prints and continues
        kSkip,          // if the condition holds, prints, writes and continues with the next item
        kWrite,         // writes and continues
        kRemember,      // stores a string or a number under a name
        kWhen,          // executes the steps if the condition holds, and otherwise the other steps
        kForEach,       // executes the steps for each item
        kReads,         // from here on, NULL causes a memory fault or, if name is set, an assertion failure
        kNeverReturns,  // if the condition holds, the call does not return
    };

    Kind kind;
    Code code = 0;
    Condition condition = {};
    std::vector<Line> lines = {};
    std::vector<Write> writes = {};
    std::string_view name = {};
    std::optional<Expression> value = {};
    std::optional<List> list = {};
    std::vector<Step> steps = {};
    std::vector<Step> otherwise = {};

    std::size_t number = 0;  // the step's number in its check; set at registration
    std::size_t slot = 0;    // the index of the remembered value
};

struct Argument {
    enum class Kind {
        kText,        // a string that is only read
        kBuffer,      // a string that is read and written
        kBlocks,      // several strings at a fixed distance, which are read and written
        kInteger,     // an int
        kUnsigned,    // an unsigned
        kIntegerOut,  // an int that is only written
    };

    std::string_view name;
    Kind kind = Kind::kText;
    std::string_view what = {};           // a description for the user
    std::string_view unit = {};           // the unit of the number
    bool is_secret = false;               // must not be shown or logged
    bool is_output = false;               // a buffer that is not read
    std::string_view asserted = {};       // the condition that a failed assertion prints for NULL, or empty
    std::optional<Expression> room = {};  // the size that a buffer must have, if not the size of its string
    std::size_t blocks = 1;
    std::size_t block_size = 0;  // the distance between two strings in bytes

    [[nodiscard]] bool is_number() const { return kind == Kind::kInteger || kind == Kind::kUnsigned; }

    // is_only_written is true for an argument that a caller need not provide.
    [[nodiscard]] bool is_only_written() const { return is_output || kind == Kind::kIntegerOut; }
};

// Check describes one exported function. If no step returns a result, the function returns 0.
struct Check {
    std::string_view name;
    std::vector<Argument> arguments;
    std::vector<Step> steps;
    bool is_verdict = true;  // the result is a result code; otherwise it is a number

    // These members are set at registration.
    std::string_view module = {};
    std::size_t slots = 0;  // the number of arguments and remembered values
    std::size_t step_count = 0;
    std::size_t condition_count = 0;
    std::size_t number = 0;  // the index among all checks
};

}  // namespace ostrel::rules

#endif

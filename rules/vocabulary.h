// The vocabulary as data: the elements of a description. words.h has the functions that create them.
//
// A check has steps, a step has a condition and further steps, a condition has expressions. Texts are literals or live
// as long as the program.
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

// Code is the result of a check: a number, or the result of the other check in the condition.
struct Code {
    Code(int fixed) : number(fixed) {}
    Code(Expression computed) : number(std::move(computed)) {}

    Expression number;
    bool is_its = false;                              // that of the other check
    std::vector<std::pair<int, int>> exchanges = {};  // of its codes: one is returned as another

    [[nodiscard]] int exchanged(int code) const
    {
        for (const auto& [from, to] : exchanges) {
            if (code == from) return to;
        }
        return code;
    }
};

// Write changes an argument.
struct Write {
    Expression target;  // the name of an argument, or the item
    Expression value;
    bool is_terminated = true;
};

// List is the list over which a step iterates.
struct List {
    Expression of;
    char separator = '\0';  // none: the keys of a block
    Set trimmed =
        {};  // bytes that are removed from both ends of each item, and from the beginning of the rest
    std::string_view part = {};  // the name of an item in sentences; empty: it is the item of a list
};

struct Step {
    enum class Kind {
        kRefuse,    // if the condition holds: prints and returns the code, with the reason of the condition
        kAccept,    // if the condition holds: prints, writes and returns the code, which is not a refusal
        kPrint,     // if the condition holds: prints and continues
        kSkip,      // if the condition holds: prints, writes and continues with the next item
        kWrite,     // writes and continues
        kRemember,  // stores a text or a number under a name
        kWhen,      // steps if the condition holds, otherwise the other steps
        kForEach,   // steps for each item
        kReads,     // from here on NULL is a memory fault or, with a name, a failed assertion that prints it
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

    std::size_t number = 0;  // in its check: set at registration
    std::size_t slot = 0;    // of a remembered value
};

struct Argument {
    enum class Kind {
        kText,        // only read
        kBuffer,      // a text that is read and written
        kBlocks,      // several texts at a fixed distance, read and written
        kInteger,     // an int
        kUnsigned,    // an unsigned
        kIntegerOut,  // an int that is only written
    };

    std::string_view name;
    Kind kind = Kind::kText;
    std::string_view what = {};           // for the user
    std::string_view unit = {};           // of a number
    bool is_secret = false;               // not to be shown or logged
    bool is_output = false;               // a buffer of which nothing is read
    std::string_view asserted = {};       // the condition that a failed assertion prints; empty: none
    std::optional<Expression> room = {};  // size that a buffer must have; none: that of its text
    std::size_t blocks = 1;
    std::size_t block_size = 0;  // bytes from one text to the next

    [[nodiscard]] bool is_number() const { return kind == Kind::kInteger || kind == Kind::kUnsigned; }

    // is_only_written is true for an argument that a caller need not provide.
    [[nodiscard]] bool is_only_written() const { return is_output || kind == Kind::kIntegerOut; }
};

// Check describes one exported function. After the last step it returns 0.
struct Check {
    std::string_view name;
    std::vector<Argument> arguments;
    std::vector<Step> steps;
    bool is_verdict = true;  // otherwise it returns a number instead of a result code

    // Set at registration.
    std::string_view module = {};
    std::size_t slots = 0;  // arguments and remembered values
    std::size_t step_count = 0;
    std::size_t condition_count = 0;
    std::size_t number = 0;  // among all checks
};

}  // namespace ostrel::rules

#endif

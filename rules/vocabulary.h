// The vocabulary as data: what a description of a check is made of. words.h has the functions that write it.
//
// Everything can be walked: a check has steps, a step has a condition and further steps, a condition has
// expressions. Texts are literals or live as long as the program.
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

// Code is what a check answers: a number, or what the other check of the condition answered.
struct Code {
    Code(int fixed) : number(fixed) {}
    Code(Expression computed) : number(std::move(computed)) {}

    Expression number;
    bool is_its = false;                              // the other check's
    std::vector<std::pair<int, int>> exchanges = {};  // of its codes: one that is answered as another
};

// Write is what an argument holds from now on.
struct Write {
    Expression target;  // the name of an argument, or the item
    Expression value;
    bool is_terminated = true;
};

// List is what a step is repeated for.
struct List {
    Expression of;
    char separator = '\0';  // none: the keys of a block
    Set trimmed = {};  // bytes that are taken off both ends of each item, and off the beginning of the rest
    std::string_view part = {};  // what sentences call an item; empty: it is the item of a list
};

struct Step {
    enum class Kind {
        kRefuse,        // where the condition holds: prints and answers the code, with the condition's reason
        kAccept,        // where the condition holds: prints, writes and answers the code, which is no refusal
        kPrint,         // where the condition holds: prints and goes on
        kSkip,          // where the condition holds: prints, writes and goes on with the next item
        kWrite,         // writes and goes on
        kRemember,      // keeps a text or a number under a name
        kWhen,          // steps where the condition holds, otherwise the other steps
        kForEach,       // steps for each item
        kReads,         // NULL is a memory fault from here on; with a name, a failed assertion that prints it
        kNeverReturns,  // where the condition holds the call does not come back
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

    std::size_t number = 0;  // in its check: set when that is registered
    std::size_t slot = 0;    // of what is remembered
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
    std::string_view what = {};           // in the user's words
    std::string_view unit = {};           // of the number that it is
    bool is_secret = false;               // not to be shown or logged
    bool is_output = false;               // a buffer of which nothing is read
    std::string_view asserted = {};       // the condition that a failed assertion prints; empty: none
    std::optional<Expression> room = {};  // bytes that a buffer must have; none: those of the text in it
    std::size_t blocks = 1;
    std::size_t block_size = 0;  // bytes from one text to the next

    // is_only_written tells that a caller need not give a value.
    [[nodiscard]] bool is_only_written() const { return is_output || kind == Kind::kIntegerOut; }
};

// Check describes one exported function. After the last step it answers 0.
struct Check {
    std::string_view name;
    std::vector<Argument> arguments;
    std::vector<Step> steps;
    bool is_verdict = true;  // or else what it answers is a number and no result code

    // Set when it is registered.
    std::string_view module = {};
    std::size_t slots = 0;  // arguments, and what is remembered
    std::size_t step_count = 0;
    std::size_t condition_count = 0;
    std::size_t number = 0;  // among all checks
};

}  // namespace ostrel::rules

#endif

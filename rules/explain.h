// Explanation: a description in words, in the order of its steps.
#ifndef OSTREL_RULES_EXPLAIN_H
#define OSTREL_RULES_EXPLAIN_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "rules/vocabulary.h"

namespace ostrel::rules {

// SaidLine is a line that is printed, with <name> for what it holds, and \n for a line end.
struct SaidLine {
    std::string text;
    std::string when;  // of several lines of a step, each in a case of its own; empty: always
    Line::Stream stream = Line::Stream::kOut;
    bool is_flushed = true;
};

// Said is a step in words.
struct Said {
    Step::Kind kind = Step::Kind::kPrint;
    std::optional<int> code;  // that is answered, where it is a fixed one
    std::string text;
    std::vector<SaidLine> lines;
    std::vector<std::string> writes;
    std::vector<Said> uses;  // what other checks do that the condition asks
    std::vector<Said> steps;
    std::vector<Said> otherwise;
};

struct SaidArgument {
    std::string what;  // and its unit
    std::string room;  // of a buffer
    std::string null;  // what NULL does; empty for a number
    std::string written;
};

struct Explanation {
    std::string accepted;  // in a line, what is accepted or answered
    std::vector<SaidArgument> arguments;
    std::vector<Said> steps;  // those that can act; after the last one the answer is 0
    std::vector<int> codes;   // that can be answered besides 0, in the order of the steps; of a number none
    std::string numbers;      // how a number is read out of a text; empty where none is
};

Explanation explain(const Check& check, const Build& build);

// said_arguments says what each argument is, what NULL does and what it may become.
std::vector<SaidArgument> said_arguments(const Check& check, const Build& build);

// how_numbers_are_read says how a number is read out of a text.
std::string how_numbers_are_read(const Build& build);

// accepted says in a line what is accepted, or what the number is that is answered.
std::string accepted(const Check& check, const Build& build);

}  // namespace ostrel::rules

#endif

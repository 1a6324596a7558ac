// Explanations, in words and step by step, of what a check does.
#ifndef OSTREL_RULES_EXPLAIN_H
#define OSTREL_RULES_EXPLAIN_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "rules/vocabulary.h"

namespace ostrel::rules {

// SaidLine is a printed line, in which <name> stands for a value and \n for a line ending.
struct SaidLine {
    std::string text;
    std::string when;  // the case in which the line is printed, or empty if it always is
    Line::Stream stream = Line::Stream::kOut;
    bool is_flushed = true;
};

// Said is a step in words.
struct Said {
    Step::Kind kind = Step::Kind::kPrint;
    std::optional<int> code;  // the code that is returned, if it is always the same
    std::string text;
    std::vector<SaidLine> lines;
    std::vector<std::string> writes;
    std::vector<Said> uses;  // the steps of other checks that the condition calls
    std::vector<Said> steps;
    std::vector<Said> otherwise;
};

struct SaidArgument {
    std::string what;  // a description with the unit
    std::string room;  // the size that a buffer must have
    std::string null;  // the effect of NULL; empty for a number
    std::string written;
};

struct Explanation {
    std::string accepted;  // what is accepted or returned, in one line
    std::vector<SaidArgument> arguments;
    std::vector<Said> steps;  // the steps that can act; after the last one, the result is 0
    std::vector<int> codes;   // all except 0, in the order of the steps; empty if the result is a number
    std::string numbers;      // how numbers are read from strings; empty if none are read
};

Explanation explain(const Check& check, const Build& build);

std::vector<SaidArgument> said_arguments(const Check& check, const Build& build);

std::string how_numbers_are_read(const Build& build);

std::string accepted(const Check& check, const Build& build);

}  // namespace ostrel::rules

#endif

// Study: all that is known of a check, tried out at the moment it is asked for.
#ifndef OSTREL_TOOLS_STUDY_H
#define OSTREL_TOOLS_STUDY_H

#include <string>
#include <vector>

#include "catalogue/hazards.h"
#include "catalogue/rows.h"

namespace ostrel::tool {

// Example is a call that was made just now.
struct Example {
    std::vector<catalogue::Value> values;
    int code = 0;
    std::string out;
    std::string err;
};

// CodeStudy is a condition with what is printed where it holds.
struct CodeStudy {
    const catalogue::Code* code;
    std::vector<std::string> lines;
};

struct Study {
    const catalogue::Function* function;
    std::vector<std::string> null;            // for each argument, what NULL does; empty for a number
    std::vector<std::string> accepted_lines;  // what is printed for an accepted value
    std::vector<CodeStudy> codes;             // in the catalogue's order
    std::vector<catalogue::Exposure> exposures;
    std::vector<catalogue::Oddity> oddities;
};

Study study(const catalogue::Function& function);

// examples_of calls the check with up to so many accepted and refused values, of different codes first.
std::vector<Example> examples_of(const catalogue::Function& function, std::size_t accepted,
                                 std::size_t refused);

// null_outcome says what NULL for an argument does, found in processes of their own.
std::string null_outcome(const catalogue::Function& function, std::size_t argument,
                         const std::vector<catalogue::Row>& rows);

}  // namespace ostrel::tool

#endif

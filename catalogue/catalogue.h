// The catalogue: every exported function with its description, so that it can be called.
#ifndef OSTREL_CATALOGUE_CATALOGUE_H
#define OSTREL_CATALOGUE_CATALOGUE_H

#include <cstddef>
#include <limits>
#include <span>
#include <string_view>
#include <vector>

#include "rules/evaluate.h"
#include "rules/vocabulary.h"

namespace ostrel::catalogue {

using rules::Value;
using Kind = rules::Argument::Kind;

struct Argument {
    std::string_view name;
    Kind kind = Kind::kText;
    std::size_t blocks = 1;
    std::size_t block_size = 0;  // bytes from one of several texts to the next
    bool output_only = false;    // nothing needs to be given
};

// Raw is an argument as a call passes it.
struct Raw {
    void* pointer = nullptr;
    int integer = 0;
    unsigned natural = 0;
};

struct Function {
    std::string_view name;
    std::string_view family;
    std::vector<Argument> arguments;
    const rules::Check* check = nullptr;
    const void* address = nullptr;
    int (*invoke)(std::span<const Raw> arguments) = nullptr;
};

// functions lists every exported function, by family. Throws std::logic_error for one whose description does not suit
// its declaration.
const std::vector<Function>& functions();

// find gives the function of that name, or NULL.
const Function* find(std::string_view name);

// kUnwritten is what a number that is only written holds when none is given: none that a function writes.
inline constexpr long long kUnwritten = std::numeric_limits<int>::min();

// completed adds values for the arguments that are only written, where they were left out.
std::vector<Value> completed(const Function& function, std::span<const Value> given);

// room_of says how many bytes a caller provides for a buffer, or for each of several texts. The values are those of all
// arguments.
std::size_t room_of(const Function& function, std::size_t argument, std::span<const Value> values);

// meaning says what a result code means, in a few words.
std::string_view meaning(int code);

// constant gives the name that result_code.h has for a result code.
std::string_view constant(int code);

}  // namespace ostrel::catalogue

#endif

// The catalogue: every exported function described once, for the command line, the tests and the fuzzers.
//
// What a function takes is deduced from its declaration in the public headers; what it means is said here.
#ifndef OSTREL_CATALOGUE_CATALOGUE_H
#define OSTREL_CATALOGUE_CATALOGUE_H

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/value.h"

namespace ostrel::catalogue {

enum class Kind {
    kText,        // const char*: only read
    kBuffer,      // char*: read and written
    kBlocks,      // char*: several texts at a fixed distance, read and written
    kInteger,     // int
    kUnsigned,    // unsigned
    kIntegerOut,  // int*: only written
};

struct Argument {
    std::string_view name;
    Kind kind = Kind::kText;
    std::size_t capacity = 0;  // bytes of a buffer or of one block; 0: as many as the text given needs
    std::size_t blocks = 1;
    bool output_only = false;       // nothing needs to be given
    bool takes_text = false;        // a buffer that needs room for the longest text given
    std::string_view what = {};     // what it is, with limits and units
    std::string_view written = {};  // what the function writes to it, and when
    std::vector<std::string_view> keywords = {};
};

// Test tells whether a condition is what brought a code about: nothing if not; else what there is to say
// about it, such as the byte at fault, or the empty text.
using Test = std::function<std::optional<std::string>(std::span<const Value> values)>;

// Code is one answer besides 0 and a condition that brings it about. Where several have the same code, each
// has a test, and the first one that holds is the one.
struct Code {
    int code;
    std::string_view condition;
    Test test = nullptr;
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
    std::string_view rule;    // what is accepted, in one line
    std::vector<Code> codes;  // empty where the answer is a number and no result code
    bool is_verdict = true;
    const void* address = nullptr;
    int (*invoke)(std::span<const Raw> arguments) = nullptr;
};

// functions lists every exported function, by family.
const std::vector<Function>& functions();

// find gives the function of that name, or NULL.
const Function* find(std::string_view name);

// meaning says what a result code means, in a few words.
std::string_view meaning(int code);

// constant gives the name that result_code.h has for a result code.
std::string_view constant(int code);

}  // namespace ostrel::catalogue

#endif

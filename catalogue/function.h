// An exported function: its description, its address, and the code that calls it.
#ifndef OSTREL_CATALOGUE_FUNCTION_H
#define OSTREL_CATALOGUE_FUNCTION_H

#include <cstddef>
#include <limits>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "rules/evaluate.h"
#include "rules/vocabulary.h"

namespace ostrel::catalogue {

using rules::Argument;
using rules::Value;
using Kind = Argument::Kind;

// Raw is an argument as it is passed to a function. One member is used, depending on the argument's type.
struct Raw {
    void* pointer = nullptr;
    int integer = 0;
    unsigned natural = 0;
};

struct Function {
    std::string_view name;
    std::string_view family;
    std::span<const Argument> arguments;
    const rules::Check* check = nullptr;
    const void* address = nullptr;
    int (*invoke)(std::span<const Raw> arguments) = nullptr;
};

// kUnwritten is the initial value of a number that is only written. No function writes this value.
inline constexpr long long kUnwritten = std::numeric_limits<int>::min();

// completed adds initial values for the arguments that the function only writes, if they are missing.
std::vector<Value> completed(const Function& function, std::span<const Value> given);

// room_of returns the number of bytes that a caller must provide for a buffer, or for each string in an
// argument that has several. values contains the values of all arguments.
std::size_t room_of(const Function& function, std::size_t argument, std::span<const Value> values);

namespace detail {

template <typename T>
constexpr Kind kKindOf = [] {
    if constexpr (std::is_same_v<T, const char*>) {
        return Kind::kText;
    } else if constexpr (std::is_same_v<T, char*>) {
        return Kind::kBuffer;
    } else if constexpr (std::is_same_v<T, int>) {
        return Kind::kInteger;
    } else if constexpr (std::is_same_v<T, unsigned>) {
        return Kind::kUnsigned;
    } else {
        static_assert(std::is_same_v<T, int*>, "an argument of a kind that the catalogue does not know");
        return Kind::kIntegerOut;
    }
}();

template <typename T>
T pass(const Raw& raw)
{
    if constexpr (std::is_same_v<T, int>) {
        return raw.integer;
    } else if constexpr (std::is_same_v<T, unsigned>) {
        return raw.natural;
    } else {
        return static_cast<T>(raw.pointer);
    }
}

template <auto F>
struct Signature;

template <typename... T, int (*F)(T...)>
struct Signature<F> {
    static std::vector<Kind> kinds() { return {kKindOf<T>...}; }

    static int invoke(std::span<const Raw> raw)
    {
        return [&]<std::size_t... I>(std::index_sequence<I...>) { return F(pass<T>(raw[I])...); }
        (std::make_index_sequence<sizeof...(T)>());
    }
};

}  // namespace detail

// described throws std::logic_error if the argument kinds in the description differ from those declared.
Function described(std::string_view name, std::string_view family, std::vector<Kind> kinds,
                   const void* address, int (*invoke)(std::span<const Raw>));

template <auto F>
Function function(std::string_view name, std::string_view family)
{
    using Signature = detail::Signature<F>;
    return described(name, family, Signature::kinds(), reinterpret_cast<const void*>(F), Signature::invoke);
}

}  // namespace ostrel::catalogue

#endif

// Entry: what the catalogue knows of a function by its declaration.
#ifndef OSTREL_CATALOGUE_ENTRY_H
#define OSTREL_CATALOGUE_ENTRY_H

#include <type_traits>
#include <utility>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

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

// entry makes what is common to all. Throws std::logic_error where the kinds are not those of the description.
Function entry(const char* name, std::vector<Kind> kinds, const void* address,
               int (*invoke)(std::span<const Raw>));

// check takes a function and its name.
template <auto F>
Function check(const char* name)
{
    using Signature = detail::Signature<F>;
    return entry(name, Signature::kinds(), reinterpret_cast<const void*>(F), Signature::invoke);
}

struct Family {
    std::string_view name;
    std::vector<Function> functions;
};

// families lists every exported function.
std::vector<Family> families();

}  // namespace ostrel::catalogue

#endif

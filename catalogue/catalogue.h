// The catalogue: every exported function described once, for the command line, the tests and the fuzzers.
//
// What a function takes is deduced from its declaration in the public headers; what it means is said here.
#ifndef OSTREL_CATALOGUE_CATALOGUE_H
#define OSTREL_CATALOGUE_CATALOGUE_H

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

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
    bool output_only = false;  // nothing needs to be given
    bool takes_text = false;   // a buffer that needs room for the longest text given
};

// Code is one answer besides 0 and what brings it about.
struct Code {
    int code;
    std::string_view condition;
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

// What follows is for the catalogue's own files.

// Name is how an entry names an argument: by its name alone, or by buffer(), blocks() or output().
struct Name {
    // NOLINTNEXTLINE(google-explicit-constructor)
    constexpr Name(const char* text) : name(text) {}
    std::string_view name;
    std::size_t capacity = 0;
    std::size_t blocks = 1;
    bool output_only = false;
    bool takes_text = false;
};

// buffer names a char* argument that has room for capacity bytes, the terminator included.
constexpr Name buffer(const char* text, std::size_t capacity)
{
    Name name = text;
    name.capacity = capacity;
    return name;
}

// list_buffer names a buffer into which a text is copied, of whatever length.
constexpr Name list_buffer(const char* text, std::size_t capacity)
{
    Name name = buffer(text, capacity);
    name.takes_text = true;
    return name;
}

// output names a list_buffer that is only written.
constexpr Name output(const char* text, std::size_t capacity)
{
    Name name = list_buffer(text, capacity);
    name.output_only = true;
    return name;
}

// blocks names a char* argument that points to several buffers, one directly behind the other.
constexpr Name blocks(const char* text, std::size_t count, std::size_t capacity)
{
    Name name = buffer(text, capacity);
    name.blocks = count;
    return name;
}

namespace detail {

template <typename T>
constexpr Kind kind_of(const Name& name)
{
    if constexpr (std::is_same_v<T, const char*>) {
        return Kind::kText;
    } else if constexpr (std::is_same_v<T, char*>) {
        return name.blocks > 1 ? Kind::kBlocks : Kind::kBuffer;
    } else if constexpr (std::is_same_v<T, int>) {
        return Kind::kInteger;
    } else if constexpr (std::is_same_v<T, unsigned>) {
        return Kind::kUnsigned;
    } else {
        static_assert(std::is_same_v<T, int*>, "an argument of a kind that the catalogue does not know");
        return Kind::kIntegerOut;
    }
}

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
    static constexpr std::size_t kArity = sizeof...(T);

    static std::vector<Argument> arguments(const Name (&names)[kArity])
    {
        constexpr std::array<Kind (*)(const Name&), kArity> kinds = {kind_of<T>...};
        std::vector<Argument> result;
        for (std::size_t i = 0; i < kArity; ++i) {
            const Kind kind = kinds[i](names[i]);
            result.push_back({names[i].name, kind, names[i].capacity, names[i].blocks,
                              names[i].output_only || kind == Kind::kIntegerOut, names[i].takes_text});
        }
        return result;
    }

    static int invoke(std::span<const Raw> raw)
    {
        return [&]<std::size_t... I>(std::index_sequence<I...>) { return F(pass<T>(raw[I])...); }
        (std::make_index_sequence<kArity>());
    }
};

}  // namespace detail

// check describes a function that answers with a result code; codes lists those besides 0.
template <auto F>
Function check(const char* name, const Name (&names)[detail::Signature<F>::kArity], const char* rule,
               std::vector<Code> codes)
{
    using Signature = detail::Signature<F>;
    return {name,
            "",
            Signature::arguments(names),
            rule,
            std::move(codes),
            true,
            reinterpret_cast<const void*>(F),
            Signature::invoke};
}

// number describes a function that answers with a number.
template <auto F>
Function number(const char* name, const Name (&names)[detail::Signature<F>::kArity], const char* rule)
{
    Function function = check<F>(name, names, rule, {});
    function.is_verdict = false;
    return function;
}

// The entries of each family.
std::vector<Function> strings();
std::vector<Function> addresses();
std::vector<Function> hosts();
std::vector<Function> accounts();
std::vector<Function> date_time();
std::vector<Function> subnets();
std::vector<Function> wireless();
std::vector<Function> names();
std::vector<Function> parameter_checks();
std::vector<Function> wlan_checks();
std::vector<Function> ppp_checks();
std::vector<Function> lan_checks();
std::vector<Function> port_mapping_checks();
std::vector<Function> forwarding_checks();
std::vector<Function> management();
std::vector<Function> guest_access();
std::vector<Function> hnap();
std::vector<Function> time_checks();
std::vector<Function> branding_checks();

}  // namespace ostrel::catalogue

#endif

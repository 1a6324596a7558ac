// Entry: how the catalogue's own files describe a function.
#ifndef OSTREL_CATALOGUE_ENTRY_H
#define OSTREL_CATALOGUE_ENTRY_H

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "catalogue/catalogue.h"
#include "catalogue/conditions.h"

namespace ostrel::catalogue {

// Name is how an entry names an argument: by its name and what it is, or by buffer(), blocks() or output().
struct Name {
    Name(const char* text, const char* meaning, std::vector<std::string_view> words = {})
        : name(text), what(meaning), keywords(std::move(words))
    {
    }

    // writes says what the function writes to the argument, and when.
    Name writes(const char* text) &&
    {
        written = text;
        return std::move(*this);
    }

    std::string_view name;
    std::string_view what;
    std::vector<std::string_view> keywords;
    std::string_view written;
    std::size_t capacity = 0;
    std::size_t blocks = 1;
    bool output_only = false;
    bool takes_text = false;
};

// buffer names a char* argument that has room for capacity bytes, the terminator included.
inline Name buffer(const char* text, const char* what, std::size_t capacity)
{
    Name name(text, what);
    name.capacity = capacity;
    return name;
}

// list_buffer names a buffer into which a text is copied, of whatever length.
inline Name list_buffer(const char* text, const char* what, std::size_t capacity)
{
    Name name = buffer(text, what, capacity);
    name.takes_text = true;
    return name;
}

// output names a list_buffer that is only written.
inline Name output(const char* text, const char* what, std::size_t capacity)
{
    Name name = list_buffer(text, what, capacity);
    name.output_only = true;
    return name;
}

// blocks names a char* argument that points to several buffers, one directly behind the other.
inline Name blocks(const char* text, const char* what, std::size_t count, std::size_t capacity)
{
    Name name = buffer(text, what, capacity);
    name.blocks = count;
    return name;
}

namespace detail {

template <typename T>
Kind kind_of(const Name& name)
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
                              names[i].output_only || kind == Kind::kIntegerOut, names[i].takes_text,
                              names[i].what, names[i].written, names[i].keywords});
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

// What the files of the wireless LAN share.
std::vector<Code> any_other(int code);
std::vector<Code> mode_codes();  // value and readwrite_mode
void add_radio_checks(std::vector<Function>& all);

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

#include "web/reasons/pack.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <type_traits>

#include "web/reasons/fields.h"

namespace ostrel::web {

namespace {

constexpr unsigned kLow = 0x7F;
constexpr unsigned kMore = 0x80;

void append_number(std::string& bytes, std::uint64_t number)
{
    for (; number > kLow; number >>= 7U) bytes += static_cast<char>((number & kLow) | kMore);
    bytes += static_cast<char>(number);
}

// zigzag encodes numbers near zero, both positive and negative, as small unsigned numbers.
std::uint64_t zigzag(std::int64_t number)
{
    return (static_cast<std::uint64_t>(number) << 1U) ^ static_cast<std::uint64_t>(number >> 63);
}

class Packer {
 public:
    explicit Packer(const std::vector<rules::Check>& checks) : checks_(checks) {}

    template <typename T>
    void add(T& part)
    {
        std::string fields_before = std::move(fields_);
        fields_.clear();
        fields(*this, part);
        const std::uint64_t number = number_of(Packed::number<T>(), std::move(fields_));
        fields_ = std::move(fields_before);
        append_number(fields_, number);
    }

    template <typename... Fields>
    void operator()(Fields&... fields)
    {
        (field(fields), ...);
    }

    Pack take() { return std::move(pack_); }

 private:
    std::uint64_t number_of(unsigned kind, std::string fields)
    {
        std::map<std::string, std::uint64_t>& known = known_[kind];
        const auto [place, is_new] = known.emplace(std::move(fields), known.size());
        if (is_new) {
            append_number(pack_.bytes, kind);
            append_number(pack_.bytes, place->first.size());
            pack_.bytes += place->first;
        }
        return place->second;
    }

    void field(std::string_view& text)
    {
        const auto [place, is_new] = texts_.emplace(std::string(text), text.data());
        std::string bytes;
        append_number(bytes, reinterpret_cast<std::uintptr_t>(place->second));
        append_number(bytes, text.size());
        append_number(fields_, number_of(Packed::number<std::string_view>(), std::move(bytes)));
    }

    void field(rules::Set& set)
    {
        const std::string members = set.members();
        append_number(fields_, members.size());
        fields_ += members;
    }

    void field(std::pair<int, int>& numbers)
    {
        field(numbers.first);
        field(numbers.second);
    }

    void field(const rules::Grammar* grammar) { pointer(pack_.grammars, grammar); }
    void field(const rules::Conversion* conversion) { pointer(pack_.conversions, conversion); }
    void field(const rules::Table* table)
    {
        append_number(fields_, table == nullptr ? 0 : 1);
        if (table != nullptr) add(const_cast<rules::Table&>(*table));
    }
    void field(const rules::Check* check)
    {
        append_number(fields_, check == nullptr ? 0 : static_cast<std::uint64_t>(check - checks_.data()) + 1);
    }

    template <typename T>
    void pointer(std::vector<const T*>& known, const T* pointee)
    {
        if (pointee == nullptr) return append_number(fields_, 0);
        const auto place = std::find(known.begin(), known.end(), pointee);
        append_number(fields_, static_cast<std::uint64_t>(place - known.begin()) + 1);
        if (place == known.end()) known.push_back(pointee);
    }

    template <typename T>
    void field(std::vector<T>& parts)
    {
        append_number(fields_, parts.size());
        for (T& part : parts) field(part);
    }

    template <typename T>
    void field(std::optional<T>& part)
    {
        append_number(fields_, part ? 1 : 0);
        if (part) field(*part);
    }

    template <typename T>
    void field(T& part)
    {
        if constexpr (std::is_enum_v<T> || std::is_integral_v<T>) {
            append_number(fields_, zigzag(static_cast<std::int64_t>(part)));
        } else {
            add(part);
        }
    }

    const std::vector<rules::Check>& checks_;
    Pack pack_;
    std::string fields_;  // the fields of the part that is being packed
    std::map<unsigned, std::map<std::string, std::uint64_t>> known_;
    std::map<std::string, const char*> texts_;  // the address of each string
};

}  // namespace

Pack pack(const std::vector<rules::Check>& checks)
{
    Packer packer(checks);
    // fields.h takes non-const references, because unpacking uses it too. Packing changes nothing.
    for (const rules::Check& check : checks) packer.add(const_cast<rules::Check&>(check));
    return packer.take();
}

}  // namespace ostrel::web

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <type_traits>

#include "web/reasons/fields.h"
#include "web/reasons/pack.h"

namespace ostrel::web {

namespace {

// blank creates an empty part, whose fields are then read.
template <typename T>
T blank()
{
    if constexpr (std::is_same_v<T, rules::Expression>) {
        return "";
    } else if constexpr (std::is_same_v<T, rules::Write>) {
        return {"", ""};
    } else if constexpr (std::is_same_v<T, rules::Code>) {
        return 0;
    } else if constexpr (std::is_same_v<T, rules::List>) {
        return {""};
    } else if constexpr (std::is_same_v<T, rules::Match>) {
        return {0, rules::Match::How::kEqual, ""};
    } else {
        return {};
    }
}

class Unpacker {
 public:
    explicit Unpacker(const Pack& pack) : pack_(pack), rest_(pack.bytes)
    {
        while (!rest_.empty()) {
            const std::size_t kind = count();
            const std::size_t size = count();
            parts_[kind].push_back(rest_.substr(0, size));
            rest_.remove_prefix(size);
        }
    }

    std::vector<rules::Check> checks()
    {
        // All checks are allocated before any is read, because a check may refer to another check.
        std::vector<rules::Check> checks(parts_[Packed::number<rules::Check>()].size());
        checks_ = checks.data();
        for (std::size_t i = 0; i < checks.size(); ++i) read(checks[i], i);
        return checks;
    }

    template <typename... Fields>
    void operator()(Fields&... fields)
    {
        (field(fields), ...);
    }

 private:
    std::uint64_t number()
    {
        std::uint64_t number = 0;
        for (unsigned shift = 0;; shift += 7) {
            const auto byte = static_cast<unsigned char>(rest_.front());
            rest_.remove_prefix(1);
            number |= static_cast<std::uint64_t>(byte & 0x7FU) << shift;
            if (byte < 0x80) return number;
        }
    }

    // count reads a number of parts, the index of a part, or a size.
    std::size_t count() { return static_cast<std::size_t>(number()); }

    // read reads a part that is stored elsewhere in the pack.
    template <typename T>
    void read(T& part, std::size_t place)
    {
        const std::string_view rest = rest_;
        rest_ = parts_[Packed::number<T>()][place];
        fields(*this, part);
        rest_ = rest;
    }

    void field(std::string_view& text)
    {
        const std::size_t place = count();
        const std::string_view rest = rest_;
        rest_ = parts_[Packed::number<std::string_view>()][place];
        const auto* const begin = reinterpret_cast<const char*>(count());
        text = {begin, count()};
        rest_ = rest;
    }

    void field(rules::Set& set)
    {
        const std::size_t size = count();
        set = rules::Set(rest_.substr(0, size));
        rest_.remove_prefix(size);
    }

    void field(std::pair<int, int>& numbers)
    {
        field(numbers.first);
        field(numbers.second);
    }

    void field(const rules::Grammar*& grammar) { pointer(pack_.grammars, grammar); }
    void field(const rules::Conversion*& conversion) { pointer(pack_.conversions, conversion); }

    // A table is never freed, because the conditions that refer to it exist until the program ends.
    void field(const rules::Table*& table)
    {
        if (count() == 0) return;
        auto* const read = new rules::Table();
        field(*read);
        table = read;
    }

    void field(const rules::Check*& check)
    {
        const std::size_t place = count();
        check = place == 0 ? nullptr : checks_ + place - 1;
    }

    template <typename T>
    void pointer(const std::vector<const T*>& known, const T*& pointee)
    {
        const std::size_t place = count();
        pointee = place == 0 ? nullptr : known[place - 1];
    }

    template <typename T>
    void field(std::vector<T>& parts)
    {
        const std::size_t count = this->count();
        parts.reserve(count);
        for (std::size_t i = 0; i < count; ++i) field(parts.emplace_back(blank<T>()));
    }

    template <typename T>
    void field(std::optional<T>& part)
    {
        if (count() != 0) field(part.emplace(blank<T>()));
    }

    template <typename T>
    void field(T& part)
    {
        if constexpr (std::is_enum_v<T> || std::is_integral_v<T>) {
            const std::uint64_t coded = number();
            part = static_cast<T>(static_cast<std::int64_t>(coded >> 1U) ^
                                  -static_cast<std::int64_t>(coded & 1U));
        } else {
            read(part, count());
        }
    }

    const Pack& pack_;
    std::string_view rest_;
    std::array<std::vector<std::string_view>, kKinds> parts_;
    const rules::Check* checks_ = nullptr;
};

}  // namespace

std::vector<rules::Check> unpack(const Pack& pack) { return Unpacker(pack).checks(); }

}  // namespace ostrel::web

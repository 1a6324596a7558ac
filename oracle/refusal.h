// Refusal: a call that was refused, and the calls that it becomes when its reason is followed.
#ifndef OSTREL_ORACLE_REFUSAL_H
#define OSTREL_ORACLE_REFUSAL_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "rules/evaluate.h"

namespace ostrel::oracle {

using Values = std::vector<rules::Value>;

class Refusal {
 public:
    // turn chooses where there are too many ways to try all: give another one each time.
    Refusal(const rules::Check& check, const Values& values, const rules::Answer& answer, std::size_t turn);

    [[nodiscard]] const rules::Reason& reason() const { return answer_.reason; }

    // judged is the text that was judged, in the argument's own text.
    [[nodiscard]] std::string_view judged() const;
    [[nodiscard]] bool is_text() const { return is_text_; }

    // byte is the one at the reason's offset.
    [[nodiscard]] std::optional<char> byte() const;

    // What the reason has, as a list.
    [[nodiscard]] std::vector<long long> allowed_numbers() const;
    [[nodiscard]] std::vector<std::string> allowed_texts() const;

    // some chooses at most so many of a list.
    template <typename T>
    [[nodiscard]] std::vector<T> some(const std::vector<T>& all, std::size_t most = 3) const
    {
        if (all.size() <= most) return all;
        std::vector<T> result;
        result.reserve(most);
        for (std::size_t i = 0; i < most; ++i) result.push_back(all[(turn_ * most + i) % all.size()]);
        return result;
    }

    // The call with something else in place of: what was judged, the byte at the offset, the number in what was judged,
    // the whole text that the offset counts in, or an argument.
    [[nodiscard]] Values with(std::string_view judged) const;
    [[nodiscard]] Values with_byte(char byte) const;
    [[nodiscard]] Values with_number(long long number) const;
    [[nodiscard]] Values with_whole(std::string whole) const;
    [[nodiscard]] Values with_argument(std::size_t argument, rules::Value value) const;

    // takes tells whether an int, or what is not negative an unsigned, holds a number.
    [[nodiscard]] bool takes(long long number) const;

    [[nodiscard]] const std::string& whole() const { return whole_; }
    [[nodiscard]] std::size_t begin() const { return begin_; }  // of what was judged
    [[nodiscard]] const Values& values() const { return values_; }

 private:
    const rules::Check& check_;
    const Values& values_;
    const rules::Answer& answer_;
    std::size_t turn_;
    bool is_text_ = false;
    bool is_converted_ = false;  // the text is what a conversion made
    std::string whole_;
    std::size_t begin_ = 0;
    std::size_t size_ = 0;
};

}  // namespace ostrel::oracle

#endif

// A refused call, from which the calls that test its reason are derived.
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
    // turn selects some of the alternatives if there are too many to try all of them. Pass a different number
    // for each refusal.
    Refusal(const rules::Check& check, const Values& values, const rules::Answer& answer, std::size_t turn);

    [[nodiscard]] const rules::Reason& reason() const { return answer_.reason; }

    [[nodiscard]] std::string_view judged() const;
    [[nodiscard]] bool is_text() const { return is_text_; }

    // byte returns the byte at the reason's offset.
    [[nodiscard]] std::optional<char> byte() const;

    [[nodiscard]] std::vector<long long> allowed_numbers() const;
    [[nodiscard]] std::vector<std::string> allowed_texts() const;

    template <typename T>
    [[nodiscard]] std::vector<T> some(const std::vector<T>& all, std::size_t most = 3) const
    {
        if (all.size() <= most) return all;
        std::vector<T> result;
        result.reserve(most);
        for (std::size_t i = 0; i < most; ++i) result.push_back(all[(turn_ * most + i) % all.size()]);
        return result;
    }

    // These functions return the call with one part replaced: the judged part, the byte at the offset, the
    // number in the judged part, the whole text to which the offset refers, or an argument.
    [[nodiscard]] Values with(std::string_view judged) const;
    [[nodiscard]] Values with_byte(char byte) const;
    [[nodiscard]] Values with_number(long long number) const;
    [[nodiscard]] Values with_whole(std::string whole) const;
    [[nodiscard]] Values with_argument(std::size_t argument, rules::Value value) const;

    // takes returns whether the argument's type, int or unsigned, can represent a number.
    [[nodiscard]] bool takes(long long number) const;

    [[nodiscard]] const std::string& whole() const { return whole_; }
    [[nodiscard]] std::size_t begin() const { return begin_; }  // of the judged part
    [[nodiscard]] const Values& values() const { return values_; }

 private:
    const rules::Check& check_;
    const Values& values_;
    const rules::Answer& answer_;
    std::size_t turn_;
    bool is_text_ = false;
    bool is_converted_ = false;  // the text is the result of a conversion
    std::string whole_;
    std::size_t begin_ = 0;
    std::size_t size_ = 0;
};

}  // namespace ostrel::oracle

#endif

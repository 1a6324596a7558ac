#include "oracle/refusal.h"

#include <algorithm>
#include <utility>

#include "rules/build.h"
#include "rules/walk.h"

namespace ostrel::oracle {

using rules::Argument;
using rules::Value;

namespace {

// written_text returns the contents of a buffer after the call, or NULL if no string is written to it.
const std::string* written_text(const rules::Check& check, const rules::Answer& answer, std::size_t argument)
{
    std::size_t written = 0;
    for (std::size_t i = 0; i < argument; ++i) written += rules::is_written(check.arguments[i]);
    return written < answer.after.size() ? std::get_if<std::string>(&answer.after[written]) : nullptr;
}

// converts returns whether a check judges the result of a conversion, which it also writes to an argument.
bool converts(const rules::Check& check)
{
    return std::ranges::any_of(check.steps, [](const rules::Step& step) {
        return step.kind == rules::Step::Kind::kWrite && step.writes[0].value.conversion != nullptr;
    });
}

// referred replaces each "&" with its character reference, so that the conversion restores the given string.
std::string referred(std::string_view text)
{
    std::string result;
    for (const char c : text) result += c == '&' ? "&amp;" : std::string(1, c);
    return result;
}

}  // namespace

Refusal::Refusal(const rules::Check& check, const Values& values, const rules::Answer& answer,
                 std::size_t turn)
    : check_(check), values_(values), answer_(answer), turn_(turn)
{
    const rules::Reason& reason = answer.reason;
    if (!reason.argument || !reason.judged) return;
    const Value& value = values[*reason.argument];
    const std::string* text = std::get_if<std::string>(&value);
    if (const auto* texts = std::get_if<std::vector<std::string>>(&value); texts != nullptr && reason.item)
        text = &texts->at(*reason.item);
    is_converted_ = converts(check);
    if (text != nullptr && is_converted_) text = written_text(check, answer, *reason.argument);
    if (text == nullptr || reason.judged->begin + reason.judged->size > text->size()) return;
    is_text_ = true;
    whole_ = *text;
    begin_ = reason.judged->begin;
    size_ = reason.judged->size;
}

std::string_view Refusal::judged() const { return std::string_view(whole_).substr(begin_, size_); }

std::optional<char> Refusal::byte() const
{
    const auto offset = reason().offset;
    if (!is_text_ || !offset || *offset >= whole_.size()) return std::nullopt;
    return whole_[*offset];
}

std::vector<long long> Refusal::allowed_numbers() const
{
    if (const auto* all = std::get_if<std::vector<long long>>(&reason().allowed)) return *all;
    const auto* one = std::get_if<long long>(&reason().allowed);
    return one == nullptr ? std::vector<long long>() : std::vector<long long>{*one};
}

std::vector<std::string> Refusal::allowed_texts() const
{
    if (const auto* all = std::get_if<std::vector<std::string_view>>(&reason().allowed))
        return {all->begin(), all->end()};
    const auto* one = std::get_if<std::string>(&reason().allowed);
    return one == nullptr ? std::vector<std::string>() : std::vector<std::string>{*one};
}

Values Refusal::with(std::string_view judged) const
{
    return with_whole(std::string(whole_).replace(begin_, size_, judged));
}

Values Refusal::with_byte(char byte) const
{
    return with_whole(std::string(whole_).replace(reason().offset.value(), 1, 1, byte));
}

// with_number preserves the width of the number, because the fields of a date have a fixed width.
Values Refusal::with_number(long long number) const
{
    if (!is_text_) return with_argument(reason().argument.value(), number);
    const rules::Number read = rules::read_number(judged(), rules::Build::Atoi::kLong64);
    const bool has_digits = read.end > read.begin && judged()[read.end - 1] >= '0';
    const std::size_t begin = has_digits ? read.begin : 0;
    const std::size_t size = has_digits ? read.end - read.begin : 0;
    std::string digits = std::to_string(number);
    if (number >= 0 && digits.size() < size) digits.insert(0, size - digits.size(), '0');
    return with(std::string(judged()).replace(begin, size, digits));
}

bool Refusal::takes(long long number) const
{
    const bool is_unsigned = check_.arguments[reason().argument.value()].kind == Argument::Kind::kUnsigned;
    return is_unsigned ? std::in_range<unsigned>(number) : std::in_range<int>(number);
}

Values Refusal::with_whole(std::string whole) const
{
    if (is_converted_) whole = referred(whole);
    const std::size_t argument = reason().argument.value();
    if (std::holds_alternative<std::string>(values_[argument]))
        return with_argument(argument, std::move(whole));
    auto texts = std::get<std::vector<std::string>>(values_[argument]);
    whole.resize(std::min(whole.size(), check_.arguments[argument].block_size - 1));
    texts.at(reason().item.value()) = std::move(whole);
    return with_argument(argument, std::move(texts));
}

Values Refusal::with_argument(std::size_t argument, Value value) const
{
    Values result = values_;
    result.at(argument) = std::move(value);
    return result;
}

}  // namespace ostrel::oracle

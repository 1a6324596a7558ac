#include "oracle/input.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace ostrel::oracle {

using catalogue::Argument;
using catalogue::Kind;
using catalogue::Value;

namespace {

constexpr char kNull = 1;
constexpr char kRepeat = 2;
constexpr char kLiteral = 3;
constexpr std::size_t kShortRun = 128;  // shorter runs are counted in bytes, longer ones in units of kStep
constexpr std::size_t kStep = 64;
constexpr std::size_t kMostSteps = 128;  // 8192 bytes

bool is_null(std::string_view field) { return field.size() == 1 && field.front() == kNull; }

std::string_view next_field(std::string_view& fields)
{
    const std::size_t end = std::min(fields.find('\0'), fields.size());
    const std::string_view field = fields.substr(0, end);
    fields.remove_prefix(std::min(end + 1, fields.size()));
    return field;
}

void decode_text(std::string_view field, std::size_t longest, std::string& text)
{
    text.clear();
    for (std::size_t i = 0; i < field.size() && text.size() < longest; ++i) {
        const char c = field[i];
        const bool has_operand = i + 1 < field.size();
        if (c == kRepeat && has_operand) {
            const std::size_t n = static_cast<unsigned char>(field[++i]);
            const std::size_t times = n < kShortRun ? n : (n - kShortRun + 1) * kStep;
            text.append(std::min(times, longest - text.size()), text.empty() ? 'a' : text.back());
        } else if (c == kLiteral && has_operand) {
            text += field[++i];
        } else {
            text += c;
        }
    }
}

long long decode_number(std::string_view field, Kind kind)
{
    const bool is_unsigned = kind == Kind::kUnsigned;
    const long long lowest = is_unsigned ? 0 : std::numeric_limits<int>::min();
    const long long highest =
        is_unsigned ? std::numeric_limits<unsigned>::max() : std::numeric_limits<int>::max();
    if (field.empty()) return kind == Kind::kIntegerOut ? lowest : 0;
    if (field.front() == '-' || (field.front() >= '0' && field.front() <= '9')) {
        long long number = 0;
        const auto read = std::from_chars(field.data(), field.data() + field.size(), number);
        if (read.ec == std::errc::result_out_of_range) number = field.front() == '-' ? lowest : highest;
        return std::clamp(number, lowest, highest);
    }
    unsigned bits = 0;
    for (std::size_t i = 0; i < 4 && i < field.size(); ++i) {
        bits |= static_cast<unsigned>(static_cast<unsigned char>(field[i])) << 8 * i;
    }
    return is_unsigned ? static_cast<long long>(bits) : static_cast<int>(bits);
}

std::string& reuse(Value& value)
{
    auto* text = std::get_if<std::string>(&value);
    return text != nullptr ? *text : value.emplace<std::string>();
}

void decode_blocks(const Argument& argument, std::string_view first, std::string_view& fields, Value& value)
{
    auto* texts = std::get_if<std::vector<std::string>>(&value);
    if (texts == nullptr) texts = &value.emplace<std::vector<std::string>>();
    texts->resize(argument.blocks);
    for (std::size_t i = 0; i < argument.blocks; ++i) {
        decode_text(i == 0 ? first : next_field(fields), argument.block_size - 1, (*texts)[i]);
    }
}

void decode_argument(const Argument& argument, std::string_view& fields, Value& value)
{
    const std::string_view field = next_field(fields);
    const bool is_number = argument.kind == Kind::kInteger || argument.kind == Kind::kUnsigned;
    if (!is_number && is_null(field)) {
        value = nullptr;
    } else if (is_number || argument.kind == Kind::kIntegerOut) {
        value = decode_number(field, argument.kind);
    } else if (argument.kind == Kind::kBlocks) {
        decode_blocks(argument, field, fields, value);
    } else {
        decode_text(field, kLongestText, reuse(value));
    }
}

void append_byte(std::string& field, char byte)
{
    if (byte >= kNull && byte <= kLiteral) field += kLiteral;
    field += byte;
}

void encode_text(std::string_view text, std::string& field)
{
    for (std::size_t i = 0; i < text.size();) {
        const char byte = text[i];
        const std::size_t end = std::min(text.find_first_not_of(byte, i), text.size());
        std::size_t left = end - i - 1;
        i = end;
        append_byte(field, byte);
        // Short runs are easier to mutate as single bytes.
        if (left < 4) {
            for (; left > 0; --left) append_byte(field, byte);
        }
        while (left > 0) {
            const std::size_t steps = std::min(left / kStep, kMostSteps);
            const bool is_short = left < kShortRun;
            field += {kRepeat, static_cast<char>(is_short ? left : kShortRun + steps - 1)};
            left -= is_short ? left : steps * kStep;
        }
    }
}

struct Encoder {
    std::string& fields;

    bool operator()(std::nullptr_t) const
    {
        fields += kNull;
        return true;
    }
    bool operator()(long long number) const
    {
        fields += std::to_string(number);
        return true;
    }
    bool operator()(const std::string& text) const
    {
        encode_text(text, fields);
        return text.size() <= kLongestText;
    }
    bool operator()(const std::vector<std::string>& texts) const
    {
        bool fits = true;
        for (std::size_t i = 0; i < texts.size(); ++i) {
            if (i > 0) fields += '\0';
            fits = (*this)(texts[i]) && fits;
        }
        return fits;
    }
};

}  // namespace

void decode_arguments(const catalogue::Function& function, std::string_view fields,
                      std::vector<Value>& values)
{
    values.resize(function.arguments.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        decode_argument(function.arguments[i], fields, values[i]);
    }
}

std::optional<std::string> encode_arguments(const catalogue::Function& function,
                                            const std::vector<Value>& values)
{
    std::string fields;
    std::size_t next = 0;
    const bool all_given = values.size() == function.arguments.size();
    for (std::size_t i = 0; i < function.arguments.size(); ++i) {
        if (i > 0) fields += '\0';
        if (!all_given && function.arguments[i].is_only_written()) continue;
        if (!std::visit(Encoder{fields}, values.at(next++))) return std::nullopt;
    }
    return fields;
}

}  // namespace ostrel::oracle

#include "catalogue/value_json.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <stdexcept>

namespace ostrel::catalogue {

using nlohmann::json;

namespace {

// A few bytes of JSON can describe a very long string or be nested very deeply.
constexpr std::size_t kLongestText = std::size_t{16} << 20;
constexpr int kDeepest = 8;
constexpr std::size_t kMostBlocks = 16;
constexpr json::number_unsigned_t kLargestNumber = 0xFFFFFFFF;

bool is_ascii(std::string_view text)
{
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// bytes_from_utf8 is the inverse of utf8_from_bytes. The JSON parser has already refused malformed UTF-8.
std::string bytes_from_utf8(const std::string& text)
{
    if (is_ascii(text)) return text;
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto lead = static_cast<unsigned char>(text[i]);
        if (lead < 0x80) {
            bytes += text[i];
        } else if (lead == 0xC2 || lead == 0xC3) {
            bytes += static_cast<char>((lead & 3) << 6 | (static_cast<unsigned char>(text[++i]) & 0x3F));
        } else {
            throw std::invalid_argument("a string contains a character above U+00FF, which is not a byte");
        }
    }
    return bytes;
}

void require_room(std::size_t size)
{
    if (size > kLongestText) throw std::invalid_argument("a string is longer than 16 MiB");
}

// append_times repeatedly doubles the string that it appends, so a long result takes few steps.
void append_times(std::string& result, const std::string& part, std::size_t count)
{
    const std::size_t begin = result.size();
    const std::size_t end = begin + count * part.size();
    result.reserve(end);
    if (count > 0) result += part;
    while (result.size() < end) {
        const std::size_t made = std::min(result.size() - begin, end - result.size());
        result.append(result, begin, made);
    }
}

void append_text(std::string& result, const json& text, int depth)
{
    if (depth > kDeepest) throw std::invalid_argument("a string is nested too deeply");
    if (text.is_string()) {
        const std::string bytes = bytes_from_utf8(text.get_ref<const std::string&>());
        require_room(result.size() + bytes.size());
        result += bytes;
    } else if (text.is_object() && text.contains("repeat")) {
        std::string part;
        append_text(part, text["repeat"], depth + 1);
        const auto times = text.find("times");
        if (times == text.end() || !times->is_number_unsigned()) {
            throw std::invalid_argument("\"repeat\" requires \"times\", a number");
        }
        if (part.empty()) return;
        const auto count = times->get<std::size_t>();
        require_room(count > kLongestText ? count : result.size() + count * part.size());
        append_times(result, part, count);
    } else if (text.is_object() && text.contains("join") && text["join"].is_array()) {
        for (const json& part : text["join"]) append_text(result, part, depth + 1);
    } else {
        throw std::invalid_argument(
            "a value must be a string, {\"repeat\": text, \"times\": n} or {\"join\": [text, ...]}");
    }
}

}  // namespace

std::string utf8_from_bytes(std::string_view bytes)
{
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80) {
            text += c;
        } else {
            text += static_cast<char>(0xC0 | byte >> 6);
            text += static_cast<char>(0x80 | (byte & 0x3F));
        }
    }
    return text;
}

std::string text_from_json(const json& text)
{
    std::string result;
    append_text(result, text, 1);
    return result;
}

Value value_from_json(const json& value)
{
    if (value.is_null()) return nullptr;
    if (value.is_number_unsigned() && value.get<json::number_unsigned_t>() > kLargestNumber) {
        throw std::invalid_argument("a number is above 4294967295");
    }
    if (value.is_number_integer()) return value.get<long long>();
    if (value.is_array()) {
        std::vector<std::string> texts;
        if (value.size() > kMostBlocks) throw std::invalid_argument("no argument takes that many strings");
        for (const json& text : value) texts.push_back(text_from_json(text));
        return texts;
    }
    return text_from_json(value);
}

json json_from_value(const Value& value)
{
    struct Visitor {
        json operator()(std::nullptr_t) const { return nullptr; }
        json operator()(const std::string& text) const { return utf8_from_bytes(text); }
        json operator()(long long number) const { return number; }
        json operator()(const std::vector<std::string>& texts) const
        {
            json result = json::array();
            for (const std::string& text : texts) result.push_back(utf8_from_bytes(text));
            return result;
        }
    };
    return std::visit(Visitor(), value);
}

}  // namespace ostrel::catalogue

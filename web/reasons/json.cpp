#include "web/reasons/json.h"

#include <algorithm>

#include "rules/sentences.h"

namespace ostrel::web {

namespace {

template <typename T, typename F>
void append_list(std::string& out, const std::vector<T>& values, F append)
{
    out += '[';
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i > 0) out += ',';
        append(values[i]);
    }
    out += ']';
}

void append_datum(std::string& out, std::string_view name, const rules::Datum& datum)
{
    if (std::holds_alternative<std::monostate>(datum)) return;
    out.append(",\"").append(name).append("\":");
    if (const auto* number = std::get_if<long long>(&datum)) {
        out += std::to_string(*number);
    } else if (const auto* text = std::get_if<std::string>(&datum)) {
        append_text(out, *text);
    } else if (const auto* set = std::get_if<rules::Set>(&datum)) {
        out += "{\"text\":";
        append_text(out, rules::in_words(*set));
        out += ",\"members\":";
        append_text(out, set->members());
        out += '}';
    } else if (const auto* words = std::get_if<std::vector<std::string>>(&datum)) {
        append_list(out, *words, [&](const std::string& word) { append_text(out, word); });
    } else if (const auto* numbers = std::get_if<std::vector<long long>>(&datum)) {
        append_list(out, *numbers, [&](long long one) { out += std::to_string(one); });
    }
}

// names_argument: of the arguments that a user gives there are several.
bool names_argument(const rules::Check& check)
{
    return std::ranges::count_if(check.arguments, [](const rules::Argument& argument) {
               return argument.kind != rules::Argument::Kind::kIntegerOut && !argument.is_output;
           }) > 1;
}

}  // namespace

void append_text(std::string& out, std::string_view bytes)
{
    constexpr std::string_view kDigits = "0123456789abcdef";
    out += '"';
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (c >= ' ' && c <= '~') {
            if (c == '"' || c == '\\') out += '\\';
            out += c;
        } else {
            out += {'\\', 'u', '0', '0', kDigits[byte / 16], kDigits[byte % 16]};
        }
    }
    out += '"';
}

void append_reason(std::string& out, const rules::Reason& given, const rules::Check& check)
{
    const rules::Reason reason = rules::without_secret(given, check);
    const auto add_text = [&](std::string_view name, std::string_view text) {
        if (text.empty()) return;
        out.append(",\"").append(name).append("\":");
        append_text(out, text);
    };
    const auto add_number = [&](std::string_view name, auto number) {
        if (number) out.append(",\"").append(name).append("\":").append(std::to_string(*number));
    };
    out += "{\"id\":";
    append_text(out, reason.id);
    if (reason.argument) add_text("argument", reason.name);
    add_text("part", reason.part);
    add_text("conversion", reason.conversion);
    add_number("item", reason.item);
    add_text("item_text", reason.item_text);
    add_number("offset", reason.offset);
    append_datum(out, "found", reason.found);
    append_datum(out, "allowed", reason.allowed);
    add_number("read_as", reason.read_as);
    add_text("limit", reason.limit);
    out += ",\"text\":";
    append_text(out, rules::full_sentence(reason, names_argument(check)));
    out += '}';
}

}  // namespace ostrel::web

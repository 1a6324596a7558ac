#include "rules/reason_json.h"

#include "rules/sentences.h"

namespace ostrel::rules {

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

void append_datum(std::string& out, std::string_view name, const Datum& datum, AppendBytes append_bytes)
{
    if (std::holds_alternative<std::monostate>(datum)) return;
    out.append(",\"").append(name).append("\":");
    if (const auto* number = std::get_if<long long>(&datum)) {
        out += std::to_string(*number);
    } else if (const auto* text = std::get_if<std::string>(&datum)) {
        append_bytes(out, *text);
    } else if (const auto* set = std::get_if<Set>(&datum)) {
        out += "{\"text\":";
        append_json_text(out, in_words(*set));
        out += ",\"members\":";
        append_bytes(out, set->members());
        out += '}';
    } else if (const auto* words = std::get_if<std::vector<std::string>>(&datum)) {
        append_list(out, *words, [&](const std::string& word) { append_bytes(out, word); });
    } else if (const auto* numbers = std::get_if<std::vector<long long>>(&datum)) {
        append_list(out, *numbers, [&](long long one) { out += std::to_string(one); });
    }
}

}  // namespace

void append_json_text(std::string& out, std::string_view bytes)
{
    constexpr std::string_view kHexDigits = "0123456789ABCDEF";
    const auto is_plain = [](char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; };
    out += '"';
    while (!bytes.empty()) {
        std::size_t plain = 0;
        while (plain < bytes.size() && is_plain(bytes[plain])) ++plain;
        out.append(bytes.substr(0, plain));
        bytes.remove_prefix(plain);
        if (bytes.empty()) break;
        const char c = bytes.front();
        bytes.remove_prefix(1);
        if (c == '\n') {
            out += "\\n";
        } else if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            out += "\\u00";
            out += kHexDigits[byte / 16];
            out += kHexDigits[byte % 16];
        }
    }
    out += '"';
}

void append_json_reason(std::string& out, const Reason& given, const Check& check)
{
    const Reason reason = without_secret(given, check);
    append_json_told(out, reason, full_sentence(reason, check), append_json_text);
}

void append_json_told(std::string& out, const Reason& reason, std::string_view sentence,
                      AppendBytes append_bytes)
{
    const auto add_text = [&](std::string_view name, std::string_view text) {
        if (text.empty()) return;
        out.append(",\"").append(name).append("\":");
        append_json_text(out, text);
    };
    const auto add_number = [&](std::string_view name, auto number) {
        if (number) out.append(",\"").append(name).append("\":").append(std::to_string(*number));
    };
    out += "{\"id\":";
    append_json_text(out, reason.id);
    if (reason.argument) add_text("argument", reason.name);
    add_text("part", reason.part);
    add_text("conversion", reason.conversion);
    add_number("item", reason.item);
    if (!reason.item_text.empty()) {
        out += ",\"item_text\":";
        append_bytes(out, reason.item_text);
    }
    add_number("offset", reason.offset);
    append_datum(out, "found", reason.found, append_bytes);
    append_datum(out, "allowed", reason.allowed, append_bytes);
    add_number("read_as", reason.read_as);
    add_text("limit", reason.limit);
    out += ",\"text\":";
    append_json_text(out, sentence);
    out += '}';
}

}  // namespace ostrel::rules

#include "rules/reason_json.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <utility>

#include "rules/sentences.h"

namespace ostrel::rules {

namespace {

bool is_plain(char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; }

// are_plain tests eight bytes at a time.
bool are_plain(const char* begin)
{
    constexpr std::uint64_t kOnes = 0x0101010101010101;
    constexpr std::uint64_t kHighs = 0x80 * kOnes;
    constexpr std::uint64_t kDelete = 0x7F;
    std::uint64_t eight = 0;
    std::memcpy(&eight, begin, sizeof eight);
    const auto below = [&](std::uint64_t bytes, std::uint64_t limit) {
        return (bytes - limit * kOnes) & ~bytes;
    };
    const auto has = [&](std::uint64_t byte) { return below(eight ^ byte * kOnes, 1); };
    return ((eight | below(eight, ' ') | has('"') | has('\\') | has(kDelete)) & kHighs) == 0;
}

// plain_size returns the length of the prefix that needs no escaping in JSON.
std::size_t plain_size(std::string_view bytes)
{
    std::size_t size = 0;
    while (size + 8 <= bytes.size() && are_plain(bytes.data() + size)) size += 8;
    while (size < bytes.size() && is_plain(bytes[size])) ++size;
    return size;
}

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

const std::string& json_of(const Set& set, AppendBytes append_bytes)
{
    // Recent results are kept for the same reason as in in_words.
    struct Known {
        Set set;
        AppendBytes append_bytes = nullptr;
        std::string json;
    };
    thread_local std::array<Known, 64> recent;
    Known& known = recent[set.hash() % recent.size()];
    if (known.append_bytes == append_bytes && known.set == set) return known.json;
    std::string json = "{\"text\":";
    append_json_text(json, in_words(set));
    json += ",\"members\":";
    append_bytes(json, set.members());
    json += '}';
    known = {set, append_bytes, std::move(json)};
    return known.json;
}

void append_member(std::string& out, std::string_view name, const Datum& datum, AppendBytes append_bytes)
{
    if (std::holds_alternative<std::monostate>(datum)) return;
    out.append(",\"").append(name).append("\":");
    append_json_datum(out, datum, append_bytes);
}

}  // namespace

void append_json_datum(std::string& out, const Datum& datum, AppendBytes append_bytes)
{
    if (const auto* number = std::get_if<long long>(&datum)) {
        out += std::to_string(*number);
    } else if (const auto* text = std::get_if<std::string>(&datum)) {
        append_bytes(out, *text);
    } else if (const auto* set = std::get_if<Set>(&datum)) {
        out += json_of(*set, append_bytes);
    } else if (const auto* words = std::get_if<std::vector<std::string_view>>(&datum)) {
        append_list(out, *words, [&](std::string_view word) { append_bytes(out, word); });
    } else if (const auto* numbers = std::get_if<std::vector<long long>>(&datum)) {
        append_list(out, *numbers, [&](long long one) { out += std::to_string(one); });
    }
}

void append_json_text(std::string& out, std::string_view bytes)
{
    constexpr std::string_view kHexDigits = "0123456789ABCDEF";
    out += '"';
    while (!bytes.empty()) {
        const std::size_t plain = plain_size(bytes);
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

void append_json_reason(std::string& out, Reason given, const Check& check)
{
    const Reason reason = without_secret(std::move(given), check);
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
    append_member(out, "found", reason.found, append_bytes);
    append_member(out, "allowed", reason.allowed, append_bytes);
    add_number("read_as", reason.read_as);
    add_text("limit", reason.limit);
    out += ",\"text\":";
    append_json_text(out, sentence);
    out += '}';
}

}  // namespace ostrel::rules

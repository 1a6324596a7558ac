#include "rules/sentences.h"

#include <algorithm>

namespace ostrel::rules {

namespace {

constexpr Sentence kSentences[] = {
    {"a_multiple", "is {read}{found}; a multiple of {allowed} is not allowed"},
    {"accepted", "is of a form that is not allowed here"},
    {"already_listed", "is {found}, which occurs in the list already"},
    {"another_length", "has {found} {found:byte|bytes}; earlier ones have {allowed}"},
    {"another_subnet", "does not begin with {allowed}, the subnet"},
    {"colon_in_path",
     "has a \":\" in the path that begins at byte {position}; that is allowed only after a port"},
    {"contains", "byte {position} is where {found} begins, which is not allowed", true},
    {"empty", "is empty"},
    {"empty_as_listed", "is empty, and so is one in the list"},
    {"end_before_start", "is {found}; at least {allowed}, the last octet of the start, is needed"},
    {"equal", "is {read}{found}, which is not allowed"},
    {"first_server", "is the first server, which cannot be deleted"},
    {"forbidden_form", "is {form}, which is not allowed here"},
    {"forbidden_keyword", "is {found}; none of {allowed} is allowed"},
    {"forbidden_length", "has {found} {found:byte|bytes}, which is not allowed"},
    {"forbidden_prefix", "begins with {allowed:|one of }{allowed}, which is not allowed"},
    {"forbidden_shape", "is of a form that is not allowed here"},
    {"forbidden_suffix", "ends with {allowed}, which is not allowed"},
    {"group_address",
     "byte {position} is {byte}, which makes it the address of a group; {allowed} are allowed there", true},
    {"in_table", "is {found}, which is not allowed"},
    {"incomplete", "ends where {allowed} {allowed:is|are} expected as byte {position}"},
    {"lacks", "has no {allowed}"},
    {"last_item", "is the last one"},
    {"list_full", "has {found} bytes together with the list; at most {allowed} are allowed"},
    {"listed_by_driver", "is {read}{found}, which the wireless driver lists"},
    {"neither_server", "is neither the first nor the second server"},
    {"no_channel_listed", "is {read}{found}; the wireless driver lists no channel that is allowed"},
    {"no_key_left", "has no key that is printable and not empty"},
    {"not_a_keyword", "is {allowed:not|none of} {allowed}"},
    {"not_a_multiple", "is {read}{found}; a multiple of {allowed} is needed"},
    {"not_empty", "is not empty; only the empty value is allowed"},
    {"not_equal", "is {read}{found}; {allowed} is allowed"},
    {"not_in_set", "byte {position} is {byte}; {allowed} {allowed:is|are} allowed", true},
    {"not_in_table", "{found} goes with none of the known rows", true},
    {"not_listed", "is {found}, which is not in the list"},
    {"not_listed_by_driver",
     "is {read}{found}; of the channels that the wireless driver lists, {allowed} {allowed:is|are} allowed"},
    {"not_null", "is not NULL"},
    {"not_of_offset", "is not part of any name that goes with the offset: {allowed}"},
    {"not_part_of_any", "is not part of any of {allowed}"},
    {"null", "is NULL"},
    {"number_beyond_int",
     "has the number {found}, which an int does not hold; this gateway reads it as {read_as}"},
    {"number_forbidden", "is {read}{found}; none of {allowed} is allowed"},
    {"number_in_range", "is {read}{found}; {range} are not allowed"},
    {"number_not_allowed", "is {read}{found}; only {allowed} {allowed:is|are} allowed"},
    {"number_out_of_range", "is {read}{found}; {range} are allowed"},
    {"number_too_high", "is {read}{found}; at most {allowed} is allowed"},
    {"number_too_low", "is {read}{found}; at least {allowed} is needed"},
    {"numeric_name", "is made of digits and dots alone; a letter or \"-\" is needed"},
    {"only_of_set", "is made of {allowed} alone"},
    {"only_other_set", "is empty, but the other one is not"},
    {"pass_phrase_alone", "is given without a pre-shared key; a pass phrase alone is not accepted"},
    {"repeated_item", "is {found}, which occurs again later in the list"},
    {"too_long", "has {found} {found:byte|bytes}; at most {allowed} {allowed:is|are} allowed"},
    {"too_many_items", "has {found} items; at most {allowed} {allowed:is|are} allowed"},
    {"too_many_labels", "has {found} labels; at most {allowed} are allowed"},
    {"too_much", "should end before byte {position}"},
    {"too_short", "has {found} {found:byte|bytes}; at least {allowed} {allowed:is|are} needed"},
    {"wrong_item_count", "has {found} {found:part|parts}; {allowed} are needed"},
    {"wrong_length", "has {found} {found:byte|bytes}; {allowed:|one of }{allowed} {allowed:are|is} needed"},
    {"wrong_prefix", "does not begin with {allowed:|any of }{allowed}"},
    {"wrong_shape", "byte {position} is {byte}; {allowed} {allowed:is|are} expected there", true},
    {"wrong_shape_or_end", "byte {position} is {byte}; {allowed} or the end is expected there", true},
    {"wrong_suffix", "does not end with {allowed}"},
};

template <typename T, typename F>
std::string joined(const std::vector<T>& values, F shown)
{
    std::string result;
    for (const T& value : values) result += (result.empty() ? "" : ", ") + shown(value);
    return result;
}

// A keyword stands without quotation marks where it cannot be taken for something else.
std::string keyword(const std::string& word)
{
    const bool is_plain = !word.empty() && std::ranges::all_of(word, [](char c) {
        return c > ' ' && c <= '~' && c != ',' && c != '"';
    });
    return is_plain ? word : quoted(word);
}

std::string shown(const Datum& datum)
{
    if (const auto* number = std::get_if<long long>(&datum)) return std::to_string(*number);
    if (const auto* text = std::get_if<std::string>(&datum)) return quoted(*text);
    if (const auto* set = std::get_if<Set>(&datum)) return in_words(*set);
    if (const auto* words = std::get_if<std::vector<std::string>>(&datum)) return joined(*words, keyword);
    if (const auto* numbers = std::get_if<std::vector<long long>>(&datum)) {
        return joined(*numbers, [](long long number) { return std::to_string(number); });
    }
    return "";
}

bool is_one(const Datum& datum)
{
    if (const auto* number = std::get_if<long long>(&datum)) return *number == 1;
    if (const auto* set = std::get_if<Set>(&datum)) return set->size() == 1;
    if (const auto* words = std::get_if<std::vector<std::string>>(&datum)) return words->size() == 1;
    if (const auto* numbers = std::get_if<std::vector<long long>>(&datum)) return numbers->size() == 1;
    return true;
}

std::string counted(const std::optional<std::size_t>& from_zero)
{
    return from_zero ? std::to_string(*from_zero + 1) : "";
}

std::string range(const Datum& datum)
{
    const auto* limits = std::get_if<std::vector<long long>>(&datum);
    return limits == nullptr ? "" : std::to_string(limits->front()) + " to " + std::to_string(limits->back());
}

std::string value_of(std::string_view name, const Reason& reason)
{
    const std::size_t colon = name.find(':');
    if (colon != std::string_view::npos) {
        const std::string_view forms = name.substr(colon + 1);
        const std::size_t bar = forms.find('|');
        const bool is_found = name.substr(0, colon) == "found";
        return std::string(is_one(is_found ? reason.found : reason.allowed) ? forms.substr(0, bar)
                                                                            : forms.substr(bar + 1));
    }
    if (name == "found")
        return reason.id == "number_beyond_int" ? std::get<std::string>(reason.found) : shown(reason.found);
    if (name == "allowed") return shown(reason.allowed);
    if (name == "form") return std::get<std::string>(reason.allowed);
    if (name == "position") return counted(reason.offset);
    if (name == "item") return counted(reason.item);
    if (name == "range") return range(reason.allowed);
    if (name == "read") return reason.read_as ? "read as " : "";
    if (name == "read_as") return reason.read_as ? std::to_string(*reason.read_as) : "";
    const auto* byte = std::get_if<std::string>(&reason.found);
    return byte == nullptr || byte->empty() ? "" : byte_in_words(byte->front());
}

}  // namespace

std::span<const Sentence> sentences() { return kSentences; }

std::string sentence(const Reason& reason)
{
    const auto* known = std::ranges::lower_bound(kSentences, reason.id, {}, &Sentence::id);
    if (known == std::end(kSentences) || known->id != reason.id) return "";
    std::string result;
    if (!reason.part.empty()) result = known->has_subject ? "in " + reason.part + ", " : reason.part + " ";
    std::string_view rest = known->text;
    while (!rest.empty()) {
        const std::size_t begin = std::min(rest.find('{'), rest.size());
        result += rest.substr(0, begin);
        rest.remove_prefix(begin);
        if (rest.empty()) break;
        const std::size_t end = rest.find('}');
        result += value_of(rest.substr(1, end - 1), reason);
        rest.remove_prefix(end + 1);
    }
    if (!reason.conversion.empty()) result += " (" + std::string(reason.conversion) + ")";
    return result;
}

std::string quoted(std::string_view text)
{
    constexpr std::size_t kLongest = 64;
    constexpr std::string_view kHexDigits = "0123456789ABCDEF";
    std::string result = "\"";
    for (const char c : text.substr(0, kLongest)) {
        if (c == '"' || c == '\\') result += '\\';
        if (c >= ' ' && c <= '~') {
            result += c;
        } else {
            const auto code = static_cast<unsigned char>(c);
            result += {'\\', 'x', kHexDigits[code / 16], kHexDigits[code % 16]};
        }
    }
    return result + (text.size() > kLongest ? "...\"" : "\"");
}

}  // namespace ostrel::rules

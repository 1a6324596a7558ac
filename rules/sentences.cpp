#include "rules/sentences.h"

#include <algorithm>
#include <iterator>

namespace ostrel::rules {

namespace {

constexpr Sentence kSentences[] = {
    {"a_multiple", "is {read}{found}; multiples of {allowed} are not allowed"},
    {"accepted", "has a form that is not allowed here"},
    {"already_listed", "is {found}, which is already in the list"},
    {"another_length", "has {found} {found:byte|bytes}; the earlier items have {allowed}"},
    {"another_subnet", "does not begin with {allowed}, the prefix of the subnet"},
    {"colon_in_path",
     "has a \":\" in the path that begins at byte {position}; this is allowed only after a port"},
    {"contains", "{found} at byte {position} is not allowed", true},
    {"driver_asked", "depends on the wireless driver, whose channel list is not known here"},
    {"empty", "is empty"},
    {"empty_as_listed", "is empty, and the list already has an empty entry"},
    {"end_before_start", "is {found}; it must be at least {allowed}, the last octet of the start address"},
    {"equal", "is {read}{found}, which is not allowed"},
    {"first_server", "is the first server, which cannot be deleted"},
    {"forbidden_form", "is {form}, which is not allowed here"},
    {"forbidden_keyword", "is {found}; {allowed} {allowed:is|are} not allowed"},
    {"forbidden_length", "has {found} {found:byte|bytes}, which is not allowed"},
    {"forbidden_prefix", "begins with {allowed:|one of }{allowed}, which is not allowed"},
    {"forbidden_shape", "has a form that is not allowed here"},
    {"forbidden_suffix", "ends with {allowed}, which is not allowed"},
    {"group_address",
     "byte {position} is {byte}, which makes this a group address; {allowed} are allowed there", true},
    {"in_table", "is {found}, which is not allowed"},
    {"incomplete", "ends before byte {position}, where {allowed} {allowed:is|are} expected"},
    {"lacks", "does not contain {allowed}"},
    {"last_item", "is the last item"},
    {"list_full", "needs {found} bytes together with the list; at most {allowed} are allowed"},
    {"listed_by_driver", "is {read}{found}, which the wireless driver lists"},
    {"neither_server", "is not one of the current servers"},
    {"never_returns", "is a value for which the check does not return"},
    {"no_channel_listed", "is {read}{found}; the wireless driver lists no allowed channel"},
    {"no_key_left", "contains no printable, non-empty key"},
    {"not_a_keyword", "is {allowed:not|not one of} {allowed}"},
    {"not_a_multiple", "is {read}{found}; a multiple of {allowed} is needed"},
    {"not_empty", "is not empty, but must be empty"},
    {"not_equal", "is {read}{found}; {allowed} is expected"},
    {"not_in_set", "byte {position} is {byte}; {allowed} {allowed:is|are} allowed", true},
    {"not_in_table", "{found} matches no known entry", true},
    {"not_listed", "is {found}, which is not in the list"},
    {"not_listed_by_driver",
     "is {read}{found}; of the channels that the wireless driver lists, {allowed} {allowed:is|are} allowed"},
    {"not_null", "is not NULL, but must be NULL"},
    {"not_of_offset", "does not occur in any name for this offset: {allowed}"},
    {"not_part_of_any", "does not occur in any of {allowed}"},
    {"null", "is NULL"},
    {"null_asserted", "is NULL, which fails an assertion in the check"},
    {"null_read", "is NULL, but the check reads it"},
    {"number_beyond_int",
     "contains the number {found}, which does not fit in an int; this gateway reads it as {read_as}{limit}"},
    {"number_forbidden", "is {read}{found}; {allowed} {allowed:is|are} not allowed"},
    {"number_in_range", "is {read}{found}; numbers from {range} are not allowed"},
    {"number_not_allowed", "is {read}{found}; only {allowed} {allowed:is|are} allowed"},
    {"number_out_of_range", "is {read}{found}; the allowed range is {range}"},
    {"number_too_high", "is {read}{found}; at most {allowed} is allowed"},
    {"number_too_low", "is {read}{found}; at least {allowed} is needed"},
    {"numeric_name", "contains only digits and dots; a letter or \"-\" is needed"},
    {"only_of_set", "contains only {allowed}; at least one other byte is needed"},
    {"only_other_set", "is empty, but the other value is not"},
    {"pass_phrase_alone", "is given without a pre-shared key; a pass phrase alone is not accepted"},
    {"repeated_item", "is {found}, which occurs again later in the list"},
    {"too_long", "has {found} {found:byte|bytes}; at most {allowed} {allowed:is|are} allowed"},
    {"too_many_items", "has {found} items; at most {allowed} {allowed:is|are} allowed"},
    {"too_many_labels", "has {found} labels; at most {allowed} are allowed"},
    {"too_much", "continues at byte {position}, where it must end"},
    {"too_much_work", "the values are too long to work out a reason", true},
    {"too_short", "has {found} {found:byte|bytes}; at least {allowed} {allowed:is|are} needed"},
    {"wrong_item_count", "has {found} {found:part|parts}; {allowed} are needed"},
    {"wrong_length", "has {found} {found:byte|bytes}; {allowed:|one of }{allowed} {allowed:are|is} needed"},
    {"wrong_prefix", "does not begin with {allowed:|any of }{allowed}"},
    {"wrong_shape", "byte {position} is {byte}; {allowed} {allowed:is|are} expected there", true},
    {"wrong_shape_or_end", "byte {position} is {byte}; {allowed} or the end is expected there", true},
    {"wrong_suffix", "does not end with {allowed}"},
};

std::string counted(const std::optional<std::size_t>& from_zero)
{
    return from_zero ? std::to_string(*from_zero + 1) : "";
}

std::string range(const Datum& datum)
{
    const auto* limits = std::get_if<std::vector<long long>>(&datum);
    return limits == nullptr ? "" : std::to_string(limits->front()) + " to " + std::to_string(limits->back());
}

void append_filled_in(std::string& out, std::string_view text, const Reason& reason);

void append_found(std::string& out, const Reason& reason)
{
    const std::string found = in_words(reason.found);
    const bool is_quoted = reason.id == "number_beyond_int" && found.starts_with('"');
    out += is_quoted ? std::string_view(found).substr(1, found.size() - 2) : std::string_view(found);
}

void append_byte(std::string& out, const Reason& reason)
{
    const auto* byte = std::get_if<std::string>(&reason.found);
    out += byte == nullptr || byte->empty() ? "a byte that is not shown" : byte_in_words(byte->front());
}

void append_limit(std::string& out, const Reason& reason)
{
    const Sentence* known = find_sentence(reason.limit);
    if (known == nullptr) return;
    const std::size_t semicolon = std::min(known->text.find(';'), known->text.size());
    append_filled_in(out, known->text.substr(semicolon), reason);
}

void append_field(std::string& out, std::string_view field, const Reason& reason)
{
    if (const std::size_t colon = field.find(':'); colon != std::string_view::npos) {
        const std::size_t bar = field.find('|');
        const bool is_singular = is_one(field.starts_with("found") ? reason.found : reason.allowed);
        out += is_singular ? field.substr(colon + 1, bar - colon - 1) : field.substr(bar + 1);
    } else if (field == "found") {
        append_found(out, reason);
    } else if (field == "allowed") {
        out += in_words(reason.allowed, reason.found);
    } else if (field == "form") {
        out += std::get<std::string>(reason.allowed);
    } else if (field == "byte") {
        append_byte(out, reason);
    } else if (field == "range") {
        out += range(reason.allowed);
    } else if (field == "position") {
        out += counted(reason.offset);
    } else if (field == "read") {
        if (reason.read_as) out += "read as ";
    } else if (field == "read_as") {
        if (reason.read_as) out += std::to_string(*reason.read_as);
    } else {
        append_limit(out, reason);
    }
}

void append_filled_in(std::string& out, std::string_view text, const Reason& reason)
{
    for (;;) {
        const std::size_t begin = text.find('{');
        out += text.substr(0, begin);
        if (begin == std::string_view::npos) return;
        const std::size_t end = text.find('}', begin);
        append_field(out, text.substr(begin + 1, end - begin - 1), reason);
        text.remove_prefix(end + 1);
    }
}

void append_sentence(std::string& out, const Sentence& known, const Reason& reason)
{
    const bool has_part = !reason.part.empty();
    if (has_part && known.has_subject) out += "in ";
    if (has_part) out.append(reason.part).append(known.has_subject ? ", " : " ");
    append_filled_in(out, known.text, reason);
    if (!reason.conversion.empty()) out.append(" (").append(reason.conversion).append(")");
}

}  // namespace

std::span<const Sentence> sentences() { return kSentences; }

const Sentence* find_sentence(std::string_view id)
{
    const auto* known = std::ranges::lower_bound(kSentences, id, {}, &Sentence::id);
    return known != std::end(kSentences) && known->id == id ? known : nullptr;
}

std::string sentence(const Reason& reason)
{
    std::string result;
    if (const Sentence* known = find_sentence(reason.id)) append_sentence(result, *known, reason);
    return result;
}

std::string full_sentence(const Reason& reason, const Check& check)
{
    constexpr std::size_t kUsual = 128;
    std::string result;
    const Sentence* known = find_sentence(reason.id);
    if (known == nullptr) return result;
    result.reserve(kUsual);
    const bool names_argument = std::ranges::count(check.arguments, false, &Argument::is_only_written) > 1;
    if (reason.item) {
        result.append("item ").append(counted(reason.item));
        if (!reason.item_text.empty()) result.append(" (").append(quoted(reason.item_text)).append(")");
    }
    if (names_argument && reason.argument) result.append(result.empty() ? "" : " of ").append(reason.name);
    const bool has_subject = known->has_subject || !reason.part.empty();
    if (!result.empty()) result += has_subject ? ": " : " ";
    append_sentence(result, *known, reason);
    return result;
}

Reason without_trace_of_secret(Reason reason, const Check& check)
{
    const bool is_secret = reason.argument && check.arguments[*reason.argument].is_secret;
    if (!is_secret) return reason;
    // A number is kept only if it is a count. Any other number was read from the secret.
    const bool is_read = reason.read_as || reason.id.starts_with("number_");
    if (is_read || !std::holds_alternative<long long>(reason.found)) reason.found = std::monostate();
    reason.read_as.reset();
    reason.item_text.clear();
    return reason;
}

void hide_secret(Reason& reason, const Check& check)
{
    const auto* found = std::get_if<std::string>(&reason.found);
    const bool is_secret = reason.argument && check.arguments[*reason.argument].is_secret;
    if (is_secret && found != nullptr && found->size() > 1) reason.found = std::monostate();
    if (is_secret) reason.item_text.clear();
}

Reason without_secret(Reason reason, const Check& check)
{
    hide_secret(reason, check);
    return reason;
}

}  // namespace ostrel::rules

#include "rules/sentences.h"

#include <algorithm>

#include "rules/datum.h"

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
    {"driver_asked", "is looked up with the wireless driver, whose answer is not known here"},
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
    {"never_returns", "is a value for which the check does not return"},
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
    {"null_asserted", "is NULL, which fails an assertion of the check"},
    {"null_read", "is NULL, and the check reads it"},
    {"number_beyond_int",
     "has the number {found}, which an int does not hold; this gateway reads it as {read_as}{limit}"},
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
    {"too_much_work", "the values are too long for a reason to be worked out", true},
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

std::string limit_of(const Reason& reason);

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
    if (name == "found") {
        const std::string found = in_words(reason.found);
        const bool is_quoted = reason.id == "number_beyond_int" && found.starts_with('"');
        return is_quoted ? found.substr(1, found.size() - 2) : found;
    }
    if (name == "allowed") return in_words(reason.allowed, reason.found);
    if (name == "limit") return limit_of(reason);
    if (name == "form") return std::get<std::string>(reason.allowed);
    if (name == "position") return counted(reason.offset);
    if (name == "item") return counted(reason.item);
    if (name == "range") return range(reason.allowed);
    if (name == "read") return reason.read_as ? "read as " : "";
    if (name == "read_as") return reason.read_as ? std::to_string(*reason.read_as) : "";
    const auto* byte = std::get_if<std::string>(&reason.found);
    return byte == nullptr || byte->empty() ? "a byte that is not shown" : byte_in_words(byte->front());
}

const Sentence* find(std::string_view id)
{
    const auto* known = std::ranges::lower_bound(kSentences, id, {}, &Sentence::id);
    return known != std::end(kSentences) && known->id == id ? known : nullptr;
}

std::string filled_in(std::string_view text, const Reason& reason)
{
    std::string result;
    while (true) {
        const std::size_t begin = std::min(text.find('{'), text.size());
        result += text.substr(0, begin);
        text.remove_prefix(begin);
        if (text.empty()) return result;
        const std::size_t end = text.find('}');
        result += value_of(text.substr(1, end - 1), reason);
        text.remove_prefix(end + 1);
    }
}

std::string limit_of(const Reason& reason)
{
    const Sentence* known = find(reason.limit);
    const std::size_t begin = known == nullptr ? std::string_view::npos : known->text.find(';');
    return begin == std::string_view::npos ? "" : filled_in(known->text.substr(begin), reason);
}

}  // namespace

std::span<const Sentence> sentences() { return kSentences; }

std::string sentence(const Reason& reason)
{
    const Sentence* known = find(reason.id);
    if (known == nullptr) return "";
    std::string result;
    if (!reason.part.empty()) result = known->has_subject ? "in " + reason.part + ", " : reason.part + " ";
    result += filled_in(known->text, reason);
    if (!reason.conversion.empty()) result += " (" + std::string(reason.conversion) + ")";
    return result;
}

std::string full_sentence(const Reason& reason, const Check& check)
{
    const bool names_argument =
        std::ranges::count_if(check.arguments, [](const Argument& argument) {
            return argument.kind != Argument::Kind::kIntegerOut && !argument.is_output;
        }) > 1;
    std::string said = sentence(reason);
    std::string subject;
    if (reason.item) {
        subject = "item " + counted(reason.item);
        if (!reason.item_text.empty()) subject += " (" + quoted(reason.item_text) + ")";
    }
    if (names_argument && reason.argument) {
        subject.append(subject.empty() ? "" : " of ").append(reason.name);
    }
    if (said.empty() || subject.empty()) return said;
    const bool has_subject = find(reason.id)->has_subject || !reason.part.empty();
    return subject + (has_subject ? ": " : " ") + said;
}

Reason without_trace_of_secret(Reason reason, const Check& check)
{
    const bool is_secret = reason.argument && check.arguments[*reason.argument].is_secret;
    if (!is_secret) return reason;
    // Of numbers only those are left that count something; others were read in the text.
    const bool is_read = reason.read_as || reason.id.starts_with("number_");
    if (is_read || !std::holds_alternative<long long>(reason.found)) reason.found = std::monostate();
    reason.read_as.reset();
    reason.item_text.clear();
    return reason;
}

Reason without_secret(Reason reason, const Check& check)
{
    const auto* found = std::get_if<std::string>(&reason.found);
    const bool is_secret = reason.argument && check.arguments[*reason.argument].is_secret;
    if (is_secret && found != nullptr && found->size() > 1) reason.found = std::monostate();
    if (is_secret) reason.item_text.clear();
    return reason;
}

}  // namespace ostrel::rules

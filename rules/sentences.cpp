// The table of sentences.
#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "rules/sentence_pieces.h"

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

struct Named {
    std::string_view name;
    Field field;
};

constexpr Named kFields[] = {
    {"found", Field::kFound}, {"allowed", Field::kAllowed}, {"form", Field::kForm},
    {"byte", Field::kByte},   {"range", Field::kRange},     {"position", Field::kPosition},
    {"read", Field::kRead},   {"read_as", Field::kReadAs},  {"limit", Field::kLimit},
};

}  // namespace

std::span<const Sentence> sentences() { return kSentences; }

Pieces taken_apart(std::string_view text)
{
    Pieces pieces;
    const auto add = [&](Field field, std::size_t begin, std::size_t end) {
        pieces.all.at(pieces.count++) = {field, static_cast<unsigned char>(begin),
                                         static_cast<unsigned char>(end - begin)};
    };
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t begin = std::min(text.find('{', at), text.size());
        if (begin > at) add(Field::kText, at, begin);
        if (begin == text.size()) break;
        const std::size_t end = text.find('}', begin);
        const std::size_t colon = text.find(':', begin);
        const std::string_view name = text.substr(begin + 1, std::min(colon, end) - begin - 1);
        const auto* const known = std::ranges::find(kFields, name, &Named::name);
        if (known == std::end(kFields)) throw std::logic_error("no field: " + std::string(name));
        if (colon > end) {
            add(known->field, 0, 0);
        } else {
            const bool is_found = known->field == Field::kFound;
            add(is_found ? Field::kFoundForms : Field::kAllowedForms, colon + 1, end);
        }
        at = end + 1;
    }
    return pieces;
}

const Sentence* find_sentence(std::string_view id)
{
    const auto* known = std::ranges::lower_bound(kSentences, id, {}, &Sentence::id);
    return known != std::end(kSentences) && known->id == id ? known : nullptr;
}

const Pieces& pieces_of(const Sentence& sentence)
{
    static const auto kPieces = [] {
        std::vector<Pieces> all;
        for (const Sentence& one : kSentences) all.push_back(taken_apart(one.text));
        return all;
    }();
    return kPieces.at(static_cast<std::size_t>(&sentence - kSentences));
}

}  // namespace ostrel::rules

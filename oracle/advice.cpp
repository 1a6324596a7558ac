#include "oracle/advice.h"

#include <algorithm>
#include <utility>

#include "oracle/ways.h"
#include "rules/sentences.h"

namespace ostrel::oracle {

using rules::Answer;
using rules::Outside;
using rules::Reason;

namespace {

// If kEnough calls were one step short, at least one of them must have been refused for the same reason.
constexpr std::size_t kEnough = 1000;
constexpr std::string_view kNobody = "no check has this reason, so any occurrence is a fault";
constexpr std::string_view kPutBack = "the refused call itself is the one that is one step short";
constexpr std::string_view kOutside = "the contract does not cover such calls, so none is made";

// kWays is sorted by id.
constexpr Way kWays[] = {
    {"a_multiple", nullptr, kNobody},
    {"accepted", nullptr, kNobody},
    {"already_listed", take_unlisted},
    {"another_length", take_other_length},
    {"another_subnet", begin_like_subnet},
    {"colon_in_path", leave_colons},
    {"contains", nullptr, kNobody},
    {"driver_asked", nullptr, kOutside},
    {"empty", give_text, kPutBack},
    {"empty_as_listed", give_text, kPutBack},
    {"end_before_start", raise_number},
    {"equal", nullptr, kNobody},
    {"first_server", take_other_server, kPutBack},
    {"forbidden_form", nullptr, kNobody},
    {"forbidden_keyword", leave_word},
    {"forbidden_length", nullptr, kNobody},
    {"forbidden_prefix", begin_otherwise},
    {"forbidden_shape", nullptr, kNobody},
    {"forbidden_suffix", nullptr, kNobody},
    {"group_address", replace_byte},
    {"in_table", nullptr, kNobody},
    {"incomplete", continue_text, kPutBack},
    {"lacks", add_part, kPutBack},
    {"last_item", nullptr, kNobody},
    {"list_full", shorten_list},
    {"listed_by_driver", nullptr, kNobody},
    {"neither_server", take_second_server},
    {"never_returns", nullptr, kOutside},
    {"no_channel_listed", any_number, "no number is allowed, so each is refused again"},
    {"no_key_left", give_key, kPutBack},
    {"not_a_keyword", take_word},
    {"not_a_multiple", nullptr, kNobody},
    {"not_empty", empty},
    {"not_equal", nullptr, kNobody},
    {"not_in_set", replace_byte},
    {"not_in_table", nullptr, kNobody},
    {"not_listed", nullptr, kNobody},
    {"not_listed_by_driver", take_number},
    {"not_null", nullptr, kNobody},
    {"not_of_offset", take_word},
    {"not_part_of_any", take_word},
    {"null", give_what_is_null, kPutBack},
    {"null_asserted", nullptr, kOutside},
    {"null_read", nullptr, kOutside},
    {"number_beyond_int", fit_int, "the number that it is read as is refused too"},
    {"number_forbidden", leave_number},
    {"number_in_range", leave_range},
    {"number_not_allowed", take_number},
    {"number_out_of_range", go_into_range},
    {"number_too_high", lower_number},
    {"number_too_low", raise_number},
    {"numeric_name", name_with_letter},
    {"only_of_set", nullptr, kNobody},
    {"only_other_set", give_text, kPutBack},
    {"pass_phrase_alone", empty},
    {"repeated_item", make_different, kPutBack},
    {"too_long", cut},
    {"too_many_items", take_items},
    {"too_many_labels", take_parts},
    {"too_much", end_text},
    {"too_much_work", nullptr, kOutside},
    {"too_short", fill},
    {"wrong_item_count", take_parts},
    {"wrong_length", take_length},
    {"wrong_prefix", begin_with},
    {"wrong_shape", replace_byte},
    {"wrong_shape_or_end", replace_byte_or_end},
    {"wrong_suffix", nullptr, kNobody},
};

bool is_same(const Answer& answer, const Reason& reason)
{
    const Reason& other = answer.reason;
    return answer.is_refusal && other.id == reason.id && other.argument == reason.argument &&
           other.part == reason.part && other.item == reason.item && other.offset == reason.offset;
}

const Way* way_of(std::string_view id)
{
    const auto* way = std::ranges::lower_bound(kWays, id, {}, &Way::id);
    return way == std::end(kWays) || way->id != id ? nullptr : way;
}

// data_fault returns a description of the fault if a reason reports something that the value does not
// contain, or if the reason's sentence lacks the reported number. Otherwise it returns an empty string.
std::string data_fault(const Refusal& refusal)
{
    const Reason& reason = refusal.reason();
    const rules::Sentence* known = rules::find_sentence(reason.id);
    if (known == nullptr) return "has no sentence";
    const std::string sentence = rules::sentence(reason);
    for (const auto& [place, datum] :
         {std::pair("{found}", &reason.found), std::pair("{allowed}", &reason.allowed)}) {
        const auto* number = std::get_if<long long>(datum);
        const bool is_said = number != nullptr && known->text.find(place) != std::string_view::npos;
        if (is_said && sentence.find(std::to_string(*number)) == std::string::npos)
            return "has a sentence that does not contain " + std::to_string(*number);
    }
    const auto* found = std::get_if<std::string>(&reason.found);
    const bool is_of_byte = known->text.find("{byte}") != std::string_view::npos;
    if (is_of_byte && found != nullptr && refusal.byte() && *found != std::string(1, *refusal.byte()))
        return "reports a byte other than the one at its offset";
    if (std::string_view(reason.id).ends_with("_length") || reason.id == "too_long" ||
        reason.id == "too_short") {
        const auto* bytes = std::get_if<long long>(&reason.found);
        if (bytes != nullptr && static_cast<std::size_t>(*bytes) != refusal.judged().size())
            return "reports a length other than that of the judged part";
    }
    return "";
}

}  // namespace

std::span<const Way> ways() { return kWays; }

std::string Follower::follow(const rules::Check& check, const Values& values, const rules::Build& build,
                             const Answer& answer,
                             const std::function<void(const Values&, const Answer&)>& visit,
                             rules::Counts* counts)
{
    fault_call_.clear();
    const Reason& reason = answer.reason;
    const Refusal refusal(check, values, answer, turn_++);
    const Way* way = way_of(reason.id);
    if (way == nullptr || way->advise == nullptr) return "no way to follow " + std::string(reason.id);
    if (const std::string fault = data_fault(refusal); !fault.empty()) return fault;
    Advice advice;
    way->advise(refusal, advice);
    Less& less = less_[{check.name, reason.id}];
    std::string fault;
    const auto answer_of = [&](const Values& call) {
        Answer result = rules::evaluate(check, call, build, counts);
        if (result.outside == Outside::kNo) visit(call, result);
        return result;
    };
    const auto tell = [&](const char* what, const Values& call) {
        if (fault.empty()) fault = std::string(what) + ": " + rules::sentence(reason);
        if (fault_call_.empty()) fault_call_ = call;
    };
    for (const Values& call : advice.followed) {
        if (is_same(answer_of(call), reason)) tell("comes back though it was followed", call);
    }
    for (const auto* calls : {&advice.less, &advice.attempts}) {
        for (const Values& call : *calls) {
            const Answer back = answer_of(call);
            ++(is_same(back, reason) ? less.same : less.other);
            const bool is_accepted = back.outside == Outside::kNo && !back.is_refusal;
            if (is_accepted && calls == &advice.less) tell("does not come back with one step less", call);
        }
    }
    return fault;
}

std::vector<std::string> Follower::unproven() const
{
    std::vector<std::string> result;
    for (const auto& [of, less] : less_) {
        if (less.same > 0 || less.other < kEnough || !way_of(of.second)->instead.empty()) continue;
        result.push_back(std::string(of.first) + " " + std::string(of.second));
    }
    return result;
}

}  // namespace ostrel::oracle

// Conditions on numbers, and on strings that may be numbers.

#include <algorithm>
#include <span>

#include "rules/run.h"

namespace ostrel::rules {

namespace {

using Kind = Condition::Kind;

bool contains(const std::vector<long long>& members, long long number)
{
    return std::ranges::find(members, number) != members.end();
}

}  // namespace

void Run::tell(Reason& reason, const Integer& judged, std::string_view id, Datum&& allowed) const
{
    const Place place = judged.place();
    tell(reason, place, id, judged.value, std::move(allowed));
    reason.offset = place.offset;
    if (judged.is_read || !judged.beyond_int.empty()) reason.read_as = judged.value;
    if (judged.beyond_int.empty()) return;
    reason.limit = id;
    reason.id = "number_beyond_int";
    reason.found = std::string(judged.beyond_int);
}

bool Run::number_holds(const Condition& condition, Frame& frame, Reason* reason)
{
    Operand room;
    const Integer judged = number(condition.operands[0], frame, room);
    const bool is_negated = condition.is_negated;
    std::string_view id;
    long long limit = 0;  // set if the condition has a limit
    bool result = false;
    if (condition.kind == Kind::kAmong) {
        id = is_negated ? "number_not_allowed" : "number_forbidden";
        result = contains(condition.numbers, judged.value);
    } else if (condition.kind == Kind::kBetween) {
        id = is_negated ? "number_out_of_range" : "number_in_range";
        result = judged.value >= condition.numbers[0] && judged.value <= condition.numbers[1];
    } else {
        limit = number(condition.operands[1], frame);
        if (condition.kind == Kind::kMultiple) {
            id = is_negated ? "not_a_multiple" : "a_multiple";
            result = judged.value % limit == 0;
        } else {
            const bool is_below = condition.kind == Kind::kBelow;
            id = is_below != is_negated ? "number_too_low" : "number_too_high";
            result = is_below ? judged.value < limit : judged.value > limit;
        }
    }
    if (reason != nullptr && result != is_negated)
        tell(*reason, judged, id, condition.numbers.empty() ? Datum(limit) : condition.numbers);
    return result;
}

bool Run::driver_lists(const Condition& condition, Frame& frame, Reason* reason)
{
    Operand room;
    const Integer judged = number(condition.operands[0], frame, room);
    if (!build_.channels) throw Ended{Outside::kDriver, judged.place()};
    const std::span<const int> all = *build_.channels;
    const auto first = static_cast<std::size_t>(condition.numbers[0]);
    std::vector<long long> listed;
    for (const int channel : all.first(std::min(first, all.size()))) {
        if (channel <= condition.numbers[1]) listed.push_back(channel);
    }
    const bool result = contains(listed, judged.value);
    if (reason == nullptr || result == condition.is_negated) return result;
    std::string_view id = "listed_by_driver";
    if (condition.is_negated) id = listed.empty() ? "no_channel_listed" : "not_listed_by_driver";
    tell(*reason, judged, id, std::move(listed));
    return result;
}

bool Run::equality_holds(const Condition& condition, Frame& frame, Reason* reason)
{
    Operand room;
    Operand other_room;
    const Operand& one = text(condition.operands[0], frame, room);
    const Operand& other = text(condition.operands[1], frame, other_room);
    const std::string_view id = condition.is_negated ? "not_equal" : "equal";
    if (one.kind == Operand::Kind::kText && other.kind == Operand::Kind::kText) {
        const bool result = same(one.text, other.text, condition.ignores_case);
        if (reason != nullptr && result != condition.is_negated)
            tell(*reason, one.place, id, std::string(one.text), std::string(other.text));
        return result;
    }
    const Integer left = number(condition.operands[0], frame, room);
    const long long right = number(condition.operands[1], frame);
    const bool result = left.value == right;
    if (reason != nullptr && result != condition.is_negated) tell(*reason, left, id, right);
    return result;
}

}  // namespace ostrel::rules

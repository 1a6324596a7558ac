// Evaluation of conditions in a call, with their reasons.

#include <algorithm>

#include "rules/run.h"

namespace ostrel::rules {

namespace {

using Kind = Condition::Kind;

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

bool Run::same(std::string_view a, std::string_view b, bool ignores_case)
{
    if (!ignores_case) return a == b;
    return std::ranges::equal(a, b, {}, lower, lower);
}

void Run::tell(Reason& reason, const Place& where, std::string_view id, Datum&& found, Datum&& allowed) const
{
    reason.clear();
    reason.id = id;
    reason.argument = where.argument;
    if (called_.arguments.size() == 1) reason.argument = 0;
    if (reason.argument) reason.name = called_.arguments[*reason.argument].name;
    reason.item = where.item;
    reason.judged = where.judged;
    reason.item_text = where.item_text;
    reason.conversion = where.conversion;
    reason.part = where.part;
    if (where.part_number > 0) reason.part += " " + std::to_string(where.part_number);
    if (!where.part.empty()) reason.offset = where.offset;
    reason.found = std::move(found);
    reason.allowed = std::move(allowed);
}

bool Run::holds(const Condition& condition, Frame& frame, Reason* reason)
{
    const bool result = holds_at_all(condition, frame, reason) != condition.is_negated;
    if (result && reason != nullptr && !condition.id.empty() && reason->id != "number_beyond_int") {
        reason->id = condition.id;
    }
    if (counts_ != nullptr) {
        Counts::OfCheck& of = counts_->checks[frame.check.number];
        ++(result ? of.held : of.failed)[condition.number];
    }
    return result;
}

// holds_at_all returns the result before negation. The reason that it stores takes negation into account.
bool Run::holds_at_all(const Condition& condition, Frame& frame, Reason* reason)
{
    switch (condition.kind) {
        case Kind::kEmpty:
        case Kind::kOutside:
        case Kind::kKeyword:
        case Kind::kPrefix:
        case Kind::kSuffix:
        case Kind::kContains:
        case Kind::kGrammar:
            return text_holds(condition, frame, reason);
        case Kind::kShorter:
        case Kind::kLonger:
        case Kind::kLength:
            return length_holds(condition, frame, reason);
        case Kind::kBelow:
        case Kind::kAbove:
        case Kind::kAmong:
        case Kind::kBetween:
        case Kind::kMultiple:
            return number_holds(condition, frame, reason);
        case Kind::kListed:
            return driver_lists(condition, frame, reason);
        case Kind::kShape:
            return shape_holds(condition, frame, reason);
        case Kind::kEqual:
            return equality_holds(condition, frame, reason);
        case Kind::kRow:
            return row_holds(condition, frame, reason);
        case Kind::kRefusedBy:
            return is_refused_by(condition, frame, reason);
        case Kind::kAllOf:
            return std::ranges::all_of(condition.parts,
                                       [&](const Condition& part) { return holds(part, frame, reason); });
        case Kind::kAnyOf:
            return std::ranges::any_of(condition.parts,
                                       [&](const Condition& part) { return holds(part, frame, reason); });
        default:
            return others_hold(condition, frame, reason);
    }
}

bool Run::length_holds(const Condition& condition, Frame& frame, Reason* reason)
{
    Operand room;
    const Operand& judged = text(condition.operands[0], frame, room);
    const auto size = static_cast<long long>(judged.text.size());
    const bool is_negated = condition.is_negated;
    if (condition.kind == Kind::kLength) {
        const bool result = std::ranges::find(condition.numbers, size) != condition.numbers.end();
        if (reason != nullptr && result != is_negated)
            tell(*reason, judged.place, is_negated ? "wrong_length" : "forbidden_length", size,
                 condition.numbers);
        return result;
    }
    const long long limit = number(condition.operands[1], frame);
    const bool is_shorter = condition.kind == Kind::kShorter;
    const bool result = is_shorter ? size < limit : size > limit;
    if (reason != nullptr && result != is_negated)
        tell(*reason, judged.place, is_shorter != is_negated ? "too_short" : "too_long", size, limit);
    return result;
}

bool Run::row_holds(const Condition& condition, Frame& frame, Reason* reason)
{
    const auto suits = [&](const std::vector<std::string_view>& row, std::span<const Match> matches) {
        return std::ranges::all_of(matches, [&](const Match& match) {
            const std::string_view cell = row[match.column];
            if (match.how == Match::How::kNumber) {
                return number(match.value, frame) == read_number(cell, build_.atoi).value;
            }
            Operand room;
            const std::string_view given = text(match.value, frame, room).text;
            return match.how == Match::How::kEqual ? cell == given
                                                   : cell.find(given) != std::string_view::npos;
        });
    };
    const std::span<const Match> all = condition.matches;
    const auto found =
        std::ranges::find_if(condition.table->rows, [&](const auto& row) { return suits(row, all); });
    const bool result = found != condition.table->rows.end();
    if (result) frame.row = &*found;
    if (reason == nullptr || result == condition.is_negated) return result;
    const Match& first = all.front();
    Operand room;
    const Operand& judged = text(first.value, frame, room);
    std::vector<std::string_view> cells;
    for (const auto& row : condition.table->rows) {
        const std::string_view cell = row[first.column];
        const bool is_new = std::ranges::find(cells, cell) == cells.end();
        if (is_new && suits(row, all.subspan(1))) cells.push_back(cell);
    }
    tell(*reason, judged.place, condition.is_negated ? "not_in_table" : "in_table", std::string(judged.text),
         std::move(cells));
    return result;
}

bool Run::others_hold(const Condition& condition, Frame& frame, Reason* reason)
{
    bool result = true;
    const auto tells = [&] { return reason != nullptr && result != condition.is_negated; };
    switch (condition.kind) {
        case Kind::kNull: {
            Operand room;
            const Operand& judged = operand(condition.operands[0], frame, room);
            result = judged.kind == Operand::Kind::kNull;
            if (tells()) tell(*reason, judged.place, condition.is_negated ? "not_null" : "null", {}, {});
            return result;
        }
        case Kind::kLastItem:
            result = frame.is_last_item;
            if (tells()) tell(*reason, frame.item.place, "last_item", {}, {});
            return result;
        default:
            return true;
    }
}

bool Run::is_refused_by(const Condition& condition, Frame& frame, Reason* reason)
{
    Frame inner{*condition.target, {}};
    inner.slots.reserve(inner.check.slots);
    Operand room;
    for (const Expression& argument : condition.operands)
        inner.slots.push_back(operand(argument, frame, room));
    inner.slots.resize(inner.check.slots);
    for (std::size_t i = 0; i < inner.check.arguments.size(); ++i) {
        const bool is_null = inner.slots[i].kind == Operand::Kind::kNull;
        if (is_null && !inner.check.arguments[i].asserted.empty())
            throw Ended{Outside::kAssertion, inner.slots[i].place};
    }
    run(inner.check.steps, inner);
    fault_lines_ = nullptr;
    its_code_ = inner.code;
    if (!inner.is_refusal) reason_.clear();
    if (reason != nullptr && condition.is_negated) tell(*reason, inner.slots[0].place, "accepted", {}, {});
    return inner.code != 0;
}

}  // namespace ostrel::rules

// String conditions: words, sets and shapes.

#include <algorithm>

#include "rules/run.h"

namespace ostrel::rules {

namespace {

using Kind = Condition::Kind;

constexpr auto kMissing = std::string_view::npos;

// The limit on work assumes that a search compares this many bytes at a time and, in the worst case, the
// whole part at every offset.
constexpr std::size_t kQuickBytes = 16;

std::string one_byte(std::string_view text, std::size_t offset)
{
    return std::string(text.substr(offset, 1));
}

// Progress records how far a string matches a shape.
struct Progress {
    bool is_whole = false;
    bool may_end = false;  // the string may end at the offset
    std::size_t offset = 0;
    Set expected;
    const Group* group = nullptr;  // the group that does not match
};

Progress match(std::string_view text, const Shape& shape)
{
    Progress result;
    Set optional;  // the bytes with which a group of variable length could continue
    for (const Group& group : shape) {
        std::size_t count = 0;
        while (count < group.most && result.offset < text.size() && group.set.contains(text[result.offset])) {
            ++count;
            ++result.offset;
        }
        if (count < group.least) {
            result.expected = count == 0 ? group.set | optional : group.set;
            result.group = &group;
            return result;
        }
        optional = count < group.most ? group.set : Set();
    }
    result.expected = optional;
    result.may_end = true;
    result.is_whole = result.offset == text.size();
    return result;
}

}  // namespace

std::size_t Run::common(std::string_view text, const Condition& prefixes)
{
    std::size_t longest = 0;
    for (const std::string_view word : prefixes.words) {
        std::size_t size = std::min(text.size(), word.size());
        while (!same(text.substr(0, size), word.substr(0, size), prefixes.ignores_case)) --size;
        longest = std::max(longest, size);
    }
    return longest;
}

bool Run::text_holds(const Condition& condition, Frame& frame, Reason* reason)
{
    Operand room;
    const Operand& judged = text(condition.operands[0], frame, room);
    const std::string_view whole = judged.text;
    const bool is_negated = condition.is_negated;
    bool result = false;
    const auto tells = [&] { return reason != nullptr && result != is_negated; };
    const auto say = [&](std::string_view id, Datum&& found, Datum&& allowed, std::size_t offset = kMissing) {
        tell(*reason, judged.place, id, std::move(found), std::move(allowed));
        if (offset != kMissing && judged.place.offset) reason->offset = *judged.place.offset + offset;
    };
    switch (condition.kind) {
        case Kind::kEmpty:
            result = whole.empty();
            if (tells()) say(is_negated ? "not_empty" : "empty", static_cast<long long>(whole.size()), {});
            return result;
        case Kind::kOutside: {
            Operand other_room;
            const Operand& given = text(condition.operands[1], frame, other_room);
            const Set set = given.kind == Operand::Kind::kSet ? *given.set : Set(given.text);
            const std::size_t offset = set.find_outside(whole);
            result = offset != kMissing;
            if (!tells()) return result;
            if (is_negated) {
                say("only_of_set", std::string(whole), set);
            } else {
                say("not_in_set", one_byte(whole, offset), set, offset);
            }
            return result;
        }
        case Kind::kKeyword:
            result = std::ranges::any_of(condition.words, [&](std::string_view word) {
                return same(whole, word, condition.ignores_case);
            });
            if (tells())
                say(is_negated ? "not_a_keyword" : "forbidden_keyword", std::string(whole), condition.words);
            return result;
        case Kind::kPrefix:
            result = std::ranges::any_of(condition.words, [&](std::string_view word) {
                return same(whole.substr(0, word.size()), word, condition.ignores_case);
            });
            if (tells())
                say(is_negated ? "wrong_prefix" : "forbidden_prefix", std::string(whole), condition.words,
                    is_negated ? common(whole, condition) : 0);
            return result;
        case Kind::kSuffix: {
            Operand other_room;
            const std::string_view suffix = text(condition.operands[1], frame, other_room).text;
            result = whole.size() > suffix.size() && whole.ends_with(suffix);
            if (tells())
                say(is_negated ? "wrong_suffix" : "forbidden_suffix", std::string(whole),
                    std::string(suffix));
            return result;
        }
        case Kind::kContains: {
            Operand other_room;
            const Operand& part = text(condition.operands[1], frame, other_room);
            work(std::uint64_t{whole.size()} / kQuickBytes * part.text.size());
            const std::size_t offset = whole.find(part.text);
            result = offset != kMissing;
            if (!tells()) return result;
            if (part.place.argument) {
                tell(*reason, part.place, is_negated ? "not_listed" : "already_listed",
                     std::string(part.text), std::string(whole));
            } else {
                say(is_negated ? "lacks" : "contains", std::string(part.text), std::string(part.text),
                    offset);
            }
            return result;
        }
        default: {
            const auto fault = condition.grammar->judge(whole, build_);
            result = fault.has_value();
            if (tells() && fault) say(fault->id, fault->found, fault->allowed, fault->offset);
            if (tells() && !fault)
                say("forbidden_form", std::string(whole), std::string(condition.grammar->what));
            return result;
        }
    }
}

bool Run::shape_holds(const Condition& condition, Frame& frame, Reason* reason)
{
    Operand room;
    const Operand& judged = text(condition.operands[0], frame, room);
    const bool tells = reason != nullptr;
    Progress furthest;
    for (const Shape& shape : condition.shapes) {
        const Progress one = match(judged.text, shape);
        if (one.is_whole) {
            if (tells && !condition.is_negated)
                tell(*reason, judged.place, "forbidden_shape", std::string(judged.text), {});
            return true;
        }
        if (one.offset == furthest.offset) {
            furthest.expected = furthest.expected | one.expected;
            furthest.may_end = furthest.may_end || one.may_end;
            if (furthest.group == nullptr) furthest.group = one.group;
        }
        if (one.offset > furthest.offset) furthest = one;
    }
    if (!tells || !condition.is_negated) return false;
    const bool ends = furthest.offset == judged.text.size();
    tell(*reason, judged.place,
         ends                        ? "incomplete"
         : furthest.expected.empty() ? "too_much"
         : furthest.may_end          ? "wrong_shape_or_end"
                                     : "wrong_shape",
         one_byte(judged.text, furthest.offset), furthest.expected);
    if (judged.place.offset) reason->offset = *judged.place.offset + furthest.offset;
    if (furthest.group != nullptr) fault_lines_ = &furthest.group->lines;
    return false;
}

}  // namespace ostrel::rules

// What a step does for each item of a list.

#include "rules/run.h"

namespace ostrel::rules {

namespace {

std::string_view trim_front(std::string_view text, const Set& set)
{
    while (!text.empty() && set.contains(text.front())) text.remove_prefix(1);
    return text;
}

std::string_view trim(std::string_view text, const Set& set)
{
    text = trim_front(text, set);
    while (!text.empty() && set.contains(text.back())) text.remove_suffix(1);
    return text;
}

// part_of gives a piece of a text its place.
Operand part_of(const Operand& whole, std::string_view piece)
{
    Operand part = whole;
    part.text = piece;
    part.place.call({});
    const auto begin = static_cast<std::size_t>(piece.data() - whole.text.data());
    if (part.place.offset) *part.place.offset += begin;
    if (part.place.judged) part.place.judged = Span{part.place.judged->begin + begin, piece.size()};
    return part;
}

}  // namespace

// run_list keeps the item of a list that it stands in.
Run::Flow Run::run_list(const Step& step, Frame& frame)
{
    const List& list = *step.list;
    const Operand whole = text(list.of, frame);
    const Operand outer_item = frame.item;
    const Operand outer_rest = frame.rest;
    const long long outer_index = frame.index;
    const bool outer_is_last = frame.is_last_item;
    Flow flow = Flow::kOn;
    std::string_view rest = whole.text;
    frame.index = 0;
    for (bool goes_on = true; goes_on; ++frame.index) {
        const auto index = static_cast<std::size_t>(frame.index);
        if (whole.kind == Operand::Kind::kBlocks) {
            frame.item = whole;
            frame.item.kind = Operand::Kind::kText;
            frame.item.text = blocks_[index];
            frame.item.place.offset = 0;
            frame.item.place.judged = Span{0, frame.item.text.size()};
            frame.is_last_item = index + 1 == blocks_.size();
        } else {
            const std::size_t end = rest.find(list.separator);
            frame.is_last_item = end == std::string_view::npos;
            frame.item = part_of(whole, trim(rest.substr(0, end), list.trimmed));
            rest = frame.is_last_item ? rest.substr(rest.size())
                                      : trim_front(rest.substr(end + 1), list.trimmed);
            frame.rest = part_of(whole, rest);
        }
        if (!list.part.empty()) {
            frame.item.place.call(list.part, index + 1);
        } else if (!frame.item.place.item) {
            frame.item.place.item = index;
            frame.item.place.item_text = frame.item.text;
        }
        goes_on = !frame.is_last_item;
        if (counts_ != nullptr) {
            Counts::OfCheck& of = counts_->checks[frame.check.number];
            ++of.steps[step.number];
            ++of.held[step.condition.number];
        }
        flow = run(step.steps, frame);
        if (flow == Flow::kEnd) break;
        flow = Flow::kOn;
    }
    frame.item = outer_item;
    frame.rest = outer_rest;
    frame.index = outer_index;
    frame.is_last_item = outer_is_last;
    return flow;
}

}  // namespace ostrel::rules

// Execution of the steps for each item of a list.

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

}  // namespace

void place_piece(Operand& piece, const Operand& whole, std::string_view text)
{
    piece.text = text;
    piece.place.call({});
    const auto begin = static_cast<std::size_t>(text.data() - whole.text.data());
    if (whole.place.offset) piece.place.offset = *whole.place.offset + begin;
    if (whole.place.judged) piece.place.judged = Span{whole.place.judged->begin + begin, text.size()};
}

// run_list restores the item of the enclosing list afterwards.
Run::Flow Run::run_list(const Step& step, Frame& frame)
{
    const List& list = *step.list;
    Operand room;
    const Operand whole = text(list.of, frame, room);
    const Operand outer_item = frame.item;
    const Operand* const outer_list = frame.list;
    const std::string_view outer_rest = frame.rest;
    const long long outer_index = frame.index;
    const bool outer_is_last = frame.is_last_item;
    Flow flow = Flow::kOn;
    std::string_view rest = whole.text;
    frame.index = 0;
    frame.item = whole;
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
            place_piece(frame.item, whole, trim(rest.substr(0, end), list.trimmed));
            rest = frame.is_last_item ? rest.substr(rest.size())
                                      : trim_front(rest.substr(end + 1), list.trimmed);
            frame.list = &whole;
            frame.rest = rest;
        }
        if (!list.part.empty()) {
            frame.item.place.call(list.part, index + 1);
        } else if (!whole.place.item) {
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
    frame.list = outer_list;
    frame.rest = outer_rest;
    frame.index = outer_index;
    frame.is_last_item = outer_is_last;
    return flow;
}

}  // namespace ostrel::rules

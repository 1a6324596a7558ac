// Execution of the steps of a check in a call.
#include "rules/evaluate.h"

#include "rules/datum.h"
#include "rules/rules.h"
#include "rules/run.h"
#include "rules/walk.h"

namespace ostrel::rules {

namespace {

Operand slot_of(const Value& value, std::size_t argument)
{
    Operand slot;
    slot.place.argument = argument;
    if (const auto* text = std::get_if<std::string>(&value)) {
        slot.kind = Operand::Kind::kText;
        slot.text = *text;
        slot.place.offset = 0;
        slot.place.judged = Span{0, slot.text.size()};
    } else if (const auto* number = std::get_if<long long>(&value)) {
        slot.kind = Operand::Kind::kNumber;
        slot.number = *number;
    } else if (std::holds_alternative<std::vector<std::string>>(value)) {
        slot.kind = Operand::Kind::kBlocks;
    }
    return slot;
}

std::string_view id_of(Outside outside)
{
    switch (outside) {
        case Outside::kNo:
            break;
        case Outside::kAssertion:
            return "null_asserted";
        case Outside::kNull:
            return "null_read";
        case Outside::kNeverReturns:
            return "never_returns";
        case Outside::kDriver:
            return "driver_asked";
        case Outside::kTooMuchWork:
            return "too_much_work";
    }
    return "";
}

}  // namespace

Counts::Counts()
{
    for (const Check& check : rules::checks()) {
        OfCheck of;
        of.steps.resize(check.step_count);
        of.held.resize(check.condition_count);
        of.failed.resize(check.condition_count);
        checks.push_back(std::move(of));
    }
}

Answer evaluate(const Check& check, std::span<const Value> values, const Build& build, Counts* counts)
{
    Answer answer;
    Run(check, build, counts, answer).evaluate(values);
    return answer;
}

Answer evaluate_within(std::uint64_t bytes, const Check& check, std::span<const Value> values,
                       const Build& build)
{
    Answer answer;
    Run run(check, build, nullptr, answer);
    run.limit_work(bytes);
    run.evaluate(values);
    return answer;
}

void explain_within(std::uint64_t bytes, const Check& check, std::span<const Value> values,
                    const Build& build, Answer& answer)
{
    answer.code = 0;
    answer.is_refusal = false;
    answer.outside = Outside::kNo;
    answer.beyond_int = false;
    answer.reason.clear();
    answer.printed.clear();
    Run run(check, build, nullptr, answer);
    run.limit_work(bytes);
    run.keep_silent();
    run.evaluate(values);
}

Answer evaluate_hiding(std::uint64_t bytes, const Check& check, std::span<const Value> values,
                       const Build& build)
{
    Answer answer;
    Run run(check, build, nullptr, answer);
    run.limit_work(bytes);
    run.hide_secrets();
    run.evaluate(values);
    return answer;
}

Frame Run::called_with(std::span<const Value> values)
{
    Frame frame{called_, {}};
    frame.is_called = true;
    frame.slots.reserve(called_.slots);
    for (std::size_t i = 0; i < values.size(); ++i) {
        frame.slots.push_back(slot_of(values[i], i));
        if (const auto* texts = std::get_if<std::vector<std::string>>(&values[i])) {
            blocks_.assign(texts->begin(), texts->end());
        }
    }
    frame.slots.resize(called_.slots);
    return frame;
}

void Run::evaluate(std::span<const Value> values)
{
    Frame frame = called_with(values);
    try {
        for (std::size_t i = 0; i < values.size(); ++i) {
            const bool is_null = frame.slots[i].kind == Operand::Kind::kNull;
            if (is_null && !called_.arguments[i].asserted.empty())
                throw Ended{Outside::kAssertion, frame.slots[i].place};
        }
        run(called_.steps, frame);
    } catch (const Ended& ended) {
        answer_.outside = ended.outside;
        tell(reason_, ended.place, id_of(ended.outside), {}, {});
        return;
    }
    answer_.code = frame.code;
    answer_.is_refusal = frame.is_refusal;
    if (!frame.is_refusal) reason_.clear();
    for (std::size_t i = 0; i < values.size() && !is_silent_; ++i) {
        if (is_written(called_.arguments[i])) answer_.after.push_back(value_of(frame.slots[i]));
    }
}

Value Run::value_of(const Operand& slot) const
{
    switch (slot.kind) {
        case Operand::Kind::kText:
            return std::string(slot.text);
        case Operand::Kind::kNumber:
            return slot.number;
        case Operand::Kind::kBlocks:
            return std::vector<std::string>(blocks_.begin(), blocks_.end());
        default:
            return nullptr;
    }
}

Run::Flow Run::run(const std::vector<Step>& steps, Frame& frame)
{
    for (const Step& step : steps) {
        const Flow flow = run(step, frame);
        if (flow != Flow::kOn) return flow;
    }
    return Flow::kOn;
}

Run::Flow Run::run(const Step& step, Frame& frame)
{
    switch (step.kind) {
        case Step::Kind::kForEach:
            return run_list(step, frame);
        case Step::Kind::kWhen:
            if (!holds(step.condition, frame, nullptr)) return run(step.otherwise, frame);
            if (counts_ != nullptr) ++counts_->checks[frame.check.number].steps[step.number];
            return run(step.steps, frame);
        default:
            break;
    }
    fault_lines_ = nullptr;
    reason_.clear();
    if (!holds(step.condition, frame, &reason_)) return Flow::kOn;
    if (counts_ != nullptr) ++counts_->checks[frame.check.number].steps[step.number];
    switch (step.kind) {
        case Step::Kind::kRefuse:
        case Step::Kind::kAccept:
            return decide(step, frame);
        case Step::Kind::kRemember: {
            Operand room;
            frame.slots[step.slot] = operand(*step.value, frame, room);
            return Flow::kOn;
        }
        case Step::Kind::kReads: {
            Operand room;
            const Operand& read = operand(*step.value, frame, room);
            if (read.kind == Operand::Kind::kNull)
                throw Ended{step.name.empty() ? Outside::kNull : Outside::kAssertion, read.place};
            return Flow::kOn;
        }
        case Step::Kind::kNeverReturns:
            throw Ended{Outside::kNeverReturns,
                        {reason_.argument, reason_.item, keep(reason_.item_text), reason_.offset}};
        default:
            act(step, frame);
            if (step.kind != Step::Kind::kWrite) answer_.printed.push_back(std::move(reason_));
            return step.kind == Step::Kind::kSkip ? Flow::kNextItem : Flow::kOn;
    }
}

Run::Flow Run::decide(const Step& step, Frame& frame)
{
    if (step.code.is_its) {
        frame.code = step.code.exchanged(its_code_);
    } else {
        frame.code = static_cast<int>(number(step.code.number, frame));
    }
    act(step, frame);
    frame.is_refusal = step.kind == Step::Kind::kRefuse;
    return Flow::kEnd;
}

void Run::act(const Step& step, Frame& frame)
{
    if (fault_lines_ != nullptr) print(*fault_lines_, frame);
    print(step.lines, frame);
    for (const Write& one : step.writes) write(one, frame);
}

void Run::print(const std::vector<Line>& lines, Frame& frame)
{
    is_printing_ = true;
    for (const Line& line : lines) {
        std::string& stream = line.stream == Line::Stream::kOut ? answer_.out : answer_.err;
        for (const Line::Part& part : line.parts) {
            if (!part.value) {
                if (!is_silent_) stream += part.text;
                continue;
            }
            Operand room;
            const Operand& value = text(*part.value, frame, room);
            if (is_silent_) continue;
            const bool is_secret = value.place.argument && called_.arguments[*value.place.argument].is_secret;
            if (value.kind == Operand::Kind::kNumber) {
                stream += std::to_string(value.number);
            } else if (hides_secrets_ && is_secret) {
                stream += length_shown(value.text.size());
            } else {
                stream += value.text;
            }
        }
        if (line.is_flushed) answer_.flushed = answer_.out.size();
    }
    is_printing_ = false;
}

void Run::write(const Write& write, Frame& frame)
{
    const bool is_item = write.target.kind == Expression::Kind::kItem;
    Operand& target = is_item ? frame.item : frame.slots[write.target.slot];
    if (target.kind == Operand::Kind::kNull) throw Ended{Outside::kNull, target.place};
    Operand room;
    const Operand& value = operand(write.value, frame, room);
    if (!frame.is_called) return;
    target.kind = value.kind;
    target.number = value.number;
    target.text = keep(std::string(value.text));
    if (value.kind == Operand::Kind::kText) {
        target.place.offset = 0;
        target.place.judged = Span{0, target.text.size()};
    }
    target.place.conversion = value.place.conversion;
    if (is_item) blocks_[*target.place.item] = target.text;
}

}  // namespace ostrel::rules

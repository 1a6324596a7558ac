// Run: one evaluation. It is for evaluate.cpp, operands.cpp and conditions.cpp alone.
#ifndef OSTREL_RULES_RUN_H
#define OSTREL_RULES_RUN_H

#include <cstdint>
#include <forward_list>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "rules/evaluate.h"

namespace ostrel::rules {

// Place says which argument of the call a text or number comes from, and which part of it.
struct Place {
    std::optional<std::size_t> argument;
    std::optional<std::size_t> item;
    std::string_view item_text = {};
    std::optional<std::size_t> offset;  // where a text begins in the argument's
    std::optional<Span> judged = {};    // the text, in the argument's, also where a number was made of it
    std::string_view part = {};         // what that part of the argument is called
    std::size_t part_number = 0;        // of several that are called the same, from 1
    std::string_view conversion = {};   // what was done to the argument's text; empty: it is as given

    void call(std::string_view name, std::size_t number = 0)
    {
        part = name;
        part_number = number;
    }
};

// Operand is what an expression is in a call.
struct Operand {
    enum class Kind { kNull, kText, kNumber, kSet, kBlocks, kNowhere };

    Kind kind = Kind::kNull;
    std::string_view text;
    long long number = 0;
    const Set* set = nullptr;
    Place place;
};

// Integer is an operand as a number.
struct Integer {
    long long value = 0;
    std::string_view beyond_int;   // what stands in the text, when an int does not hold it
    bool is_read = false;          // from a text that is not just the number
    const Place* whole = nullptr;  // of the text
    std::size_t begin = 0;         // of what is beyond an int, in the text

    [[nodiscard]] Place place() const
    {
        Place place = *whole;
        if (place.offset) *place.offset += begin;
        return place;
    }
};

// Frame is a check that is being evaluated: the one that was called, or one that another uses.
struct Frame {
    const Check& check;
    std::vector<Operand> slots;
    Operand item = {};
    const Operand* list = nullptr;  // that the item is of
    std::string_view rest = {};     // what follows the separator after it
    long long index = 0;
    bool is_last_item = false;
    const std::vector<std::string_view>* row = nullptr;  // of a table, found last
    bool is_called = false;  // it is the check that was called, so that what it writes stays
    int code = 0;
    bool is_refusal = false;
};

// Ended is thrown where the contract promises nothing of a call.
struct Ended {
    Outside outside;
    Place place = {};
};

// place_piece has a copy of a text be a piece of it, with its place and without a name.
void place_piece(Operand& piece, const Operand& whole, std::string_view text);

class Run {
 public:
    Run(const Check& check, const Build& build, Counts* counts, Answer& answer)
        : called_(check), build_(build), counts_(counts), answer_(answer), reason_(answer.reason)
    {
    }

    void limit_work(std::uint64_t bytes) { bytes_left_ = bytes; }
    void hide_secrets() { hides_secrets_ = true; }
    void keep_silent() { is_silent_ = true; }
    void evaluate(std::span<const Value> values);
    std::optional<std::size_t> size(const Expression& formula, std::span<const Value> values);

 private:
    enum class Flow { kOn, kNextItem, kEnd };

    Frame called_with(std::span<const Value> values);

    // Operands. What the frame holds is not copied; what must be made is made in room.
    const Operand& operand(const Expression& expression, Frame& frame, Operand& room);
    const Operand& text(const Expression& expression, Frame& frame, Operand& room);  // and no NULL
    Operand made(const Expression& expression, Frame& frame);
    Operand cut(const Expression& expression, Frame& frame);
    Integer number(const Expression& expression, Frame& frame, Operand& room);
    long long number(const Expression& expression, Frame& frame);
    Operand computed(const Expression& expression, Frame& frame);
    std::string_view keep(std::string text) { return kept_.emplace_front(std::move(text)); }

    // Conditions. A reason is made where one is wanted: it is reason_ then.
    static bool same(std::string_view a, std::string_view b, bool ignores_case);
    static std::size_t common(std::string_view text, const Condition& prefixes);  // bytes, of the best one
    bool holds(const Condition& condition, Frame& frame, Reason* reason);
    bool holds_at_all(const Condition& condition, Frame& frame, Reason* reason);
    bool text_holds(const Condition& condition, Frame& frame, Reason* reason);
    bool length_holds(const Condition& condition, Frame& frame, Reason* reason);
    bool driver_lists(const Condition& condition, Frame& frame, Reason* reason);
    bool number_holds(const Condition& condition, Frame& frame, Reason* reason);
    bool shape_holds(const Condition& condition, Frame& frame, Reason* reason);
    bool row_holds(const Condition& condition, Frame& frame, Reason* reason);
    bool equality_holds(const Condition& condition, Frame& frame, Reason* reason);
    bool others_hold(const Condition& condition, Frame& frame, Reason* reason);
    bool is_refused_by(const Condition& condition, Frame& frame, Reason* reason);
    void tell(Reason& reason, const Place& where, std::string_view id, Datum&& found, Datum&& allowed) const;
    void tell(Reason& reason, const Integer& judged, std::string_view id, Datum&& allowed) const;
    void work(std::uint64_t bytes);

    // Steps.
    Flow run(const std::vector<Step>& steps, Frame& frame);
    Flow run(const Step& step, Frame& frame);
    Flow run_list(const Step& step, Frame& frame);
    Flow decide(const Step& step, Frame& frame);
    void act(const Step& step, Frame& frame);
    void print(const std::vector<Line>& lines, Frame& frame);
    void write(const Write& write, Frame& frame);
    [[nodiscard]] Value value_of(const Operand& slot) const;

    const Check& called_;
    const Build& build_;
    Counts* counts_;
    Answer& answer_;
    Reason& reason_;                        // of the step that is being looked at, or of the one that decided
    std::vector<std::string_view> blocks_;  // of the argument that has several
    std::forward_list<std::string> kept_;
    bool is_printing_ = false;
    const std::vector<Line>* fault_lines_ = nullptr;  // of the group of a shape that is at fault
    int its_code_ = 0;                                // of the check that was last used
    bool hides_secrets_ = false;
    bool is_silent_ = false;  // what is printed and what is written are not asked for
    std::uint64_t bytes_left_ = std::numeric_limits<std::uint64_t>::max();
};

}  // namespace ostrel::rules

#endif

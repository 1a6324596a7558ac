// The state of one evaluation, which only the implementation of evaluate.h uses.
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

// Place identifies the argument, and the part of it, from which a string or a number was taken.
struct Place {
    std::optional<std::size_t> argument;
    std::optional<std::size_t> item;
    std::string_view item_text = {};
    std::optional<std::size_t> offset;  // where the string begins in the argument
    std::optional<Span> judged = {};    // the string, or the string from which the number was read
    std::string_view part = {};         // the name of the part
    std::size_t part_number = 0;        // counted from 1 if several parts have the same name
    std::string_view conversion = {};   // describes how the argument was converted, or is empty

    void call(std::string_view name, std::size_t number = 0)
    {
        part = name;
        part_number = number;
    }
};

// Operand is the value of an expression in a call.
struct Operand {
    enum class Kind { kNull, kText, kNumber, kSet, kBlocks, kNowhere };

    Kind kind = Kind::kNull;
    std::string_view text;
    long long number = 0;
    const Set* set = nullptr;
    Place place;
};

// Integer is an operand that is used as a number.
struct Integer {
    long long value = 0;
    std::string_view beyond_int;   // the number in the string, if it does not fit in an int
    bool is_read = false;          // the number was read from a string that is not exactly a number
    const Place* whole = nullptr;  // the place of the operand
    std::size_t begin = 0;         // the offset of beyond_int in the string

    [[nodiscard]] Place place() const
    {
        Place place = *whole;
        if (place.offset) *place.offset += begin;
        return place;
    }
};

// Frame is the state of one check during an evaluation: the evaluated check, or one that it calls.
struct Frame {
    const Check& check;
    std::vector<Operand> slots;
    Operand item = {};
    const Operand* list = nullptr;  // the list that contains the item
    std::string_view rest = {};     // what follows the separator after the item
    long long index = 0;
    bool is_last_item = false;
    const std::vector<std::string_view>* row = nullptr;  // the table row that was found last
    bool is_called = false;  // true for the evaluated check, whose writes are kept
    int code = 0;
    bool is_refusal = false;
};

// Ended is thrown if the contract does not define the result of a call.
struct Ended {
    Outside outside;
    Place place = {};
};

// place_piece reduces piece, a copy of whole, to the given part, and adjusts its place. The part has no name.
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

    // Operands. Values in the frame are not copied; all other values are created in room.
    const Operand& operand(const Expression& expression, Frame& frame, Operand& room);
    const Operand& text(const Expression& expression, Frame& frame, Operand& room);  // never NULL
    Operand made(const Expression& expression, Frame& frame);
    Operand cut(const Expression& expression, Frame& frame);
    Integer number(const Expression& expression, Frame& frame, Operand& room);
    long long number(const Expression& expression, Frame& frame);
    Operand computed(const Expression& expression, Frame& frame);
    std::string_view keep(std::string text) { return kept_.emplace_front(std::move(text)); }

    // Conditions. If reason is not NULL, the reason is stored there.
    static bool same(std::string_view a, std::string_view b, bool ignores_case);
    // common returns the length of the longest beginning that the string shares with one of the prefixes.
    static std::size_t common(std::string_view text, const Condition& prefixes);
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
    Reason& reason_;                        // for the current step, or for the one that determined the result
    std::vector<std::string_view> blocks_;  // the strings in the argument of kind kBlocks
    std::forward_list<std::string> kept_;
    bool is_printing_ = false;
    const std::vector<Line>* fault_lines_ = nullptr;  // the lines of the group that does not match
    int its_code_ = 0;                                // the code of the check that was called last
    bool hides_secrets_ = false;
    bool is_silent_ = false;  // the answer contains neither output nor the final contents of arguments
    std::uint64_t bytes_left_ = std::numeric_limits<std::uint64_t>::max();
};

}  // namespace ostrel::rules

#endif

// Evaluation: what a check does, by its description.
#ifndef OSTREL_RULES_EVALUATE_H
#define OSTREL_RULES_EVALUATE_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "rules/reason.h"
#include "rules/vocabulary.h"

namespace ostrel::rules {

// Value is NULL, a text, a number, or the texts of several blocks.
using Value = std::variant<std::nullptr_t, std::string, long long, std::vector<std::string>>;

// Outside says why the contract promises nothing of a call, so that it must not be made.
enum class Outside {
    kNo,
    kAssertion,     // a NULL is asserted against: the process ends
    kNull,          // a NULL is read
    kNeverReturns,  // the call does not come back
    kDriver,        // the wireless driver is asked, and the build does not say what it lists
    kTooMuchWork,   // of the evaluation, not of the call
};

struct Answer {
    int code = 0;
    bool is_refusal = false;  // a refusing step decided
    std::string out;
    std::string err;
    std::size_t flushed = 0;   // bytes of out
    std::vector<Value> after;  // what each argument that can be written to holds, in order
    Outside outside = Outside::kNo;
    bool beyond_int = false;      // a number beyond an int was read: other builds may answer otherwise
    Reason reason;                // of the step that refused, or why the call is outside
    std::vector<Reason> printed;  // of the steps that printed, or skipped, and went on

    [[nodiscard]] bool is_flushed() const { return flushed == out.size(); }
};

// Counts says how often each step of each check acted and how often each condition held and did not.
struct Counts {
    struct OfCheck {
        std::vector<std::uint64_t> steps;
        std::vector<std::uint64_t> held;
        std::vector<std::uint64_t> failed;
    };
    Counts();
    std::vector<OfCheck> checks;  // by Check::number
};

// evaluate takes a value for every argument, in order, those that are only written included.
Answer evaluate(const Check& check, std::span<const Value> values, const Build& build,
                Counts* counts = nullptr);

// kMostWork is for a reason, which must not take longer than the call that it is for.
inline constexpr std::uint64_t kMostWork = std::uint64_t{128} << 20U;

// evaluate_within gives up when it has looked at so many bytes, one that it looks at twice counted twice.
Answer evaluate_within(std::uint64_t bytes, const Check& check, std::span<const Value> values,
                       const Build& build);

// explain_within is evaluate_within without what is printed and what arguments hold afterwards. The answer may have
// been that of another call.
void explain_within(std::uint64_t bytes, const Check& check, std::span<const Value> values,
                    const Build& build, Answer& answer);

// evaluate_hiding is evaluate_within with lines in which the value of a secret argument is shown as its length.
Answer evaluate_hiding(std::uint64_t bytes, const Check& check, std::span<const Value> values,
                       const Build& build);

// room says how many bytes a buffer must have in a call. Nothing: those of the text in it, or what the room depends on
// is NULL.
std::optional<std::size_t> room(const Check& check, std::size_t argument, std::span<const Value> values);

}  // namespace ostrel::rules

#endif

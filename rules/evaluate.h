// Evaluation: the effects of a check, according to its description.
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

// Outside is the reason why the contract leaves the result of a call open. Such a call must not be made.
enum class Outside {
    kNo,
    kAssertion,     // an assertion fails for NULL: the process ends
    kNull,          // NULL is read
    kNeverReturns,  // the call does not return
    kDriver,        // the result depends on the wireless driver, whose list is unknown
    kTooMuchWork,   // for the evaluation, not for the call
};

struct Answer {
    int code = 0;
    bool is_refusal = false;  // a refusing step decided
    std::string out;
    std::string err;
    std::size_t flushed = 0;   // bytes of out
    std::vector<Value> after;  // the final contents of each argument that can be written to, in order
    Outside outside = Outside::kNo;
    bool beyond_int = false;      // a number beyond an int was read: the result may differ in other builds
    Reason reason;                // for the refusal, or for the call being outside
    std::vector<Reason> printed;  // of the steps that printed or skipped, and continued

    [[nodiscard]] bool is_flushed() const { return flushed == out.size(); }
};

// Counts records how often each step of each check acted, and how often each condition held and failed.
struct Counts {
    struct OfCheck {
        std::vector<std::uint64_t> steps;
        std::vector<std::uint64_t> held;
        std::vector<std::uint64_t> failed;
    };
    Counts();
    std::vector<OfCheck> checks;  // by Check::number
};

// evaluate takes a value for every argument, in order, including those that are only written.
Answer evaluate(const Check& check, std::span<const Value> values, const Build& build,
                Counts* counts = nullptr);

// kMostWork limits the work for a reason, which must not take longer than its call.
inline constexpr std::uint64_t kMostWork = std::uint64_t{128} << 20U;

// evaluate_within gives up after examining the given number of bytes; a byte that is examined twice counts twice.
Answer evaluate_within(std::uint64_t bytes, const Check& check, std::span<const Value> values,
                       const Build& build);

// explain_within is evaluate_within without output and final contents of arguments. The answer of another call may be
// reused.
void explain_within(std::uint64_t bytes, const Check& check, std::span<const Value> values,
                    const Build& build, Answer& answer);

// evaluate_hiding is evaluate_within with lines that show only the length of a secret argument.
Answer evaluate_hiding(std::uint64_t bytes, const Check& check, std::span<const Value> values,
                       const Build& build);

// room returns the size that a buffer must have in a call. It is nullopt if that is the size of its text, or if it
// depends on an argument that is NULL.
std::optional<std::size_t> room(const Check& check, std::size_t argument, std::span<const Value> values);

}  // namespace ostrel::rules

#endif

// Evaluation of a call according to the description of the check.
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

// Value is NULL, a string, a number, or the strings of several blocks.
using Value = std::variant<std::nullptr_t, std::string, long long, std::vector<std::string>>;

// Outside states why the contract does not define the result of a call. Such a call must not be made.
enum class Outside {
    kNo,
    kAssertion,     // an assertion fails for NULL, which ends the process
    kNull,          // NULL is read
    kNeverReturns,  // the call does not return
    kDriver,        // the result depends on the wireless driver, whose channel list is unknown
    kTooMuchWork,   // the evaluation would take too long
};

struct Answer {
    int code = 0;
    bool is_refusal = false;  // a refusing step determined the code
    std::string out;
    std::string err;
    std::size_t flushed = 0;   // the number of bytes of out that were flushed
    std::vector<Value> after;  // the final contents of each argument that can be written to, in order
    Outside outside = Outside::kNo;
    bool beyond_int = false;      // a number that was read does not fit in an int, so other builds may differ
    Reason reason;                // the reason for the refusal, or for the value of outside
    std::vector<Reason> printed;  // the reasons of steps that printed a line or skipped an item

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
    std::vector<OfCheck> checks;  // indexed by Check::number
};

// evaluate expects a value for every argument, in order, including those that are only written.
Answer evaluate(const Check& check, std::span<const Value> values, const Build& build,
                Counts* counts = nullptr);

// kMostWork limits the bytes examined to find a reason, which must not take longer than the call.
inline constexpr std::uint64_t kMostWork = std::uint64_t{128} << 20U;

// evaluate_within stops after examining this many bytes. A byte that is examined twice counts twice.
Answer evaluate_within(std::uint64_t bytes, const Check& check, std::span<const Value> values,
                       const Build& build);

// explain_within does the same as evaluate_within, but the answer contains neither output nor the final
// contents of arguments. An answer from an earlier call may be reused.
void explain_within(std::uint64_t bytes, const Check& check, std::span<const Value> values,
                    const Build& build, Answer& answer);

// evaluate_hiding does the same as evaluate_within, but lines show only the length of a secret argument.
Answer evaluate_hiding(std::uint64_t bytes, const Check& check, std::span<const Value> values,
                       const Build& build);

// room returns the size that a buffer must have in a call. It returns nullopt if the buffer needs only the
// size of its string, or if the size depends on an argument that is NULL.
std::optional<std::size_t> room(const Check& check, std::size_t argument, std::span<const Value> values);

}  // namespace ostrel::rules

#endif

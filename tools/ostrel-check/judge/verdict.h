// Verdict: the outcome of a case.
#ifndef OSTREL_TOOLS_JUDGE_VERDICT_H
#define OSTREL_TOOLS_JUDGE_VERDICT_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "calling/caller.h"
#include "calling/capture.h"
#include "catalogue/catalogue.h"
#include "read/record.h"
#include "rules/reason.h"

namespace ostrel::tool {

enum class Verdict {
    kAccepted,
    kRefused,
    kAnswer,     // a number that is not a verdict
    kMalformed,  // no case
    kEnded,      // the check ended its process
    kNoReturn,
    kNoDriver,  // the check refused because the wireless driver returned no list of channels
};

inline constexpr std::size_t kVerdicts = 7;

// name_of returns the verdict in a word or two, json_name in one.
std::string_view name_of(Verdict verdict);
std::string_view json_name(Verdict verdict);

// has_code returns whether the number that the check returned is meaningful, and is_code whether it is a result code.
bool has_code(Verdict verdict);
bool is_code(Verdict verdict);

// The exit codes. The highest one wins.
inline constexpr int kExitAccepted = 0;
inline constexpr int kExitRefused = 1;
inline constexpr int kExitUsage = 2;
inline constexpr int kExitEnded = 3;

int exit_code(Verdict verdict);

// Tally counts the cases of each verdict.
struct Tally {
    std::array<std::uint64_t, kVerdicts> counts{};

    void add(Verdict verdict, std::uint64_t count) { counts[static_cast<std::size_t>(verdict)] += count; }
    [[nodiscard]] std::uint64_t of(Verdict verdict) const
    {
        return counts[static_cast<std::size_t>(verdict)];
    }
    [[nodiscard]] int exit_code() const;
    [[nodiscard]] std::uint64_t sum() const;
};

// Why is the reason for a refusal, or for a call that did not return.
struct Why {
    std::string text;  // in a sentence; empty: the reason is not known
    rules::Reason reason;
    std::vector<rules::Reason> remarks;  // reasons of the steps that printed and did not decide, in order
};

// Result is a case and its outcome. It does not own the memory of its views.
struct Result {
    Verdict verdict = Verdict::kMalformed;
    const catalogue::Function* function = nullptr;  // NULL: malformed
    const std::vector<catalogue::Value>* values = nullptr;
    const Record* record = nullptr;  // NULL: none
    int code = 0;
    std::string problem;  // describes a malformed case, or a call that ended or did not return
    calling::PrintedView printed;
    std::vector<calling::Written> after;
    bool is_tried = true;  // the check was called
    Why why = {};

    // clear prepares for the next case.
    void clear();
};

// judge sets the verdict on a call that returned.
void judge(Result& result, int code);

// describe returns the verdict as a line: "refused: 802, too long (has 34 bytes; at most 32 are allowed)".
std::string describe(const Result& result);

}  // namespace ostrel::tool

#endif

// The outcome of a case.
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
    kAnswer,     // the check returned a number that is not a verdict
    kMalformed,  // the record does not describe a case
    kEnded,      // the check ended its process
    kNoReturn,
    kNoDriver,  // not judged, because the wireless driver returned no channel list
};

inline constexpr std::size_t kVerdicts = 7;

// name_of returns the verdict as one or two words, and json_name as a single word.
std::string_view name_of(Verdict verdict);
std::string_view json_name(Verdict verdict);

// has_code returns whether the number that the check returned is meaningful for the verdict. is_code returns
// whether that number is a result code.
bool has_code(Verdict verdict);
bool is_code(Verdict verdict);

// Exit codes. If several apply, the highest one is used.
inline constexpr int kExitAccepted = 0;
inline constexpr int kExitRefused = 1;
inline constexpr int kExitUsage = 2;
inline constexpr int kExitEnded = 3;

int exit_code(Verdict verdict);

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

struct Why {
    std::string text;  // as a sentence; empty if the reason is not known
    rules::Reason reason;
    std::vector<rules::Reason> remarks;  // reasons from steps that printed but did not decide, in order
};

// Result is a case and its outcome. It does not own the memory that its views refer to.
struct Result {
    Verdict verdict = Verdict::kMalformed;
    const catalogue::Function* function = nullptr;  // NULL if no check was found
    const std::vector<catalogue::Value>* values = nullptr;
    const Record* record = nullptr;  // NULL if the case does not come from a record
    int code = 0;
    std::string problem;  // describes a malformed case, or a call that ended its process or did not return
    calling::PrintedView printed;
    std::vector<calling::Written> after;
    bool is_tried = true;  // the check was called
    Why why = {};

    void clear();
};

// judge sets the verdict on a call that returned.
void judge(Result& result, int code);

// describe returns a line such as "refused: 802, too long (has 34 bytes; at most 32 are allowed)".
std::string describe(const Result& result);

}  // namespace ostrel::tool

#endif

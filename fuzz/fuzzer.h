// Fuzzer makes the calls that inputs of one family encode. It compares the results with the description,
// follows the reason for a refusal as advice, and compares the bytes of accepted values with docs/hazards.md.
#ifndef OSTREL_FUZZ_FUZZER_H
#define OSTREL_FUZZ_FUZZER_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catalogue.h"
#include "oracle/advice.h"
#include "oracle/call_comparer.h"
#include "oracle/contents.h"
#include "rules/evaluate.h"

namespace ostrel::fuzz {

enum class RunResult {
    kAgreed,
    kOutside,  // not called, because the contract does not cover the call
    kDiffered,
};

class Fuzzer {
 public:
    // This constructor throws std::invalid_argument for an unknown family.
    explicit Fuzzer(std::string_view family);

    // run decodes an input, makes its call, and follows the reason if the call is refused. If build has no
    // channel list, it skips calls that would query the wireless driver. The steps of the call are added to
    // counts, and the steps of the calls that result from following the reason are added to further.
    RunResult run(std::string_view input, const rules::Build& build, rules::Counts* counts = nullptr,
                  rules::Counts* further = nullptr);

    // fault describes the last input whose results differed. It returns the expected row, as in vectors/, and
    // the actual one, or the fault in the reason.
    [[nodiscard]] const std::string& fault() const { return fault_; }

    // encode returns nothing if the function is not in this family or a string is too long.
    [[nodiscard]] std::optional<std::string> encode(const catalogue::Function& function,
                                                    const std::vector<rules::Value>& values) const;

    // decodes returns whether the input encodes exactly this call.
    [[nodiscard]] bool decodes(std::string_view input, const catalogue::Function& function,
                               const std::vector<rules::Value>& values);

    [[nodiscard]] const catalogue::Function& function(std::string_view input) const;

    [[nodiscard]] const oracle::Follower& follower() const { return follower_; }
    [[nodiscard]] std::size_t calls() const { return comparer_.calls(); }

    // refused counts the inputs that were refused. A refusal without an id or a sentence is a difference.
    [[nodiscard]] std::size_t refused() const { return refused_; }

 private:
    struct Callee {
        const catalogue::Function* function;
        oracle::Contents contents;
    };

    [[nodiscard]] const Callee& callee(std::string_view input) const;
    const Callee& decode(std::string_view input);

    std::vector<Callee> callees_;
    std::vector<rules::Value> values_;
    oracle::CallComparer comparer_;
    oracle::Follower follower_;
    std::string fault_;
    std::size_t refused_ = 0;
};

}  // namespace ostrel::fuzz

#endif

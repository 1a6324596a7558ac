// Judge calls the library with what an input says, compares all that the call leaves behind with what the description
// says, follows the reason of a refusal as advice, and holds what is accepted against docs/hazards.md.
#ifndef OSTREL_FUZZ_JUDGE_H
#define OSTREL_FUZZ_JUDGE_H

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catalogue.h"
#include "oracle/advice.h"
#include "oracle/contents.h"
#include "oracle/trial.h"
#include "rules/evaluate.h"

namespace ostrel::fuzz {

// Target is one fuzzer: some families of the catalogue.
struct Target {
    std::string_view name;
    std::array<std::string_view, 3> families;  // of the catalogue; those not needed are empty

    [[nodiscard]] bool has(const catalogue::Function& function) const;
};

// targets lists all; every family stands in one of them.
std::span<const Target> targets();

// find_target gives the target of that name, or NULL.
const Target* find_target(std::string_view name);

// Verdict is what comes of one input.
enum class Verdict {
    kAgreed,
    kOutside,  // nothing was called, as the contract says nothing of such a call
    kDiffered,
};

class Judge {
 public:
    explicit Judge(const Target& target);

    // run decodes an input, makes its call, and follows what is said of it where it is refused. Where the build does
    // not say what the wireless driver lists, the driver is not asked.
    // counts is told of that call, further of those that the reason was followed to.
    Verdict run(std::string_view input, const rules::Build& build, rules::Counts* counts = nullptr,
                rules::Counts* further = nullptr);

    // fault tells of the last input that differed: the row that the description would have, as in vectors/, and what
    // the library did; or what is wrong with the reason.
    [[nodiscard]] const std::string& fault() const { return fault_; }

    // encode makes the input for a call. Nothing: the function is another target's, or a text is too long.
    [[nodiscard]] std::optional<std::string> encode(const catalogue::Function& function,
                                                    const std::vector<rules::Value>& values) const;

    // decodes tells whether the input stands for just that call.
    [[nodiscard]] bool decodes(std::string_view input, const catalogue::Function& function,
                               const std::vector<rules::Value>& values);

    // function is the one that an input calls.
    [[nodiscard]] const catalogue::Function& function(std::string_view input) const;

    [[nodiscard]] const oracle::Follower& follower() const { return follower_; }
    [[nodiscard]] std::size_t calls() const { return trial_.calls(); }

    // refused is how many inputs were calls that are refused. Each had an id and a sentence, or differed.
    [[nodiscard]] std::size_t refused() const { return refused_; }

 private:
    struct Entry {
        const catalogue::Function* function;
        const rules::Check* check;
        oracle::Contents contents;
    };

    [[nodiscard]] const Entry& entry(std::string_view input) const;
    const Entry& decode(std::string_view input);

    std::vector<Entry> entries_;
    std::vector<rules::Value> values_;
    oracle::Trial trial_;
    oracle::Follower follower_;
    std::string fault_;
    std::size_t refused_ = 0;
};

}  // namespace ostrel::fuzz

#endif

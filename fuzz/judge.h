// Judge calls the library with what an input says and compares all that the call leaves behind with what the
// model says.
#ifndef OSTREL_FUZZ_JUDGE_H
#define OSTREL_FUZZ_JUDGE_H

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/caller.h"
#include "catalogue/capture.h"
#include "catalogue/catalogue.h"
#include "fuzz/model/model.h"

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

    // run decodes an input and makes its call, once with each edge of the arguments at an unreadable page.
    Verdict run(std::string_view input);

    // difference tells of the last input that differed: the row that the model would have, as in vectors/, and
    // what the library did.
    [[nodiscard]] const std::string& difference() const { return difference_; }

    // encode makes the input for a call. Nothing: the function is another target's, or a text is too long.
    [[nodiscard]] std::optional<std::string> encode(const catalogue::Function& function,
                                                    const std::vector<catalogue::Value>& values) const;

    // decodes tells whether the input stands for just that call.
    [[nodiscard]] bool decodes(std::string_view input, const catalogue::Function& function,
                               const std::vector<catalogue::Value>& values);

 private:
    struct Entry {
        const catalogue::Function* function;
        model::Model model;
        bool writes;  // into its arguments
    };

    const Entry& decode(std::string_view input);
    bool agrees(const Entry& entry, const model::Answer& expected, catalogue::Caller& caller);

    std::vector<Entry> entries_;
    std::vector<catalogue::Value> values_;
    catalogue::Caller at_end_{catalogue::Edge::kEnd};
    catalogue::Caller at_begin_{catalogue::Edge::kBegin};
    catalogue::Capture capture_;
    std::string difference_;
};

}  // namespace ostrel::fuzz

#endif

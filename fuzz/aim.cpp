#include "fuzz/aim.h"

#include <utility>

namespace ostrel::fuzz {

namespace {

constexpr std::size_t kMostInputs = 16;  // kept for each step and condition

}  // namespace

Aim::Aim(const rules::Check& check, std::vector<std::string> seeds, std::uint64_t seed)
    : check_(check),
      seeds_(seeds),
      mutator_(std::move(seeds), seed),
      mets_(check.step_count + check.condition_count)
{
}

// next returns the seeds first. After them, half of the inputs are made from the seeds, and half from inputs
// that met the rarest step or condition.
const std::string& Aim::next()
{
    if (next_seed_ < seeds_.size()) return seeds_[next_seed_++];
    const Met* least = ++turn_ % 2 == 0 ? least_met() : nullptr;
    return least == nullptr ? mutator_.next()
                            : mutator_.next(least->inputs[turn_ / 2 % least->inputs.size()]);
}

void Aim::learn(const std::string& input, const rules::Counts& counts)
{
    const rules::Counts::OfCheck& of = counts.checks[check_.number];
    for (std::size_t i = 0; i < of.steps.size(); ++i) learn(input, mets_[i], of.steps[i]);
    for (std::size_t i = 0; i < of.held.size(); ++i) learn(input, mets_[of.steps.size() + i], of.held[i]);
}

void Aim::learn(const std::string& input, Met& met, std::uint64_t times) const
{
    if (met.times == times) return;
    met.times = times;
    if (met.inputs.size() < kMostInputs) {
        met.inputs.push_back(input);
    } else if (turn_ % 64 == 0) {
        met.inputs[turn_ / 64 % kMostInputs] = input;
    }
}

const Aim::Met* Aim::least_met() const
{
    const Met* least = nullptr;
    for (const Met& met : mets_) {
        if (!met.inputs.empty() && (least == nullptr || met.times < least->times)) least = &met;
    }
    return least;
}

}  // namespace ostrel::fuzz

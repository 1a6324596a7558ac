// Follows each reason as a user who reads its sentence would. The same reason must not occur again, and a
// call one step short of the advice, for example with a number one above the limit, must be refused for it.
// This finds false reasons even in a description that agrees with the library in every result code.
#ifndef OSTREL_ORACLE_ADVICE_H
#define OSTREL_ORACLE_ADVICE_H

#include <cstddef>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "oracle/refusal.h"
#include "rules/evaluate.h"

namespace ostrel::oracle {

// Advice lists the calls to make after a refused call.
struct Advice {
    std::vector<Values> followed;  // the reason must not occur again
    std::vector<Values> less;      // one step short: refused again, for this reason or an earlier one
    std::vector<Values> attempts;  // each is either one step short or accepted
};

// Way defines how to follow the reasons with an id. advise is NULL if there are none or none can be followed.
struct Way {
    std::string_view id;
    void (*advise)(const Refusal& refusal, Advice& advice);
    std::string_view instead = {};  // what is tested instead of calls one step short, or why no call is made
};

// ways returns an entry for each id, sorted by id.
std::span<const Way> ways();

class Follower {
 public:
    // follow makes the calls that the reason for a refusal suggests. It passes each call and its answer to
    // visit, and counts the executed steps. It returns a description of the first fault, or an empty string.
    // If a call shows the fault, fault_call then returns this call.
    std::string follow(const rules::Check& check, const Values& values, const rules::Build& build,
                       const rules::Answer& answer,
                       const std::function<void(const Values&, const rules::Answer&)>& visit,
                       rules::Counts* counts = nullptr);

    // unproven lists each check and id whose reason never recurred, although many calls were one step short.
    [[nodiscard]] std::vector<std::string> unproven() const;

    [[nodiscard]] const Values& fault_call() const { return fault_call_; }

 private:
    // Less counts the calls that were one step short.
    struct Less {
        std::size_t same = 0;   // refused for the same reason
        std::size_t other = 0;  // refused for another reason, or accepted
    };

    std::size_t turn_ = 0;
    Values fault_call_;
    std::map<std::pair<std::string_view, std::string_view>, Less> less_;  // by check and id
};

}  // namespace ostrel::oracle

#endif

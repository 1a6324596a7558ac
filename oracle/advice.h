// Advice: follows each reason as a user would who reads its sentence. The same reason must not occur again then, and
// must occur with one step less. A description that agrees with the library in every code may still state a false
// reason.
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

// Advice lists the calls that a refused call leads to.
struct Advice {
    std::vector<Values> followed;  // the reason must not occur again
    std::vector<Values> less;      // one step less: the same reason, or another one that comes first
    std::vector<Values> attempts;  // each may be one step less, or be accepted
};

// Way defines how to follow the reasons of an id. An id that no check has, or that cannot be followed, has no
// function.
struct Way {
    std::string_view id;
    void (*advise)(const Refusal& refusal, Advice& advice);
    std::string_view instead = {};  // what is checked in place of one step less, or of everything
};

// ways lists all ids, in their order.
std::span<const Way> ways();

class Follower {
 public:
    // follow follows the reason of a refused call. It passes each further call and its answer to visit, and counts
    // their steps. It returns a description of the fault, or an empty text. fault_call is the call that showed it.
    std::string follow(const rules::Check& check, const Values& values, const rules::Build& build,
                       const rules::Answer& answer,
                       const std::function<void(const Values&, const rules::Answer&)>& visit,
                       rules::Counts* counts = nullptr);

    // unproven lists the checks and ids whose reason did not occur in many calls with one step less.
    [[nodiscard]] std::vector<std::string> unproven() const;

    [[nodiscard]] const Values& fault_call() const { return fault_call_; }

 private:
    // Less counts the calls with one step less.
    struct Less {
        std::size_t same = 0;   // with the same reason
        std::size_t other = 0;  // with another one, or none
    };

    std::size_t turn_ = 0;
    Values fault_call_;
    std::map<std::pair<std::string_view, std::string_view>, Less> less_;  // by check and id
};

}  // namespace ostrel::oracle

#endif

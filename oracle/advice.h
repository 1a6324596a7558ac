// Advice: each reason is followed, as a user would who reads its sentence. The same reason must not come back there, and
// one step less must bring it back. What agrees with the library in every code may still say something false of why.
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

// Advice is the calls that a refused one becomes.
struct Advice {
    std::vector<Values> followed;  // the reason must not come back
    std::vector<Values> less;      // one step less: it comes back, or another one is in its way
    std::vector<Values> attempts;  // each may be one step less, or be accepted
};

// Way is how the reasons of an id are followed. One that no check has, or that nobody can follow, has no function.
struct Way {
    std::string_view id;
    void (*advise)(const Refusal& refusal, Advice& advice);
    std::string_view instead = {};  // what is checked in place of one step less, or of all
};

// ways lists all ids, in their order.
std::span<const Way> ways();

// Tally is what came of a check's reasons of one id.
struct Tally {
    std::size_t followed = 0;
    std::size_t came_back = 0;  // with one step less
    std::size_t other = 0;      // another reason was in the way
};

class Follower {
 public:
    // follow follows the reason of a call that was refused. counts is told of the further calls; visit sees each further call and its answer. The text says
    // what is wrong; nothing where all is well. fault_call is the call that showed it.
    std::string follow(const rules::Check& check, const Values& values, const rules::Build& build,
                       const rules::Answer& answer,
                       const std::function<void(const Values&, const rules::Answer&)>& visit,
                       rules::Counts* counts = nullptr);

    // unproven lists the checks and ids that were followed, and that no step less of many has brought back.
    [[nodiscard]] std::vector<std::string> unproven() const;

    [[nodiscard]] const Values& fault_call() const { return fault_call_; }

 private:
    std::size_t turn_ = 0;
    Values fault_call_;
    std::map<std::pair<std::string_view, std::string_view>, Tally> tallies_;
};

}  // namespace ostrel::oracle

#endif

#include "fuzz/judge.h"

#include <algorithm>
#include <stdexcept>

#include "oracle/input.h"
#include "rules/rules.h"
#include "rules/sentences.h"

namespace ostrel::fuzz {

using catalogue::Function;
using rules::Answer;
using rules::Value;

namespace {

constexpr Target kTargets[] = {
    {"strings", {"strings"}},
    {"addresses", {"addresses", "subnets"}},
    {"hosts", {"hosts", "names"}},
    {"accounts", {"accounts"}},
    {"dates", {"date-time"}},
    {"parameters", {"parameters"}},
    {"wireless", {"wireless", "wlan"}},
    {"lan", {"lan", "ppp"}},
    {"ports", {"port-mapping", "forwarding"}},
    {"management", {"management", "guest-access", "hnap"}},
    {"time", {"time"}},
    {"branding", {"branding"}},
};

// unsaid tells what a reason lacks; nothing where a user is told why.
std::string unsaid(const rules::Reason& reason)
{
    if (reason.id.empty()) return "no id";
    const std::string said = rules::sentence(reason);
    if (said.empty()) return "no sentence";
    return said.find("any other value") == std::string::npos ? "" : said;
}

}  // namespace

bool Target::has(const Function& function) const
{
    return std::ranges::find(families, function.family) != families.end();
}

std::span<const Target> targets() { return kTargets; }

const Target* find_target(std::string_view name)
{
    const auto* found = std::ranges::find(kTargets, name, &Target::name);
    return found == std::end(kTargets) ? nullptr : found;
}

Judge::Judge(const Target& target)
{
    for (const Function& function : catalogue::functions()) {
        if (!target.has(function)) continue;
        const rules::Check* check = rules::find(function.name);
        if (check == nullptr) throw std::logic_error("no description of " + std::string(function.name));
        entries_.push_back({&function, check, oracle::Contents(function)});
    }
}

const Judge::Entry& Judge::entry(std::string_view input) const
{
    const std::size_t choice = input.empty() ? 0 : static_cast<unsigned char>(input.front());
    return entries_[choice % entries_.size()];
}

const Function& Judge::function(std::string_view input) const { return *entry(input).function; }

const Judge::Entry& Judge::decode(std::string_view input)
{
    const Entry& chosen = entry(input);
    oracle::decode_arguments(*chosen.function, input.substr(std::min<std::size_t>(1, input.size())), values_);
    return chosen;
}

std::optional<std::string> Judge::encode(const Function& function, const std::vector<Value>& values) const
{
    const auto found = std::ranges::find(entries_, &function, &Entry::function);
    if (found == entries_.end()) return std::nullopt;
    std::optional<std::string> fields = oracle::encode_arguments(function, values);
    if (fields) fields->insert(fields->begin(), static_cast<char>(found - entries_.begin()));
    return fields;
}

bool Judge::decodes(std::string_view input, const Function& function, const std::vector<Value>& values)
{
    const Entry& entry = decode(input);
    if (entry.function != &function) return false;
    return catalogue::completed(function, values) == values_;
}

Verdict Judge::run(std::string_view input, const rules::Build& build, rules::Counts* counts,
                   rules::Counts* further)
{
    const Entry& entry = decode(input);
    const Answer answer = rules::evaluate(*entry.check, values_, build, counts);
    if (answer.outside != rules::Outside::kNo) return Verdict::kOutside;
    fault_.clear();
    const auto compare = [&](const std::vector<Value>& values, const Answer& expected) {
        if (!trial_.agrees(*entry.function, values, expected)) fault_ = trial_.difference();
    };
    compare(values_, answer);
    if (entry.check->is_verdict && answer.code == 0 && fault_.empty()) {
        const std::string hazard = entry.contents.fault(values_, answer.after);
        if (!hazard.empty())
            fault_ =
                "hazard:  " + hazard + "\naccepted: " + oracle::shown_call(*entry.function, values_) + "\n";
    }
    if (answer.is_refusal) ++refused_;
    if (answer.is_refusal && fault_.empty()) {
        std::string wrong = unsaid(answer.reason);
        if (wrong.empty()) wrong = follower_.follow(*entry.check, values_, build, answer, compare, further);
        if (!wrong.empty() && fault_.empty()) {
            fault_ = "advice:  " + wrong + "\nrefused: " + oracle::shown_call(*entry.function, values_) +
                     "\nthen:    " + oracle::shown_call(*entry.function, follower_.fault_call()) + "\n";
        }
    }
    return fault_.empty() ? Verdict::kAgreed : Verdict::kDiffered;
}

}  // namespace ostrel::fuzz

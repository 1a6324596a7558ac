#include "fuzz/fuzzer.h"

#include <algorithm>
#include <stdexcept>

#include "oracle/input.h"
#include "rules/sentences.h"

namespace ostrel::fuzz {

using catalogue::Function;
using rules::Answer;
using rules::Value;

namespace {

std::string missing(const rules::Reason& reason)
{
    if (reason.id.empty()) return "no id";
    const std::string said = rules::sentence(reason);
    if (said.empty()) return "no sentence";
    return said.find("any other value") == std::string::npos ? "" : said;
}

}  // namespace

Fuzzer::Fuzzer(std::string_view family)
{
    for (const Function& function : catalogue::functions()) {
        if (function.family == family) callees_.push_back({&function, oracle::Contents(function)});
    }
    if (callees_.empty()) throw std::invalid_argument("no family \"" + std::string(family) + "\"");
}

const Fuzzer::Callee& Fuzzer::callee(std::string_view input) const
{
    const std::size_t choice = input.empty() ? 0 : static_cast<unsigned char>(input.front());
    return callees_[choice % callees_.size()];
}

const Function& Fuzzer::function(std::string_view input) const { return *callee(input).function; }

const Fuzzer::Callee& Fuzzer::decode(std::string_view input)
{
    const Callee& chosen = callee(input);
    oracle::decode_arguments(*chosen.function, input.substr(std::min<std::size_t>(1, input.size())), values_);
    return chosen;
}

std::optional<std::string> Fuzzer::encode(const Function& function, const std::vector<Value>& values) const
{
    const auto found = std::ranges::find(callees_, &function, &Callee::function);
    if (found == callees_.end()) return std::nullopt;
    std::optional<std::string> fields = oracle::encode_arguments(function, values);
    if (fields) fields->insert(fields->begin(), static_cast<char>(found - callees_.begin()));
    return fields;
}

bool Fuzzer::decodes(std::string_view input, const Function& function, const std::vector<Value>& values)
{
    const Callee& callee = decode(input);
    if (callee.function != &function) return false;
    return catalogue::completed(function, values) == values_;
}

RunResult Fuzzer::run(std::string_view input, const rules::Build& build, rules::Counts* counts,
                      rules::Counts* further)
{
    const Callee& callee = decode(input);
    const Answer answer = rules::evaluate(*callee.function->check, values_, build, counts);
    if (answer.outside != rules::Outside::kNo) return RunResult::kOutside;
    fault_.clear();
    const auto compare = [&](const std::vector<Value>& values, const Answer& expected) {
        if (!comparer_.agrees(*callee.function, values, expected)) fault_ = comparer_.difference();
    };
    compare(values_, answer);
    if (callee.function->check->is_verdict && answer.code == 0 && fault_.empty()) {
        const std::string hazard = callee.contents.fault(values_, answer.after);
        if (!hazard.empty())
            fault_ =
                "hazard:  " + hazard + "\naccepted: " + oracle::shown_call(*callee.function, values_) + "\n";
    }
    if (answer.is_refusal) ++refused_;
    if (answer.is_refusal && fault_.empty()) {
        std::string wrong = missing(answer.reason);
        if (wrong.empty())
            wrong = follower_.follow(*callee.function->check, values_, build, answer, compare, further);
        if (!wrong.empty() && fault_.empty()) {
            fault_ = "advice:  " + wrong + "\nrefused: " + oracle::shown_call(*callee.function, values_) +
                     "\nthen:    " + oracle::shown_call(*callee.function, follower_.fault_call()) + "\n";
        }
    }
    return fault_.empty() ? RunResult::kAgreed : RunResult::kDiffered;
}

}  // namespace ostrel::fuzz

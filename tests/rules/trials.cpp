#include "tests/rules/trials.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>

#include "fuzz/input.h"
#include "fuzz/mutator.h"
#include "rules/sentences.h"
#include "tests/rules/driver.h"
#include "tests/rules/harvest.h"

namespace ostrel::tests {

using catalogue::Capture;
using catalogue::Function;
using catalogue::Kind;
using catalogue::Value;
using rules::Answer;
using rules::Build;
using rules::Check;

namespace {

std::string chosen(const char* variable, const char* built)
{
    const char* other = std::getenv(variable);
    return other == nullptr ? built : other;
}

std::string shown_call(const Function& function, const std::vector<Value>& values)
{
    std::string result(function.name);
    for (const Value& value : values) {
        result += " ";
        if (const auto* text = std::get_if<std::string>(&value)) result += shown(*text);
        if (const auto* number = std::get_if<long long>(&value)) result += std::to_string(*number);
        if (std::holds_alternative<std::nullptr_t>(value)) result += "NULL";
        if (const auto* texts = std::get_if<std::vector<std::string>>(&value)) {
            for (const std::string& text : *texts) result += shown(text) + " ";
        }
    }
    return result;
}

const std::vector<Row>& rows()
{
    static const std::vector<Row> all = read_cases();
    return all;
}

}  // namespace

Build::Atoi build_atoi(Atoi atoi)
{
    switch (atoi) {
        case Atoi::kLong64:
            return Build::Atoi::kLong64;
        case Atoi::kLong32:
            return Build::Atoi::kLong32;
        case Atoi::kWrapping:
            return Build::Atoi::kWrapping;
    }
    throw std::logic_error("an atoi without a name");
}

const Build& library_build()
{
    static const std::string model = chosen("OSTREL_TEST_MODEL", OSTREL_MODEL);
    static const std::string account_realm = chosen("OSTREL_TEST_ACCOUNT_REALM", OSTREL_ACCOUNT_REALM);
    static const std::string setup_realm = chosen("OSTREL_TEST_SETUP_REALM", OSTREL_SETUP_REALM);
    static const Build build = {model, account_realm, setup_realm, build_atoi(atoi_at_hand()), std::nullopt};
    return build;
}

const std::vector<Build>& trial_builds()
{
    static const std::vector<Build> all = [] {
        std::vector<Build> result;
        for (const std::vector<int>& channels :
             std::vector<std::vector<int>>{{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14},
                                           {},
                                           {1, 6, 11},
                                           {0, 9, 14, -3, 36},
                                           {36, 14},
                                           {1, 2, 3, 4, 5, 7, 8, 9, 10, 11, 12, 13, 14, 36, 6},
                                           {1, 2, 3, 4, 5, 7, 8, 9, 10, 11, 12, 13, 14, 36, 40, 6}}) {
            result.push_back(library_build());
            result.back().channels = channels;
        }
        return result;
    }();
    return all;
}

Outcome outcome_of(const Answer& answer)
{
    Outcome outcome{answer.code, answer.out, answer.err, answer.is_flushed(), answer.after};
    for (Value& value : outcome.after) {
        if (value == Value(catalogue::kUnwritten)) value = nullptr;
    }
    return outcome;
}

std::string reason_fault(const Answer& answer)
{
    if (!answer.is_refusal) return "";
    std::string sentence = rules::sentence(answer.reason);
    if (sentence.empty()) return "no sentence for \"" + std::string(answer.reason.id) + "\"";
    for (const char* place : {"{found", "{allowed", "{byte", "{position", "{item", "{read_as", "{limit"}) {
        if (sentence.find(place) != std::string::npos) return sentence;
    }
    return "";
}

Trials::Trials(const Function& function, const Check& check)
    : function_(function), check_(check), contents_(function)
{
    const auto texts = harvest(check, library_build());
    for (const Row& row : rows()) {
        if (row.given.function != &function) continue;
        const std::vector<Value> values = catalogue::completed(function, row.given.values);
        add(values);
        if (inputs_.size() < 20) add_others(values, texts);
    }
    if (inputs_.empty()) inputs_.emplace_back(" ");
}

void Trials::run(std::size_t changed, Capture& capture)
{
    fuzz::Mutator mutator(inputs_, 1);
    for (const std::string& input : inputs_) {
        if (!agrees(input, capture)) return;
    }
    for (std::size_t i = 0; i < changed; ++i) {
        if (!agrees(mutator.next(), capture)) return;
    }
}

void Trials::add(const std::vector<Value>& values)
{
    if (const auto fields = fuzz::encode_arguments(function_, values)) inputs_.push_back(" " + *fields);
}

void Trials::add_others(const std::vector<Value>& values, const std::set<std::string>& texts)
{
    for (std::size_t i = 0; i < values.size(); ++i) {
        for (const std::string& text : texts) {
            std::vector<Value> others = values;
            if (std::holds_alternative<std::string>(others[i])) others[i] = text;
            if (auto* several = std::get_if<std::vector<std::string>>(&others[i])) {
                if (text.size() >= function_.arguments[i].block_size) continue;
                several->at(inputs_.size() % several->size()) = text;
            }
            add(others);
        }
    }
}

bool Trials::agrees(std::string_view input, Capture& capture)
{
    fuzz::decode_arguments(function_, input.substr(1), values_);
    const Build& build = trial_builds()[inputs_run_++ % trial_builds().size()];
    const Answer answer = rules::evaluate(check_, values_, build, &counts);
    if (answer.outside != rules::Outside::kNo) return true;
    caller_.load(function_, values_);
    const auto& channels = build.channels.value();
    const Driver driver(channels);
    const Outcome actual = actual_outcome(caller_, capture);
    ++calls;
    refusals += answer.is_refusal ? 1 : 0;
    std::string fault = driver.has_left_its_list() ? "the list of channels is left" : reason_fault(answer);
    const bool is_accepted = check_.is_verdict && answer.code == 0;
    if (is_accepted && fault.empty()) fault = contents_.fault(values_, answer.after);
    if (actual == outcome_of(answer) && fault.empty()) return true;
    difference = shown_call(function_, values_) + "\nchannels " + testing::PrintToString(channels) +
                 "\nlibrary" + testing::PrintToString(actual) + "\ndescription" +
                 testing::PrintToString(outcome_of(answer)) + "\n" + fault;
    return false;
}

}  // namespace ostrel::tests

// Tests that every refusing condition has a row with a reason.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "oracle/library.h"
#include "rules/evaluate.h"
#include "rules/rules.h"
#include "tests/rules/rows.h"

namespace ostrel::tests {

namespace {

using rules::Check;
using rules::Condition;
using rules::Counts;
using rules::Step;

std::vector<const Step*> refusals(const std::vector<Step>& steps)
{
    std::vector<const Step*> result;
    for (const Step& step : steps) {
        if (step.kind == Step::Kind::kRefuse) result.push_back(&step);
        for (const std::vector<Step>* further : {&step.steps, &step.otherwise}) {
            const std::vector<const Step*> inner = refusals(*further);
            result.insert(result.end(), inner.begin(), inner.end());
        }
    }
    return result;
}

const Check* target_of(const Step& refusal)
{
    return refusal.condition.kind == Condition::Kind::kRefusedBy ? refusal.condition.target : nullptr;
}

// A path names the refusing steps that lead to a refusal: the step of the called check, then the step of the
// check that the first one delegates to, and so on. "TcmValidateIPRouter 1, TcmValidateIPAddress 3" is the
// third refusal of the address check, reached through the first refusal of the router check.
std::string step_name(const Check& check, std::size_t index)
{
    return std::string(check.name) + " " + std::to_string(index + 1);
}

std::vector<std::string> paths_of(const Check& check)
{
    std::vector<std::string> result;
    const std::vector<const Step*> all = refusals(check.steps);
    for (std::size_t i = 0; i < all.size(); ++i) {
        const Check* target = target_of(*all[i]);
        if (target == nullptr) result.push_back(step_name(check, i));
        if (target == nullptr) continue;
        for (const std::string& inner : paths_of(*target))
            result.push_back(step_name(check, i) + ", " + inner);
    }
    return result;
}

std::string path_of(const Check& check, const Counts& counts)
{
    const std::vector<const Step*> all = refusals(check.steps);
    const auto acted = [&](const Step* step) { return counts.checks[check.number].steps[step->number] > 0; };
    if (std::ranges::count_if(all, acted) != 1) return std::string(check.name) + " ambiguous";
    const auto refusal = std::ranges::find_if(all, acted);
    const std::string name = step_name(check, static_cast<std::size_t>(refusal - all.begin()));
    const Check* target = target_of(**refusal);
    return target == nullptr ? name : name + ", " + path_of(*target, counts);
}

// paths_shown counts the rows with a reason by the path that their call took.
std::map<std::string, std::size_t> paths_shown()
{
    std::map<std::string, std::size_t> result;
    for (const Row& row : all_rows()) {
        if (!row.reason) continue;
        const Check& check = *row.given.function->check;
        rules::Build build = oracle::library_build();
        build.atoi = rules::Build::Atoi::kLong64;  // the reasons in rows assume this kind
        Counts counts;
        rules::evaluate(check, catalogue::completed(*row.given.function, row.given.values), build, &counts);
        ++result[path_of(check, counts)];
    }
    return result;
}

TEST(VectorReasonsTest, ConditionsHaveAStepEach)
{
    for (const Check& check : rules::checks()) {
        for (const Step* refusal : refusals(check.steps))
            EXPECT_NE(Condition::Kind::kAnyOf, refusal->condition.kind) << check.name;
    }
}

// Unshown is a refusal that no row shows, identified by the end of its path.
struct Unshown {
    std::string_view path;
    std::string_view why;
};

constexpr Unshown kUnshown[] = {
    {"GUESTACCESS_check_max_allowed_number 2, ValidateString 1",
     "the number that is read from the empty value is refused earlier"},
    {"TIME_check_NTP_server 2, TIME_check_url 1, ValidateURL 1",
     "the empty value is refused earlier for its length"},
    {"TIME_check_ascii_string 1, PARAM_check_printable_ascii_string 1",
     "NULL is printed, which is a memory fault"},
    {"TcmValidateDaylightSavingsTime 14, TcmValidateTime 1", "only well-formed values reach it"},
    {"TcmValidateEmailAddress 2, isEmail 1", "shorter values are refused earlier"},
    {"TcmValidateEmailPassword 1, ValidateString 1", "no value has fewer than 0 bytes"},
    {"TcmValidateVoIPPassword 1, ValidateString 1", "no value has fewer than 0 bytes"},
    {"TcmValidateVoIPRegistrar 4, ValidateURL 1", "values of fewer than 3 bytes are refused earlier"},
    {"TcmValidateVoIPSTUNServer 3, ValidateURL 1", "the empty value is accepted"},
    {"ValidateURL 3, TcmValidateDomainName 1", "the empty value is refused earlier"},
    {"ValidateURL 3, TcmValidateDomainName 2", "bytes that no name has are refused earlier"},
    {"ValidateURL 3, TcmValidateDomainName 3", "a value of only digits and dots is treated as an address"},
    {"ValidateURL 4, TcmValidateIPAddress 1", "the empty value is refused earlier"},
    {"ValidateURL 4, TcmValidateIPAddress 2", "a value with other bytes is treated as a name"},
    {"WLAN_check_HNAP_SecurityType 3", "reached only for another model; wlan_check_test.cpp covers it"},
    {"WLAN_check_channel 2", "depends on the wireless driver; wlan_check_test.cpp covers it"},
    {"WLAN_check_radio_id 2", "reached only for another model; wlan_check_test.cpp covers it"},
};

bool ends_with_path(std::string_view path, std::string_view end)
{
    return path == end || (path.ends_with(end) && path.substr(0, path.size() - end.size()).ends_with(", "));
}

TEST(VectorReasonsTest, EveryRefusingConditionHasARow)
{
    std::map<std::string, std::size_t> rows = paths_shown();
    std::map<std::string_view, std::size_t> unshown;
    std::size_t all = 0;
    for (const Check& check : rules::checks()) {
        for (const std::string& path : paths_of(check)) {
            ++all;
            const auto* const known = std::ranges::find_if(
                kUnshown, [&](const Unshown& one) { return ends_with_path(path, one.path); });
            const bool is_unshown = known != std::end(kUnshown);
            if (is_unshown) ++unshown[known->path];
            EXPECT_EQ(is_unshown, rows[path] == 0)
                << path << (is_unshown ? ": is shown by a row" : ": no row");
        }
    }
    std::size_t total = 0;
    for (const Unshown& one : kUnshown) {
        EXPECT_GT(unshown[one.path], 0) << one.path;
        total += unshown[one.path];
    }
    std::printf("%zu conditions, %zu shown by rows, %zu that no row can show\n", all, all - total, total);
}

}  // namespace

}  // namespace ostrel::tests

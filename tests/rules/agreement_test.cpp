// Compares the descriptions with every row in vectors/*.ndjson and with the declared arguments. fuzz/
// compares them with the library.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>

#include "oracle/library.h"
#include "rules/evaluate.h"
#include "rules/rules.h"
#include "rules/sentences.h"
#include "rules/walk.h"
#include "tests/rules/rows.h"

namespace ostrel::tests {

using calling::Caller;
using catalogue::Function;
using rules::Answer;
using rules::Build;
using rules::Check;
using vectors::Atoi;
using vectors::CallResult;
using vectors::kAtois;
using vectors::RowReason;

namespace {

// result_of converts an answer to a call's result. A number that was not written becomes NULL, as in Caller.
CallResult result_of(const Answer& answer)
{
    CallResult result{answer.code, answer.out, answer.err, answer.is_flushed(), answer.after};
    for (rules::Value& value : result.after) {
        if (value == rules::Value(catalogue::kUnwritten)) value = nullptr;
    }
    return result;
}

// told returns those fields of the answer's reason that rows contain too.
RowReason told(const Answer& answer)
{
    const rules::Reason& reason = answer.reason;
    return {std::string(reason.id), std::string(reason.name), reason.part, reason.item, reason.offset};
}

// Steps for another model, for the wireless driver's list and for calls that never return have no rows.
bool is_beyond_rows(const Check& check)
{
    constexpr std::string_view kOthers[] = {"WLAN_check_HNAP_SecurityType", "WLAN_check_radio_id",
                                            "TcmValidateAddressRange", "LAN_check_add_dns_servers"};
    return rules::asks_driver(check) || rules::may_not_return(check) ||
           std::ranges::find(kOthers, check.name) != std::end(kOthers);
}

// A row applies to every C library, but its reason assumes a 64-bit long. Together, the rows must reach every
// step, and each condition must be true in some row.
TEST(AgreementTest, VectorsAndDescriptions)
{
    std::size_t count = 0;
    rules::Counts counts;
    Caller caller;
    for (const Row& row : all_rows()) {
        const Function& function = *row.given.function;
        const Check* check = rules::find(function.name);
        if (check == nullptr) continue;
        SCOPED_TRACE(row.text.substr(0, 300));
        caller.load(function, row.given.values);
        for (const Atoi atoi : kAtois) {
            Build build = oracle::library_build();
            build.atoi = atoi;
            const Answer answer =
                rules::evaluate(*check, catalogue::completed(function, row.given.values), build, &counts);
            EXPECT_EQ(rules::Outside::kNo, answer.outside);
            EXPECT_EQ(expected_result(row, caller.written(), atoi), result_of(answer))
                << "atoi " << static_cast<int>(atoi);
            if (answer.is_refusal) {
                EXPECT_NE("", rules::sentence(answer.reason));
            }
            if (row.reason && atoi == Atoi::kLong64) {
                EXPECT_EQ(row.reason, told(answer));
            }
            if (check->is_verdict) {
                EXPECT_EQ(answer.code != 0, answer.is_refusal);
            }
        }
        ++count;
    }
    EXPECT_GT(count, 0);
    for (const Check& check : rules::checks()) {
        if (is_beyond_rows(check)) continue;
        const auto& of = counts.checks[check.number];
        for (std::size_t i = 0; i < of.steps.size(); ++i)
            EXPECT_NE(0U, of.steps[i]) << check.name << " step " << i;
        for (std::size_t i = 0; i < of.held.size(); ++i)
            EXPECT_NE(0U, of.held[i]) << check.name << " condition " << i;
    }
}

// A separate answer for some C libraries must differ from the row's main answer; otherwise it is redundant.
TEST(AgreementTest, AnswersForSomeLibrariesDiffer)
{
    std::map<Atoi, int> count;
    for (const Row& row : all_rows()) {
        for (const auto& [atoi, promise] : row.elsewhere) {
            EXPECT_NE(row.promise.result, promise.result) << row.text.substr(0, 300);
            ++count[atoi];
        }
    }
    EXPECT_EQ(2U, count.size());
}

TEST(AgreementTest, EachDescriptionIsOfAnExportedFunction)
{
    for (const Check& check : rules::checks()) EXPECT_NE(nullptr, catalogue::find(check.name)) << check.name;
}

}  // namespace

}  // namespace ostrel::tests

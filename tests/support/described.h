// Described: what the descriptions say of a call, for tests that run through small spaces.
#ifndef OSTREL_TESTS_SUPPORT_DESCRIBED_H
#define OSTREL_TESTS_SUPPORT_DESCRIBED_H

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

#include "oracle/library.h"
#include "rules/evaluate.h"
#include "rules/rules.h"

namespace ostrel::tests {

inline rules::Answer described(std::string_view name, const std::vector<rules::Value>& values)
{
    rules::Answer answer = rules::evaluate(*rules::find(name), values, oracle::library_build());
    EXPECT_EQ(rules::Outside::kNo, answer.outside) << name;
    return answer;
}

inline int described_code(std::string_view name, const std::vector<rules::Value>& values)
{
    return described(name, values).code;
}

}  // namespace ostrel::tests

#endif

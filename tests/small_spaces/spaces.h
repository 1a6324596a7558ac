// Compares calls to the library with their descriptions, for tests that try every value in a small space.
#ifndef OSTREL_TESTS_SMALL_SPACES_SPACES_H
#define OSTREL_TESTS_SMALL_SPACES_SPACES_H

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catalogue.h"
#include "oracle/call_comparer.h"

namespace ostrel::tests {

using Texts = std::vector<std::string>;

// texts_of returns every string that consists of at most the given number of pieces.
Texts texts_of(const Texts& pieces, std::size_t most);
Texts texts_of(std::string_view alphabet, std::size_t longest);

class SmallSpaces : public testing::Test {
 protected:
    using Values = std::vector<rules::Value>;

    // expect compares the code, the output and the writes of a call with its description, if the description
    // covers the call. It returns the code.
    std::optional<int> expect(const catalogue::Function& function, const Values& values);
    std::optional<int> expect(std::string_view name, const Values& values);

    // expect_each passes each string to each of the checks and counts the occurrences of each code.
    std::map<int, int> expect_each(const std::vector<std::string_view>& names, const Texts& texts);

 private:
    oracle::CallComparer comparer_;
};

}  // namespace ostrel::tests

#endif

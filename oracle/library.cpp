#include "oracle/library.h"

#include <cstdlib>
#include <limits>
#include <string>

namespace ostrel::oracle {

using rules::Build;
using rules::Value;

namespace {

std::string chosen(const char* variable, const char* built)
{
    const char* other = std::getenv(variable);
    return other == nullptr ? built : other;
}

}  // namespace

const Build& library_build()
{
    static const std::string model = chosen("OSTREL_TEST_MODEL", OSTREL_MODEL);
    static const std::string account_realm = chosen("OSTREL_TEST_ACCOUNT_REALM", OSTREL_ACCOUNT_REALM);
    static const std::string setup_realm = chosen("OSTREL_TEST_SETUP_REALM", OSTREL_SETUP_REALM);
    static const Build build = {model, account_realm, setup_realm,
                                sizeof(long) == 8 ? Build::Atoi::kLong64 : Build::Atoi::kLong32,
                                std::nullopt};
    return build;
}

const std::vector<Build>& builds_with_channels()
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

std::vector<Value> completed(const catalogue::Function& function, std::span<const Value> given)
{
    std::vector<Value> result;
    const bool are_all_given = given.size() == function.arguments.size();
    auto next = given.begin();
    for (const catalogue::Argument& argument : function.arguments) {
        if (are_all_given || !argument.output_only) {
            result.push_back(*next++);
        } else if (argument.kind == catalogue::Kind::kIntegerOut) {
            result.emplace_back(static_cast<long long>(std::numeric_limits<int>::min()));
        } else {
            result.emplace_back(std::string());
        }
    }
    return result;
}

}  // namespace ostrel::oracle

#include "oracle/library.h"

#include <cstdlib>
#include <string>

namespace ostrel::oracle {

using rules::Build;

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
    static const Build build = {model, account_realm, setup_realm, rules::atoi_here(), std::nullopt};
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

}  // namespace ostrel::oracle

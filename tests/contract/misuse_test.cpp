// Passes hostile values next to an unreadable page as every text argument. No call may crash, access memory
// outside its values, return an unlisted code, or exceed a time limit that only linear time can meet.

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "calling/caller.h"
#include "catalogue/catalogue.h"
#include "tests/support/child.h"
#include "tests/support/hostile.h"

namespace ostrel::tests {

using calling::Caller;
using calling::Edge;
using catalogue::Argument;
using catalogue::Function;
using catalogue::Value;

namespace {

constexpr std::size_t kShort = std::size_t{1} << 12;

// long_size returns the number in the environment variable OSTREL_LONGEST_TEXT, or one megabyte by default.
std::size_t long_size()
{
    const char* limit = std::getenv("OSTREL_LONGEST_TEXT");  // NOLINT(concurrency-mt-unsafe)
    return limit != nullptr ? std::stoul(limit) : std::size_t{1} << 20;
}
constexpr std::chrono::seconds kLimit(120);

std::vector<std::string> make_hostile_texts()
{
    std::vector<std::string> texts;
    const std::size_t size = long_size();
    std::string high;
    for (int byte = 0x80; byte <= 0xFF; ++byte) {
        texts.emplace_back(kShort, static_cast<char>(byte));
        high += static_cast<char>(byte);
    }
    for (const std::string_view part :
         {std::string_view(high), std::string_view("\x80"), std::string_view("\xff")}) {
        texts.push_back(repeated(part, size));
    }
    for (const std::string_view part : {"%s%n", "%n", "%1000000$s", "a", "0", ",", ".", ":", "-", "@", "#",
                                        "/", "&#", "1,", "1.", "aa:", "/,", " "}) {
        texts.push_back(repeated(part, size));
    }
    for (const char* text :
         {"%s%n", "%s%s%s%s%s%s%s%s%n", "%", "%%", "%*d", "%99999999d", "\x7f", "\x80", "\xff"}) {
        texts.emplace_back(text);
    }
    return texts;
}

const std::vector<std::string>& hostile_texts()
{
    static const std::vector<std::string> texts = make_hostile_texts();
    return texts;
}

// try_all passes the string as each text argument in turn and returns how many calls return unlisted codes.
int try_all(const Function& function, const std::string& text, std::array<Caller, 2>& callers)
{
    int unlisted = 0;
    for (std::size_t hostile = 0; hostile < function.arguments.size(); ++hostile) {
        if (!is_text(function.arguments[hostile])) continue;
        std::vector<Value> values = widest(function);
        values[hostile] = text;
        if (never_returns(function, values)) continue;
        for (Caller& caller : callers) {
            caller.load(function, values);
            const int code = caller.call();
            if (is_listed(function, code)) continue;
            std::fprintf(stderr, "%s answered %d\n", std::string(function.name).c_str(), code);
            ++unlisted;
        }
    }
    return unlisted;
}

class Misuse : public testing::TestWithParam<const Function*> {};

TEST_P(Misuse, HostileValuesInEveryTextArgument)
{
    const Function& function = *GetParam();
    const std::vector<std::string>& texts = hostile_texts();  // built once, before the first child
    const ChildEnd end = run_in_child(kLimit, [&] {
        if (std::freopen("/dev/null", "w", stdout) == nullptr) return 2;
        std::array<Caller, 2> callers = {Caller(Edge::kEnd), Caller(Edge::kBegin)};
        int unlisted = 0;
        for (const std::string& text : texts) unlisted += try_all(function, text, callers);
        return unlisted == 0 ? 0 : 1;
    });
    EXPECT_EQ(0, end.status) << testing::PrintToString(end);
}

TEST_P(Misuse, EmptyValuesWithEveryExtremeNumber)
{
    const Function& function = *GetParam();
    const ChildEnd end = run_in_child(kLimit, [&] {
        int unlisted = 0;
        for (const long long number :
             {0LL, 1LL, -1LL, static_cast<long long>(std::numeric_limits<int>::max()),
              static_cast<long long>(std::numeric_limits<int>::min())}) {
            std::vector<Value> values;
            values.reserve(function.arguments.size());
            for (const Argument& argument : function.arguments) values.push_back(neutral(argument, number));
            for (const Edge edge : {Edge::kEnd, Edge::kBegin}) {
                Caller caller(edge);
                caller.load(function, values);
                if (!is_listed(function, caller.call())) ++unlisted;
            }
        }
        return unlisted == 0 ? 0 : 1;
    });
    EXPECT_EQ(0, end.status) << testing::PrintToString(end);
}

std::vector<const Function*> every_function()
{
    std::vector<const Function*> all;
    for (const Function& function : catalogue::functions()) all.push_back(&function);
    return all;
}

INSTANTIATE_TEST_SUITE_P(, Misuse, testing::ValuesIn(every_function()),
                         [](const auto& instance) { return std::string(instance.param->name); });

}  // namespace

}  // namespace ostrel::tests

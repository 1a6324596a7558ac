// Hostile values through every text argument of every function, each against an unreadable page, with a limit
// of time: no crash, no run beyond the value, no answer that the catalogue does not list, linear time.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/caller.h"
#include "catalogue/catalogue.h"
#include "tests/support/child.h"

namespace ostrel::tests {

using catalogue::Argument;
using catalogue::Caller;
using catalogue::Edge;
using catalogue::Function;
using catalogue::Kind;
using catalogue::Value;

namespace {

constexpr std::size_t kMegabyte = std::size_t{1} << 20;
constexpr std::chrono::seconds kLimit(120);

std::string repeated(std::string_view part, std::size_t size)
{
    std::string text;
    while (text.size() < size) text += part;
    return text;
}

std::vector<std::string> make_hostile_texts()
{
    std::vector<std::string> texts;
    for (int byte = 0x80; byte <= 0xFF; ++byte) texts.emplace_back(kMegabyte, static_cast<char>(byte));
    for (const std::string_view part : {"%s%n", "%n", "%1000000$s", "a", "0", ",", ".", ":", "-", "@", "#",
                                        "/", "&#", "1,", "1.", "aa:", "/,", " "}) {
        texts.push_back(repeated(part, kMegabyte));
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

bool is_text(const Argument& argument)
{
    return !argument.output_only && (argument.kind == Kind::kText || argument.kind == Kind::kBuffer);
}

// neutral is what an argument holds while another one is hostile.
Value neutral(const Argument& argument, long long number)
{
    switch (argument.kind) {
        case Kind::kText:
        case Kind::kBuffer:
            return std::string();
        case Kind::kBlocks:
            return std::vector<std::string>(argument.blocks);
        case Kind::kUnsigned:
            return number < 0 ? std::numeric_limits<unsigned>::max() : number;
        case Kind::kInteger:
        case Kind::kIntegerOut:
            return number;
    }
    return nullptr;
}

// never_returns tells that the call would not come back, which parameter_check_test holds.
bool never_returns(const Function& function, const std::vector<Value>& values)
{
    if (function.name != "PARAM_check_ui2_value" && function.name != "PARAM_check_ui4_value") return false;
    const char first = std::get<std::string>(values[0])[0];
    return first >= '0' && first <= '9';
}

bool is_listed(const Function& function, int code)
{
    if (!function.is_verdict || code == 0) return true;
    for (const catalogue::Code& listed : function.codes) {
        if (listed.code == code) return true;
    }
    return false;
}

// widest gives a value for each argument: texts are empty, a last number, which is an upper limit if
// anything, is as large as can be, and the others are 0.
std::vector<Value> widest(const Function& function)
{
    std::vector<Value> values;
    Value* last_number = nullptr;
    values.reserve(function.arguments.size());
    for (const Argument& argument : function.arguments) {
        values.push_back(neutral(argument, 0));
        const bool is_number = argument.kind == Kind::kInteger || argument.kind == Kind::kUnsigned;
        if (is_number) last_number = &values.back();
    }
    if (last_number != nullptr) *last_number = static_cast<long long>(std::numeric_limits<int>::max());
    return values;
}

// try_all calls the function with the text in each text argument in turn, and gives how many answers are not
// listed.
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
    const std::vector<std::string>& texts = hostile_texts();  // made once, before the first child
    const ChildEnd end = run_in_child(kLimit, [&] {
        if (std::freopen("/dev/null", "w", stdout) == nullptr) return 2;
        std::array<Caller, 2> callers = {Caller(Edge::kEnd), Caller(Edge::kBegin)};
        int unlisted = 0;
        for (const std::string& text : texts) unlisted += try_all(function, text, callers);
        return unlisted == 0 ? 0 : 1;
    });
    EXPECT_EQ(0, end.status) << testing::PrintToString(end);
}

// All arguments empty, and each number at its limits.
TEST_P(Misuse, EmptyValuesWithEveryExtremeNumber)
{
    const Function& function = *GetParam();
    const ChildEnd end = run_in_child(kLimit, [&] {
        int unlisted = 0;
        for (const long long number :
             {0LL, 1LL, -1LL, static_cast<long long>(std::numeric_limits<int>::max()),
              static_cast<long long>(std::numeric_limits<int>::min())}) {
            std::vector<Value> values;
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

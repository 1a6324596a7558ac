// Compares the explanation of each check with the vectors and the library.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>
#include <set>

#include "calling/capture.h"
#include "oracle/library.h"
#include "rules/explain.h"
#include "rules/rules.h"
#include "rules/walk.h"
#include "tests/rules/rows.h"

namespace ostrel::tests {

using catalogue::Function;
using catalogue::Value;
using rules::Check;
using rules::Said;
using rules::SaidLine;

namespace {

void add_lines(const std::vector<Said>& steps, std::vector<SaidLine>& lines)
{
    for (const Said& step : steps) {
        lines.insert(lines.end(), step.lines.begin(), step.lines.end());
        for (const auto* inner : {&step.uses, &step.steps, &step.otherwise}) add_lines(*inner, lines);
    }
}

// Pattern is an explained line, split at its placeholders. A row supplies the text for a placeholder that
// names an argument: the value that was passed, or the text that the argument contains after the call.
class Pattern {
 public:
    Pattern(const SaidLine& line, const Row& row) : is_error_(line.stream == rules::Line::Stream::kErr)
    {
        const std::string text = std::regex_replace(line.text, std::regex("\\\\n"), "\n");
        const std::regex held("<([^>]*)>");
        const auto names = names_in(row);
        parts_.emplace_back();
        auto rest = text.begin();
        for (std::sregex_iterator one(text.begin(), text.end(), held), end; one != end; ++one) {
            parts_.back() += one->prefix();
            const auto known = names.find(one->str(1));
            if (known == names.end()) {
                parts_.emplace_back();
            } else {
                parts_.back() += known->second;
            }
            rest = (*one)[0].second;
        }
        parts_.back().append(rest, text.end());
    }

    // ends returns the offsets at which a line that begins at the given offset may end.
    [[nodiscard]] std::set<std::size_t> ends(const std::string& text, std::size_t begin) const
    {
        std::set<std::size_t> places = {begin};
        for (std::size_t i = 0; i < parts_.size() && !places.empty(); ++i) {
            std::set<std::size_t> next;
            const std::size_t last = i == 0 ? begin : text.size();
            for (std::size_t place = *places.begin(); place <= last; ++place) {
                if (text.compare(place, parts_[i].size(), parts_[i]) == 0)
                    next.insert(place + parts_[i].size());
            }
            places = next;
        }
        return places;
    }

    [[nodiscard]] const std::string& printed_in(const Row& row) const
    {
        return is_error_ ? row.promise.result.err : row.promise.result.out;
    }

 private:
    // An argument that is changed before it is printed may match any text.
    static std::map<std::string, std::string> names_in(const Row& row)
    {
        std::map<std::string, std::string> names;
        const auto values = catalogue::completed(*row.given.function, row.given.values);
        for (std::size_t i = 0; i < values.size(); ++i) {
            const catalogue::Argument& argument = row.given.function->arguments[i];
            if (rules::is_written(row.given.function->check->arguments[i])) continue;
            const auto* text = std::get_if<std::string>(&values[i]);
            const auto* number = std::get_if<long long>(&values[i]);
            if (text != nullptr) names[std::string(argument.name)] = *text;
            if (number != nullptr) names[std::string(argument.name)] = std::to_string(*number);
        }
        return names;
    }

    std::vector<std::string> parts_;
    bool is_error_;
};

// is_made_of returns whether the text is a sequence of lines that match these patterns.
bool is_made_of(const std::string& text, const std::vector<Pattern>& patterns)
{
    std::set<std::size_t> places = {0};
    std::set<std::size_t> known;
    while (!places.empty()) {
        const std::size_t place = *places.begin();
        places.erase(places.begin());
        if (place == text.size()) return true;
        if (!known.insert(place).second) continue;
        for (const Pattern& pattern : patterns) places.merge(pattern.ends(text, place));
    }
    return false;
}

bool stands_in(const Pattern& pattern, const Row& row)
{
    const std::string& text = pattern.printed_in(row);
    for (std::size_t place = 0; place < text.size(); ++place) {
        if (!pattern.ends(text, place).empty()) return true;
    }
    return false;
}

class Explained : public testing::TestWithParam<const Function*> {
 protected:
    const Function& function_ = *GetParam();
    const Check& check_ = *function_.check;
};

// Every explained line must be printed by some row, and every printed line must be explained.
TEST_P(Explained, LinesAreThoseThatArePrinted)
{
    constexpr std::size_t kLongest = 2000;  // matching longer output would take too long
    std::vector<SaidLine> lines;
    add_lines(rules::explain(check_, oracle::library_build()).steps, lines);
    std::vector<bool> are_printed(lines.size());
    for (const Row& row : rows_of(function_)) {
        std::vector<Pattern> patterns;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            patterns.emplace_back(lines[i], row);
            are_printed[i] = are_printed[i] || stands_in(patterns[i], row);
        }
        for (const std::string& text : {row.promise.result.out, row.promise.result.err}) {
            if (text.size() > kLongest) continue;
            EXPECT_TRUE(is_made_of(text, patterns)) << text;
        }
    }
    for (std::size_t i = 0; i < lines.size(); ++i) EXPECT_TRUE(are_printed[i]) << lines[i].text;
    EXPECT_EQ(!lines.empty(), rules::prints(check_));
}

TEST_P(Explained, CodesAreThoseThatVectorsReach)
{
    if (!check_.is_verdict) return;
    std::set<int> reached = {0};
    for (const Row& row : rows_of(function_)) reached.insert(row.promise.result.code);
    std::vector<int> codes = rules::explain(check_, oracle::library_build()).codes;
    codes.push_back(0);
    EXPECT_EQ(reached, std::set<int>(codes.begin(), codes.end()));
}

// is_accepted evaluates the description first, since a call that would end the process must not be made.
bool is_accepted(const Function& function, const std::vector<Value>& values)
{
    const auto answer = rules::evaluate(*function.check, values, oracle::library_build());
    if (answer.outside != rules::Outside::kNo || answer.code != 0) return false;
    const calling::Capture capture;
    calling::Caller caller;
    caller.load(function, values);
    return caller.call() == 0;
}

// Completion offers the keywords, so each must be accepted together with the other arguments of some row.
TEST_P(Explained, KeywordsAreAccepted)
{
    for (std::size_t i = 0; check_.is_verdict && i < check_.arguments.size(); ++i) {
        if (check_.arguments[i].kind != catalogue::Kind::kText) continue;
        for (const std::string& keyword : rules::keywords(check_, i, oracle::library_build())) {
            EXPECT_TRUE(std::ranges::any_of(rows_of(function_),
                                            [&](const Row& row) {
                                                std::vector<Value> values =
                                                    catalogue::completed(function_, row.given.values);
                                                values[i] = keyword;
                                                return is_accepted(function_, values);
                                            }))
                << check_.arguments[i].name << " " << keyword;
        }
    }
}

// Similar arguments share one description, except for the words that distinguish them.
TEST(ExplanationTest, ThoseThatAreDescribedTogetherAreToldApart)
{
    const auto what = [](std::string_view name, std::size_t argument = 0) {
        return rules::explain(*rules::find(name), oracle::library_build()).arguments[argument].what;
    };
    EXPECT_EQ("the URL of a management server", what("TcmValidateServerURL"));
    EXPECT_EQ("the URL of a firmware image", what("TcmValidatefirmwareURL"));
    EXPECT_EQ("the offset of the local time zone", what("TIME_check_local_time_zone"));
    EXPECT_EQ("the name of the local time zone", what("TIME_check_local_time_zone_name"));
    EXPECT_EQ("when daylight saving starts or ends", what("TIME_check_daylight_saving_start_or_end"));
    EXPECT_EQ("the other channel of the pair, or 0 for none", what("WLAN_check_second_channel", 1));
    EXPECT_EQ("the centre of the pair, or 0 for none", what("WLAN_check_5g_second_channel", 1));
}

TEST(ExplanationTest, KeywordsOfAnyCaseAreAsTheyAreWritten)
{
    for (const char* name : {"WLAN_check_IEEE11_mode", "WLAN_check_wide_channel"}) {
        const rules::Explanation explanation = rules::explain(*rules::find(name), oracle::library_build());
        EXPECT_TRUE(std::ranges::any_of(explanation.steps, [](const rules::Said& step) {
            return step.kind == rules::Step::Kind::kWhen &&
                   step.text.find("RADIO_2.4GHz") != std::string::npos;
        })) << name;
    }
}

TEST(ExplanationTest, ColumnsHaveNames)
{
    const rules::Table& zones = *rules::tables(*rules::find("Time_validate_tzone_and_tzone_name")).at(0);
    EXPECT_EQ((std::vector<std::string_view>{"offset", "name"}), zones.columns);
}

TEST_P(Explained, EachArgumentIsDescribed)
{
    const rules::Explanation explanation = rules::explain(check_, oracle::library_build());
    EXPECT_FALSE(explanation.accepted.empty());
    for (std::size_t i = 0; i < check_.arguments.size(); ++i) {
        EXPECT_FALSE(explanation.arguments[i].what.empty());
        std::size_t output = 0;
        for (std::size_t before = 0; before < i; ++before)
            output += rules::is_written(check_.arguments[before]);
        const bool changes = std::ranges::any_of(rows_of(function_), [&](const Row& row) {
            const auto values = catalogue::completed(function_, row.given.values);
            return rules::is_written(check_.arguments[i]) && output < row.promise.result.after.size() &&
                   row.promise.result.after[output] != values[i];
        });
        EXPECT_EQ(changes, !explanation.arguments[i].written.empty()) << check_.arguments[i].name;
    }
}

INSTANTIATE_TEST_SUITE_P(Checks, Explained, testing::ValuesIn(all_functions()),
                         [](const auto& instance) { return std::string(instance.param->name); });

}  // namespace

}  // namespace ostrel::tests

// Finds what accepted values may contain, and prints the lines of catalogue/hazards.ndjson.
//
// It tries every byte that is no letter or digit in many places of the accepted values of vectors/, inserted and in the
// place of another, for each argument that is a text. A set of bytes that is an argument holds them all. What counts is
// what the argument holds after the call.

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <set>

#include "catalogue/caller.h"
#include "catalogue/capture.h"
#include "catalogue/hazards.h"
#include "rules/evaluate.h"
#include "tests/support/vectors.h"

namespace ostrel::tests {

using catalogue::Argument;
using catalogue::Caller;
using catalogue::Capture;
using catalogue::Exposure;
using catalogue::Function;
using catalogue::Hazard;
using catalogue::hazards;
using catalogue::Kind;
using catalogue::Places;
using catalogue::Value;
using catalogue::Written;

namespace {

using Values = std::vector<Value>;

constexpr std::size_t kMostSeeds = 10;
constexpr std::size_t kMostPlaces = 24;  // of a seed
constexpr std::size_t kLongestSeed = 300;

bool is_letter_or_digit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// texts_of gives the texts that an argument holds, to be looked at or changed.
std::vector<std::string*> texts_of(Value& value)
{
    std::vector<std::string*> texts;
    if (auto* text = std::get_if<std::string>(&value)) texts.push_back(text);
    if (auto* blocks = std::get_if<std::vector<std::string>>(&value)) {
        for (std::string& block : *blocks) texts.push_back(&block);
    }
    return texts;
}

bool is_written(const Argument& argument)
{
    return argument.kind == Kind::kBuffer || argument.kind == Kind::kBlocks;
}

// may_be_called tells that a call neither asks the wireless driver nor ends the process nor goes on for ever.
bool may_be_called(const Function& function, const Values& values)
{
    const rules::Build build;
    const auto answer = rules::evaluate(*function.check, catalogue::completed(function, values), build);
    return answer.outside == rules::Outside::kNo;
}

// Trial tries values of one argument.
class Trial {
 public:
    Trial(const Function& function, std::size_t argument) : function_(&function), argument_(argument)
    {
        for (std::size_t i = 0; i < argument; ++i)
            if (is_written(function.arguments[i]) || function.arguments[i].kind == Kind::kIntegerOut)
                ++output_;
    }

    void run(const std::vector<Values>& seeds, const std::vector<Values>& accepted)
    {
        for (const Values& values : accepted) {
            values_ = values;
            for (const std::string* text : texts_of(values_[argument_])) call(*text);
        }
        for (const Values& seed : seeds) {
            values_ = seed;
            for (std::string* text : texts_of(values_[argument_])) try_around(*text);
        }
    }

    std::vector<Places> found()
    {
        std::vector<Places> result;
        for (const Hazard& hazard : hazards()) {
            Places places;
            for (const char c : hazard.bytes) {
                const auto byte = static_cast<unsigned char>(c);
                places.first |= first_[byte];
                places.inside |= inside_[byte];
                places.last |= last_[byte];
                if (first_[byte] || inside_[byte] || last_[byte]) places.bytes += c;
            }
            result.push_back(places);
        }
        return result;
    }

 private:
    void try_around(std::string& text)
    {
        const std::string seed = text;
        if (seed.size() > kLongestSeed) return;
        std::set<std::size_t> places = {0, seed.size()};
        for (std::size_t i = 1; i < kMostPlaces; ++i) places.insert(i * seed.size() / kMostPlaces);
        for (int byte = 1; byte < 256; ++byte) {
            const char c = static_cast<char>(byte);
            if (is_letter_or_digit(c)) continue;
            for (const std::size_t place : places) {
                if (is_known(static_cast<unsigned char>(c), place, seed.size())) continue;
                text = seed;
                text.insert(place, 1, c);
                call(text);
                if (place == seed.size() && place > 0) {
                    text = seed;
                    text.back() = c;
                    call(text);
                } else if (place < seed.size()) {
                    text = seed;
                    text[place] = c;
                    call(text);
                }
            }
        }
        text = seed;
    }

    // is_known tells that a byte was accepted where it would stand; nothing is learnt from trying it again.
    [[nodiscard]] bool is_known(unsigned char byte, std::size_t place, std::size_t size) const
    {
        if (place == 0) return first_[byte] && (size > 0 || last_[byte]);
        return place == size ? last_[byte] : inside_[byte];
    }

    void call(const std::string& text)
    {
        if (!may_be_called(*function_, values_)) return;
        const Argument& argument = function_->arguments[argument_];
        if (argument.kind == Kind::kBlocks && text.size() >= argument.block_size) return;
        caller_.load(*function_, values_);
        const int code = caller_.call();
        capture_.clear();
        if (code != 0) return;
        if (!is_written(argument)) {
            note(text);
            return;
        }
        std::vector<Written> written = caller_.written();
        for (const std::string* held : texts_of(written[output_].value)) note(*held);
    }

    void note(const std::string& text)
    {
        for (std::size_t i = 0; i < text.size(); ++i) {
            const auto byte = static_cast<unsigned char>(text[i]);
            if (i == 0) first_[byte] = true;
            if (i + 1 == text.size()) last_[byte] = true;
            if (i > 0 && i + 1 < text.size()) inside_[byte] = true;
        }
    }

    const Function* function_;
    std::size_t argument_;
    std::size_t output_ = 0;
    std::vector<Value> values_;
    Caller caller_;
    Capture capture_;
    std::array<bool, 256> first_{};
    std::array<bool, 256> inside_{};
    std::array<bool, 256> last_{};
};

std::size_t size_of(const Values& values)
{
    std::size_t size = 0;
    for (const Value& value : values) {
        if (const auto* text = std::get_if<std::string>(&value)) size += text->size();
    }
    return size;
}

// with_every_byte gives values in which the sets of bytes that are arguments hold them all.
Values with_every_byte(const Function& function, Values values)
{
    std::string all;
    for (int byte = 1; byte < 256; ++byte) all += static_cast<char>(byte);
    for (std::size_t i = 0; i < values.size(); ++i) {
        const std::string_view name = function.arguments[i].name;
        if (name == "charset" || name == "allowed") values[i] = all;
    }
    return values;
}

// seeds_of picks values evenly from the shortest to the longest.
std::vector<Values> seeds_of(const Function& function, std::vector<Values> accepted)
{
    std::erase_if(accepted, [&](const Values& values) { return !may_be_called(function, values); });
    for (Values& values : accepted) values = with_every_byte(function, std::move(values));
    std::ranges::stable_sort(accepted, {}, size_of);
    if (accepted.size() <= kMostSeeds) return accepted;
    std::vector<Values> seeds;
    for (std::size_t i = 0; i < kMostSeeds; ++i)
        seeds.push_back(accepted[i * (accepted.size() - 1) / (kMostSeeds - 1)]);
    return seeds;
}

void find_hazards()
{
    std::map<const Function*, std::vector<Values>> accepted;
    for (const Row& row : read_cases()) {
        if (row.promised.code == 0 && !row.overflows)
            accepted[row.given.function].push_back(row.given.values);
    }
    std::string lines;
    for (const Function& function : catalogue::functions()) {
        if (!function.check->is_verdict) continue;
        const std::vector<Values> seeds = seeds_of(function, accepted[&function]);
        for (std::size_t i = 0; i < function.arguments.size(); ++i) {
            const Argument& argument = function.arguments[i];
            const bool is_text = argument.kind == Kind::kText || is_written(argument);
            if (!is_text || argument.output_only) continue;
            Trial trial(function, i);
            trial.run(seeds, accepted[&function]);
            lines += catalogue::line_of(function.name, {std::string(argument.name), trial.found()});
        }
    }
    std::fputs(lines.c_str(), stdout);
}

}  // namespace

}  // namespace ostrel::tests

int main() { ostrel::tests::find_hazards(); }

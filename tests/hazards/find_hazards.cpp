// Finds which hazardous bytes accepted values may contain, and prints the lines of docs/hazards.md.
//
// For each text argument, it inserts every hazardous byte at many positions of the accepted values in
// vectors/, and also replaces the byte at that position. For a buffer, it also searches the content after the
// call for hazardous bytes that were passed in any argument. The descriptions in rules/ decide whether a
// value is accepted; rules_test compares them with the library.

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <set>

#include "catalogue/hazards.h"
#include "rules/evaluate.h"
#include "rules/walk.h"
#include "vectors/rows.h"

namespace ostrel::tests {

using catalogue::Exposure;
using catalogue::Function;
using catalogue::Hazard;
using catalogue::hazards;
using catalogue::kPlaces;
using catalogue::Place;
using catalogue::Value;
using catalogue::Witness;
using vectors::read_cases;
using vectors::Row;

namespace {

using Values = std::vector<Value>;

constexpr std::size_t kMostSeeds = 12;
constexpr std::size_t kMostPlaces = 24;  // per seed
constexpr std::size_t kLongestSeed = 300;

std::string hazardous_bytes()
{
    std::set<char> bytes;
    for (const Hazard& hazard : hazards()) bytes.insert(hazard.bytes.begin(), hazard.bytes.end());
    return {bytes.begin(), bytes.end()};
}

template <typename V>
auto texts_of(V& value)
{
    using Text = std::conditional_t<std::is_const_v<V>, const std::string, std::string>;
    std::vector<Text*> texts;
    if (auto* text = std::get_if<std::string>(&value)) texts.push_back(text);
    if (auto* blocks = std::get_if<std::vector<std::string>>(&value)) {
        for (auto& block : *blocks) texts.push_back(&block);
    }
    return texts;
}

struct Attempt {
    std::string before;
    std::string after;
};

std::vector<Attempt> attempts_around(const std::string& seed)
{
    std::vector<Attempt> all = {{"", ""}, {"", "x"}, {"x", ""}, {"x", "x"}, {seed, "x"}};
    std::set<std::size_t> places = {0, 1, seed.size() / 2, seed.size()};
    for (std::size_t i = 1; i < kMostPlaces; ++i) places.insert(i * seed.size() / kMostPlaces);
    for (const std::size_t place : places) {
        if (place > seed.size()) continue;
        all.push_back({seed.substr(0, place), seed.substr(place)});
        if (place < seed.size()) all.push_back({seed.substr(0, place), seed.substr(place + 1)});
    }
    if (!seed.empty()) all.push_back({seed.substr(0, seed.size() - 1), ""});
    return all;
}

// Search finds the witnesses for one exposure: accepted values that contain a hazardous byte.
class Search {
 public:
    Search(const Function& function, Exposure& exposure) : function_(function), exposure_(exposure)
    {
        for (std::size_t i = 0; i < exposure.argument; ++i)
            output_ += rules::is_written(function.check->arguments[i]);
    }

    void run(const std::vector<Values>& seeds)
    {
        for (const Values& seed : seeds) {
            for (std::size_t i = 0; i < seed.size(); ++i) {
                if (exposure_.is_after || i == exposure_.argument) try_argument(seed, i);
            }
        }
    }

 private:
    void try_argument(const Values& seed, std::size_t argument)
    {
        const std::size_t texts = texts_of(seed[argument]).size();
        for (std::size_t block = 0; block < texts; ++block) {
            const std::string text = *texts_of(seed[argument])[block];
            if (text.size() > kLongestSeed) continue;
            for (const Attempt& attempt : attempts_around(text)) {
                Witness witness{"", seed, argument, block, attempt.before.size()};
                *texts_of(witness.values[argument])[block] = attempt.before + "x" + attempt.after;
                try_all_bytes(witness);
            }
        }
    }

    void try_all_bytes(const Witness& witness)
    {
        static const std::string all = hazardous_bytes();
        const std::size_t size = texts_of(witness.values[witness.argument])[witness.block]->size();
        const std::size_t longest = function_.arguments[witness.argument].block_size;
        if (longest > 0 && size >= longest) return;
        std::array<std::string, kPlaces.size()> found;
        for (const char byte : all) {
            const bool is_known = std::ranges::all_of(
                kPlaces, [&](Place place) { return exposure_.witness(place, byte) != nullptr; });
            if (!is_known) try_byte(witness, byte, found);
        }
        for (std::size_t i = 0; i < found.size(); ++i) {
            if (found.at(i).empty()) continue;
            exposure_.witnesses.at(i).push_back(witness);
            exposure_.witnesses.at(i).back().bytes = found.at(i);
        }
    }

    void try_byte(const Witness& witness, char byte, std::array<std::string, kPlaces.size()>& found)
    {
        const Values values = catalogue::completed(function_, witness.with(byte));
        const auto answer = rules::evaluate(*function_.check, values, rules::Build());
        if (answer.outside != rules::Outside::kNo || answer.code != 0 || answer.beyond_int) return;
        const Value& held = exposure_.is_after ? answer.after[output_] : values[exposure_.argument];
        const auto texts = texts_of(held);
        for (const Place place : kPlaces) {
            const bool has = std::ranges::any_of(
                texts, [&](const std::string* text) { return stands_at(place, *text, byte); });
            if (has && exposure_.witness(place, byte) == nullptr)
                found.at(static_cast<std::size_t>(place)) += byte;
        }
    }

    const Function& function_;
    Exposure& exposure_;
    std::size_t output_ = 0;  // the argument's index among those that the function writes
};

std::size_t size_of(const Values& values)
{
    std::size_t size = 0;
    for (const Value& value : values) {
        for (const std::string* text : texts_of(value)) size += text->size();
    }
    return size;
}

// seeds_of selects values evenly from the shortest to the longest. For each value, it adds copies in which
// one argument contains all bytes, because that argument may be a set of allowed bytes.
std::vector<Values> seeds_of(std::vector<Values> accepted)
{
    std::ranges::stable_sort(accepted, {}, size_of);
    std::vector<Values> seeds;
    for (std::size_t i = 0; i < std::min(kMostSeeds, accepted.size()); ++i)
        seeds.push_back(accepted[i * (accepted.size() - 1) / std::max<std::size_t>(kMostSeeds - 1, 1)]);
    std::string all;
    for (int byte = 1; byte < 256; ++byte) all += static_cast<char>(byte);
    const std::size_t count = seeds.size();
    for (std::size_t i = 0; i < count; ++i) {
        for (std::size_t argument = 0; seeds[i].size() > 1 && argument < seeds[i].size(); ++argument) {
            if (!std::holds_alternative<std::string>(seeds[i][argument])) continue;
            seeds.push_back(seeds[i]);
            seeds.back()[argument] = all;
        }
    }
    return seeds;
}

void find_hazards()
{
    std::map<const Function*, std::vector<Values>> accepted;
    for (const Row& row : read_cases()) {
        if (row.promise.result.code == 0 && row.elsewhere.empty())
            accepted[row.given.function].push_back(row.given.values);
    }
    for (const Function& function : catalogue::functions()) {
        if (!function.check->is_verdict) continue;
        const std::vector<Values> seeds = seeds_of(accepted[&function]);
        for (std::size_t i = 0; i < function.arguments.size(); ++i) {
            const rules::Argument& argument = function.check->arguments[i];
            const bool is_number = argument.kind == catalogue::Kind::kInteger ||
                                   argument.kind == catalogue::Kind::kUnsigned ||
                                   argument.kind == catalogue::Kind::kIntegerOut;
            if (is_number) continue;
            for (const bool is_after : {false, true}) {
                if (is_after ? !rules::is_written(argument) : argument.is_output) continue;
                Exposure exposure{i, is_after, {}};
                Search(function, exposure).run(seeds);
                std::fputs(catalogue::line_of(function, exposure).c_str(), stdout);
            }
        }
    }
}

}  // namespace

}  // namespace ostrel::tests

int main() { ostrel::tests::find_hazards(); }

// fuzz_replay judges the calls of the vectors, kept inputs and random ones, without an engine.
//
//   fuzz_replay [--random COUNT] [--refusals COUNT] [--seed NUMBER] [--check NAME] [--with FILE] [--table FILE]
//       [--floor TIMES] [FOLDER...]
//
// A FOLDER holds a folder of inputs for each target. COUNT inputs are made out of all of them, as many for each
// function, or for NAME alone; with --refusals, so many that COUNT of them are refused, as many by each check that
// refuses anything. How often each step and condition was met is written to the FILE of --table, what the one of --with
// says of an earlier run included. Exits with 1 when the library and a description differ on any, when a reason lacks an
// id or a sentence or does not hold what it says, and with --floor when one step or condition was met less often, or when
// one step less has brought back no reason of some id.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>

#include "fuzz/aim.h"
#include "fuzz/options.h"
#include "fuzz/seeds.h"
#include "oracle/counts.h"
#include "oracle/driver.h"
#include "oracle/library.h"
#include "rules/rules.h"

namespace ostrel::fuzz {

using catalogue::Function;

namespace {

// Tally is printed at the end: the standard streams are captured as long as a judge lives.
struct Tally {
    std::size_t agreed = 0;
    std::size_t outside = 0;
    std::size_t failures = 0;
    std::size_t refused = 0;
    std::size_t calls = 0;  // compared with the library, those included that reasons were followed to
    std::string text;
    std::vector<std::string> unproven;

    void fail(const std::string& what)
    {
        constexpr std::size_t kMostTold = 10;
        if (++failures <= kMostTold) text += what;
    }
};

std::string read_file(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw std::runtime_error("cannot read " + file.string());
    return {std::istreambuf_iterator<char>(stream), {}};
}

bool refuses(const std::vector<rules::Step>& steps)
{
    return std::ranges::any_of(steps, [](const rules::Step& step) {
        return step.kind == rules::Step::Kind::kRefuse || refuses(step.steps) || refuses(step.otherwise);
    });
}

bool may_refuse(const Function& function) { return refuses(function.check->steps); }

// Replay runs the inputs of one target.
class Replay {
 public:
    Replay(const Target& target, const Options& options, rules::Counts& counts, rules::Counts& further)
        : options_(options), counts_(counts), further_(further), judge_(target)
    {
        for (const auto& parent : options.folders) {
            const auto folder = parent / target.name;
            if (!std::filesystem::is_directory(folder)) continue;
            std::set<std::filesystem::path> files;
            for (const auto& file : std::filesystem::directory_iterator(folder)) files.insert(file.path());
            for (const auto& file : files) kept_.push_back(read_file(file));
        }
    }

    void run(const Function& function, const std::vector<vectors::Row>& rows, std::size_t random,
             std::size_t refusals)
    {
        for (const vectors::Row& row : rows) {
            if (row.given.function != &function) continue;
            const auto input = judge_.encode(function, row.given.values);
            if (input && !judge_.decodes(*input, function, row.given.values))
                tally_.fail("a call of " + std::string(function.name) + " comes out as another\n");
        }
        std::vector<std::string> inputs = seeds(judge_, function, rows);
        for (const std::string& input : kept_) {
            if (&judge_.function(input) == &function) inputs.push_back(input);
        }
        if (inputs.empty()) throw std::runtime_error("no inputs for " + std::string(function.name));
        random += inputs.size();
        Aim aim(*rules::find(function.name), std::move(inputs), options_.seed);
        const auto next = [&] {
            const std::string& input = aim.next();
            run(input);
            aim.learn(input, counts_);
        };
        for (std::size_t i = 0; i < random; ++i) next();
        if (!may_refuse(function)) return;
        // A check that refuses less than one call in a hundred is one that the inputs do not suit.
        const std::size_t wanted = refusals == 0 ? 0 : judge_.refused() + refusals;
        for (std::size_t i = 0; i < 100 * refusals && judge_.refused() < wanted; ++i) next();
        if (judge_.refused() < wanted)
            tally_.fail("too few refusals by " + std::string(function.name) + "\n");
    }

    Tally tally()
    {
        tally_.calls = judge_.calls() / 2;  // each is made with both edges
        tally_.refused = judge_.refused();
        tally_.unproven = judge_.follower().unproven();
        return std::move(tally_);
    }

 private:
    void run(const std::string& input)
    {
        const auto& builds = oracle::builds_with_channels();
        const rules::Build& build = builds[turn_++ % builds.size()];
        const oracle::Driver driver(build.channels.value());
        switch (judge_.run(input, build, &counts_, &further_)) {
            case Verdict::kAgreed:
                ++tally_.agreed;
                break;
            case Verdict::kOutside:
                ++tally_.outside;
                break;
            case Verdict::kDiffered:
                tally_.fail(judge_.fault());
                break;
        }
        if (driver.has_left_its_list()) tally_.fail("the list of channels is left\n");
    }

    const Options& options_;
    rules::Counts& counts_;
    rules::Counts& further_;
    Judge judge_;
    std::vector<std::string> kept_;
    std::size_t turn_ = 0;
    Tally tally_;
};

// require_targets throws when a function stands in none.
void require_targets()
{
    for (const catalogue::Function& function : catalogue::functions()) {
        const auto has = [&](const Target& target) { return target.has(function); };
        if (!std::ranges::any_of(targets(), has)) {
            throw std::logic_error("no target has " + std::string(function.name));
        }
    }
}

std::vector<const Function*> chosen(const Target& target, const Options& options)
{
    std::vector<const Function*> result;
    for (const Function& function : catalogue::functions()) {
        if (target.has(function) && (options.check.empty() || function.name == options.check))
            result.push_back(&function);
    }
    return result;
}

// are_met tells whether nothing is below the floor, and what is met least.
bool are_met(const rules::Counts& counts, const rules::Counts& further, const Options& options)
{
    std::vector<oracle::Counted> rows = oracle::table(counts);
    const std::vector<oracle::Counted> more = oracle::table(further);
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i].times += more[i].times;
    if (!options.with.empty()) oracle::add_table(options.with, rows);
    if (!options.table.empty()) oracle::write_table(options.table, rows);
    if (!options.check.empty())
        std::erase_if(rows,
                      [&](const oracle::Counted& row) { return !row.what.starts_with(options.check + " "); });
    std::ranges::sort(rows, {}, &oracle::Counted::times);
    const auto below =
        std::ranges::lower_bound(rows, options.floor, {}, &oracle::Counted::times) - rows.begin();
    std::printf("%zu steps and conditions, %td met less than %llu times\n", rows.size(), below,
                static_cast<unsigned long long>(options.floor));
    constexpr std::ptrdiff_t kMostTold = 50;
    for (std::ptrdiff_t i = 0; i < std::min(below, kMostTold); ++i) {
        const oracle::Counted& row = rows[static_cast<std::size_t>(i)];
        std::printf("%12llu %s\n", static_cast<unsigned long long>(row.times), row.what.c_str());
    }
    return below == 0;
}

bool run_all(const Options& options)
{
    const auto vectors = vectors::read_cases();
    require_targets();
    rules::Counts counts;
    rules::Counts further;
    bool good = true;
    const std::size_t functions = options.check.empty() ? catalogue::functions().size() : 1;
    const auto refusing = static_cast<std::size_t>(std::ranges::count_if(catalogue::functions(), may_refuse));
    const std::size_t refusals_of_each =
        options.check.empty() ? (options.refusals + refusing - 1) / refusing : options.refusals;
    std::size_t inputs = 0;
    std::size_t refused = 0;
    std::size_t calls = 0;
    for (const Target& target : targets()) {
        const auto all = chosen(target, options);
        if (all.empty()) continue;
        const auto begin = std::chrono::steady_clock::now();
        Tally tally;
        {
            Replay replay(target, options, counts, further);
            for (const Function* function : all)
                replay.run(*function, vectors, options.random / functions, refusals_of_each);
            tally = replay.tally();
        }
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
        std::fputs(tally.text.c_str(), stdout);
        std::printf("%-12.*s %9zu agreed %8zu outside %4zu failed %10zu calls %9.0f/s\n",
                    static_cast<int>(target.name.size()), target.name.data(), tally.agreed, tally.outside,
                    tally.failures, tally.calls, static_cast<double>(tally.calls) / took.count());
        std::fflush(stdout);
        good = good && tally.failures == 0;
        inputs += tally.agreed + tally.outside + tally.failures;
        refused += tally.refused;
        calls += tally.calls;
        if (options.floor == 0) continue;
        for (const std::string& id : tally.unproven) std::printf("not brought back: %s\n", id.c_str());
        good = good && tally.unproven.empty();
    }
    if (inputs == 0) throw std::invalid_argument("no function " + options.check);
    std::printf("%zu inputs, %zu refused, %s, %zu calls compared\n", inputs, refused,
                good ? "each with an id and a sentence" : "with failures", calls);
    return are_met(counts, further, options) && good;
}

}  // namespace

}  // namespace ostrel::fuzz

int main(int argc, char** argv)
{
    try {
        return ostrel::fuzz::run_all(ostrel::fuzz::read_options(argc, argv)) ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "fuzz_replay: %s\n", error.what());
        return 2;
    }
}

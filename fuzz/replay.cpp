// fuzz_replay runs the calls in the vectors, kept inputs and random inputs without a fuzzing engine.

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

namespace ostrel::fuzz {

using catalogue::Function;

namespace {

// Totals are printed at the end, because the standard streams are captured while a fuzzer exists.
struct Totals {
    std::size_t agreed = 0;
    std::size_t outside = 0;
    std::size_t failures = 0;
    std::size_t refused = 0;
    std::size_t calls = 0;  // compared with the library, including those made to follow reasons
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

class Replay {
 public:
    Replay(std::string_view family, const ReplayOptions& options, rules::Counts& counts,
           rules::Counts& further)
        : options_(options), counts_(counts), further_(further), fuzzer_(family)
    {
        for (const auto& parent : options.folders) {
            const auto folder = parent / family;
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
            const auto input = fuzzer_.encode(function, row.given.values);
            if (input && !fuzzer_.decodes(*input, function, row.given.values))
                totals_.fail("the input for a call of " + std::string(function.name) +
                             " decodes to another call\n");
        }
        std::vector<std::string> inputs = seeds(fuzzer_, function, rows);
        for (const std::string& input : kept_) {
            if (&fuzzer_.function(input) == &function) inputs.push_back(input);
        }
        if (inputs.empty()) throw std::runtime_error("no inputs for " + std::string(function.name));
        random += inputs.size();
        Aim aim(*function.check, std::move(inputs), options_.seed);
        const auto next = [&] {
            const std::string& input = aim.next();
            run(input);
            aim.learn(input, counts_);
        };
        for (std::size_t i = 0; i < random; ++i) next();
        if (!may_refuse(function)) return;
        // If a check refuses fewer than one input in a hundred, the inputs are unsuitable for it.
        const std::size_t wanted = refusals == 0 ? 0 : fuzzer_.refused() + refusals;
        for (std::size_t i = 0; i < 100 * refusals && fuzzer_.refused() < wanted; ++i) next();
        if (fuzzer_.refused() < wanted)
            totals_.fail("too few refusals by " + std::string(function.name) + "\n");
    }

    Totals totals()
    {
        totals_.calls = fuzzer_.calls() / 2;  // each call was made twice, once for each edge
        totals_.refused = fuzzer_.refused();
        totals_.unproven = fuzzer_.follower().unproven();
        return std::move(totals_);
    }

 private:
    void run(const std::string& input)
    {
        const auto& builds = oracle::builds_with_channels();
        const rules::Build& build = builds[turn_++ % builds.size()];
        const oracle::Driver driver(build.channels.value());
        switch (fuzzer_.run(input, build, &counts_, &further_)) {
            case RunResult::kAgreed:
                ++totals_.agreed;
                break;
            case RunResult::kOutside:
                ++totals_.outside;
                break;
            case RunResult::kDiffered:
                totals_.fail(fuzzer_.fault());
                break;
        }
        if (driver.has_left_its_list()) totals_.fail("the channel list was not deleted\n");
    }

    const ReplayOptions& options_;
    rules::Counts& counts_;
    rules::Counts& further_;
    Fuzzer fuzzer_;
    std::vector<std::string> kept_;
    std::size_t turn_ = 0;
    Totals totals_;
};

std::vector<const Function*> chosen(std::string_view family, const ReplayOptions& options)
{
    std::vector<const Function*> result;
    for (const Function& function : catalogue::functions()) {
        if (function.family == family && (options.check.empty() || function.name == options.check))
            result.push_back(&function);
    }
    return result;
}

// are_met prints how many counts are below the floor and lists the lowest of them. It returns true if there
// are none. It also writes the table of counts, if options name a file for it.
bool are_met(const rules::Counts& counts, const rules::Counts& further, const ReplayOptions& options)
{
    std::vector<oracle::StepCount> rows = oracle::table(counts);
    const std::vector<oracle::StepCount> more = oracle::table(further);
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i].times += more[i].times;
    if (!options.with.empty()) oracle::add_table(options.with, rows);
    if (!options.table.empty()) oracle::write_table(options.table, rows);
    if (!options.check.empty())
        std::erase_if(
            rows, [&](const oracle::StepCount& row) { return !row.what.starts_with(options.check + " "); });
    std::ranges::sort(rows, {}, &oracle::StepCount::times);
    const auto below =
        std::ranges::lower_bound(rows, options.floor, {}, &oracle::StepCount::times) - rows.begin();
    std::printf("%zu steps and conditions, %td met fewer than %llu times\n", rows.size(), below,
                static_cast<unsigned long long>(options.floor));
    constexpr std::ptrdiff_t kMostTold = 50;
    for (std::ptrdiff_t i = 0; i < std::min(below, kMostTold); ++i) {
        const oracle::StepCount& row = rows[static_cast<std::size_t>(i)];
        std::printf("%12llu %s\n", static_cast<unsigned long long>(row.times), row.what.c_str());
    }
    return below == 0;
}

// require_families throws for a folder that is not named after a family, because its inputs would never run.
void require_families(const std::vector<std::filesystem::path>& folders)
{
    const std::vector<std::string_view> families = catalogue::families();
    for (const auto& parent : folders) {
        for (const auto& folder : std::filesystem::directory_iterator(parent)) {
            if (std::ranges::find(families, folder.path().filename().string()) == families.end())
                throw std::invalid_argument("not a family: " + folder.path().string());
        }
    }
}

bool run_all(const ReplayOptions& options)
{
    require_families(options.folders);
    const auto vectors = vectors::read_cases();
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
    for (const std::string_view family : catalogue::families()) {
        const auto all = chosen(family, options);
        if (all.empty()) continue;
        const auto begin = std::chrono::steady_clock::now();
        Totals totals;
        {
            Replay replay(family, options, counts, further);
            for (const Function* function : all)
                replay.run(*function, vectors, options.random / functions, refusals_of_each);
            totals = replay.totals();
        }
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
        std::fputs(totals.text.c_str(), stdout);
        std::printf("%-12.*s %9zu agreed %8zu outside %4zu failed %10zu calls %9.0f/s\n",
                    static_cast<int>(family.size()), family.data(), totals.agreed, totals.outside,
                    totals.failures, totals.calls, static_cast<double>(totals.calls) / took.count());
        std::fflush(stdout);
        good = good && totals.failures == 0;
        inputs += totals.agreed + totals.outside + totals.failures;
        refused += totals.refused;
        calls += totals.calls;
        if (options.floor == 0) continue;
        for (const std::string& id : totals.unproven)
            std::printf("never refused for the same reason one step short of the advice: %s\n", id.c_str());
        good = good && totals.unproven.empty();
    }
    if (inputs == 0) throw std::invalid_argument("no such function: " + options.check);
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

// fuzz_replay judges the calls of the vectors, kept inputs and random ones, without an engine.
//
//   fuzz_replay [--random COUNT] [--seed NUMBER] [FOLDER...]
//
// A FOLDER holds a folder of inputs for each target. COUNT inputs are made out of all of them. Exits with 1 when
// the library and the model differ on any.

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>

#include "fuzz/judge.h"
#include "fuzz/mutator.h"
#include "tests/support/vectors.h"

namespace ostrel::fuzz {

namespace {

struct Options {
    std::size_t random = 0;
    std::uint64_t seed = 1;
    std::vector<std::filesystem::path> folders;
};

// Tally is printed at the end: the standard streams are captured as long as a judge lives.
struct Tally {
    std::size_t calls = 0;
    std::size_t outside = 0;
    std::size_t failures = 0;
    std::string text;

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

void run(Judge& judge, std::string_view input, Tally& tally)
{
    switch (judge.run(input)) {
        case Verdict::kAgreed:
            ++tally.calls;
            break;
        case Verdict::kOutside:
            ++tally.outside;
            break;
        case Verdict::kDiffered:
            tally.fail(judge.difference());
            break;
    }
}

std::vector<std::string> gather(Judge& judge, const Target& target, const std::vector<tests::Row>& vectors,
                                const Options& options, Tally& tally)
{
    std::vector<std::string> inputs;
    for (const tests::Row& row : vectors) {
        const catalogue::Case& given = row.given;
        auto input = judge.encode(*given.function, given.values);
        if (!input) continue;
        if (!judge.decodes(*input, *given.function, given.values)) {
            tally.fail("a call of " + std::string(given.function->name) + " comes out as another\n");
        }
        inputs.push_back(std::move(*input));
    }
    for (const auto& parent : options.folders) {
        const auto folder = parent / target.name;
        if (!std::filesystem::is_directory(folder)) continue;
        std::set<std::filesystem::path> files;
        for (const auto& file : std::filesystem::directory_iterator(folder)) files.insert(file.path());
        for (const auto& file : files) inputs.push_back(read_file(file));
    }
    return inputs;
}

Tally replay(const Target& target, const std::vector<tests::Row>& vectors, const Options& options)
{
    Tally tally;
    Judge judge(target);
    std::vector<std::string> inputs = gather(judge, target, vectors, options, tally);
    if (inputs.empty()) throw std::runtime_error("no inputs for " + std::string(target.name));
    for (const std::string& input : inputs) run(judge, input, tally);
    Mutator mutator(std::move(inputs), options.seed);
    for (std::size_t i = 0; i < options.random / targets().size(); ++i) run(judge, mutator.next(), tally);
    return tally;
}

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

template <typename T>
T read_option(const char* text)
{
    T value{};
    if (std::from_chars(text, text + std::strlen(text), value).ec != std::errc()) {
        throw std::invalid_argument(std::string("no number: ") + text);
    }
    return value;
}

Options read_options(int argc, char** argv)
{
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--random" && i + 1 < argc) {
            options.random = read_option<std::size_t>(argv[++i]);
        } else if (argument == "--seed" && i + 1 < argc) {
            options.seed = read_option<std::uint64_t>(argv[++i]);
        } else {
            options.folders.emplace_back(argument);
        }
    }
    return options;
}

bool run_all(const Options& options)
{
    const auto vectors = tests::read_cases();
    require_targets();
    bool good = true;
    for (const Target& target : targets()) {
        const auto begin = std::chrono::steady_clock::now();
        const Tally tally = replay(target, vectors, options);
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
        std::fputs(tally.text.c_str(), stdout);
        std::printf("%-12.*s %8zu agreed %8zu outside %4zu failed %9.0f/s\n",
                    static_cast<int>(target.name.size()), target.name.data(), tally.calls, tally.outside,
                    tally.failures, static_cast<double>(tally.calls + tally.outside) / took.count());
        good = good && tally.failures == 0;
    }
    return good;
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

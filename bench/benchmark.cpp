// Times every contender on every shape of its family's values, as benchmarks named family/shape/contender.
// The program accepts Google Benchmark's options.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <iostream>
#include <map>
#include <memory>

#include "bench/contender.h"

using namespace ostrel::bench;

namespace {

// allocations counts the heap allocations of the program and of every library that it uses.
std::size_t allocations = 0;

}  // namespace

// glibc exports its own allocator under these names for programs that wrap it.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void* __libc_calloc(std::size_t members, std::size_t size);
extern "C" void* __libc_realloc(void* block, std::size_t size);
// NOLINTEND(bugprone-reserved-identifier)

extern "C" void* malloc(std::size_t size)
{
    ++allocations;
    return __libc_malloc(size);
}

extern "C" void* calloc(std::size_t members, std::size_t size)
{
    ++allocations;
    return __libc_calloc(members, size);
}

extern "C" void* realloc(void* block, std::size_t size)
{
    ++allocations;
    return __libc_realloc(block, size);
}

namespace {

// corpus creates a corpus when it is first needed, because a run may need only a few of them.
const Corpus& corpus(const std::string& name, Shape shape)
{
    static std::map<std::pair<std::string, Shape>, std::unique_ptr<const Corpus>> all;
    std::unique_ptr<const Corpus>& entry = all[{name, shape}];
    if (!entry) entry = std::make_unique<const Corpus>(family(name), shape);
    return *entry;
}

// A contender that refuses a valid value ends the program, because its time would not be comparable.
void require_same_verdict(const Contender& contender, const Corpus& values, std::size_t accepted)
{
    if (accepted == values.values().size()) return;
    std::cerr << contender.name << " accepts " << accepted << " of " << values.values().size()
              << " valid values of " << contender.family << '\n';
    std::exit(1);
}

void run(benchmark::State& state, const Contender& contender, Shape shape)
{
    const Corpus& values = corpus(contender.family, shape);
    const std::size_t allocations_before = allocations;
    const std::size_t accepted = contender.pass(values);
    const std::size_t allocated = allocations - allocations_before;
    if (shape == Shape::kValid) require_same_verdict(contender, values, accepted);

    for (auto _ : state) benchmark::DoNotOptimize(contender.pass(values));

    const auto count = static_cast<double>(values.values().size());
    const auto passes = static_cast<std::int64_t>(state.iterations());
    state.SetItemsProcessed(passes * static_cast<std::int64_t>(count));
    state.SetBytesProcessed(passes * static_cast<std::int64_t>(values.bytes()));
    state.counters["allocations"] = static_cast<double>(allocated) / count;
    state.counters["values"] = count;
}

}  // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    const Contenders all = contenders();
    for (const Contender& each : all) {
        for (const Shape shape : kShapes) {
            const std::string name = each.family + '/' + name_of(shape) + '/' + each.name;
            benchmark::RegisterBenchmark(name.c_str(), run, each, shape);
        }
    }
    benchmark::RunSpecifiedBenchmarks();
}

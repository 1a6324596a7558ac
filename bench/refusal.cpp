// Times a refusal that prints, and its two components: formatting a line and flushing every stream.
#include <benchmark/benchmark.h>
#include <ostrel/check.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdio>

namespace {

// print calls the same functions as the library's refusals.
[[gnu::noinline, gnu::format(printf, 1, 2)]] void print(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    std::vprintf(format, arguments);
    va_end(arguments);
}

constexpr char kLine[] = "Error in %s: The transport protocol:%s is error\n";
constexpr char kText[] = "Error in PARAM_check_transport_protocol: The transport protocol:SCTP is error\n";

void accept(benchmark::State& state)
{
    for (auto _ : state) benchmark::DoNotOptimize(PARAM_check_transport_protocol("UDP"));
}

void refuse(benchmark::State& state)
{
    for (auto _ : state) benchmark::DoNotOptimize(PARAM_check_transport_protocol("SCTP"));
}

void format_and_flush(benchmark::State& state)
{
    for (auto _ : state) {
        print(kLine, "PARAM_check_transport_protocol", "SCTP");
        std::fflush(nullptr);
    }
}

// format_only does not flush, so the buffer is written only once in about fifty lines.
void format_only(benchmark::State& state)
{
    for (auto _ : state) print(kLine, "PARAM_check_transport_protocol", "SCTP");
    std::fflush(nullptr);
}

void flush_nothing(benchmark::State& state)
{
    for (auto _ : state) std::fflush(nullptr);
}

void write_only(benchmark::State& state)
{
    for (auto _ : state) benchmark::DoNotOptimize(write(STDOUT_FILENO, kText, sizeof kText - 1));
}

BENCHMARK(accept);
BENCHMARK(refuse);
BENCHMARK(format_and_flush);
BENCHMARK(format_only);
BENCHMARK(flush_nothing);
BENCHMARK(write_only);

}  // namespace

BENCHMARK_MAIN();

// The fuzzer for the engines that call LLVMFuzzerTestOneInput: libFuzzer and AFL++. The environment variable
// OSTREL_FUZZ_FAMILY names the family of checks.

#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "fuzz/fuzzer.h"
#include "oracle/counts.h"
#include "oracle/library.h"

namespace {

// The fuzzer is never destroyed, because it must also capture the output of the last call.
ostrel::fuzz::Fuzzer& fuzzer()
{
    static auto* const the_fuzzer = [] {
        const char* const family = std::getenv("OSTREL_FUZZ_FAMILY");
        return new ostrel::fuzz::Fuzzer(family == nullptr ? "" : family);
    }();
    return *the_fuzzer;
}

// CountsFile writes the counts when the process ends, if OSTREL_FUZZ_TABLE names a file.
class CountsFile {
 public:
    ~CountsFile()
    {
        std::vector<StepCount> rows = ostrel::oracle::table(counts);
        std::erase_if(rows, [](const StepCount& row) { return row.times == 0; });
        if (file_ != nullptr) ostrel::oracle::write_table(file_, rows);
    }

    ostrel::rules::Counts counts;

 private:
    using StepCount = ostrel::oracle::StepCount;

    const char* file_ = std::getenv("OSTREL_FUZZ_TABLE");
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    static CountsFile file;
    if (fuzzer().run(input, ostrel::oracle::library_build(), &file.counts, &file.counts) !=
        ostrel::fuzz::RunResult::kDiffered)
        return 0;
    const std::string& fault = fuzzer().fault();
    // The standard error stream is captured, but its file descriptor is not.
    (void)!write(STDERR_FILENO, fault.data(), fault.size());
    std::abort();
}

// The library allocates nothing, so the sanitizer does not need to track allocations.
extern "C" const char* __asan_default_options();
const char* __asan_default_options()
{
    return "malloc_context_size=0:quarantine_size_mb=0:thread_local_quarantine_size_kb=0:detect_leaks=0";
}

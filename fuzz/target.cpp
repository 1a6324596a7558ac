// One fuzzer, for the engines that call LLVMFuzzerTestOneInput: libFuzzer and AFL++.

#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "fuzz/judge.h"
#include "oracle/counts.h"
#include "oracle/library.h"

namespace {

// The judge lives as long as the process: what it captures must not come to an end before the last call.
ostrel::fuzz::Judge& judge()
{
    static auto* const the_judge = new ostrel::fuzz::Judge(*ostrel::fuzz::find_target(OSTREL_FUZZ_TARGET));
    return *the_judge;
}

// Counts are written when the process ends, where OSTREL_FUZZ_TABLE names a file for them.
class Table {
 public:
    ~Table()
    {
        std::vector<Counted> rows = ostrel::oracle::table(counts);
        std::erase_if(rows, [](const Counted& row) { return row.times == 0; });
        if (file_ != nullptr) ostrel::oracle::write_table(file_, rows);
    }

    ostrel::rules::Counts counts;

 private:
    using Counted = ostrel::oracle::Counted;

    const char* file_ = std::getenv("OSTREL_FUZZ_TABLE");
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    static Table table;
    if (judge().run(input, ostrel::oracle::library_build(), &table.counts, &table.counts) !=
        ostrel::fuzz::Verdict::kDiffered)
        return 0;
    const std::string& fault = judge().fault();
    // Standard error is captured.
    (void)!write(STDERR_FILENO, fault.data(), fault.size());
    std::abort();
}

// The library allocates nothing, so what the sanitizer would remember of allocations is of no use here.
extern "C" const char* __asan_default_options();
const char* __asan_default_options()
{
    return "malloc_context_size=0:quarantine_size_mb=0:thread_local_quarantine_size_kb=0:detect_leaks=0";
}

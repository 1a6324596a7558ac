// Memory that a worker shares with its supervisor, so that the worker's results outlive it.
#ifndef OSTREL_TOOLS_BATCH_ARENA_H
#define OSTREL_TOOLS_BATCH_ARENA_H

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "batch/log.h"
#include "calling/capture.h"
#include "read/cutter.h"
#include "read/reader.h"
#include "read/reading.h"
#include "read/record.h"

namespace ostrel::tool {

inline constexpr std::size_t kChunk = std::size_t{256} << 10;
inline constexpr std::size_t kOutput = std::size_t{256} << 20;

// Progress describes how far a worker has processed its chunk.
struct Progress {
    std::size_t read = 0;  // bytes of input that have been processed
    std::uint64_t line = 0;
    // The line at which to resume: that of the entry, or of the current gateway if the entry has several.
    std::uint64_t next = 0;
    std::size_t part = 0;     // number of records already read from the current entry
    bool is_within = false;   // only some of a gateway's records have been judged
    std::size_t written = 0;  // bytes of output
    std::uint64_t cases = 0;  // cases with results in the output
    std::uint64_t refused = 0;
    Log::Size log;

    // advance moves past a record and, if the entry contains no more records, past the entry.
    void advance(std::string_view text, bool has_more, const Record& record)
    {
        const bool ends_gateway = has_more && record.kind == Record::Kind::kGatewayEnd;
        if (ends_gateway) next = line + record.end;
        is_within = has_more && !ends_gateway;
        part = has_more ? part + 1 : 0;
        if (has_more) return;
        read += text.size();
        line += count_lines(text);
        next = line;
    }
};

// The whole Arena is mapped, but only pages that have been written to occupy memory.
class Arena {
 public:
    // commit is atomic: whenever the worker ends, progress() returns the previous or the new progress.
    void commit(const Progress& progress)
    {
        const std::uint64_t next = commits_.load(std::memory_order_relaxed) + 1;
        progress_[next & 1] = progress;
        commits_.store(next, std::memory_order_release);
    }

    [[nodiscard]] std::uint64_t commits() const { return commits_.load(std::memory_order_acquire); }
    [[nodiscard]] const Progress& progress() const { return progress_[commits() & 1]; }

    std::size_t file = 0;  // index of the file that the input comes from
    FileFormat format = FileFormat::kWords;
    std::size_t preamble_size = 0;  // bytes of the file's preamble, with which the input begins
    std::size_t input_size = 0;
    std::array<char, 2 * kLongestText + kChunk> input;
    std::array<char, kOutput> output;
    calling::Prints prints;
    Log log;  // the records judged since the log was last taken

    // ask_to_stop makes the worker stop after the current record. Only the supervisor calls it.
    void ask_to_stop() { is_to_stop_.store(true, std::memory_order_relaxed); }
    [[nodiscard]] bool is_to_stop() const { return is_to_stop_.load(std::memory_order_relaxed); }

    [[nodiscard]] std::string_view preamble() const { return {input.data(), preamble_size}; }

    [[nodiscard]] std::string_view rest_of_input() const
    {
        return std::string_view(input.data(), input_size).substr(progress().read);
    }

 private:
    std::atomic<std::uint64_t> commits_;
    std::atomic<bool> is_to_stop_;
    std::array<Progress, 2> progress_;
};

struct Unmap {
    void operator()(Arena* arena) const;
};

// map_arena creates an arena in shared memory. Throws std::system_error.
std::unique_ptr<Arena, Unmap> map_arena();

// release_pages returns the pages between byte kept and byte used of an arena's array to the system.
void release_pages(char* begin, std::size_t used, std::size_t kept);

// release_prints does the same for the arrays that contain what the last call printed.
void release_prints(calling::Prints& prints);

}  // namespace ostrel::tool

#endif

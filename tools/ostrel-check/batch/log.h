// A worker's log of the records that it has judged, in memory that it shares with its supervisor.
#ifndef OSTREL_TOOLS_BATCH_LOG_H
#define OSTREL_TOOLS_BATCH_LOG_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "summary/row.h"

namespace ostrel::tool {

// Log contains no pointers. Committed entries do not change until the supervisor has taken them, so they
// remain intact no matter when the worker ends.
struct Log {
    static constexpr std::size_t kMostRecords = std::size_t{1} << 16;
    static constexpr std::size_t kRows = std::size_t{1} << 20;
    static constexpr std::size_t kLongestRow = std::size_t{16} << 10;
    static constexpr std::uint32_t kNoRow = 0xFFFFFFFF;

    // Entry describes a record, a line without a record, or the end of a gateway.
    struct Entry {
        std::uint32_t row = kNoRow;
        std::uint32_t lines = 0;     // number of input lines that end with the entry
        std::uint32_t written = 0;   // bytes of output up to the end of the entry's result
        GatewayCounts gateway = {};  // all zero unless this is the end of a gateway
    };

    // Size is the part of the log that is in use.
    struct Size {
        std::uint32_t entries = 0;
        std::uint32_t rows = 0;
        std::uint32_t bytes = 0;  // bytes that the rows occupy
    };

    std::array<Entry, kMostRecords> entries;
    std::array<char, kRows> rows;

    // has_room returns whether two entries fit: the worker's next, and the supervisor's for the record that
    // ended the worker. If is_half_full returns true, the worker stops where the batch can next be resumed.
    static bool has_room(const Size& size)
    {
        return size.entries + 2 <= kMostRecords && size.bytes + 2 * kLongestRow <= kRows;
    }
    static bool is_half_full(const Size& size)
    {
        return size.entries >= kMostRecords / 2 || size.bytes >= kRows / 2;
    }
};

void for_each_row(const Log& log, const Log::Size& size, const std::function<void(const SummaryRow&)>& visit);

// LogWriter remembers which rows the log contains, and which examples it has written.
class LogWriter {
 public:
    explicit LogWriter(Log& log) : log_(&log) {}

    // begin forgets the rows of the log, because the supervisor has taken them.
    void begin() { ++round_; }

    // add adds a record. It calls example only for the first record of each kind.
    void add(Log::Size& size, const SummaryRow& row, std::uint32_t lines, std::size_t written,
             const std::function<std::string()>& example);

    // add_end adds a line without a record, or the end of a gateway.
    void add_end(Log::Size& size, std::uint32_t lines, std::size_t written, const GatewayCounts& gateway);

 private:
    struct Known {
        std::uint64_t round = 0;
        std::uint32_t row = 0;
    };

    using KnownRow = std::pair<const std::string, Known>;

    std::uint32_t append(Log::Size& size, SummaryRow row);

    Log* log_;
    std::uint64_t round_ = 1;
    std::unordered_map<std::string, Known> known_;
    std::array<KnownRow*, 256> last_known_{};  // each check's last row, which is often needed again
    std::string key_;
};

}  // namespace ostrel::tool

#endif

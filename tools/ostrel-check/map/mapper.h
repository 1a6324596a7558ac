// Derives calls to checks from a gateway's parameters, according to a map.
#ifndef OSTREL_TOOLS_MAP_MAPPER_H
#define OSTREL_TOOLS_MAP_MAPPER_H

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "map/map.h"
#include "read/record.h"

namespace ostrel::tool {

// Lack is the reason why a call cannot be made, if the cause is not the value itself.
struct Lack {
    std::string_view id;                    // "missing_sibling" or "no_word"; empty if nothing is missing
    std::string_view argument;              // the argument that has no value
    std::string parameter;                  // the parameter that its value should come from
    std::string_view found;                 // for no_word, the value that has no translation
    std::vector<std::string_view> allowed;  // for no_word, the values that have one
    std::string text;                       // the reason as a sentence
};

// DumpRow is a parameter of a gateway. Its views must be valid until the next row is taken.
struct DumpRow {
    std::string_view path;
    std::string_view value;
    std::uint64_t line = 0;
    std::span<const Member> members = {};  // members that results repeat
};

// add_members adds the members of a row to a record, and the row's path as "parameter".
void add_members(const DumpRow& row, Record& record);

// Mapper takes the rows of one gateway at a time. It immediately derives the calls that need only one
// parameter, and reports parameters without a check. At the end of the gateway, it derives the calls that
// also need other parameters, in the order of their rows. It stores the data of only one gateway.
class Mapper {
 public:
    explicit Mapper(const Map& map) : map_(&map) {}

    void begin_gateway();
    void take(const DumpRow& row);
    void end_gateway();

    // next stores the next call in record, or returns false if another row is needed. The record is valid
    // until next is called again. If something is missing, lack describes it and the record has no items.
    bool next(Record& record, Lack& lack);

    [[nodiscard]] const GatewayCounts& counts() const { return counts_; }

 private:
    using Instances = std::pmr::vector<std::string_view>;
    struct Deferred {
        std::size_t entry;
        DumpRow row;
        Instances instances;
        std::pmr::vector<Member> members;
    };

    bool next_of_row(Record& record, Lack& lack);
    std::string_view keep(std::string_view text);
    void defer(std::size_t entry);
    bool is_first(const MapEntry& entry, std::span<const std::string_view> instances);
    void make(const MapEntry& entry, const DumpRow& row, std::span<const std::string_view> instances,
              Record& record, Lack& lack);
    bool add_item(const MapEntry& entry, std::size_t argument, const DumpRow& row,
                  std::span<const std::string_view> instances, Record& record, Lack& lack);
    static bool add_text(const Source& source, std::string_view value, std::string_view path, Record& record,
                         Lack& lack);
    void add_members(const MapEntry& entry, const DumpRow& row, Record& record);

    const Map* map_;
    DumpRow row_;
    std::string general_;
    std::vector<std::string_view> instances_;
    std::vector<std::string_view> own_instances_;        // those at {i} in the current entry's path
    const std::vector<std::size_t>* entries_ = nullptr;  // entries for the current row
    std::size_t next_entry_ = 0;
    enum class Use { kNone, kSibling, kSkipped, kJudged };
    Use use_ = Use::kJudged;  // how the current row has been used so far
    GatewayCounts counts_;
    std::pmr::monotonic_buffer_resource memory_;
    // The values of parameters that the calls for other parameters may need.
    std::unordered_map<std::string_view, std::string_view> values_;
    std::vector<Deferred> deferred_;
    std::size_t next_deferred_ = 0;
    bool is_complete_ = false;
    std::unordered_set<std::string> made_;

    std::string path_;
    std::string paths_;  // content of the member that names the siblings
};

}  // namespace ostrel::tool

#endif

#include "map/unmapped.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <vector>

#include "map/map.h"
#include "write/show.h"

namespace ostrel::tool {

namespace {

constexpr std::size_t kLongestShown = 1000;

}  // namespace

std::string_view why_unmapped(const Map& map, std::string_view path)
{
    const auto found = std::ranges::find(map.not_mapped, path, &NotMapped::path);
    return found == map.not_mapped.end() ? std::string_view() : found->because;
}

void SplitGateways::begin(std::string_view gateway)
{
    if (gateway.empty()) return;
    const std::size_t hash = std::hash<std::string_view>()(gateway) | 1U;
    std::size_t& known = known_.at((hash >> 1U) % known_.size());
    const bool has_returned = known == hash;
    known = hash;
    if (has_returned && count_++ == 0) first_ = gateway;
}

void Unmapped::add(const DumpCounts& counts)
{
    counts_.gateways += counts.gateways;
    counts_.parameters += counts.parameters;
    counts_.skipped += counts.skipped;
    counts_.repeated += counts.repeated;
    counts_.split += counts.split;
}

void Unmapped::add(std::string_view path, std::uint64_t count, std::string_view because)
{
    const bool is_full = paths_.size() == kMostPaths;
    auto found = paths_.find(path);
    if (found == paths_.end()) {
        if (is_full && path > paths_.rbegin()->first) {
            others_ += count;
            return;
        }
        found = paths_.emplace(path, Path()).first;
    }
    found->second.count += count;
    if (found->second.because.empty()) found->second.because = because;
    if (paths_.size() <= kMostPaths) return;
    const auto last = std::prev(paths_.end());
    others_ += last->second.count;
    paths_.erase(last);
}

void Unmapped::note_split(std::string_view first)
{
    if (first_split_.empty()) first_split_ = first;
}

void Unmapped::add(const Unmapped& other)
{
    has_map_ = has_map_ || other.has_map_;
    add(other.counts_);
    for (const auto& [path, of_path] : other.paths_) add(path, of_path.count, of_path.because);
    add_others(other.others_);
    note_split(other.first_split_);
}

std::vector<const Unmapped::Paths::value_type*> Unmapped::sorted() const
{
    std::vector<const Paths::value_type*> rows;
    for (const auto& row : paths_) rows.push_back(&row);
    std::ranges::stable_sort(rows, std::ranges::greater(), [](const auto* row) { return row->second.count; });
    return rows;
}

std::uint64_t Unmapped::count() const
{
    std::uint64_t sum = others_;
    for (const auto& [path, of_path] : paths_) sum += of_path.count;
    return sum;
}

std::string Unmapped::text() const
{
    std::string text = counted(counts_.parameters, "parameter of ", "parameters of ") +
                       counted(counts_.gateways, "gateway", "gateways");
    const std::uint64_t unmapped = count();
    if (unmapped > 0) text += "; the map has no check for " + std::to_string(unmapped) + ":";
    text += '\n';
    for (const auto* row : sorted()) {
        const std::string times = std::to_string(row->second.count);
        text.append(8 - std::min<std::size_t>(7, times.size()), ' ').append(times).append("  ");
        append_escaped(text, row->first, kLongestShown);
        if (!row->second.because.empty()) text.append(": ").append(row->second.because);
        text += '\n';
    }
    if (others_ > 0) text += counted(others_, "parameter", "parameters") + " with other paths\n";
    if (counts_.skipped > 0)
        text += counted(counts_.skipped, "parameter", "parameters") +
                " skipped because of uninformative values\n";
    if (counts_.repeated > 0) {
        text += counted(counts_.repeated, "repeated parameter", "repeated parameters") +
                ": calls that need one used its last value in the gateway; "
                "use --group to separate the gateways of a file\n";
    }
    if (counts_.split == 0) return text;
    text += "The rows of " + counted(counts_.split, "gateway", "gateways") + " are not adjacent";
    if (!first_split_.empty()) {
        text += ", such as those of \"";
        append_escaped(text, first_split_, kLongestShown);
        text += '"';
    }
    return text + ": each group of adjacent rows was judged as a separate gateway\n";
}

nlohmann::ordered_json Unmapped::json() const
{
    using Json = nlohmann::ordered_json;
    Json paths = Json::array();
    for (const auto* row : sorted()) {
        Json path = {{"path", row->first}, {"count", row->second.count}};
        if (!row->second.because.empty()) path["because"] = row->second.because;
        paths.push_back(std::move(path));
    }
    return {{"gateways", counts_.gateways},
            {"parameters", counts_.parameters},
            {"skipped", counts_.skipped},
            {"repeated", counts_.repeated},
            {"split_gateways", counts_.split},
            {"unmapped", {{"parameters", count()}, {"paths", std::move(paths)}}}};
}

}  // namespace ostrel::tool

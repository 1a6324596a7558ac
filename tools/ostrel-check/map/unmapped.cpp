#include "map/unmapped.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <vector>

#include "map/map.h"
#include "write/show.h"

namespace ostrel::tool {

namespace {

constexpr std::size_t kLongestShown = 1000;

std::string counted(std::uint64_t number, std::string_view one, std::string_view many)
{
    return std::to_string(number).append(" ").append(number == 1 ? one : many);
}

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

void Unmapped::add_gateways(std::uint64_t gateways, std::uint64_t parameters, std::uint64_t skipped)
{
    gateways_ += gateways;
    parameters_ += parameters;
    skipped_ += skipped;
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

void Unmapped::add_split(std::uint64_t count, std::string_view first)
{
    split_ += count;
    if (first_split_.empty()) first_split_ = first;
}

void Unmapped::add(const Unmapped& other)
{
    has_map_ = has_map_ || other.has_map_;
    add_gateways(other.gateways_, other.parameters_, other.skipped_);
    for (const auto& [path, of_path] : other.paths_) add(path, of_path.count, of_path.because);
    add_others(other.others_);
    add_split(other.split_, other.first_split_);
}

// sorted has the most frequent paths first.
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
    std::string text =
        counted(parameters_, "parameter of ", "parameters of ") + counted(gateways_, "gateway", "gateways");
    const std::uint64_t unmapped = count();
    if (unmapped > 0) text += "; no check is known for " + std::to_string(unmapped) + ":";
    text += '\n';
    for (const auto* row : sorted()) {
        const std::string times = std::to_string(row->second.count);
        text.append(8 - std::min<std::size_t>(7, times.size()), ' ').append(times).append("  ");
        append_escaped(text, row->first, kLongestShown);
        if (!row->second.because.empty()) text.append(": ").append(row->second.because);
        text += '\n';
    }
    if (others_ > 0) text += std::to_string(others_) + " of other paths\n";
    if (skipped_ > 0) text += std::to_string(skipped_) + " were skipped, because the value says nothing\n";
    if (split_ == 0) return text;
    text += "The rows of " + counted(split_, "gateway", "gateways") + " are not together";
    if (!first_split_.empty()) {
        text += ", such as those of \"";
        append_escaped(text, first_split_, kLongestShown);
        text += '"';
    }
    return text + ": parameters of other places were not seen\n";
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
    return {{"gateways", gateways_},
            {"parameters", parameters_},
            {"skipped", skipped_},
            {"split_gateways", split_},
            {"unmapped", {{"parameters", count()}, {"paths", std::move(paths)}}}};
}

}  // namespace ostrel::tool

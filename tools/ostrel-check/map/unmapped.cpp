#include "map/unmapped.h"

#include <algorithm>

#include "write/show.h"

namespace ostrel::tool {

namespace {

constexpr std::size_t kMostPaths = 10'000;
constexpr std::size_t kLongestPath = 1000;

}  // namespace

void Unmapped::count(std::string_view path, std::string_view value)
{
    ++rows_;
    generalise(path, general_, numbers_);
    const auto found = map_->paths.find(general_);
    if (found != map_->paths.end()) {
        for (const std::size_t index : found->second.entries) {
            const Entry& entry = map_->entries[index];
            if (!entry.path.matches(path, numbers_)) continue;
            if (std::ranges::find(entry.skipped, value) != entry.skipped.end()) ++skipped_;
            return;
        }
    }
    if (found != map_->paths.end() && found->second.is_sibling) return;
    ++unmapped_;
    if (const auto known = counts_.find(general_); known != counts_.end()) {
        ++known->second;
    } else if (counts_.size() < kMostPaths) {
        counts_.emplace(general_.substr(0, kLongestPath), 1);
    } else {
        ++uncounted_;
    }
}

bool Unmapped::begin_gateway(std::string_view gateway)
{
    ++gateways_;
    if (gateway.empty()) return false;
    const std::size_t hash = std::hash<std::string_view>()(gateway) | 1U;
    std::size_t& known = known_.at((hash >> 1U) % known_.size());
    const bool has_returned = known == hash;
    known = hash;
    if (has_returned && returned_++ == 0) first_returned_ = gateway;
    return has_returned;
}

std::vector<Unmapped::Row> Unmapped::sorted() const
{
    std::vector<Row> rows;
    for (const auto& [path, times] : counts_) rows.push_back({path, times});
    std::ranges::sort(rows, [](const Row& a, const Row& b) {
        return a.times != b.times ? a.times > b.times : a.path < b.path;
    });
    return rows;
}

std::string_view Unmapped::reason(std::string_view path) const
{
    const auto found =
        std::ranges::find_if(map_->not_mapped, [&](const NotMapped& one) { return one.path == path; });
    return found == map_->not_mapped.end() ? std::string_view() : found->because;
}

std::string Unmapped::text() const
{
    std::string text = std::to_string(rows_) + (rows_ == 1 ? " parameter of " : " parameters of ") +
                       std::to_string(gateways_) + (gateways_ == 1 ? " gateway" : " gateways");
    if (unmapped_ > 0) text += "; no check is known for " + std::to_string(unmapped_) + ":";
    text += '\n';
    for (const Row& row : sorted()) {
        text += std::string(8 - std::min<std::size_t>(7, std::to_string(row.times).size()), ' ') +
                std::to_string(row.times) + "  ";
        append_escaped(text, row.path, kLongestPath);
        if (const std::string_view why = reason(row.path); !why.empty()) text.append(": ").append(why);
        text += '\n';
    }
    if (uncounted_ > 0) text += std::to_string(uncounted_) + " of other paths\n";
    if (skipped_ > 0) text += std::to_string(skipped_) + " were skipped, because the value says nothing\n";
    if (returned_ > 0) {
        text +=
            "The rows of " + std::to_string(returned_) + " gateways are not together, such as those of \"";
        append_escaped(text, first_returned_, kLongestPath);
        text += "\": parameters of other places were not seen\n";
    }
    return text;
}

std::string Unmapped::json() const
{
    std::string text =
        "{\"map\":{\"gateways\":" + std::to_string(gateways_) + ",\"parameters\":" + std::to_string(rows_) +
        ",\"skipped\":" + std::to_string(skipped_) + ",\"split_gateways\":" + std::to_string(returned_) +
        ",\"unmapped\":{\"parameters\":" + std::to_string(unmapped_) + ",\"paths\":[";
    std::string_view before;
    for (const Row& row : sorted()) {
        text.append(before).append("{\"path\":");
        append_json_text(text, row.path);
        text.append(",\"count\":").append(std::to_string(row.times));
        if (const std::string_view why = reason(row.path); !why.empty()) {
            text += ",\"because\":";
            append_json_text(text, why);
        }
        text += '}';
        before = ",";
    }
    return text + "]}}}\n";
}

}  // namespace ostrel::tool

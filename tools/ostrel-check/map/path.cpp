#include "map/path.h"

#include <algorithm>
#include <utility>

namespace ostrel::tool {

bool is_instance(std::string_view name)
{
    if (name.empty()) return false;
    if (name.front() == '[' && name.back() == ']') return true;
    return std::ranges::all_of(name, [](char c) { return c >= '0' && c <= '9'; });
}

PathPattern::PathPattern(std::string text) : text_(std::move(text))
{
    std::string_view rest = text_;
    for (std::size_t at = rest.find(kInstance); at != std::string_view::npos; at = rest.find(kInstance)) {
        pieces_.emplace_back(rest.substr(0, at));
        rest.remove_prefix(at + kInstance.size());
    }
    pieces_.emplace_back(rest);
}

std::string PathPattern::general() const
{
    std::string general;
    std::vector<std::string_view> instances;
    generalise(text_, general, instances);
    return general;
}

void PathPattern::append(std::string& out, std::span<const std::string_view> instances) const
{
    for (std::size_t i = 0; i < pieces_.size(); ++i) {
        if (i > 0) out += instances[i - 1];
        out += pieces_[i];
    }
}

bool PathPattern::matches(std::string_view path, std::span<const std::string_view> instances,
                          std::vector<std::string_view>& own) const
{
    // If the pattern has as many {i} as the path has instances, it contains no literal instance to compare.
    own.assign(instances.begin(), instances.end());
    if (wildcards() == own.size()) return true;
    own.clear();
    for (std::string_view rest = text_; !rest.empty();) {
        const std::size_t dot = std::min(rest.find('.'), rest.size());
        const std::size_t end = std::min(path.find('.'), path.size());
        const std::string_view name = rest.substr(0, dot);
        if (name == kInstance) {
            own.push_back(path.substr(0, end));
        } else if (name != path.substr(0, end)) {
            return false;
        }
        rest.remove_prefix(std::min(dot + 1, rest.size()));
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return true;
}

void generalise(std::string_view path, std::string& general, std::vector<std::string_view>& instances)
{
    general = path;
    instances.clear();
    // Instances are short and rare, so most of a path is skipped.
    std::size_t grown = 0;  // number of bytes by which general is longer than path
    for (std::size_t begin = 0; begin < path.size(); ++begin) {
        const bool begins_name = begin == 0 || path[begin - 1] == '.';
        const bool may_be_instance = (path[begin] >= '0' && path[begin] <= '9') || path[begin] == '[';
        if (!begins_name || !may_be_instance) continue;
        const std::size_t end = std::min(path.find('.', begin), path.size());
        const std::string_view name = path.substr(begin, end - begin);
        if (is_instance(name)) {
            instances.push_back(name);
            general.replace(begin + grown, name.size(), kInstance);
            grown += kInstance.size() - name.size();
        }
        begin = end;
    }
}

}  // namespace ostrel::tool

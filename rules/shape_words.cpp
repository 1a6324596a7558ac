// Descriptions of shapes in words.
#include "rules/datum.h"
#include "rules/phrases.h"

namespace ostrel::rules {

namespace {

bool is_same(const Group& a, const Group& b)
{
    return a.set == b.set && a.least == b.least && a.most == b.most;
}

std::string group_in_words(const Group& group)
{
    std::string set = in_words(group.set);
    const bool is_one = group.least == 1 && group.most == 1;
    const std::string count = group.least == group.most
                                  ? std::to_string(group.least)
                                  : std::to_string(group.least) + " to " + std::to_string(group.most);
    if (is_one && group.set.size() == 1) return set;
    if (group.set.size() == 1 && group.least == group.most) {
        return quoted(std::string(group.least, group.set.members()[0]));
    }
    if (group.set.size() == 1) return count + " times " + set;
    if (is_one) return "one of " + set;
    const bool is_plain =
        set.find_first_of(",\\") == std::string::npos && set.find(" and ") == std::string::npos;
    return count + (is_plain && set.ends_with('s') ? " " : " of ") + set;
}

// merged combines adjacent groups that have the same set.
Shape merged(const Shape& shape)
{
    Shape result;
    for (const Group& group : shape) {
        if (!result.empty() && result.back().set == group.set) {
            result.back().least += group.least;
            result.back().most += group.most;
        } else {
            result.push_back(group);
        }
    }
    return result;
}

// alternates returns true if a shape alternates between two groups, and ends with the first of them.
bool alternates(const Shape& shape)
{
    if (shape.size() < 5 || shape.size() % 2 == 0) return false;
    for (std::size_t i = 2; i < shape.size(); ++i) {
        if (!is_same(shape[i], shape[i - 2])) return false;
    }
    return true;
}

}  // namespace

std::string in_words(const Shape& shape)
{
    const Shape groups = merged(shape);
    if (alternates(groups)) {
        return std::to_string(groups.size() / 2 + 1) + " groups of " + group_in_words(groups[0]) +
               ", separated by " + group_in_words(groups[1]);
    }
    std::string text;
    for (const Group& group : groups) text += (text.empty() ? "" : ", ") + group_in_words(group);
    return text;
}

}  // namespace ostrel::rules

// Simplification of choices and intersections.

#include <algorithm>

#include "rules/language/language.h"

namespace ostrel::rules {

namespace {

using Kind = Node::Kind;

bool are_alike(const Leaf& a, const Leaf& b, Kind kind)
{
    if (a.kind != b.kind) return false;
    switch (a.kind) {
        case Leaf::Kind::kLength:
        case Leaf::Kind::kNumber:
            return true;
        case Leaf::Kind::kCount:
            return a.byte == b.byte;
        case Leaf::Kind::kWords:
            return kind == Kind::kEither && !a.ignores_case && !b.ignores_case;
        case Leaf::Kind::kWithin:
            return a.cut == b.cut;
        case Leaf::Kind::kItems:
            return kind == Kind::kBoth && a.byte == b.byte && a.trimmed == b.trimmed;
        default:
            return false;
    }
}

}  // namespace

Language Languages::merged(Kind kind, const Leaf& a, const Leaf& b)
{
    const bool is_choice = kind == Kind::kEither;
    const Intervals numbers = is_choice ? a.numbers | b.numbers : a.numbers & b.numbers;
    switch (a.kind) {
        case Leaf::Kind::kLength:
            return of_length(numbers);
        case Leaf::Kind::kNumber:
            return of_number(numbers);
        case Leaf::Kind::kCount:
            return with_count(a.byte, numbers);
        case Leaf::Kind::kWithin:
            return *within(a.cut, combined(kind, {a.inner, b.inner}));
        case Leaf::Kind::kItems:
            return items(a.byte, a.trimmed, combined(kind, {a.inner, b.inner}));
        default: {
            std::vector<std::string> all = a.words;
            all.insert(all.end(), b.words.begin(), b.words.end());
            return words(all, false);
        }
    }
}

void Languages::merge_leaves(Kind kind, std::vector<Language>& parts)
{
    const auto is_leaf = [&](Language part) { return nodes_[part.id].kind == Kind::kLeaf; };
    if (std::ranges::none_of(parts, is_leaf)) return;
    bool has_merged = false;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        for (std::size_t j = i + 1; j < parts.size(); ++j) {
            const Leaf* a = leaf(parts[i]);
            const Leaf* b = leaf(parts[j]);
            if (a == nullptr || b == nullptr || !are_alike(*a, *b, kind)) continue;
            parts[i] = merged(kind, *a, *b);
            parts.erase(parts.begin() + static_cast<std::ptrdiff_t>(j));
            has_merged = true;
            j = i;
        }
    }
    if (has_merged) flatten(kind, parts);
    if (kind == Kind::kBoth) choose_words(parts);
}

// choose_words keeps the keywords that satisfy all other parts.
void Languages::choose_words(std::vector<Language>& parts)
{
    const auto is_choice_of_words = [&](Language part) {
        const Leaf* one = leaf(part);
        return one != nullptr && one->kind == Leaf::Kind::kWords && !one->ignores_case;
    };
    const auto found = std::ranges::find_if(parts, is_choice_of_words);
    if (found == parts.end() || parts.size() < 2) return;
    std::vector<std::string> kept = leaf(*found)->words;
    parts.erase(found);
    std::erase_if(kept, [&](const std::string& word) {
        return !std::ranges::all_of(parts, [&](Language part) { return contains(part, word); });
    });
    parts = {words(kept, false)};
}

bool Languages::is_byte_run(const Node& node) const
{
    return node.kind == Kind::kRepeated && nodes_[node.of[0].id].kind == Kind::kByte;
}

// merge_sets merges single bytes in a choice, and runs of bytes in an intersection.
void Languages::merge_sets(Kind kind, std::vector<Language>& parts)
{
    const bool is_choice = kind == Kind::kEither;
    const auto suits = [&](Language part) {
        const Node& node = nodes_[part.id];
        return node.kind == Kind::kByte || (!is_choice && is_byte_run(node));
    };
    if (std::ranges::count_if(parts, suits) < 2) return;
    Set set = is_choice ? Set() : kEveryByte;
    std::size_t least = 0;
    std::size_t most = kMany;
    for (const Language part : parts) {
        if (!suits(part)) continue;
        const Node& node = nodes_[part.id];
        const bool is_byte = node.kind == Kind::kByte;
        const Set& other = is_byte ? node.set : nodes_[node.of[0].id].set;
        set = is_choice ? set | other : set & other;
        least = std::max(least, is_byte ? 1 : node.least);
        most = std::min(most, is_byte ? 1 : node.most);
    }
    std::erase_if(parts, suits);
    if (is_choice) {
        parts.push_back(byte(set));
    } else {
        parts.push_back(least > most ? nothing_ : repeated(byte(set), least, most));
    }
    flatten(kind, parts);
}

// drop_opposites replaces a choice that contains a part and its opposite with all strings, and such an
// intersection with none. From an intersection in a choice, or a choice in an intersection, it removes the
// parts whose opposites are parts of the outer one. It finds only opposites that have already been created.
void Languages::drop_opposites(Kind kind, std::vector<Language>& parts)
{
    const Kind inside = kind == Kind::kEither ? Kind::kBoth : Kind::kEither;
    const auto has_opposite = [&](Language one) {
        const auto known = negated_.find(one.id);
        return known != negated_.end() && std::ranges::find(parts, known->second) != parts.end();
    };
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (has_opposite(parts[i])) {
            parts = {kind == Kind::kEither ? any_ : nothing_};
            return;
        }
        const Node& node = nodes_[parts[i].id];
        if (node.kind != inside || std::ranges::none_of(node.of, has_opposite)) continue;
        std::vector<Language> kept = node.of;
        std::erase_if(kept, has_opposite);
        parts[i] = combined(inside, std::move(kept));
        flatten(kind, parts);
        i = static_cast<std::size_t>(-1);
    }
}

}  // namespace ostrel::rules

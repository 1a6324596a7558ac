// Languages composed of other languages, each stored once.
#include "rules/language/language.h"

#include <algorithm>
#include <utility>

namespace ostrel::rules {

namespace {

using Kind = Node::Kind;

std::size_t added(std::size_t a, std::size_t b)
{
    return a == Languages::kMany || b == Languages::kMany ? Languages::kMany : a + b;
}

void append(std::string& key, std::size_t number)
{
    key.append(reinterpret_cast<const char*>(&number), sizeof number);
}

}  // namespace

Languages::Languages()
{
    nothing_ = keep({Kind::kNothing});
    Node empty{Kind::kNoByte};
    empty.takes_empty = true;
    no_byte_ = keep(std::move(empty));
    any_ = repeated(kEveryByte);
    negated_ = {{nothing_.id, any_}, {any_.id, nothing_}};
}

Language Languages::keep(Node node)
{
    std::string key(1, static_cast<char>(node.kind));
    for (const Language part : node.of) append(key, part.id);
    if (node.kind == Kind::kByte) key.append(reinterpret_cast<const char*>(&node.set), sizeof node.set);
    if (node.kind == Kind::kRepeated) {
        append(key, node.least);
        append(key, node.most);
    }
    if (node.kind == Kind::kLeaf) {
        const Leaf& leaf = leaves_[node.leaf];
        append(key, static_cast<std::size_t>(leaf.kind));
        append(key, leaf.inner.id);
    }
    const Language next{static_cast<std::uint32_t>(nodes_.size())};
    const auto [known, is_new] = known_.emplace(std::move(key), next);
    if (is_new) nodes_.push_back(std::move(node));
    return known->second;
}

Language Languages::keep_leaf(Leaf leaf, Language same)
{
    leaves_.push_back(std::move(leaf));
    Node node{Kind::kLeaf};
    node.of = {same};
    node.leaf = leaves_.size() - 1;
    node.takes_empty = nodes_[same.id].takes_empty;
    return keep(std::move(node));
}

const Leaf* Languages::leaf(Language one) const
{
    const Node& node = nodes_[one.id];
    return node.kind == Kind::kLeaf ? &leaves_[node.leaf] : nullptr;
}

Language Languages::byte(const Set& set)
{
    if (set.empty()) return nothing_;
    Node node{Kind::kByte};
    node.set = set;
    return keep(std::move(node));
}

Language Languages::text(std::string_view text, bool ignores_case)
{
    Language result = no_byte_;
    for (std::size_t i = text.size(); i-- > 0;) {
        const char c = text[i];
        const bool is_letter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        std::string bytes(1, c);
        if (ignores_case && is_letter) bytes += static_cast<char>(c ^ 0x20);
        result = joined(byte(Set(bytes)), result);
    }
    return result;
}

Language Languages::joined(Language first, Language second)
{
    if (first == nothing_ || second == nothing_) return nothing_;
    if (first == no_byte_) return second;
    if (second == no_byte_) return first;
    const Node& head = nodes_[first.id];
    if (head.kind == Kind::kJoined) return joined(head.of[0], joined(head.of[1], second));
    // Adjacent repetitions of the same language are merged.
    const Node& tail = nodes_[second.id];
    const Language next = tail.kind == Kind::kJoined ? tail.of[0] : second;
    const Node& following = nodes_[next.id];
    if (head.kind == Kind::kRepeated && following.kind == Kind::kRepeated && head.of[0] == following.of[0]) {
        const Language merged =
            repeated(head.of[0], added(head.least, following.least), added(head.most, following.most));
        return tail.kind == Kind::kJoined ? joined(merged, tail.of[1]) : merged;
    }
    Node node{Kind::kJoined};
    node.of = {first, second};
    node.takes_empty = head.takes_empty && tail.takes_empty;
    return keep(std::move(node));
}

Language Languages::joined(const std::vector<Language>& parts)
{
    Language result = no_byte_;
    for (std::size_t i = parts.size(); i-- > 0;) result = joined(parts[i], result);
    return result;
}

Language Languages::repeated(Language one, std::size_t least, std::size_t most)
{
    if (most == 0 || one == no_byte_) return no_byte_;
    if (one == nothing_) return least == 0 ? no_byte_ : nothing_;
    if (least == 1 && most == 1) return one;
    Node node{Kind::kRepeated};
    node.of = {one};
    node.least = least;
    node.most = most;
    node.takes_empty = least == 0 || nodes_[one.id].takes_empty;
    return keep(std::move(node));
}

Language Languages::negated(Language one)
{
    if (const auto known = negated_.find(one.id); known != negated_.end()) return known->second;
    const Language opposite = opposite_of(one);
    negated_.emplace(one.id, opposite);
    negated_.emplace(opposite.id, one);
    return opposite;
}

// opposite_of pushes a negation inward, past choices, intersections and most leaves.
Language Languages::opposite_of(Language one)
{
    const Node& node = nodes_[one.id];
    if (node.kind == Kind::kNot) return node.of[0];
    if (node.kind == Kind::kEither || node.kind == Kind::kBoth) {
        std::vector<Language> parts = node.of;
        for (Language& part : parts) part = negated(part);
        return combined(node.kind == Kind::kEither ? Kind::kBoth : Kind::kEither, std::move(parts));
    }
    if (const Leaf* given = leaf(one)) {
        if (given->kind == Leaf::Kind::kLength) return of_length(~given->numbers);
        if (given->kind == Leaf::Kind::kNumber) return of_number(~given->numbers);
        if (given->kind == Leaf::Kind::kCount) return with_count(given->byte, ~given->numbers);
        if (given->kind == Leaf::Kind::kWithin) return *within(given->cut, negated(given->inner));
    }
    Node result{Kind::kNot};
    result.of = {one};
    result.takes_empty = !node.takes_empty;
    return keep(std::move(result));
}

void Languages::flatten(Kind kind, std::vector<Language>& parts) const
{
    for (std::size_t i = parts.size(); i-- > 0;) {
        const Node& node = nodes_[parts[i].id];
        if (node.kind != kind) continue;
        parts.insert(parts.end(), node.of.begin(), node.of.end());
        parts.erase(parts.begin() + static_cast<std::ptrdiff_t>(i));
    }
    std::ranges::sort(parts, {}, &Language::id);
    std::optional<Language> last;
    std::erase_if(parts, [&](Language part) { return std::exchange(last, part) == part; });
}

Language Languages::combined(Kind kind, std::vector<Language> parts)
{
    const Language deciding = kind == Kind::kEither ? any_ : nothing_;
    const Language neutral = kind == Kind::kEither ? nothing_ : any_;
    flatten(kind, parts);
    if (parts.size() == 1) return parts.front();
    if (std::ranges::find(parts, deciding) != parts.end()) return deciding;
    std::erase(parts, neutral);
    merge_sets(kind, parts);
    merge_leaves(kind, parts);
    drop_opposites(kind, parts);
    std::erase(parts, neutral);
    if (std::ranges::find(parts, deciding) != parts.end()) return deciding;
    if (parts.empty()) return neutral;
    if (parts.size() == 1) return parts.front();
    const auto takes_empty = [&](Language part) { return nodes_[part.id].takes_empty; };
    if (kind == Kind::kBoth && std::ranges::find(parts, no_byte_) != parts.end())
        return std::ranges::all_of(parts, takes_empty) ? no_byte_ : nothing_;
    Node node{kind};
    node.of = std::move(parts);
    node.takes_empty = kind == Kind::kEither ? std::ranges::any_of(node.of, takes_empty)
                                             : std::ranges::all_of(node.of, takes_empty);
    return keep(std::move(node));
}

Language Languages::either(const std::vector<Language>& parts) { return combined(Kind::kEither, parts); }
Language Languages::both(const std::vector<Language>& parts) { return combined(Kind::kBoth, parts); }

}  // namespace ostrel::rules

// String conditions as languages.

#include <algorithm>

#include "rules/language/language.h"

namespace ostrel::rules {

namespace {

using Kind = Leaf::Kind;

Leaf leaf_of(Kind kind, const Intervals& numbers)
{
    Leaf leaf{kind};
    leaf.numbers = numbers;
    return leaf;
}

Leaf leaf_of(Kind kind, const std::vector<std::string>& words, bool ignores_case)
{
    Leaf leaf{kind};
    leaf.words = words;
    leaf.ignores_case = ignores_case;
    return leaf;
}

std::size_t limit(long long high)
{
    return high == Intervals::kHighest ? Languages::kMany : static_cast<std::size_t>(high);
}

Intervals from_zero(const Intervals& numbers) { return numbers & Intervals(0, Intervals::kHighest); }

// is_deterministic returns true if greedy matching without backtracking finds every string with the shape.
bool is_deterministic(const Runs& shape)
{
    for (std::size_t i = 0; i < shape.size(); ++i) {
        if (shape[i].least == shape[i].most) continue;
        for (std::size_t next = i + 1; next < shape.size(); ++next) {
            if (!(shape[i].characters & shape[next].characters).empty()) return false;
            if (shape[next].least > 0) break;
        }
    }
    return true;
}

// overlaps returns true if two occurrences of a string can share bytes.
bool overlaps(std::string_view text)
{
    for (std::size_t size = 1; size < text.size(); ++size) {
        if (text.ends_with(text.substr(0, size))) return true;
    }
    return false;
}

}  // namespace

Language Languages::of_length(const Intervals& lengths)
{
    const Intervals possible = from_zero(lengths);
    if (possible == Intervals(0, Intervals::kHighest)) return any_;
    std::vector<Language> parts;
    for (const Interval& one : possible.parts()) {
        parts.push_back(repeated(byte(kEveryByte), static_cast<std::size_t>(one.low), limit(one.high)));
    }
    return parts.empty() ? nothing_ : keep_leaf(leaf_of(Kind::kLength, possible), either(parts));
}

Language Languages::with_count(char byte, const Intervals& times)
{
    const Intervals possible = from_zero(times);
    const Language others = repeated(kEveryByte - Set(std::string_view(&byte, 1)));
    const Language one = joined(others, this->byte(Set(std::string_view(&byte, 1))));
    std::vector<Language> parts;
    for (const Interval& part : possible.parts()) {
        parts.push_back(
            joined({repeated(one, static_cast<std::size_t>(part.low), limit(part.high)), others}));
    }
    if (possible == Intervals(0, Intervals::kHighest)) return any_;
    if (parts.empty()) return nothing_;
    Leaf leaf = leaf_of(Kind::kCount, possible);
    leaf.byte = byte;
    return keep_leaf(std::move(leaf), either(parts));
}

Language Languages::words(const std::vector<std::string>& words, bool ignores_case)
{
    std::vector<std::string> once;
    std::vector<Language> parts;
    for (const std::string& word : words) {
        if (std::ranges::find(once, word) != once.end()) continue;
        once.push_back(word);
        parts.push_back(text(word, ignores_case));
    }
    if (parts.empty()) return nothing_;
    return keep_leaf(leaf_of(Kind::kWords, once, ignores_case), either(parts));
}

Language Languages::with_prefix(const std::vector<std::string>& words, bool ignores_case)
{
    std::vector<Language> parts;
    parts.reserve(words.size());
    for (const std::string& word : words) parts.push_back(joined(text(word, ignores_case), any_));
    return parts.empty() ? nothing_ : keep_leaf(leaf_of(Kind::kPrefix, words, ignores_case), either(parts));
}

std::optional<Language> Languages::of_shape(const std::vector<Runs>& shapes)
{
    std::vector<Language> parts;
    for (const Runs& shape : shapes) {
        if (!is_deterministic(shape)) return std::nullopt;
        std::vector<Language> groups;
        for (const Run& run : shape) groups.push_back(repeated(byte(run.characters), run.least, run.most));
        parts.push_back(joined(groups));
    }
    Leaf leaf{Kind::kShape};
    leaf.shapes = shapes;
    return keep_leaf(std::move(leaf), either(parts));
}

Language Languages::not_having(std::string_view part)
{
    if (part.size() == 1) return repeated(kEveryByte - Set(part));
    return negated(joined({any_, text(part), any_}));
}

std::optional<Language> Languages::within(const Cut& cut, Language inner)
{
    if (inner == any_ || inner == nothing_) return inner;
    Leaf leaf{Kind::kWithin};
    leaf.cut = cut;
    leaf.inner = inner;
    const Language one = byte(kEveryByte);
    if (cut.kind == Expression::Kind::kSlice) {
        const Language before = repeated(one, cut.offset, cut.offset);
        const bool takes_empty = node(inner).takes_empty && cut.offset > 0;
        const Language too_short = takes_empty ? repeated(one, 0, cut.offset - 1) : nothing_;
        if (cut.count == kMany) return keep_leaf(std::move(leaf), either({joined(before, inner), too_short}));
        const Language whole = joined(both({inner, repeated(one, cut.count, cut.count)}), any_);
        const Language end = cut.count == 0 ? nothing_ : both({inner, repeated(one, 0, cut.count - 1)});
        return keep_leaf(std::move(leaf), either({joined(before, either({whole, end})), too_short}));
    }
    if (cut.separator.empty() || overlaps(cut.separator)) return std::nullopt;
    const Language separator = text(cut.separator);
    const Language without = not_having(cut.separator);
    const Language empty_without = node(inner).takes_empty ? without : nothing_;
    const Language inner_without = both({inner, without});
    switch (cut.kind) {
        case Expression::Kind::kBeforeFirst:
            return keep_leaf(std::move(leaf),
                             either({inner_without, joined({inner_without, separator, any_})}));
        case Expression::Kind::kBeforeLast:
            return keep_leaf(std::move(leaf), either({inner_without, joined({inner, separator, without})}));
        case Expression::Kind::kAfterFirst:
            return keep_leaf(std::move(leaf), either({empty_without, joined({without, separator, inner})}));
        case Expression::Kind::kAfterLast:
            return keep_leaf(std::move(leaf),
                             either({inner_without, joined({any_, separator, inner_without})}));
        default:  // kThroughLast
            return keep_leaf(
                std::move(leaf),
                either({empty_without, joined(both({inner, joined(any_, separator)}), without)}));
    }
}

Language Languages::items(char separator, const Set& trimmed, Language inner)
{
    if (inner == any_ || inner == nothing_) return inner;
    const Set mark(std::string_view(&separator, 1));
    const Language core = byte(kEveryByte - trimmed);
    const Language trimming = repeated(trimmed);
    // After trimming, an item does not begin or end with a trimmed byte.
    const Language left = trimmed.empty() ? any_ : either({no_byte_, core, joined({core, any_, core})});
    const Language item =
        both({joined({trimming, both({inner, left}), trimming}), repeated(kEveryByte - mark)});
    Leaf leaf{Kind::kItems};
    leaf.byte = separator;
    leaf.trimmed = trimmed;
    leaf.inner = inner;
    return keep_leaf(std::move(leaf), joined(item, repeated(joined(byte(mark), item), 0)));
}

}  // namespace ostrel::rules

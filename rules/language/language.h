// Languages are sets of strings, composed of bytes, sequences, choices, repetitions, intersections and
// complements.
//
// Equal languages are stored once. A language that represents a condition, such as a length, a number or
// keywords, is kept as a leaf. Numbers are read as atoi reads them, except that they may have any size.
#ifndef OSTREL_RULES_LANGUAGE_LANGUAGE_H
#define OSTREL_RULES_LANGUAGE_LANGUAGE_H

#include <cstddef>
#include <cstdint>
#include <deque>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "rules/expression.h"
#include "rules/language/intervals.h"
#include "rules/set.h"

namespace ostrel::rules {

struct Language {
    std::uint32_t id = 0;

    bool operator==(const Language&) const = default;
};

// kEveryByte contains every byte that a string can contain.
inline constexpr Set kEveryByte = Set::range(1, 255);

// Cut extracts part of a string, like an expression of the same kind.
struct Cut {
    Expression::Kind kind;
    std::string separator;
    std::size_t offset = 0;  // used, like count, only for a slice
    std::size_t count = 0;

    bool operator==(const Cut&) const = default;
};

// Run matches a run of bytes from one set, with a length from least to most, like a group of a shape.
struct Run {
    Set characters;
    std::size_t least = 1;
    std::size_t most = 1;

    bool operator==(const Run&) const = default;
};
using Runs = std::vector<Run>;

struct Leaf {
    enum class Kind {
        kLength,  // the length in bytes is one of the numbers
        kNumber,  // the value that atoi reads is one of the numbers
        kCount,   // the number of occurrences of the byte is one of the numbers
        kWords,   // the string is one of the words
        kPrefix,  // the string begins with one of the words
        kShape,   // the string matches one of the shapes
        kWithin,  // the part that cut extracts is in the inner language
        kItems,   // each item is in the inner language
    };

    Kind kind;
    Intervals numbers = {};
    char byte = '\0';  // the byte that is counted, or the separator of items
    std::vector<std::string> words = {};
    bool ignores_case = false;
    std::vector<Runs> shapes = {};
    Cut cut = {};
    Set trimmed = {};
    Language inner = {};
};

struct Node {
    enum class Kind {
        kNothing,  // no string
        kNoByte,   // only the empty string
        kByte,     // one byte of the set
        kJoined,   // a string in the first part followed by a string in the second
        kEither,
        kBoth,
        kNot,
        kRepeated,  // a sequence of least to most strings in the part
        kLeaf,      // the same strings as its only part
    };

    Kind kind;
    Set set = {};
    std::vector<Language> of = {};
    std::size_t least = 0;
    std::size_t most = 0;
    std::size_t leaf = 0;
    bool takes_empty = false;  // the language contains the empty string
};

class Languages {
 public:
    static constexpr std::size_t kMany = std::numeric_limits<std::size_t>::max();

    Languages();

    [[nodiscard]] Language nothing() const { return nothing_; }
    [[nodiscard]] Language any() const { return any_; }
    [[nodiscard]] Language no_byte() const { return no_byte_; }
    Language byte(const Set& set);
    Language text(std::string_view text, bool ignores_case = false);
    Language joined(Language first, Language second);
    // Use this overload if calls compute the parts. Unlike arguments, the elements of a braced list are
    // always evaluated in order, so the results do not depend on the compiler.
    Language joined(const std::vector<Language>& parts);
    Language either(const std::vector<Language>& parts);
    Language both(const std::vector<Language>& parts);
    Language negated(Language one);
    Language repeated(Language one, std::size_t least, std::size_t most = kMany);
    Language repeated(const Set& set) { return repeated(byte(set), 0); }

    // Leaves.
    Language of_length(const Intervals& lengths);
    Language of_number(const Intervals& numbers);
    Language with_count(char byte, const Intervals& times);
    Language words(const std::vector<std::string>& words, bool ignores_case);
    Language with_prefix(const std::vector<std::string>& words, bool ignores_case);
    // of_shape returns nothing if matching without backtracking might miss strings of one of the shapes.
    std::optional<Language> of_shape(const std::vector<Runs>& shapes);
    // within returns nothing if the separator can overlap with itself.
    std::optional<Language> within(const Cut& cut, Language inner);
    Language items(char separator, const Set& trimmed, Language inner);

    // leap_years returns the strings that atoi reads as a leap year.
    Language leap_years();

    // decimals returns the numbers from low to high without leading zeros. low must not be negative.
    Language decimals(long long low, long long high);

    // after returns the possible continuations of strings that begin with the given byte.
    Language after(Language one, char byte);
    [[nodiscard]] bool contains(Language one, std::string_view text);

    [[nodiscard]] const Node& node(Language one) const { return nodes_[one.id]; }
    [[nodiscard]] const Leaf* leaf(Language one) const;

 private:
    Language keep(Node node);
    Language keep_leaf(Leaf leaf, Language same);
    void flatten(Node::Kind kind, std::vector<Language>& parts) const;
    void merge_leaves(Node::Kind kind, std::vector<Language>& parts);
    Language merged(Node::Kind kind, const Leaf& a, const Leaf& b);
    void choose_words(std::vector<Language>& parts);
    [[nodiscard]] bool is_byte_run(const Node& node) const;
    void merge_sets(Node::Kind kind, std::vector<Language>& parts);
    void drop_opposites(Node::Kind kind, std::vector<Language>& parts);
    Language opposite_of(Language one);
    Language combined(Node::Kind kind, std::vector<Language> parts);
    Language direct_number(const Intervals& numbers);
    Language decimals_of_length(std::string low, const std::string& high);
    Language not_having(std::string_view part);

    std::deque<Node> nodes_;
    std::deque<Leaf> leaves_;
    std::unordered_map<std::string, Language> known_;
    std::unordered_map<std::uint32_t, Language> negated_;
    std::unordered_map<std::uint64_t, Language> after_;
    Language nothing_;
    Language no_byte_;
    Language any_;
};

}  // namespace ostrel::rules

#endif

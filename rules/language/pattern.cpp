#include "rules/language/pattern.h"

#include "rules/language/automaton.h"

namespace ostrel::rules {

namespace {

using Kind = Node::Kind;
using Pattern = std::optional<std::string>;

constexpr std::string_view kEnd = "(?![\\s\\S])";  // "$" would accept a line ending
constexpr std::string_view kNever = "(?!)";

// Context contains the bytes that a part can contain, and the expression for what follows the part.
struct Context {
    Set bytes;
    std::string end;
};

std::string looked_at(const std::string& pattern) { return "(?=" + pattern + ")"; }
std::string many(const Set& set) { return set.empty() ? "" : class_of(set) + "*"; }

class Writer {
 public:
    explicit Writer(Languages& languages) : languages_(languages) {}

    // whole returns a pattern that matches a part up to its end.
    Pattern whole(Language one, const Context& context)
    {
        if (const Pattern pattern = plain(one, context.bytes)) return then(*pattern, context.end);
        const Node& node = languages_.node(one);
        switch (node.kind) {
            case Kind::kEither:
                return any_of(node.of, context);
            case Kind::kBoth:
                return all_of(node.of, context);
            case Kind::kNot:
                return all_of({one}, context);
            case Kind::kJoined: {
                const Pattern first = plain(node.of[0], context.bytes);
                const Pattern second = whole(node.of[1], context);
                if (!first || !second) return std::nullopt;
                return then(*first, *second);
            }
            case Kind::kLeaf: {
                const Leaf& leaf = *languages_.leaf(one);
                if (leaf.kind == Leaf::Kind::kItems) return list(leaf, context);
                return is_cut(leaf) ? cut(leaf, context) : whole(node.of[0], context);
            }
            default:
                return std::nullopt;
        }
    }

 private:
    static bool is_cut(const Leaf& leaf)
    {
        const bool is_after = leaf.cut.kind == Expression::Kind::kAfterFirst;
        return leaf.kind == Leaf::Kind::kWithin && (leaf.cut.separator.size() == 1 || is_after);
    }

    // same replaces a leaf that patterns have no notation for with the equal language that defines it.
    Language same(Language one)
    {
        const Leaf* leaf = languages_.leaf(one);
        const bool is_own = leaf == nullptr || leaf->kind == Leaf::Kind::kItems || is_cut(*leaf);
        return is_own ? one : languages_.node(one).of[0];
    }

    // plain returns a pattern without lookaheads, if such a pattern exists.
    Pattern plain(Language one, const Set& bytes)
    {
        const Node& node = languages_.node(one);
        switch (node.kind) {
            case Kind::kNothing:
                return std::string(kNever);
            case Kind::kNoByte:
                return "";
            case Kind::kByte: {
                const Set set = node.set & bytes;
                return set.empty() ? std::string(kNever) : class_of(set);
            }
            case Kind::kJoined: {
                const Pattern first = plain(node.of[0], bytes);
                const Pattern second = plain(node.of[1], bytes);
                if (!first || !second) return std::nullopt;
                return then(*first, *second);
            }
            case Kind::kEither:
                return choice(node, bytes);
            case Kind::kRepeated:
                return repetition(node, bytes);
            case Kind::kLeaf:
                return plain(node.of[0], bytes);
            default:
                return std::nullopt;
        }
    }

    static std::string then(const std::string& first, const std::string& second)
    {
        return first == kNever || second == kNever ? std::string(kNever) : first + second;
    }

    Pattern choice(const Node& node, const Set& bytes)
    {
        std::string result;
        std::size_t count = 0;
        bool is_optional = false;
        bool is_byte = true;
        for (const Language part : node.of) {
            const Pattern pattern = plain(part, bytes);
            if (!pattern) return std::nullopt;
            is_optional = is_optional || pattern->empty();
            if (pattern->empty() || pattern == kNever) continue;
            if (count++ > 0) result += "|";
            result += *pattern;
            is_byte = languages_.node(part).kind == Kind::kByte;
        }
        if (count == 0) return std::string(is_optional ? "" : kNever);
        if (count == 1 && (!is_optional || is_byte)) return result + (is_optional ? "?" : "");
        return "(?:" + result + (is_optional ? ")?" : ")");
    }

    Pattern repetition(const Node& node, const Set& bytes)
    {
        const Pattern pattern = plain(node.of[0], bytes);
        if (!pattern) return std::nullopt;
        if (pattern == kNever) return std::string(node.least == 0 ? "" : kNever);
        const bool is_byte = languages_.node(node.of[0]).kind == Kind::kByte;
        return times_of(is_byte ? *pattern : "(?:" + *pattern + ")", node.least, node.most);
    }

    Pattern any_of(const std::vector<Language>& parts, const Context& context)
    {
        std::string result;
        for (const Language part : parts) {
            const Pattern pattern = whole(part, context);
            if (!pattern) return std::nullopt;
            if (pattern != kNever) result += (result.empty() ? "" : "|") + *pattern;
        }
        return result.empty() ? std::string(kNever) : "(?:" + result + ")";
    }

    // run_of returns the allowed bytes if a part restricts only which bytes a string contains.
    std::optional<Set> run_of(Language part)
    {
        const Node& node = languages_.node(part);
        if (node.kind != Kind::kRepeated || node.least > 0 || node.most != Languages::kMany)
            return std::nullopt;
        const Node& one = languages_.node(node.of[0]);
        return one.kind == Kind::kByte ? std::optional(one.set) : std::nullopt;
    }

    // all_of returns a pattern that matches one part and has lookaheads for the other parts. Bytes that one
    // part excludes can be ignored in the other parts.
    Pattern all_of(const std::vector<Language>& parts, const Context& context)
    {
        Context narrow = context;
        for (const Language part : parts) {
            if (const auto run = run_of(part)) narrow.bytes = narrow.bytes & *run;
        }
        std::string result;
        Pattern taken;
        for (const Language part : parts) {
            const Node& one = languages_.node(same(part));
            const bool is_opposite = one.kind == Kind::kNot;
            Pattern pattern = whole(is_opposite ? one.of[0] : part, run_of(part) ? context : narrow);
            if (!pattern) return std::nullopt;
            if (pattern == kNever && !is_opposite) return pattern;
            if (is_opposite) {
                if (pattern != kNever) result += "(?!" + *pattern + ")";
            } else if (run_of(part) || !taken) {
                if (taken) result += looked_at(*taken);
                taken = pattern;
            } else {
                result += looked_at(*pattern);
            }
        }
        return result + taken.value_or(many(context.bytes) + context.end);
    }

    Pattern cut(const Leaf& leaf, const Context& context)
    {
        std::string separator;
        for (const char byte : leaf.cut.separator) separator += class_of(Set(std::string_view(&byte, 1)));
        const bool is_long = leaf.cut.separator.size() > 1;
        const Set bytes = is_long ? context.bytes : context.bytes - Set(leaf.cut.separator);
        const std::string without =
            is_long ? "(?:(?!" + separator + ")" + class_of(bytes) + ")*" : many(bytes);
        const std::string following = separator + without + context.end;
        switch (leaf.cut.kind) {
            case Expression::Kind::kBeforeFirst: {
                const Pattern first = whole(leaf.inner, {bytes, "(?=" + separator + "|" + context.end + ")"});
                return first ? Pattern(*first + many(context.bytes) + context.end) : std::nullopt;
            }
            case Expression::Kind::kBeforeLast: {
                const Pattern first = whole(leaf.inner, {context.bytes, looked_at(following)});
                const Pattern alone = whole(leaf.inner, {bytes, context.end});
                if (!first || !alone) return std::nullopt;
                return "(?:" + *first + following + "|" + *alone + ")";
            }
            case Expression::Kind::kAfterFirst: {
                const Pattern rest = whole(leaf.inner, context);
                if (!rest) return std::nullopt;
                std::string found = without + separator + *rest;
                if (!languages_.node(leaf.inner).takes_empty) return found;
                return "(?:" + found + "|" + without + context.end + ")";
            }
            case Expression::Kind::kAfterLast: {
                const Pattern rest = whole(leaf.inner, {bytes, context.end});
                return rest ? Pattern("(?:" + many(context.bytes) + separator + ")?" + *rest) : std::nullopt;
            }
            default:
                return std::nullopt;
        }
    }

    Pattern list(const Leaf& leaf, const Context& context)
    {
        const Set mark(std::string_view(&leaf.byte, 1));
        // The end of an item is ambiguous if the item may contain trimmed bytes.
        const Language inside = languages_.repeated(kEveryByte - leaf.trimmed);
        if (!leaf.trimmed.empty() && !includes(languages_, inside, leaf.inner)) return std::nullopt;
        const std::string trimming = many(leaf.trimmed);
        const std::string separator = class_of(mark);
        const std::string following = separator + "|" + context.end;
        const std::string end = trimming.empty() ? following : trimming + "(?:" + following + ")";
        const Pattern item = whole(leaf.inner, {context.bytes - mark - leaf.trimmed, looked_at(end)});
        if (!item) return std::nullopt;
        const std::string one = trimming + *item + trimming;
        return one + "(?:" + separator + one + ")*" + context.end;
    }

    Languages& languages_;
};

}  // namespace

Pattern pattern_of(Languages& languages, Language one)
{
    const Pattern pattern = Writer(languages).whole(one, {kEveryByte, std::string(kEnd)});
    return pattern ? Pattern("^" + *pattern) : std::nullopt;
}

}  // namespace ostrel::rules

// The continuations of strings after the first byte.
#include "rules/language/language.h"

namespace ostrel::rules {

namespace {

using Kind = Node::Kind;

std::size_t one_less(std::size_t count)
{
    return count == 0 || count == Languages::kMany ? count : count - 1;
}

}  // namespace

Language Languages::after(Language one, char byte)
{
    const auto key = std::uint64_t{one.id} << 8 | static_cast<unsigned char>(byte);
    if (const auto known = after_.find(key); known != after_.end()) return known->second;
    const Node& node = nodes_[one.id];
    Language result = nothing_;
    switch (node.kind) {
        case Kind::kNothing:
        case Kind::kNoByte:
            break;
        case Kind::kByte:
            if (node.set.contains(byte)) result = no_byte_;
            break;
        case Kind::kJoined:
            result = joined(after(node.of[0], byte), node.of[1]);
            if (nodes_[node.of[0].id].takes_empty) result = either({result, after(node.of[1], byte)});
            break;
        case Kind::kEither:
        case Kind::kBoth: {
            std::vector<Language> parts = node.of;
            for (Language& part : parts) part = after(part, byte);
            result = combined(node.kind, std::move(parts));
            break;
        }
        case Kind::kNot:
            result = negated(after(node.of[0], byte));
            break;
        case Kind::kRepeated:
            result = joined(after(node.of[0], byte),
                            repeated(node.of[0], one_less(node.least), one_less(node.most)));
            break;
        case Kind::kLeaf:
            result = after(node.of[0], byte);
            break;
    }
    after_.emplace(key, result);
    return result;
}

bool Languages::contains(Language one, std::string_view text)
{
    for (const char c : text) {
        if (c == '\0') return false;
        one = after(one, c);
        if (one == nothing_) return false;
    }
    return nodes_[one.id].takes_empty;
}

}  // namespace ostrel::rules

#include "map/search.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "rules/language/automaton.h"

namespace ostrel::tool {

namespace {

using rules::Automaton;
using rules::Language;
using rules::Languages;
using rules::Leaf;

char plainest(const rules::Set& set)
{
    constexpr std::string_view kOrder =
        "abcdefghijklmnopqrstuvwxyz0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-._:/,;!?()*+=@#$%&'<>[]^`{|}~\" \\";
    for (const char c : kOrder) {
        if (set.contains(c)) return c;
    }
    return set.members().front();
}

struct Step {
    std::size_t from = 0;
    char byte = '\0';
    bool is_known = false;
};

}  // namespace

std::optional<std::string> shortest_text(Languages& languages, Language one)
{
    const std::optional<Automaton> automaton = rules::automaton_of(languages, one);
    if (!automaton) return std::nullopt;
    std::vector<Step> steps(automaton->states.size());
    std::vector<std::size_t> open = {0};
    steps[0].is_known = true;
    for (std::size_t i = 0; i < open.size(); ++i) {
        const std::size_t here = open[i];
        if (automaton->states[here].accepts) {
            std::string text;
            for (std::size_t at = here; at != 0; at = steps[at].from) text += steps[at].byte;
            std::ranges::reverse(text);
            return text;
        }
        for (const Automaton::Arrow& arrow : automaton->states[here].arrows) {
            if (steps[arrow.next].is_known) continue;
            steps[arrow.next] = {here, plainest(arrow.bytes), true};
            open.push_back(arrow.next);
        }
    }
    return std::nullopt;
}

bool reads_number(const Languages& languages, Language one)
{
    if (const Leaf* leaf = languages.leaf(one)) {
        const bool has_inner = leaf->kind == Leaf::Kind::kWithin || leaf->kind == Leaf::Kind::kItems;
        return leaf->kind == Leaf::Kind::kNumber || (has_inner && reads_number(languages, leaf->inner));
    }
    return std::ranges::any_of(languages.node(one).of,
                               [&](Language part) { return reads_number(languages, part); });
}

}  // namespace ostrel::tool

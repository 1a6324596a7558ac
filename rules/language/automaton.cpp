#include "rules/language/automaton.h"

#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace ostrel::rules {

namespace {

// Classes groups the bytes according to the sets that can contain the first byte of a string. All bytes in a
// class have the same continuations.
class Classes {
 public:
    Classes(const Languages& languages, Language one) : languages_(languages) { look_at(one); }

    [[nodiscard]] const std::vector<Set>& all() const { return all_; }

 private:
    void look_at(Language one)
    {
        if (!seen_.insert(one.id).second) return;
        const Node& node = languages_.node(one);
        if (node.kind == Node::Kind::kByte) divide(node.set);
        for (const Language part : node.of) {
            look_at(part);
            if (node.kind == Node::Kind::kJoined && !languages_.node(part).takes_empty) return;
        }
    }

    void divide(const Set& set)
    {
        for (std::size_t i = all_.size(); i-- > 0;) {
            const Set inside = all_[i] & set;
            if (inside.empty() || inside == all_[i]) continue;
            all_[i] = all_[i] - set;
            all_.push_back(inside);
        }
    }

    const Languages& languages_;
    std::unordered_set<std::uint32_t> seen_;
    std::vector<Set> all_ = {kEveryByte};
};

char first_of(const Set& set)
{
    unsigned char byte = 1;
    while (!set.contains(byte)) ++byte;
    return static_cast<char>(byte);
}

// explore follows a language byte by byte. Each state is a language, which contains the possible
// continuations of the bytes so far. explore returns nothing if there are too many states, or if
// must_be_empty is true and it finds a string.
std::optional<Automaton> explore(Languages& languages, Language one, bool must_be_empty)
{
    Automaton result;
    std::vector<Language> all = {one};
    std::unordered_map<std::uint32_t, std::size_t> numbers = {{one.id, 0}};
    for (std::size_t i = 0; i < all.size(); ++i) {
        const Language here = all[i];
        Automaton::State state{languages.node(here).takes_empty};
        if (i == kMostStates || (must_be_empty && state.accepts)) return std::nullopt;
        const Classes classes(languages, here);
        for (const Set& bytes : classes.all()) {
            const Language next = languages.after(here, first_of(bytes));
            const auto [known, is_new] = numbers.emplace(next.id, all.size());
            if (is_new) all.push_back(next);
            state.arrows.push_back({bytes, known->second});
        }
        result.states.push_back(std::move(state));
    }
    return result;
}

}  // namespace

std::optional<Automaton> automaton_of(Languages& languages, Language one)
{
    return explore(languages, one, false);
}

bool is_empty(Languages& languages, Language one) { return explore(languages, one, true).has_value(); }

bool includes(Languages& languages, Language one, Language other)
{
    return is_empty(languages, languages.both({other, languages.negated(one)}));
}

}  // namespace ostrel::rules

#include "rules/language/automaton.h"

#include <algorithm>
#include <map>
#include <unordered_map>
#include <unordered_set>

namespace ostrel::rules {

namespace {

constexpr std::size_t kMostTexts = 40;

void collect(const Languages& languages, Language one, std::unordered_set<std::uint32_t>& seen,
             std::vector<Set>& sets)
{
    if (!seen.insert(one.id).second) return;
    const Node& node = languages.node(one);
    if (node.kind == Node::Kind::kByte && std::ranges::find(sets, node.set) == sets.end())
        sets.push_back(node.set);
    for (const Language part : node.of) collect(languages, part, seen, sets);
}

// classes_of divides the bytes by the sets that they are in.
std::vector<Set> classes_of(const Languages& languages, Language one)
{
    std::unordered_set<std::uint32_t> seen;
    std::vector<Set> sets;
    collect(languages, one, seen, sets);
    std::map<std::vector<bool>, Set> classes;
    for (const char byte : kEveryByte.members()) {
        std::vector<bool> where;
        where.reserve(sets.size());
        for (const Set& set : sets) where.push_back(set.contains(byte));
        Set& members = classes[where];
        members = members | Set(std::string_view(&byte, 1));
    }
    std::vector<Set> result;
    for (const auto& [where, members] : classes) result.push_back(members);
    return result;
}

// Measure looks at an automaton from the states of which texts are accepted.
class Measure {
 public:
    explicit Measure(const Automaton& automaton) : automaton_(automaton), lives_(find_living()) {}

    Summary summary()
    {
        Summary result;
        result.is_empty = !lives_[0];
        if (result.is_empty) return result;
        for (std::size_t state = 0; state < lives_.size(); ++state) {
            if (!lives_[state]) continue;
            for_each_next(state, [&](std::size_t, const Set& bytes) { result.bytes = result.bytes | bytes; });
        }
        const bool is_finite = !has_circle();
        walk_lengths(result, is_finite);
        if (is_finite && count_texts() <= kMostTexts) {
            result.texts.emplace();
            std::string text;
            list_texts(0, text, *result.texts);
        }
        return result;
    }

 private:
    template <typename F>
    void for_each_next(std::size_t state, F look)
    {
        const std::vector<std::size_t>& next = automaton_.states[state].next;
        for (std::size_t i = 0; i < next.size(); ++i) {
            if (lives_[next[i]]) look(next[i], automaton_.classes[i]);
        }
    }

    std::vector<bool> find_living()
    {
        const std::size_t count = automaton_.states.size();
        std::vector<std::vector<std::size_t>> before(count);
        std::vector<std::size_t> open;
        std::vector<bool> result(count);
        for (std::size_t state = 0; state < count; ++state) {
            for (const std::size_t next : automaton_.states[state].next) before[next].push_back(state);
            if (automaton_.states[state].accepts) open.push_back(state);
        }
        while (!open.empty()) {
            const std::size_t state = open.back();
            open.pop_back();
            if (result[state]) continue;
            result[state] = true;
            for (const std::size_t one : before[state]) open.push_back(one);
        }
        return result;
    }

    // has_circle takes away living states that no other leads to, again and again.
    bool has_circle()
    {
        std::vector<std::size_t> arrows(lives_.size());
        std::size_t left = 0;
        for (std::size_t state = 0; state < lives_.size(); ++state) {
            if (!lives_[state]) continue;
            ++left;
            for_each_next(state, [&](std::size_t next, const Set&) { ++arrows[next]; });
        }
        if (arrows[0] == 0) order_.push_back(0);
        for (std::size_t i = 0; i < order_.size(); ++i) {
            for_each_next(order_[i], [&](std::size_t next, const Set&) {
                if (--arrows[next] == 0) order_.push_back(next);
            });
        }
        return order_.size() != left;
    }

    // walk_lengths goes one byte further in all states at a time.
    void walk_lengths(Summary& result, bool is_finite)
    {
        std::vector<std::size_t> here = {0};
        bool is_shortest_known = false;
        for (std::size_t length = 0; !here.empty(); ++length) {
            std::vector<bool> is_next(lives_.size());
            std::vector<std::size_t> there;
            bool accepts = false;
            for (const std::size_t state : here) {
                accepts = accepts || automaton_.states[state].accepts;
                for_each_next(state, [&](std::size_t next, const Set&) {
                    if (!is_next[next]) there.push_back(next);
                    is_next[next] = true;
                });
            }
            if (accepts && !is_shortest_known) result.shortest = length;
            is_shortest_known = is_shortest_known || accepts;
            if (is_shortest_known && !is_finite) return;
            if (accepts) {
                result.longest = length;
                result.lengths.push_back(static_cast<long long>(length));
            }
            here = std::move(there);
        }
    }

    // count_texts needs the order that has_circle found.
    std::size_t count_texts()
    {
        std::vector<std::size_t> counts(lives_.size());
        for (std::size_t i = order_.size(); i-- > 0;) {
            std::size_t& count = counts[order_[i]];
            count = automaton_.states[order_[i]].accepts ? 1 : 0;
            for_each_next(order_[i], [&](std::size_t next, const Set& bytes) {
                count = std::min(count + counts[next] * bytes.size(), kMostTexts + 1);
            });
        }
        return counts[0];
    }

    void list_texts(std::size_t state, std::string& text, std::vector<std::string>& texts)
    {
        if (automaton_.states[state].accepts) texts.push_back(text);
        for_each_next(state, [&](std::size_t next, const Set& bytes) {
            for (const char byte : bytes.members()) {
                text.push_back(byte);
                list_texts(next, text, texts);
                text.pop_back();
            }
        });
    }

    const Automaton& automaton_;
    std::vector<bool> lives_;
    std::vector<std::size_t> order_;
};

}  // namespace

namespace {

// States are languages: what may follow the bytes so far.
class States {
 public:
    States(Languages& languages, Language one) : languages_(languages), all_{one}, known_{{one.id, 0}} {}

    [[nodiscard]] std::size_t size() const { return all_.size(); }
    [[nodiscard]] bool accepts(std::size_t state) const { return languages_.node(all_[state]).takes_empty; }

    std::size_t after(std::size_t state, char byte)
    {
        const Language next = languages_.after(all_[state], byte);
        const auto [found, is_new] = known_.emplace(next.id, all_.size());
        if (is_new) all_.push_back(next);
        return found->second;
    }

 private:
    Languages& languages_;
    std::vector<Language> all_;
    std::unordered_map<std::uint32_t, std::size_t> known_;
};

// samples_of gives a byte of each class.
std::string samples_of(const std::vector<Set>& classes)
{
    std::string result;
    for (const Set& set : classes) result += set.members().front();
    return result;
}

}  // namespace

std::optional<Automaton> automaton_of(Languages& languages, Language one)
{
    Automaton result;
    result.classes = classes_of(languages, one);
    const std::string samples = samples_of(result.classes);
    States states(languages, one);
    for (std::size_t i = 0; i < states.size(); ++i) {
        if (i == kMostStates) return std::nullopt;
        Automaton::State state{states.accepts(i)};
        for (const char byte : samples) state.next.push_back(states.after(i, byte));
        result.states.push_back(std::move(state));
    }
    return result;
}

std::optional<Summary> summary_of(Languages& languages, Language one)
{
    const std::optional<Automaton> automaton = automaton_of(languages, one);
    if (!automaton) return std::nullopt;
    return Measure(*automaton).summary();
}

bool is_empty(Languages& languages, Language one)
{
    const std::string samples = samples_of(classes_of(languages, one));
    States states(languages, one);
    for (std::size_t i = 0; i < states.size(); ++i) {
        if (i == kMostStates || states.accepts(i)) return false;
        for (const char byte : samples) states.after(i, byte);
    }
    return true;
}

bool includes(Languages& languages, Language one, Language other)
{
    return is_empty(languages, languages.both({other, languages.negated(one)}));
}

}  // namespace ostrel::rules

// The properties that all strings in a language have in common.

#include <algorithm>

#include "rules/language/automaton.h"

namespace ostrel::rules {

namespace {

constexpr std::size_t kMostTexts = 40;

// Measure examines the states from which the automaton can accept a string.
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
            std::ranges::sort(*result.texts);
        }
        return result;
    }

 private:
    template <typename F>
    void for_each_next(std::size_t state, F look)
    {
        for (const Automaton::Arrow& arrow : automaton_.states[state].arrows) {
            if (lives_[arrow.next]) look(arrow.next, arrow.bytes);
        }
    }

    std::vector<bool> find_living()
    {
        const std::size_t count = automaton_.states.size();
        std::vector<std::vector<std::size_t>> before(count);
        std::vector<std::size_t> open;
        std::vector<bool> result(count);
        for (std::size_t state = 0; state < count; ++state) {
            for (const Automaton::Arrow& arrow : automaton_.states[state].arrows)
                before[arrow.next].push_back(state);
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

    // has_circle sorts the states so that every transition leads to a later state. It returns true if that is
    // impossible, because the automaton has a cycle.
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

    // walk_lengths finds the shortest length and, if the language is finite, all other lengths. Each pass
    // advances one byte from the states that the previous pass reached.
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

    // count_texts processes the states in the reverse of the order that has_circle found.
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

std::optional<Summary> summary_of(Languages& languages, Language one)
{
    const std::optional<Automaton> automaton = automaton_of(languages, one);
    if (!automaton) return std::nullopt;
    return Measure(*automaton).summary();
}

}  // namespace ostrel::rules

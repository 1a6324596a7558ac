// Finite automata for measuring and comparing languages.
#ifndef OSTREL_RULES_LANGUAGE_AUTOMATON_H
#define OSTREL_RULES_LANGUAGE_AUTOMATON_H

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "rules/language/language.h"

namespace ostrel::rules {

struct Automaton {
    struct Arrow {
        Set bytes;
        std::size_t next;
    };
    struct State {
        bool accepts = false;
        std::vector<Arrow> arrows = {};  // each byte belongs to exactly one arrow
    };

    std::vector<State> states;  // the first one is the start state
};

// Summary contains the properties that all strings in a language have in common.
struct Summary {
    bool is_empty = true;
    std::size_t shortest = 0;
    std::optional<std::size_t> longest;             // unset if the length is not limited
    Set bytes = {};                                 // all bytes that occur
    std::vector<long long> lengths = {};            // all lengths that occur, if the length is limited
    std::optional<std::vector<std::string>> texts;  // all strings, if there are only a few
};

// kMostStates limits the size of an automaton. A language that needs more states is treated as unknown.
inline constexpr std::size_t kMostStates = 20000;

std::optional<Automaton> automaton_of(Languages& languages, Language one);
std::optional<Summary> summary_of(Languages& languages, Language one);

// is_empty returns true if the language is known to contain no string.
bool is_empty(Languages& languages, Language one);

// includes returns true if every string in other is known to be in one.
bool includes(Languages& languages, Language one, Language other);

}  // namespace ostrel::rules

#endif

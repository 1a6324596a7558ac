// Automaton: a language as states, from which its texts can be counted, measured and compared with others.
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
        std::vector<Arrow> arrows = {};  // one for each byte
    };

    std::vector<State> states;  // the first one is where a text begins
};

// Summary is what all texts of a language have in common.
struct Summary {
    bool is_empty = true;
    std::size_t shortest = 0;
    std::optional<std::size_t> longest;             // none: there is no end
    Set bytes = {};                                 // that occur
    std::vector<long long> lengths = {};            // where there is a longest
    std::optional<std::vector<std::string>> texts;  // all, where they are few
};

// kMostStates bounds what is looked at. Of a language that needs more nothing is said.
inline constexpr std::size_t kMostStates = 20000;

std::optional<Automaton> automaton_of(Languages& languages, Language one);
std::optional<Summary> summary_of(Languages& languages, Language one);

// is_empty tells whether there is certainly no text in it.
bool is_empty(Languages& languages, Language one);

// includes tells whether every text of the other one is certainly in it.
bool includes(Languages& languages, Language one, Language other);

}  // namespace ostrel::rules

#endif

// Automaton: a language as states, by which its texts can be counted, measured and compared.
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

    std::vector<State> states;  // the first is the start
};

// Summary contains the common properties of all texts of a language.
struct Summary {
    bool is_empty = true;
    std::size_t shortest = 0;
    std::optional<std::size_t> longest;             // none: unlimited
    Set bytes = {};                                 // that occur
    std::vector<long long> lengths = {};            // if there is a longest
    std::optional<std::vector<std::string>> texts;  // all, if they are few
};

// kMostStates limits the size. A language that needs more states is treated as unknown.
inline constexpr std::size_t kMostStates = 20000;

std::optional<Automaton> automaton_of(Languages& languages, Language one);
std::optional<Summary> summary_of(Languages& languages, Language one);

// is_empty returns true if the language is known to have no text.
bool is_empty(Languages& languages, Language one);

// includes returns true if every text of the other is known to be in it.
bool includes(Languages& languages, Language one, Language other);

}  // namespace ostrel::rules

#endif

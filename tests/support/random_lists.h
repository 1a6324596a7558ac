// The lists and texts that list rules are tried on.
#ifndef OSTREL_TESTS_SUPPORT_RANDOM_LISTS_H
#define OSTREL_TESTS_SUPPORT_RANDOM_LISTS_H

#include <random>
#include <string>
#include <vector>

namespace ostrel::tests {

// random_text joins at most that many of the parts, chosen anew each time.
inline std::string random_text(std::mt19937& random, const std::vector<std::string>& parts, unsigned most)
{
    std::string text;
    for (unsigned count = static_cast<unsigned>(random()) % (most + 1); count > 0; --count) {
        text += parts[random() % parts.size()];
    }
    return text;
}

// for_each_text runs through all texts of the same length over the alphabet; the text begins with the first
// character of the alphabet in each place, and ends so.
template <typename Visit>
void for_each_text(std::string& text, const std::string& alphabet, const Visit& visit)
{
    for (;;) {
        visit();
        std::size_t place = 0;
        for (; place < text.size(); ++place) {
            const std::size_t next = (alphabet.find(text[place]) + 1) % alphabet.size();
            text[place] = alphabet[next];
            if (next != 0) break;
        }
        if (place == text.size()) return;
    }
}

}  // namespace ostrel::tests

#endif

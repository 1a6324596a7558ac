// What the slow second versions of the list rules share, and the lists that they are tried on.
#ifndef OSTREL_TESTS_SUPPORT_SLOW_LISTS_H
#define OSTREL_TESTS_SUPPORT_SLOW_LISTS_H

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace ostrel::tests {

inline std::string slow_trim(std::string text)
{
    while (!text.empty() && text.front() == ' ') text.erase(0, 1);
    while (!text.empty() && text.back() == ' ') text.pop_back();
    return text;
}

// slow_is_address reads four numbers of digits only and leaves nothing over.
inline bool slow_is_address(const std::string& text)
{
    if (text.size() < 7 || text.size() > 15) return false;
    int numbers = 0;
    std::size_t begin = 0;
    for (;;) {
        const std::size_t end = std::min(text.find('.', begin), text.size());
        const std::string digits = text.substr(begin, end - begin);
        if (digits.empty() || digits.find_first_not_of("0123456789") != std::string::npos) return false;
        if (std::stoll(digits) > 255) return false;
        ++numbers;
        if (end == text.size()) return numbers == 4;
        begin = end + 1;
    }
}

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

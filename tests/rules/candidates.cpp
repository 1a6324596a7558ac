#include "tests/rules/candidates.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace ostrel::tests {

using rules::Form;
using rules::Set;

namespace {

constexpr std::size_t kLongest = 9000;
constexpr std::size_t kMostChanged = 160;  // strings into which bytes are inserted
constexpr std::size_t kMostItems = 48;     // strings from which lists are built

class Maker {
 public:
    explicit Maker(const Form& form) : form_(form)
    {
        const Set all = Set::range(1, 255);
        const Set inside = form.characters.value_or(all);
        members_ = ends_of(inside);
        others_ = ends_of(all - inside);
    }

    std::set<std::string> make(const std::set<std::string>& known)
    {
        result_ = {"", " ", "a", "0", "-", ","};
        result_.insert(known.begin(), known.end());
        lengths();
        words(form_.keywords.value_or(std::vector<std::string>()));
        words(form_.prefixes);
        for (const rules::Runs& shape : form_.shapes) groups(shape);
        if (form_.minimum || form_.maximum || form_.reads_number) limits();
        if (form_.separator) lists(*form_.separator);
        std::size_t changed = 0;
        for (const std::string& text : some_of(result_, kMostChanged)) bytes(text, changed++ % 16 == 0);
        return std::move(result_);
    }

 private:
    static std::string ends_of(const Set& set)
    {
        std::string members = set.members();
        if (members.size() < 3) return members;
        return {members.front(), members[members.size() / 2], members.back()};
    }

    // some_of returns short strings, spread evenly over the set.
    static std::vector<std::string> some_of(const std::set<std::string>& texts, std::size_t most)
    {
        constexpr std::size_t kShort = 200;
        std::vector<std::string> all;
        std::ranges::copy_if(texts, std::back_inserter(all),
                             [](const auto& text) { return text.size() < kShort; });
        std::vector<std::string> result;
        const std::size_t step = std::max<std::size_t>(all.size() / most, 1);
        for (std::size_t i = 0; i < all.size(); i += step) result.push_back(all[i]);
        return result;
    }

    void lengths()
    {
        std::vector<long long> near = form_.lengths;
        near.push_back(static_cast<long long>(form_.min_length.value_or(0)));
        near.push_back(static_cast<long long>(form_.max_length.value_or(300)));
        for (const long long length : near) {
            for (const long long size : {length - 1, length, length + 1}) {
                if (size < 0 || size > static_cast<long long>(kLongest)) continue;
                for (const char byte : members_ + others_)
                    result_.emplace(static_cast<std::size_t>(size), byte);
            }
        }
    }

    void words(const std::vector<std::string>& words)
    {
        for (const std::string& word : words) {
            std::string swapped = word;
            for (char& c : swapped) {
                if ((c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z')) c = static_cast<char>(c ^ 0x20);
            }
            for (const std::string& one : {word, swapped}) {
                result_.insert(one);
                result_.insert(one + "x");
                result_.insert(one + " ");
                result_.insert(" " + one);
                result_.insert(one.substr(0, one.size() / 2));
                if (!one.empty()) result_.insert(one.substr(0, one.size() - 1));
                if (!one.empty()) result_.insert(swapped.substr(0, 1) + word.substr(1));
            }
        }
    }

    // groups generates each group of a shape at its shortest and longest, and one byte shorter and longer.
    void groups(const rules::Runs& shape)
    {
        for (std::size_t at = 0; at <= shape.size(); ++at) {
            for (const long long more : {-1, 0, 1}) {
                for (const bool is_longest : {false, true}) {
                    std::string text;
                    for (std::size_t i = 0; i < shape.size(); ++i) {
                        const std::string bytes = ends_of(shape[i].characters);
                        auto size = static_cast<long long>(is_longest ? shape[i].most : shape[i].least);
                        if (i == at) size = std::max(size + more, 0LL);
                        text.append(static_cast<std::size_t>(size),
                                    is_longest ? bytes.back() : bytes.front());
                    }
                    result_.insert(text);
                }
            }
        }
    }

    void limits()
    {
        for (const long long limit : {form_.minimum.value_or(0), form_.maximum.value_or(100), 0LL, 255LL}) {
            for (const long long number : {limit - 1, limit, limit + 1, -limit, limit * 10, limit / 10}) {
                const std::string digits = std::to_string(number);
                for (const char* before : {"", " ", "\t\n", "+", "0", "00", "x", "\x0E", "--", "+-", " +"}) {
                    for (const char* after : {"", " ", "x", ".", "\x80"})
                        result_.insert(before + digits + after);
                }
            }
        }
    }

    void lists(char between)
    {
        const std::string separator(1, between);
        const std::size_t least = form_.min_items.value_or(1);
        const std::size_t most = form_.max_items.value_or(least + 2);
        const std::vector<std::string> paddings = {"", " ", form_.trimmed.members().substr(0, 1)};
        const std::vector<std::string> some = some_of(candidates(form_.item.front(), {}), kMostItems);
        for (std::size_t i = 0; i < some.size(); ++i) {
            for (std::size_t count = least > 1 ? least - 1 : 1; count <= most + 1; ++count) {
                for (const std::string& padding : paddings) {
                    std::string text = some[i];
                    for (std::size_t k = 1; k < count; ++k)
                        text += padding + separator + padding + some[(i + k * 7) % some.size()];
                    result_.insert(text);
                    result_.insert(padding + some[i] + repeated(separator + padding + some[i], count - 1) +
                                   padding);
                }
            }
        }
    }

    static std::string repeated(const std::string& text, std::size_t times)
    {
        std::string result;
        for (; times > 0; --times) result += text;
        return result;
    }

    // bytes inserts, replaces and removes bytes at the beginning, the middle and the end of a string.
    void bytes(const std::string& text, bool all)
    {
        const std::string tried = all ? Set::range(1, 255).members() : members_ + others_;
        for (const std::size_t at : {std::size_t{0}, text.size() / 2, text.size()}) {
            for (const char byte : tried) {
                result_.insert(text.substr(0, at) + byte + text.substr(at));
                if (at < text.size()) result_.insert(text.substr(0, at) + byte + text.substr(at + 1));
            }
            if (at < text.size()) result_.insert(text.substr(0, at) + text.substr(at + 1));
        }
    }

    const Form& form_;
    std::string members_;
    std::string others_;
    std::set<std::string> result_;
};

}  // namespace

std::set<std::string> candidates(const Form& form, const std::set<std::string>& known)
{
    return Maker(form).make(known);
}

std::vector<long long> numbers(const Form& form)
{
    std::vector<long long> result = {-2, -1, 0, 1, 2, 255, 65535, std::numeric_limits<int>::max()};
    for (const long long limit : {form.minimum.value_or(0), form.maximum.value_or(0)}) {
        for (const long long number : {limit - 1, limit, limit + 1}) result.push_back(number);
    }
    return result;
}

}  // namespace ostrel::tests

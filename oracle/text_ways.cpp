// Ways to follow reasons about the lengths, bytes, words and shapes of strings.

#include <algorithm>

#include "oracle/ways.h"

namespace ostrel::oracle {

namespace {

constexpr long long kLongest = 8192;  // longer strings are not tried

std::string resized(std::string_view text, long long size)
{
    std::string result(text);
    result.resize(static_cast<std::size_t>(size), '0');
    return result;
}

bool is_tried(long long size) { return size >= 0 && size <= kLongest; }

std::vector<std::string> members(const Refusal& refusal)
{
    const auto* set = std::get_if<rules::Set>(&refusal.reason().allowed);
    std::vector<std::string> result;
    for (const char c : set == nullptr ? "" : set->members()) result.emplace_back(1, c);
    return result;
}

// Misses are the bytes that are not in a set.
struct Misses {
    std::vector<char> all;
    std::vector<char> near;  // adjacent to a member
};

Misses misses_of(const rules::Set& set)
{
    Misses result;
    const auto is_member = [&](unsigned one) { return set.contains(static_cast<unsigned char>(one)); };
    for (unsigned byte = 1; byte <= 0xFF; ++byte) {
        if (is_member(byte)) continue;
        result.all.push_back(static_cast<char>(byte));
        if (is_member(byte - 1) || (byte < 0xFF && is_member(byte + 1)))
            result.near.push_back(static_cast<char>(byte));
    }
    return result;
}

void take_members(const Refusal& refusal, Advice& advice)
{
    for (const std::string& member : refusal.some(members(refusal))) {
        if (member.front() != '\0') advice.followed.push_back(refusal.with_byte(member.front()));
    }
}

void take_misses(const Refusal& refusal, std::vector<Values>& calls)
{
    const Misses misses = misses_of(std::get<rules::Set>(refusal.reason().allowed));
    for (const char miss : refusal.some(misses.near, 2)) calls.push_back(refusal.with_byte(miss));
    for (const char miss : refusal.some(misses.all, 1)) calls.push_back(refusal.with_byte(miss));
}

}  // namespace

// If the maximum length is negative, no string is allowed.
void cut(const Refusal& refusal, Advice& advice)
{
    const long long most = refusal.allowed_numbers().at(0);
    if (most < 0) {
        advice.less.push_back(refusal.with(""));
        return;
    }
    const auto size = static_cast<std::size_t>(most);
    advice.followed.push_back(refusal.with(refusal.judged().substr(0, size)));
    advice.less.push_back(refusal.with(refusal.judged().substr(0, size + 1)));
}

void fill(const Refusal& refusal, Advice& advice)
{
    const long long least = refusal.allowed_numbers().at(0);
    if (!is_tried(least)) return;
    advice.followed.push_back(refusal.with(resized(refusal.judged(), least)));
    advice.less.push_back(refusal.with(resized(refusal.judged(), least - 1)));
}

void take_length(const Refusal& refusal, Advice& advice)
{
    const std::vector<long long> lengths = refusal.allowed_numbers();
    for (const long long length : refusal.some(lengths)) {
        advice.followed.push_back(refusal.with(resized(refusal.judged(), length)));
        for (const long long near : {length - 1, length + 1}) {
            if (!is_tried(near) || std::ranges::find(lengths, near) != lengths.end()) continue;
            advice.less.push_back(refusal.with(resized(refusal.judged(), near)));
        }
    }
}

// A WEP key has 10 or 26 digits, so a key of the other length is one step short.
void take_other_length(const Refusal& refusal, Advice& advice)
{
    const long long length = refusal.allowed_numbers().at(0);
    advice.followed.push_back(refusal.with(resized(refusal.judged(), length)));
    advice.less.push_back(refusal.with(resized(refusal.judged(), length == 10 ? 26 : 10)));
}

void empty(const Refusal& refusal, Advice& advice)
{
    advice.followed.push_back(refusal.with(""));
    advice.less.push_back(refusal.with("0"));
}

void give_text(const Refusal& refusal, Advice& advice) { advice.followed.push_back(refusal.with("0")); }

void give_what_is_null(const Refusal& refusal, Advice& advice)
{
    for (const char* text : {"", "0"})
        advice.followed.push_back(refusal.with_argument(refusal.reason().argument.value(), text));
}

// A byte outside the set may end a part or an item, so that another part or item is judged. A byte that fits
// no shape may still be accepted, because some time checks accept any value that is not printable.
void replace_byte(const Refusal& refusal, Advice& advice)
{
    const rules::Reason& reason = refusal.reason();
    const bool is_of_set = reason.id == "not_in_set" && reason.part.empty() && !reason.item;
    take_members(refusal, advice);
    take_misses(refusal, is_of_set ? advice.less : advice.attempts);
}

void replace_byte_or_end(const Refusal& refusal, Advice& advice)
{
    end_text(refusal, advice);
    replace_byte(refusal, advice);
}

void continue_text(const Refusal& refusal, Advice& advice)
{
    const std::string text(refusal.judged());
    for (const std::string& member : refusal.some(members(refusal)))
        advice.followed.push_back(refusal.with(text + member));
}

void end_text(const Refusal& refusal, Advice& advice)
{
    const std::size_t size = refusal.reason().offset.value() - refusal.begin();
    advice.followed.push_back(refusal.with(refusal.judged().substr(0, size)));
    advice.less.push_back(refusal.with(refusal.judged().substr(0, size + 1)));
}

void take_word(const Refusal& refusal, Advice& advice)
{
    const std::vector<std::string> words = refusal.allowed_texts();
    for (const std::string& word : refusal.some(words)) {
        advice.followed.push_back(refusal.with(word));
        for (const std::string& near : {word + "x", word.substr(0, word.size() - 1)}) {
            if (std::ranges::find(words, near) == words.end()) advice.attempts.push_back(refusal.with(near));
        }
        advice.less.push_back(refusal.with(word + "x"));
    }
}

void leave_word(const Refusal& refusal, Advice& advice)
{
    advice.followed.push_back(refusal.with(std::string(refusal.judged()) + "x"));
    for (const std::string& word : refusal.some(refusal.allowed_texts()))
        advice.less.push_back(refusal.with(word));
}

// A value one step short differs only in the last byte of the prefix.
void begin_with(const Refusal& refusal, Advice& advice)
{
    const std::string judged(refusal.judged());
    for (const std::string& word : refusal.some(refusal.allowed_texts())) {
        advice.followed.push_back(refusal.with(word + judged));
        const std::string all = word + (judged.size() > word.size() ? judged.substr(word.size()) : "1.1");
        advice.followed.push_back(refusal.with(all));
        for (std::size_t i = 0; i < word.size(); ++i) {
            std::string other = all;
            other[i] = other[i] == '1' ? '2' : '1';
            advice.attempts.push_back(refusal.with(other));
        }
        advice.less.push_back(refusal.with(word.substr(0, word.size() - 1) + "0"));
    }
}

void begin_otherwise(const Refusal& refusal, Advice& advice)
{
    const std::string judged(refusal.judged());
    advice.followed.push_back(refusal.with("x" + judged));
    for (const std::string& word : refusal.allowed_texts()) {
        if (judged.size() >= word.size())
            advice.less.push_back(refusal.with(word + judged.substr(word.size())));
    }
}

void add_part(const Refusal& refusal, Advice& advice)
{
    for (const std::string& part : refusal.allowed_texts())
        advice.followed.push_back(refusal.with(std::string(refusal.judged()) + part));
}

void name_with_letter(const Refusal& refusal, Advice& advice)
{
    std::string name(refusal.judged());
    for (const char c : {'a', '-'}) {
        name[0] = c;
        advice.followed.push_back(refusal.with(name));
    }
    name[0] = '0';
    advice.less.push_back(refusal.with(name));
}

// The path begins at the offset, and the first ":" directly follows the judged part.
void leave_colons(const Refusal& refusal, Advice& advice)
{
    const std::size_t first = refusal.begin() + refusal.judged().size();
    std::string whole = refusal.whole();
    std::replace(whole.begin() + static_cast<std::ptrdiff_t>(first) + 1, whole.end(), ':', '0');
    advice.less.push_back(refusal.with_whole(whole));
    whole.at(first) = '0';
    advice.followed.push_back(refusal.with_whole(whole));
}

}  // namespace ostrel::oracle

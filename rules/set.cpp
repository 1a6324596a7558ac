#include "rules/set.h"

#include <bit>
#include <utility>
#include <vector>

#include "rules/sets.h"

namespace ostrel::rules {

namespace {

struct Group {
    Set set;
    std::string_view words;
};

// Groups are named in this order. The members of a group are excluded from later groups.
constexpr Group kGroups[] = {
    {kLatin1, "printable Latin-1 characters"},
    {kPrintable, "printable ASCII characters"},
    {kLetters, "letters"},
    {kUpper, "upper-case letters"},
    {kLower, "lower-case letters"},
    {kHex, "hexadecimal digits"},
    {kDigits, "digits"},
    {Set::range('A', 'F'), "A to F"},
    {Set::range('a', 'f'), "a to f"},
    {kBlank, "spaces"},
};

constexpr std::string_view kNoBytes = "no bytes";
constexpr std::string_view kSpace = "a space";
constexpr std::string_view kQuotationMark = "a quotation mark";
constexpr std::string_view kAnd = " and ";
constexpr std::string_view kComma = ", ";
constexpr std::string_view kTo = " to ";

// Parts joins names, as in "letters, digits and -".
class Parts {
 public:
    void add(std::string_view part)
    {
        if (!text_.empty()) {
            last_ = text_.size();
            text_ += kComma;
        }
        text_ += part;
    }

    std::string take()
    {
        if (last_ > 0) text_.replace(last_, kComma.size(), kAnd);
        return std::move(text_);
    }

 private:
    std::string text_;
    std::size_t last_ = 0;  // the offset of the last comma
};

// add_runs adds each run of at least four bytes as one part that names its two ends, and all other bytes as
// one part.
void add_runs(const std::string& members, Parts& parts)
{
    std::string single;
    for (std::size_t begin = 0; begin < members.size();) {
        std::size_t end = begin + 1;
        while (end < members.size() &&
               static_cast<unsigned char>(members[end]) == static_cast<unsigned char>(members[end - 1]) + 1) {
            ++end;
        }
        const bool is_mark = members[begin] > ' ' && members[begin] < '0';
        if (end - begin >= 4 && !is_mark) {
            parts.add(bare(members[begin]).append(kTo).append(bare(members[end - 1])));
        } else {
            for (std::size_t i = begin; i < end; ++i) {
                if (!single.empty()) single += ' ';
                single += bare(members[i]);
            }
        }
        begin = end;
    }
    if (!single.empty()) parts.add(single);
}

std::string described(const Set& set)
{
    if (set.empty()) return std::string(kNoBytes);
    if (set.size() == 1) return byte_in_words(set.members().front());
    Parts parts;
    Set rest = set;
    for (const Group& group : kGroups) {
        if (!rest.contains(group.set)) continue;
        parts.add(group.words);
        rest = rest - group.set;
    }
    add_runs(rest.members(), parts);
    return parts.take();
}

}  // namespace

std::size_t Set::size() const
{
    std::size_t count = 0;
    for (const std::uint64_t word : bits_) count += static_cast<std::size_t>(std::popcount(word));
    return count;
}

std::string Set::members() const
{
    std::array<char, 256> found;
    std::size_t count = 0;
    for (std::size_t i = 0; i < bits_.size(); ++i) {
        for (std::uint64_t rest = bits_[i]; rest != 0; rest &= rest - 1) {
            found[count++] = static_cast<char>(i * 64 + static_cast<std::size_t>(std::countr_zero(rest)));
        }
    }
    return {found.data(), count};
}

std::size_t Set::find_outside(std::string_view text) const
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!contains(text[i])) return i;
    }
    return std::string_view::npos;
}

std::string in_words(const Set& set)
{
    // Recent results are kept, because the descriptions use few sets, and many reasons use the same one.
    struct Known {
        Set set;
        std::string words = described(Set());
    };
    thread_local std::array<Known, 64> recent;
    Known& known = recent[set.hash() % recent.size()];
    if (known.set != set) known = {set, described(set)};
    return known.words;
}

std::string bare(char byte)
{
    if (byte > ' ' && byte <= '~') return {byte};
    constexpr std::string_view kHexDigits = "0123456789ABCDEF";
    const auto code = static_cast<unsigned char>(byte);
    return {'\\', 'x', kHexDigits[code / 16], kHexDigits[code % 16]};
}

std::vector<std::string_view> set_words()
{
    std::vector<std::string_view> words = {kNoBytes, kSpace, kQuotationMark, kAnd, kTo};
    for (const Group& group : kGroups) words.push_back(group.words);
    return words;
}

std::string byte_in_words(char byte)
{
    if (byte == ' ') return std::string(kSpace);
    if (byte == '"') return std::string(kQuotationMark);
    if (byte > ' ' && byte <= '~') return "\"" + std::string(1, byte) + "\"";
    return bare(byte);
}

}  // namespace ostrel::rules

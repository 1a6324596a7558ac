#include "map/standard.h"

#include <algorithm>
#include <limits>

#include "map/dates.h"
#include "rules/sets.h"

namespace ostrel::tool {

namespace {

using rules::Language;
using rules::Languages;
using rules::Set;

constexpr std::size_t kMany = Languages::kMany;
constexpr Set kWritten = Set::range(0x20, 0x7F) | Set("\t\n\r");  // the ASCII characters that XML can contain

class StandardBuilder {
 public:
    StandardBuilder(Languages& languages, const ModelFacts& facts) : languages_(languages), facts_(facts) {}

    Standard standard()
    {
        Standard result = facts_.patterns.empty() ? item() : unknown();
        if (facts_.is_list) result = list(result);
        const bool is_exact = facts_.type != "URL" && result.is_known;
        result.others =
            languages_.both({result.form, languages_.negated(is_exact ? result.values : result.most)});
        const bool has_foreign = result.is_known && !result.is_text && !facts_.is_list;
        const Language plain = languages_.repeated(Set::range('!', '~'));
        result.foreign = has_foreign
                             ? languages_.both({plain, languages_.negated(languages_.either(
                                                           {result.form, result.most, written_otherwise_}))})
                             : languages_.nothing();
        return result;
    }

 private:
    Standard item()
    {
        if (facts_.type == "string") return string();
        if (facts_.type == "unsignedInt") return number(0, std::numeric_limits<unsigned>::max());
        if (facts_.type == "int")
            return number(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
        if (facts_.type == "boolean") return exact(languages_.words({"0", "1", "true", "false"}, false));
        if (facts_.type == "dateTime") return date_time();
        if (facts_.type == "IPAddress" || facts_.type == "IPv4Address") return address();
        if (facts_.type == "MACAddress") return mac_address();
        if (facts_.type == "hexBinary") return hex();
        if (facts_.type == "base64") return base64();
        if (facts_.type == "URL") return url();
        return unknown();
    }

    static Standard exact(Language values) { return {values, values, {}, {}, values, values}; }

    Standard unknown()
    {
        const Language form = languages_.repeated(kWritten);
        return {languages_.nothing(), form, {}, {}, languages_.nothing(), languages_.any(), false, false};
    }

    Language bytes(const Set& set, std::size_t least, std::size_t most)
    {
        return languages_.repeated(languages_.byte(set), least, most);
    }

    // of_lengths returns the strings that consist of n strings of the language one, for each n in any of the
    // ranges. The upper limits are multiplied by factor.
    Language of_lengths(const std::vector<Range>& lengths, Language one, std::size_t factor = 1)
    {
        if (lengths.empty()) return languages_.repeated(one, 0);
        std::vector<Language> parts;
        for (const Range& range : lengths) {
            const auto low = static_cast<std::size_t>(range.low.value_or(0));
            const std::size_t high = range.high ? static_cast<std::size_t>(*range.high) * factor : kMany;
            parts.push_back(languages_.repeated(one, low, high));
        }
        return languages_.either(parts);
    }

    Standard string()
    {
        if (!facts_.keywords.empty()) {
            const Language form = languages_.repeated(kWritten);
            const Language length = of_lengths(facts_.lengths, languages_.byte(kWritten));
            const Language values = languages_.both({languages_.words(facts_.keywords, false), length});
            return {values, form, {}, {}, values, values, true};
        }
        return text_of(facts_.lengths);
    }

    Standard text_of(const std::vector<Range>& lengths)
    {
        constexpr std::size_t kLongestCharacter = 4;  // bytes in UTF-8
        const Language one = languages_.byte(kWritten);
        const Language byte = languages_.byte(rules::kEveryByte);
        Standard result;
        result.form = languages_.repeated(one, 0);
        result.values = of_lengths(lengths, one);
        // A string never has more characters than bytes.
        const bool has_least =
            std::ranges::any_of(lengths, [](const Range& range) { return range.low.value_or(0) > 1; });
        result.least = has_least ? result.values : of_lengths(lengths, byte);
        result.most = of_lengths(lengths, byte, kLongestCharacter);
        result.is_text = true;
        return result;
    }

    // written returns the numbers from low to high in decimal, without leading zeros.
    Language written(long long low, long long high)
    {
        std::vector<Language> parts;
        if (high >= 0) parts.push_back(languages_.decimals(std::max(low, 0LL), high));
        if (low < 0) {
            const long long least = std::max(1LL, -high);
            parts.push_back(languages_.joined(languages_.text("-"), languages_.decimals(least, -low)));
        }
        return languages_.either(parts);
    }

    Standard number(long long low, long long high)
    {
        std::vector<Language> parts;
        if (facts_.numbers.empty()) parts.push_back(written(low, high));
        for (const Range& range : facts_.numbers)
            parts.push_back(
                written(std::max(low, range.low.value_or(low)), std::min(high, range.high.value_or(high))));
        Standard result = exact(languages_.either(parts));
        written_otherwise_ = languages_.joined(languages_.repeated(languages_.byte(Set("+-")), 0, 1),
                                               bytes(rules::kDigits, 1, kMany));
        // Builds differ in how they read numbers that do not fit in an int.
        const long long highest = facts_.numbers.empty() ? high : facts_.numbers.back().high.value_or(high);
        result.form = written(std::numeric_limits<int>::min(),
                              std::max<long long>(std::numeric_limits<int>::max(), highest));
        return result;
    }

    Standard date_time()
    {
        const Language values = date_times(languages_);
        const Language none = languages_.no_byte();
        // The end of a day may be written as hour 24, and a year may have more than four digits and a sign.
        const Language more = languages_.joined(
            {languages_.either({none, languages_.text("-")}), bytes(rules::kDigits, 4, 4), languages_.any()});
        return {values, values, {}, {}, values, languages_.either({values, more})};
    }

    Standard address()
    {
        const Language octet = languages_.decimals(0, 255);
        const Language dot = languages_.text(".");
        const Language values = languages_.joined({octet, dot, octet, dot, octet, dot, octet});
        // Some parameters may be empty, and the type may include IPv6 addresses.
        const Language half = languages_.repeated(rules::kAlnum | Set(":./%-"));
        const Language six = languages_.joined({half, languages_.text(":"), half});
        return {values, values, {}, {}, values, languages_.either({values, six, languages_.no_byte()})};
    }

    Standard mac_address()
    {
        const Language two = bytes(rules::kHex, 2, 2);
        const Language values =
            languages_.joined({two, languages_.repeated(languages_.joined(languages_.text(":"), two), 5, 5)});
        return {values, values, {}, {}, values, languages_.either({values, languages_.no_byte()})};
    }

    Standard hex()
    {
        const Language byte = bytes(rules::kHex, 2, 2);
        Standard result = exact(of_lengths(facts_.lengths, byte));
        result.form = languages_.repeated(byte, 0);
        return result;
    }

    // base64 returns only values without line breaks.
    Standard base64()
    {
        const Set all("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/");
        const Language three = bytes(all, 4, 4);
        const Language two = languages_.joined(
            {bytes(all, 2, 2), languages_.byte(Set("AEIMQUYcgkosw048")), languages_.text("=")});
        const Language one =
            languages_.joined({languages_.byte(all), languages_.byte(Set("AQgw")), languages_.text("==")});
        written_otherwise_ = languages_.repeated(all | Set("="));
        Standard result;
        result.form = languages_.joined(
            {languages_.repeated(three, 0), languages_.either({languages_.no_byte(), two, one})});
        std::vector<Language> parts;
        for (const Range& range : facts_.lengths) {
            const long long most = range.high.value_or(-1);
            if (range.low.value_or(0) > 0 || most < 0) return unknown();
            const auto whole = static_cast<std::size_t>(most / 3);
            const auto rest = static_cast<std::size_t>(most % 3);
            std::vector<Language> ends = {languages_.no_byte()};
            if (rest > 0) ends.push_back(one);
            if (rest > 1) ends.push_back(two);
            parts.push_back(languages_.joined(languages_.repeated(three, 0, whole), languages_.either(ends)));
            if (whole == 0) continue;
            const Language before = languages_.repeated(three, 0, whole - 1);
            parts.push_back(languages_.joined(before, languages_.either({one, two})));
        }
        result.values = parts.empty() ? result.form : languages_.either(parts);
        result.least = result.most = result.values;
        return result;
    }

    // url allows only simple strings that are certainly URLs.
    Standard url()
    {
        Standard result = text_of(facts_.lengths);
        const Set letters = Set::range('a', 'z');
        const Language scheme = languages_.words({"http://", "https://"}, false);
        const Language host = languages_.joined(bytes(letters, 1, 60), languages_.text(".example/"));
        const Language certain = languages_.joined({scheme, host, bytes(letters | rules::kDigits, 0, kMany)});
        result.values = result.least = languages_.both({result.values, certain});
        return result;
    }

    Standard list(const Standard& one)
    {
        // If the items are not restricted, any string is a list of items.
        if (one.is_text && facts_.keywords.empty()) return text_of(facts_.list_lengths);
        const auto items = [&](Language item) {
            const Language more = languages_.repeated(languages_.joined(languages_.text(","), item), 0);
            return languages_.either({languages_.no_byte(), languages_.joined(item, more)});
        };
        Standard result = one;
        const Language length = of_lengths(facts_.list_lengths, languages_.byte(rules::kEveryByte));
        result.values = languages_.both({items(one.values), length});
        result.form = items(one.form);
        result.least = languages_.both({items(one.least), length});
        // Blanks may surround the commas.
        result.most = length;
        return result;
    }

    Languages& languages_;
    const ModelFacts& facts_;
    Language written_otherwise_ = languages_.nothing();  // other ways of writing values of the type
};

}  // namespace

Standard standard_of(Languages& languages, const ModelFacts& facts)
{
    return StandardBuilder(languages, facts).standard();
}

}  // namespace ostrel::tool

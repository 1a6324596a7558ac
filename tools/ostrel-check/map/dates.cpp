#include "map/dates.h"

#include <cstddef>
#include <string>
#include <vector>

#include "rules/sets.h"

namespace ostrel::tool {

namespace {

using rules::Language;
using rules::Languages;

Language digits(Languages& languages, std::size_t count)
{
    return languages.repeated(languages.byte(rules::kDigits), count, count);
}

Language number_of_two(Languages& languages, int low, int high)
{
    std::vector<std::string> words;
    for (int number = low; number <= high; ++number)
        words.push_back({static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)});
    return languages.words(words, false);
}

Language days(Languages& languages)
{
    const Language year = languages.both({digits(languages, 4), languages.negated(languages.text("0000"))});
    const Language dash = languages.text("-");
    const auto date = [&](Language of_year, Language month, Language day) {
        return languages.joined({of_year, dash, month, dash, day});
    };
    const Language leap_year = languages.both({year, languages.leap_years()});
    const Language all_but_two =
        languages.words({"01", "03", "04", "05", "06", "07", "08", "09", "10", "11", "12"}, false);
    const Language long_ones = languages.words({"01", "03", "05", "07", "08", "10", "12"}, false);
    return languages.either({date(year, number_of_two(languages, 1, 12), number_of_two(languages, 1, 28)),
                             date(year, all_but_two, number_of_two(languages, 29, 30)),
                             date(year, long_ones, languages.text("31")),
                             date(leap_year, languages.text("02"), languages.text("29"))});
}

}  // namespace

Language date_times(Languages& languages)
{
    const Language colon = languages.text(":");
    const Language minute = number_of_two(languages, 0, 59);
    const Language hour = number_of_two(languages, 0, 23);
    const Language time = languages.joined({languages.text("T"), hour, colon, minute, colon, minute});
    const Language none = languages.no_byte();
    const Language some_digits = languages.repeated(languages.byte(rules::kDigits), 1);
    const Language fraction = languages.either({none, languages.joined(languages.text("."), some_digits)});
    const Language below_14 = languages.joined({number_of_two(languages, 0, 13), colon, minute});
    const Language offset = languages.joined(
        {languages.byte(rules::Set("+-")), languages.either({below_14, languages.text("14:00")})});
    const Language zone = languages.either({none, languages.text("Z"), offset});
    return languages.joined({days(languages), time, fraction, zone});
}

}  // namespace ostrel::tool

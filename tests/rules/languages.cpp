#include "tests/rules/languages.h"

namespace ostrel::tests {

using rules::Cut;
using rules::Language;
using rules::Languages;
using rules::Set;
using Kind = rules::Expression::Kind;

void for_each_text(const std::string& alphabet, std::size_t longest,
                   const std::function<void(const std::string&)>& look, const std::string& begin)
{
    look(begin);
    if (begin.size() == longest) return;
    for (const char byte : alphabet) for_each_text(alphabet, longest, look, begin + byte);
}

std::vector<Cut> cuts()
{
    std::vector<Cut> result;
    for (const Kind kind :
         {Kind::kBeforeFirst, Kind::kBeforeLast, Kind::kAfterFirst, Kind::kAfterLast, Kind::kThroughLast}) {
        for (const char* separator : {"@", "a@"}) result.push_back({kind, separator});
    }
    for (std::size_t offset = 0; offset < 3; ++offset) {
        for (const std::size_t count : {std::size_t{0}, std::size_t{1}, std::size_t{2}, Languages::kMany})
            result.push_back({Kind::kSlice, "", offset, count});
    }
    return result;
}

std::vector<Language> inner_languages(Languages& languages)
{
    const Language number = languages.of_number({1, 11});
    const Language run = languages.repeated(Set("1a"));
    const Language word = languages.words({"a", "1@"}, false);
    return {languages.any(),
            languages.nothing(),
            languages.of_length({0, 0}),
            languages.of_length({1, 2}),
            number,
            run,
            languages.negated(run),
            languages.both({number, run}),
            languages.either({word, languages.both({run, languages.of_length({2, 3})})}),
            languages.negated(word),
            languages.with_count('@', {1, 2}),
            languages.with_prefix({"1"}, false),
            languages.both({languages.negated(languages.with_prefix({"A"}, true)), languages.negated(word)})};
}

}  // namespace ostrel::tests

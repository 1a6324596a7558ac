#include "tests/small_spaces/spaces.h"

#include "oracle/library.h"
#include "rules/evaluate.h"

namespace ostrel::tests {

using catalogue::Function;

Texts texts_of(const Texts& pieces, std::size_t most)
{
    Texts texts = {""};
    std::size_t shorter = 0;
    for (std::size_t count = 0; count < most; ++count) {
        const std::size_t end = texts.size();
        for (; shorter < end; ++shorter) {
            for (const std::string& piece : pieces) texts.push_back(texts[shorter] + piece);
        }
    }
    return texts;
}

Texts texts_of(std::string_view alphabet, std::size_t longest)
{
    Texts characters;
    for (const char c : alphabet) characters.emplace_back(1, c);
    return texts_of(characters, longest);
}

std::optional<int> SmallSpaces::expect(const Function& function, const Values& values)
{
    const rules::Answer answer = rules::evaluate(*function.check, values, oracle::library_build());
    if (answer.outside != rules::Outside::kNo) return std::nullopt;
    if (!comparer_.agrees(function, values, answer)) ADD_FAILURE() << comparer_.difference();
    return answer.code;
}

std::optional<int> SmallSpaces::expect(std::string_view name, const Values& values)
{
    return expect(*catalogue::find(name), values);
}

std::map<int, int> SmallSpaces::expect_each(const std::vector<std::string_view>& names, const Texts& texts)
{
    std::map<int, int> codes;
    for (const std::string_view name : names) {
        const Function& function = *catalogue::find(name);
        for (const std::string& text : texts) ++codes[expect(function, {text}).value()];
    }
    return codes;
}

}  // namespace ostrel::tests

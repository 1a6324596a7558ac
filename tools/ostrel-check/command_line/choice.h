// Options that accept one of a few words. Help, the manual page and completion show the words as the
// option's type.
#ifndef OSTREL_TOOLS_COMMAND_LINE_CHOICE_H
#define OSTREL_TOOLS_COMMAND_LINE_CHOICE_H

#include <CLI/CLI.hpp>
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace ostrel::tool {

// kOr separates the words in an option's type.
inline constexpr char kOr = '|';

template <typename Word>
CLI::Option* refuse_others(CLI::Option* option, const std::vector<Word>& words)
{
    return option->check([words](const std::string& given) {
        if (std::ranges::find(words, given) != words.end()) return std::string();
        return "\"" + given + "\" is not one of " + CLI::detail::join(words, ", ");
    });
}

inline CLI::Option* choose_from(CLI::Option* option, const std::vector<std::string>& words)
{
    return refuse_others(option, words)->type_name(CLI::detail::join(words, std::string(1, kOr)));
}

// add_choice stores the value of the chosen word in target, which must outlive the command.
template <typename Target, typename Value>
CLI::Option* add_choice(CLI::App& app, const char* name, Target& target,
                        const std::vector<std::pair<std::string, Value>>& choices, const char* what)
{
    std::vector<std::string> words(choices.size());
    std::ranges::transform(choices, words.begin(), &std::pair<std::string, Value>::first);
    const auto store = [&target, choices](const std::string& given) {
        target = std::ranges::find(choices, given, &std::pair<std::string, Value>::first)->second;
    };
    return choose_from(app.add_option_function<std::string>(name, store, what), words);
}

}  // namespace ostrel::tool

#endif

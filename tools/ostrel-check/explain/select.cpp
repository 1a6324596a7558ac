#include "explain/select.h"

#include <algorithm>

#include "catalogue/names.h"
#include "judge/reason.h"
#include "rules/explain.h"

namespace ostrel::tool {

namespace {

// said_of returns the text that select searches, with a line ending between unrelated parts.
std::string said_of(const catalogue::Function& function)
{
    std::string text(function.name);
    text.append("\n").append(rules::accepted(*function.check, gateway()));
    for (const rules::Argument& argument : function.arguments)
        text.append("\n").append(argument.name).append("\n").append(argument.what);
    return catalogue::in_lower_case(text);
}

}  // namespace

Selection select(std::string_view family, const std::vector<std::string>& patterns)
{
    Selection selection;
    for (const catalogue::Function& function : catalogue::functions()) {
        if (!family.empty() && function.family != family) continue;
        const std::string text = patterns.empty() ? std::string() : said_of(function);
        const bool fits = std::ranges::all_of(patterns, [&](const std::string& pattern) {
            return text.find(catalogue::in_lower_case(pattern)) != std::string::npos;
        });
        if (fits) selection.push_back(&function);
    }
    return selection;
}

}  // namespace ostrel::tool

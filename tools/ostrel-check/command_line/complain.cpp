#include "command_line/complain.h"

#include <vector>

#include "catalogue/names.h"
#include "command_line/formatter.h"
#include "judge/verdict.h"
#include "system/process.h"
#include "write/show.h"

namespace ostrel::tool {

int complain(std::string_view problem, std::string_view advice)
{
    std::string message = "ostrel-check: ";
    append_escaped(message, problem, 2000);
    say(message.append("\n").append(advice));
    return kExitUsage;
}

int complain_of_usage(std::string_view problem)
{
    return complain(problem, "ostrel-check --help shows how to use it.\n");
}

int complain_of_name(const CLI::App& app, const std::string& name)
{
    std::vector<std::string_view> names;
    for (const CLI::App* command : commands_of(app)) names.emplace_back(command->get_name());
    for (const catalogue::Function& function : catalogue::functions()) names.push_back(function.name);
    return complain("there is no check or command \"" + name + "\"" + catalogue::did_you_mean(name, names),
                    kAdviceOnNames);
}

const catalogue::Function* find_meant(const std::string& name)
{
    const catalogue::Function* function = catalogue::find_in_any_case(name);
    if (function != nullptr && function->name != name)
        say("ostrel-check: \"" + name + "\" is read as " + std::string(function->name) + "\n");
    return function;
}

}  // namespace ostrel::tool

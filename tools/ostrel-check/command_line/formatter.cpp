#include "command_line/formatter.h"

namespace ostrel::tool {

namespace {

std::string synopsis_of(const CLI::App& command)
{
    std::string line = "ostrel-check " + command.get_name() + " [OPTIONS]";
    for (const CLI::Option* positional : positionals_of(command)) {
        const bool is_list = positional->get_items_expected_max() >= CLI::detail::expected_max_vector_size;
        const std::string name = positional->get_name(true) + (is_list ? "..." : "");
        line += positional->get_required() ? " " + name : " [" + name + "]";
    }
    return line;
}

}  // namespace

std::vector<const CLI::App*> commands_of(const CLI::App& app)
{
    return app.get_subcommands([](const CLI::App* command) { return !command->get_group().empty(); });
}

std::vector<const CLI::Option*> options_of(const CLI::App& app)
{
    return app.get_options([](const CLI::Option* option) { return option->nonpositional(); });
}

std::vector<const CLI::Option*> positionals_of(const CLI::App& app)
{
    return app.get_options([](const CLI::Option* option) { return option->get_positional(); });
}

std::vector<std::string> synopses_of(const CLI::App& app)
{
    if (app.get_parent() != nullptr) return {synopsis_of(app)};
    std::vector<std::string> lines = {"ostrel-check [OPTIONS] NAME VALUE..."};
    for (const CLI::App* command : commands_of(app)) lines.push_back(synopsis_of(*command));
    return lines;
}

std::string usage_of(const CLI::App& app)
{
    std::string text;
    for (const std::string& line : synopses_of(app))
        text.append(text.empty() ? "Usage: " : "       ").append(line).append("\n");
    return text;
}

std::string Formatter::make_usage(const CLI::App* app, std::string /*name*/) const { return usage_of(*app); }

std::string Formatter::make_option_opts(const CLI::Option* option) const
{
    if (option->get_positional() || option->get_type_name().empty()) return {};
    return " " + option->get_type_name();
}

}  // namespace ostrel::tool

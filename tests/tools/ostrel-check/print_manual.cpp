// usage: print_manual synopsis|options

#include <iostream>
#include <string>
#include <string_view>

#include "command_line/choice.h"
#include "command_line/formatter.h"
#include "command_line/options.h"

namespace ostrel::tool {

namespace {

std::string in_small_letters(const std::string& text) { return CLI::detail::to_lower(text); }

// argument_of returns an option's type as mdoc markup: the words that it accepts, or a placeholder.
std::string argument_of(const CLI::Option& option)
{
    if (option.get_items_expected_max() == 0) return "";
    std::string text;
    for (const std::string& word : CLI::detail::split(option.get_type_name(), kOr))
        text.append(text.empty() ? "" : " | ").append(in_small_letters(word));
    const bool is_literal = text == CLI::detail::join(CLI::detail::split(option.get_type_name(), kOr), " | ");
    text = (is_literal ? "Cm " : "Ar ") + text;
    return option.get_items_expected_min() == 0 ? " Op " + text : " " + text;
}

void print_options(const CLI::App& app)
{
    std::cout << ".Bl -tag -width Ds -compact\n";
    for (const CLI::Option* option : options_of(app)) {
        std::string names;
        for (const std::string& name : option->get_snames())
            names.append(names.empty() ? "" : " , ").append("Fl ").append(name);
        for (const std::string& name : option->get_lnames())
            names.append(names.empty() ? "" : " , ").append("Fl \\-").append(name);
        std::cout << ".It " << names << argument_of(*option) << "\n" << option->get_description() << "\n";
    }
    std::cout << ".El\n";
}

void print_all_options(const CLI::App& app)
{
    std::cout << "Before\n.Ar name :\n";
    print_options(app);
    for (const CLI::App* command : commands_of(app)) {
        std::cout << ".Pp\nAfter\n.Cm " << command->get_name() << " :\n";
        print_options(*command);
    }
}

void print_synopsis(const CLI::App& app)
{
    std::cout << ".Nm\n.Op Ar option ...\n.Ar name\n.Ar value ...\n";
    for (const CLI::App* command : commands_of(app)) {
        std::cout << ".Nm\n.Cm " << command->get_name() << "\n.Op Ar option ...\n";
        for (const CLI::Option* positional : positionals_of(*command)) {
            const bool is_list =
                positional->get_items_expected_max() >= CLI::detail::expected_max_vector_size;
            std::cout << (positional->get_required() ? ".Ar " : ".Op Ar ")
                      << in_small_letters(positional->get_name(true)) << (is_list ? " ...\n" : "\n");
        }
    }
}

}  // namespace

}  // namespace ostrel::tool

int main(int argc, char** argv)
{
    ostrel::tool::Options options;
    const auto app = ostrel::tool::make_command_line(options);
    const std::string_view what = argc == 2 ? argv[1] : "";
    if (what == "synopsis") {
        ostrel::tool::print_synopsis(*app);
    } else if (what == "options") {
        ostrel::tool::print_all_options(*app);
    } else {
        std::cerr << "usage: print_manual synopsis|options\n";
        return 2;
    }
    return 0;
}

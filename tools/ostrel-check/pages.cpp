// Pages: the files of docs/ that are made from the catalogue.

#include "explain.h"

namespace ostrel::tool {

using catalogue::Function;

std::string reference()
{
    std::string text =
        "# Reference\n\n"
        "Made by `scripts/reference` from the catalogue, the vectors and trials; not to be changed by "
        "hand.\n\n"
        "In what is printed, `\\n` is a line end and `<name>` stands for that argument, for a number or for\n"
        "a byte. What an accepted value may hold was found by trying; `hazards.md` has it in one table.\n\n";
    std::string_view family;
    for (const Function& function : catalogue::functions()) {
        if (function.family == family) continue;
        family = function.family;
        text.append("- [").append(family).append("](#").append(family).append(")\n");
    }
    family = "";
    for (const Function& function : catalogue::functions()) {
        if (function.family != family) text.append("\n## ").append(family = function.family).append("\n");
        MarkdownPage page;
        page.title(function.name);
        write_check(page, study(function));
        text += page.text();
    }
    return text;
}

std::string hazards_page()
{
    std::string text =
        "# What an accepted value may contain\n\n"
        "Made by `scripts/reference`: found by trying every byte that is no letter or digit in many places "
        "of\n"
        "accepted values. Where the allowed bytes are an argument too, they were all allowed. Whoever pastes "
        "a\n"
        "value into a shell command, a page or a configuration file must quote what stands in its row. `-`:\n"
        "never; `any`: anywhere; otherwise where: `f` first, `i` inside, `l` last. Which bytes of a kind are "
        "meant\n"
        "says `ostrel-check explain`.\n\n"
        "A check that answers 0 says that a value suits its parameter. It does not say that the value is "
        "harmless.\n";
    std::string_view family;
    for (const Function& function : catalogue::functions()) {
        const std::vector<catalogue::Exposure> exposures =
            catalogue::exposures_of(function, catalogue::rows_of(function));
        if (exposures.empty()) continue;
        if (function.family != family) {
            text.append("\n## ").append(family = function.family).append("\n\n| check | argument |");
            std::string rule = "|---|---|";
            for (const catalogue::Hazard& hazard : catalogue::hazards()) {
                const bool is_short =
                    hazard.name != "quotes" && hazard.name != "shell" && hazard.name != "markup";
                text.append(" ").append(is_short ? hazard.title : hazard.name).append(" |");
                rule += "---|";
            }
            text.append("\n").append(rule).append("\n");
        }
        for (const catalogue::Exposure& exposure : exposures) {
            text.append("| `")
                .append(function.name)
                .append("` | `")
                .append(exposure.argument->name)
                .append("` |");
            for (const catalogue::Places& places : exposure.places) {
                std::string where = places.any() ? "" : "-";
                if (places.first) where += "f";
                if (places.inside) where += "i";
                if (places.last) where += "l";
                text.append(" ").append(where == "fil" ? "any" : where).append(" |");
            }
            text += "\n";
        }
    }
    return text;
}

}  // namespace ostrel::tool

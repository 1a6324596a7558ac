#include "explain.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "catalogue/case.h"
#include "show.h"

namespace ostrel::tool {

using catalogue::Argument;
using catalogue::Function;
using catalogue::Kind;

namespace {

constexpr std::size_t kExamples = 3;

std::string_view type_of(Kind kind)
{
    switch (kind) {
        case Kind::kText:
            return "const char* ";
        case Kind::kBuffer:
        case Kind::kBlocks:
            return "char* ";
        case Kind::kInteger:
            return "int ";
        case Kind::kUnsigned:
            return "unsigned ";
        case Kind::kIntegerOut:
            break;
    }
    return "int* ";
}

std::string listed(const std::vector<std::string_view>& words)
{
    std::string text;
    for (const std::string_view word : words) text.append(text.empty() ? "" : " ").append(word);
    return text;
}

void write_arguments(Page& page, const Study& study)
{
    page.heading("Arguments");
    for (std::size_t i = 0; i < study.function->arguments.size(); ++i) {
        const Argument& argument = study.function->arguments[i];
        page.item(argument.name, argument.what);
        if (!argument.keywords.empty()) page.detail("keywords: " + listed(argument.keywords));
        if (!study.null[i].empty()) page.detail("NULL: " + study.null[i]);
        if (!argument.written.empty()) page.detail("what is written: " + std::string(argument.written));
    }
    const auto is_written = [](const Argument& argument) { return !argument.written.empty(); };
    if (std::ranges::none_of(study.function->arguments, is_written)) {
        page.paragraph(study.function->arguments.size() == 1 ? "The argument is not written to."
                                                             : "None is written to.");
    }
}

void write_lines(Page& page, const std::vector<std::string>& lines)
{
    std::string_view label = "prints";
    for (const std::string& line : lines) {
        for (const std::string& message : catalogue::messages_in(line)) {
            page.verbatim(label, message);
            label = "and";
        }
        label = "or";
    }
}

void write_codes(Page& page, const Study& study)
{
    page.heading("Result codes");
    if (!study.function->is_verdict) {
        page.paragraph("The answer is a number, not a result code.");
        return;
    }
    page.item("0", "valid, OSTREL_VALID");
    write_lines(page, study.accepted_lines);
    for (std::size_t i = 0; i < study.codes.size(); ++i) {
        const int code = study.codes[i].code->code;
        if (i == 0 || study.codes[i - 1].code->code != code) {
            page.item(std::to_string(code),
                      std::string(catalogue::meaning(code)).append(", ").append(catalogue::constant(code)));
        }
        page.detail("when: " + std::string(study.codes[i].code->condition));
        write_lines(page, study.codes[i].lines);
    }
    const auto prints = [](const CodeStudy& code) { return !code.lines.empty(); };
    if (study.accepted_lines.empty() && std::ranges::none_of(study.codes, prints)) {
        page.paragraph("Nothing is printed.");
    }
}

void write_exposures(Page& page, const Study& study)
{
    if (study.exposures.empty()) return;
    page.heading("What an accepted value may contain");
    for (const catalogue::Exposure& exposure : study.exposures) {
        std::string never;
        for (std::size_t i = 0; i < exposure.places.size(); ++i) {
            const catalogue::Hazard& hazard = catalogue::hazards()[i];
            if (!exposure.places[i].any()) {
                never.append(never.empty() ? "" : ", ")
                    .append(hazard.name == "quotes" || hazard.name == "shell" ? hazard.name : hazard.title);
            }
        }
        page.item(exposure.argument->name, never.empty() ? "bytes of every kind" : "never " + never);
        for (std::size_t i = 0; i < exposure.places.size(); ++i) {
            const catalogue::Places& places = exposure.places[i];
            const catalogue::Hazard& hazard = catalogue::hazards()[i];
            if (!places.any()) continue;
            std::string text(hazard.title);
            text += ": " + describe(places);
            if (places.bytes.size() < hazard.bytes.size()) {
                text += "; only ";
                append_escaped(text, places.bytes, 40);
            }
            page.detail(text);
        }
    }
}

void write_oddities(Page& page, const Study& study)
{
    if (study.oddities.empty()) return;
    page.heading("Kept on purpose");
    for (const catalogue::Oddity& oddity : study.oddities) {
        std::string title(oddity.title);
        std::erase(title, '`');
        std::string text = oddity.text;
        std::erase(text, '`');
        page.paragraph("- " + title + ". " + text);
    }
}

void write_examples(Page& page, const Study& study)
{
    page.heading("Examples");
    for (const Example& example : examples_of(*study.function, kExamples, kExamples)) {
        std::string words(study.function->name);
        for (const catalogue::Value& value : example.values) {
            words += ' ';
            append_value(words, value, 200);
        }
        const bool is_accepted = example.code == 0;
        const std::string code = std::to_string(example.code);
        page.item(words, !study.function->is_verdict ? code : is_accepted ? "accepted" : "refused, " + code);
        for (const std::string_view printed : std::array<std::string_view, 2>{example.out, example.err}) {
            std::string line;
            for (const char c : printed) {
                if (c == '\n') {
                    line += "\\n";
                } else {
                    append_escaped(line, {&c, 1}, 1);
                }
            }
            std::string_view label = "printed";
            for (const std::string& message : catalogue::messages_in(line)) {
                page.verbatim(label, message);
                label = "and";
            }
        }
    }
}

}  // namespace

std::string declaration_of(const Function& function)
{
    std::string text = "int " + std::string(function.name) + "(";
    for (const Argument& argument : function.arguments) {
        text.append(text.ends_with('(') ? "" : ", ").append(type_of(argument.kind)).append(argument.name);
    }
    return text + ")";
}

void write_check(Page& page, const Study& study)
{
    page.declaration(declaration_of(*study.function));
    page.heading(study.function->is_verdict ? "What is accepted" : "What is answered");
    page.paragraph(study.function->rule);
    write_arguments(page, study);
    write_codes(page, study);
    write_exposures(page, study);
    write_oddities(page, study);
    write_examples(page, study);
}

std::string explain(std::string_view name, bool with_colours)
{
    const Function* function = catalogue::find(name);
    if (function == nullptr) throw std::invalid_argument(catalogue::unknown_function(name));
    TextPage page(with_colours);
    page.title(std::string(function->name).append(" (").append(function->family).append(")"));
    write_check(page, study(*function));
    return page.text();
}

}  // namespace ostrel::tool

#include "explain/explain.h"

#include <span>

#include "catalogue/result_codes.h"
#include "explain/hazards.h"
#include "explain/page.h"
#include "judge/reason.h"
#include "read/words.h"
#include "rules/explain.h"
#include "rules/walk.h"
#include "terminal/style.h"

namespace ostrel::tool {

using catalogue::Argument;
using catalogue::Function;
using catalogue::Kind;
using rules::Said;

namespace {

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

void write_arguments(Page& page, const rules::Check& check, const rules::Explanation& explanation)
{
    page.heading("Arguments");
    for (std::size_t i = 0; i < check.arguments.size(); ++i) {
        const rules::SaidArgument& said = explanation.arguments[i];
        const bool is_secret = check.arguments[i].is_secret;
        page.item(check.arguments[i].name,
                  said.what + (is_secret ? "; a secret that must not be shown" : ""));
        if (!said.room.empty()) page.detail("buffer: " + said.room);
        if (!said.null.empty()) page.detail("NULL: " + said.null);
        if (!said.written.empty()) page.detail("may become: " + said.written);
    }
    if (!explanation.numbers.empty()) page.paragraph(explanation.numbers);
}

void write_codes(Page& page, const rules::Check& check, const rules::Explanation& explanation)
{
    page.heading("Result codes");
    if (!check.is_verdict) {
        page.paragraph("The check returns a number, not a result code.");
        return;
    }
    const auto write = [&](int code) {
        page.item(std::to_string(code),
                  std::string(catalogue::meaning(code)).append(", ").append(catalogue::constant(code)));
    };
    write(0);
    for (const int code : explanation.codes) write(code);
}

std::string label_of(const rules::SaidLine& line)
{
    std::string label = "library prints";
    if (line.stream == rules::Line::Stream::kErr) label += " to standard error";
    if (!line.is_flushed && line.stream == rules::Line::Stream::kOut) label += ", without a flush";
    return line.when.empty() ? label : label + ", " + line.when;
}

// write_steps numbers the steps. A nested step's number begins with the number of the step that contains it.
void write_steps(Page& page, const std::vector<Said>& steps, const std::string& number, std::size_t depth)
{
    std::size_t count = 0;
    const auto write = [&](const std::string& text) {
        const std::string label = number + std::to_string(++count);
        page.step(depth, label, text);
        return label + ".";
    };
    for (const Said& step : steps) {
        const std::string label = write(step.text);
        for (const rules::SaidLine& line : step.lines) page.line(depth, label_of(line), line.text);
        for (const std::string& written : step.writes) page.note(depth, written);
        for (const Said& use : step.uses) {
            page.note(depth, use.text + ":");
            write_steps(page, use.steps, label, depth + 1);
        }
        write_steps(page, step.steps, label, depth + 1);
        if (!step.otherwise.empty()) write_steps(page, step.otherwise, write("otherwise"), depth + 1);
    }
}

void write_tables(Page& page, const rules::Check& check)
{
    for (const rules::Table* table : rules::tables(check)) {
        std::string columns;
        for (const std::string_view column : table->columns)
            columns.append(columns.empty() ? "" : ": ").append(column);
        page.heading("Table");
        page.paragraph(columns);
        for (const auto& row : table->rows) {
            std::string rest;
            for (const std::string_view cell : std::span(row).subspan(1))
                rest.append(rest.empty() ? "" : "; ").append(cell);
            page.item(row[0], rest);
        }
    }
}

constexpr std::string_view kOfDriver =
    "The check queries the wireless driver with the command wlctl, which /bin/sh finds on PATH. Anything "
    "that "
    "wlctl or the shell writes to standard error appears there, for example that wlctl was not found.";

void write_check(Page& page, const Function& function)
{
    const rules::Check& check = *function.check;
    const rules::Explanation explanation = rules::explain(check, gateway());
    page.declaration(declaration_of(function));
    page.heading(check.is_verdict ? "What is accepted" : "What is returned");
    page.paragraph(explanation.accepted);
    write_arguments(page, check, explanation);
    write_codes(page, check, explanation);
    page.heading("Steps");
    write_steps(page, explanation.steps, "", 0);
    if (check.is_verdict) page.paragraph("A call that reaches the end of the steps is accepted.");
    if (rules::asks_driver(check)) {
        page.paragraph(kOfDriver);
    }
    if (!rules::prints(check)) page.paragraph("The check itself prints nothing.");
    write_tables(page, check);
    write_hazards(page, function);
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

std::string explain(const Function& function, const Look& look)
{
    Page page(look);
    page.title(std::string(function.name).append(" (").append(function.family).append(")"));
    write_check(page, function);
    return page.text();
}

std::string list_checks(const Selection& selection, const Look& look)
{
    std::string text;
    std::string_view family;
    for (const Function* function : selection) {
        if (function->family != family) {
            family = function->family;
            text.append(text.empty() ? "" : "\n")
                .append(painted(family, Colour::kBold, look.with_colours))
                .append("\n");
        }
        text.append("  ").append(usage_of(*function)).append("\n");
        append_wrapped(text, rules::accepted(*function->check, gateway()), 6, 0, look.columns);
        for (const Argument& argument : function->arguments) {
            if (argument.is_only_written())
                append_wrapped(text, "fills in " + std::string(argument.name), 6, 0, look.columns);
        }
    }
    return text;
}

std::string reference(const Selection& selection)
{
    std::string text =
        R"(# Reference

This page is generated from the descriptions of the checks. In printed lines, `\n` is a line ending, and `<name>` is an
argument, a part of one, or a value that a step keeps under that name.

)";
    std::string_view family;
    for (const Function* function : selection) {
        if (function->family == family) continue;
        family = function->family;
        text.append("- [").append(family).append("](#").append(family).append(")\n");
    }
    family = "";
    for (const Function* function : selection) {
        if (function->family != family) text.append("\n## ").append(family = function->family).append("\n");
        Page page;
        page.title(function->name);
        write_check(page, *function);
        text += page.text();
    }
    return text;
}

}  // namespace ostrel::tool

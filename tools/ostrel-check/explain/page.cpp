#include "explain/page.h"

#include <algorithm>

namespace ostrel::tool {

namespace {

constexpr std::size_t kItem = 2;
constexpr std::size_t kDetail = 6;
constexpr std::size_t kDepth = 4;
constexpr std::size_t kMarkdownDepth = 2;

}  // namespace

void TextPage::wrap(std::string_view text, std::size_t indentation, std::size_t hanging)
{
    append_wrapped(out(), text, indentation, hanging, look_.columns);
}

void TextPage::title(std::string_view text)
{
    out().append(painted(text, Colour::kBold, look_.with_colours)).append("\n");
}

void TextPage::declaration(std::string_view text) { wrap(text, kItem); }

void TextPage::heading(std::string_view text)
{
    out().append("\n").append(painted(text, Colour::kBold, look_.with_colours)).append("\n");
}

void TextPage::paragraph(std::string_view text) { wrap(text, kItem); }

void TextPage::item(std::string_view label, std::string_view text)
{
    wrap(std::string(label).append(": ").append(text), kItem);
}

void TextPage::detail(std::string_view text) { wrap(text, kDetail); }

void TextPage::step(std::size_t depth, std::string_view number, std::string_view text)
{
    const std::string label = std::string(number) + ". ";
    wrap(label + std::string(text), kItem + kDepth * depth, label.size());
}

void TextPage::note(std::size_t depth, std::string_view text) { wrap(text, kDetail + kDepth * depth); }

void TextPage::line(std::size_t depth, std::string_view label, std::string_view text)
{
    wrap(std::string(label).append(": ").append(text), kDetail + kDepth * depth, 2);
}

std::string in_markdown(std::string_view text)
{
    std::string result;
    for (const char c : text) {
        if (std::string_view("\\`*_{}[]<>#|&").find(c) != std::string_view::npos) result += '\\';
        result += c;
    }
    return result;
}

std::string as_code(std::string_view text)
{
    std::size_t longest = 0;
    std::size_t run = 0;
    for (const char c : text) {
        run = c == '`' ? run + 1 : 0;
        longest = std::max(longest, run);
    }
    const std::string fence(longest + 1, '`');
    const bool needs_blanks = text.empty() || text.front() == '`' || text.back() == '`';
    return fence + (needs_blanks ? " " : "") + std::string(text) + (needs_blanks ? " " : "") + fence;
}

void MarkdownPage::title(std::string_view text) { out().append("\n### ").append(text).append("\n"); }

void MarkdownPage::declaration(std::string_view text)
{
    out().append("\n").append(as_code(text)).append("\n");
}

void MarkdownPage::heading(std::string_view text) { out().append("\n**").append(text).append("**\n\n"); }

void MarkdownPage::paragraph(std::string_view text)
{
    const bool is_item = text.starts_with("- ");
    if (!is_item && !out().ends_with("\n\n")) out() += '\n';
    out().append(is_item ? "- " : "").append(in_markdown(is_item ? text.substr(2) : text)).append("\n");
}

void MarkdownPage::item(std::string_view label, std::string_view text)
{
    out().append("- ").append(as_code(label)).append(": ").append(in_markdown(text)).append("\n");
}

void MarkdownPage::detail(std::string_view text)
{
    out().append("  - ").append(in_markdown(text)).append("\n");
}

void MarkdownPage::step(std::size_t depth, std::string_view number, std::string_view text)
{
    out().append(kMarkdownDepth * depth, ' ').append("- ").append(number).append(" ");
    out().append(in_markdown(text)).append("\n");
}

void MarkdownPage::note(std::size_t depth, std::string_view text)
{
    out().append(kMarkdownDepth * (depth + 1), ' ').append("- ").append(in_markdown(text)).append("\n");
}

void MarkdownPage::line(std::size_t depth, std::string_view label, std::string_view text)
{
    out().append(kMarkdownDepth * (depth + 1), ' ').append("- ").append(in_markdown(label)).append(": ");
    out().append(as_code(text)).append("\n");
}

}  // namespace ostrel::tool

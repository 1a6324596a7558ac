#include "explain/page.h"

#include <algorithm>

namespace ostrel::tool {

namespace {

constexpr std::size_t kItem = 2;
constexpr std::size_t kDetail = 6;
constexpr std::size_t kDepth = 4;

std::string with_label(std::string_view label, std::string_view text)
{
    return std::string(label).append(": ").append(text);
}

}  // namespace

void Page::wrap(std::string_view text, std::size_t indentation, std::size_t hanging)
{
    if (look_) append_wrapped(text_, text, indentation, hanging, look_->columns);
}

void Page::bullet(std::size_t depth, std::string_view text)
{
    text_.append(2 * depth, ' ').append("- ").append(text).append("\n");
}

void Page::title(std::string_view text)
{
    if (look_) {
        text_.append(painted(text, Colour::kBold, look_->with_colours)).append("\n");
    } else {
        text_.append("\n### ").append(text).append("\n");
    }
}

void Page::declaration(std::string_view text)
{
    if (look_) {
        wrap(text, kItem);
    } else {
        text_.append("\n").append(as_code(text)).append("\n");
    }
}

void Page::heading(std::string_view text)
{
    text_ += '\n';
    if (look_) {
        title(text);
    } else {
        text_.append("**").append(text).append("**\n\n");
    }
}

void Page::paragraph(std::string_view text)
{
    if (look_) {
        wrap(text, kItem);
    } else if (text.starts_with("- ")) {
        bullet(0, in_markdown(text.substr(2)));
    } else {
        text_.append(text_.ends_with("\n\n") ? "" : "\n").append(in_markdown(text)).append("\n");
    }
}

void Page::item(std::string_view label, std::string_view text)
{
    look_ ? wrap(with_label(label, text), kItem) : bullet(0, with_label(as_code(label), in_markdown(text)));
}

void Page::detail(std::string_view text) { look_ ? wrap(text, kDetail) : bullet(1, in_markdown(text)); }

void Page::step(std::size_t depth, std::string_view number, std::string_view text)
{
    const std::string label = std::string(number) + (look_ ? ". " : " ");
    look_ ? wrap(label + std::string(text), kItem + kDepth * depth, label.size())
          : bullet(depth, label + in_markdown(text));
}

void Page::note(std::size_t depth, std::string_view text)
{
    look_ ? wrap(text, kDetail + kDepth * depth) : bullet(depth + 1, in_markdown(text));
}

void Page::line(std::size_t depth, std::string_view label, std::string_view text)
{
    look_ ? wrap(with_label(label, text), kDetail + kDepth * depth, 2)
          : bullet(depth + 1, with_label(in_markdown(label), as_code(text)));
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

}  // namespace ostrel::tool

// A page about a check, laid out for a terminal or in Markdown.
#ifndef OSTREL_TOOLS_EXPLAIN_PAGE_H
#define OSTREL_TOOLS_EXPLAIN_PAGE_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "terminal/style.h"

namespace ostrel::tool {

class Page {
 public:
    Page() = default;                                 // in Markdown
    explicit Page(const Look& look) : look_(look) {}  // for a terminal

    void title(std::string_view text);
    void declaration(std::string_view text);
    void heading(std::string_view text);
    void paragraph(std::string_view text);
    void item(std::string_view label, std::string_view text);
    void detail(std::string_view text);  // belongs to the last item

    // Steps may be nested. note and line belong to the last step at the given depth. line shows a line that
    // the check prints.
    void step(std::size_t depth, std::string_view number, std::string_view text);
    void note(std::size_t depth, std::string_view text);
    void line(std::size_t depth, std::string_view label, std::string_view text);

    [[nodiscard]] const std::string& text() const { return text_; }

 private:
    void wrap(std::string_view text, std::size_t indentation, std::size_t hanging = 0);
    void bullet(std::size_t depth, std::string_view text);

    std::optional<Look> look_;  // not set for Markdown
    std::string text_;
};

// in_markdown escapes characters that are special in Markdown.
std::string in_markdown(std::string_view text);

// as_code encloses text in back quotes, even if the text contains back quotes itself.
std::string as_code(std::string_view text);

}  // namespace ostrel::tool

#endif

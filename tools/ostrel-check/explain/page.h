// Page: what is said of a check, for a terminal or in Markdown.
#ifndef OSTREL_TOOLS_EXPLAIN_PAGE_H
#define OSTREL_TOOLS_EXPLAIN_PAGE_H

#include <cstddef>
#include <string>
#include <string_view>

#include "terminal/style.h"

namespace ostrel::tool {

class Page {
 public:
    Page() = default;
    Page(const Page&) = delete;
    Page& operator=(const Page&) = delete;
    virtual ~Page() = default;

    virtual void title(std::string_view text) = 0;
    virtual void declaration(std::string_view text) = 0;
    virtual void heading(std::string_view text) = 0;
    virtual void paragraph(std::string_view text) = 0;
    virtual void item(std::string_view label, std::string_view text) = 0;
    virtual void detail(std::string_view text) = 0;  // of the last item

    // Steps, one in another so many deep. note and line belong to the last step of that depth.
    virtual void step(std::size_t depth, std::string_view number, std::string_view text) = 0;
    virtual void note(std::size_t depth, std::string_view text) = 0;
    virtual void line(std::size_t depth, std::string_view label,
                      std::string_view text) = 0;  // as it is printed

    [[nodiscard]] const std::string& text() const { return text_; }

 protected:
    std::string& out() { return text_; }

 private:
    std::string text_;
};

class TextPage : public Page {
 public:
    explicit TextPage(const Look& look) : look_(look) {}
    void title(std::string_view text) override;
    void declaration(std::string_view text) override;
    void heading(std::string_view text) override;
    void paragraph(std::string_view text) override;
    void item(std::string_view label, std::string_view text) override;
    void detail(std::string_view text) override;
    void step(std::size_t depth, std::string_view number, std::string_view text) override;
    void note(std::size_t depth, std::string_view text) override;
    void line(std::size_t depth, std::string_view label, std::string_view text) override;

 private:
    void wrap(std::string_view text, std::size_t indentation, std::size_t hanging = 0);

    Look look_;
};

class MarkdownPage : public Page {
 public:
    void title(std::string_view text) override;
    void declaration(std::string_view text) override;
    void heading(std::string_view text) override;
    void paragraph(std::string_view text) override;
    void item(std::string_view label, std::string_view text) override;
    void detail(std::string_view text) override;
    void step(std::size_t depth, std::string_view number, std::string_view text) override;
    void note(std::size_t depth, std::string_view text) override;
    void line(std::size_t depth, std::string_view label, std::string_view text) override;
};

// in_markdown gives a text in which nothing means anything to Markdown.
std::string in_markdown(std::string_view text);

// as_code gives a text between back quotes, whatever it holds.
std::string as_code(std::string_view text);

}  // namespace ostrel::tool

#endif

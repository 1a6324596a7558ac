// Path: the names of a parameter, with {i} for instance numbers.
#ifndef OSTREL_TOOLS_MAP_PATH_H
#define OSTREL_TOOLS_MAP_PATH_H

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel::tool {

// kInstance replaces a number of a path in a pattern.
inline constexpr std::string_view kInstance = "{i}";

// PathPattern is a path in the notation of a map.
class PathPattern {
 public:
    PathPattern() = default;
    explicit PathPattern(std::string text);

    [[nodiscard]] const std::string& text() const { return text_; }

    // general returns the pattern with {i} in place of its literal numbers: the form that all matching paths have in
    // common.
    [[nodiscard]] std::string general() const;

    // instances returns the number of {i}.
    [[nodiscard]] std::size_t instances() const { return pieces_.size() - 1; }

    // append appends the path with these numbers. It uses as many of them, from the front, as the pattern has {i}.
    void append(std::string& out, std::span<const std::string_view> numbers) const;

    // matches returns whether a path has the literal numbers of the pattern. Their general forms must be the same.
    [[nodiscard]] bool matches(std::string_view path, std::span<const std::string_view> numbers) const;

 private:
    std::string text_;
    std::vector<std::string> pieces_;  // between the {i}
};

// generalise writes a path with {i} in place of each name that is a number. It lists those numbers as views into the
// path.
void generalise(std::string_view path, std::string& general, std::vector<std::string_view>& numbers);

}  // namespace ostrel::tool

#endif

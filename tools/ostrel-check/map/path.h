// Path: the names of a parameter, with {i} for the number of an instance.
#ifndef OSTREL_TOOLS_MAP_PATH_H
#define OSTREL_TOOLS_MAP_PATH_H

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel::tool {

// kInstance is in a pattern where a path has a number.
inline constexpr std::string_view kInstance = "{i}";

// PathPattern is a path as a map has it.
class PathPattern {
 public:
    PathPattern() = default;
    explicit PathPattern(std::string text);

    [[nodiscard]] const std::string& text() const { return text_; }

    // general is the pattern with {i} for the numbers in it too: what all paths have in common that can be meant.
    [[nodiscard]] std::string general() const;

    // instances tells how many {i} there are.
    [[nodiscard]] std::size_t instances() const { return pieces_.size() - 1; }

    // append writes the path with these numbers, of which it uses as many from the front as it has {i}.
    void append(std::string& out, std::span<const std::string_view> numbers) const;

    // matches tells whether a path has the numbers that the pattern spells out, its general form being the same.
    [[nodiscard]] bool matches(std::string_view path, std::span<const std::string_view> numbers) const;

 private:
    std::string text_;
    std::vector<std::string> pieces_;  // between the {i}
};

// generalise writes a path with {i} for each name that is a number, and lists those numbers, which are views into
// the path.
void generalise(std::string_view path, std::string& general, std::vector<std::string_view>& numbers);

}  // namespace ostrel::tool

#endif

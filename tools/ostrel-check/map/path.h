// Paths of parameters, with {i} for instance numbers.
#ifndef OSTREL_TOOLS_MAP_PATH_H
#define OSTREL_TOOLS_MAP_PATH_H

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel::tool {

// kInstance stands for any instance number in a pattern.
inline constexpr std::string_view kInstance = "{i}";

// PathPattern is a path as it is written in a map.
class PathPattern {
 public:
    PathPattern() = default;
    explicit PathPattern(std::string text);

    [[nodiscard]] const std::string& text() const { return text_; }

    // general returns the pattern with {i} in place of its literal numbers. All paths that match the pattern
    // have this general form.
    [[nodiscard]] std::string general() const;

    [[nodiscard]] std::size_t instances() const { return pieces_.size() - 1; }

    // append appends the path, with each {i} replaced by the next number. Excess numbers are ignored.
    void append(std::string& out, std::span<const std::string_view> numbers) const;

    // matches returns whether a path contains the pattern's literal numbers in the same places. Both must
    // have the same general form.
    [[nodiscard]] bool matches(std::string_view path, std::span<const std::string_view> numbers) const;

 private:
    std::string text_;
    std::vector<std::string> pieces_;  // the parts between the occurrences of {i}
};

// generalise stores a path with {i} in place of each numeric name, and these names as views into the path.
void generalise(std::string_view path, std::string& general, std::vector<std::string_view>& numbers);

}  // namespace ostrel::tool

#endif

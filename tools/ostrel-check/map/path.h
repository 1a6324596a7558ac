// Paths of parameters, with {i} for instances.
#ifndef OSTREL_TOOLS_MAP_PATH_H
#define OSTREL_TOOLS_MAP_PATH_H

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel::tool {

// kInstance stands for any instance in a pattern.
inline constexpr std::string_view kInstance = "{i}";

// is_instance returns whether a name in a path identifies an instance: by its number, or by its alias in
// brackets.
bool is_instance(std::string_view name);

// PathPattern is a path as it is written in a map.
class PathPattern {
 public:
    PathPattern() = default;
    explicit PathPattern(std::string text);

    [[nodiscard]] const std::string& text() const { return text_; }

    // general returns the pattern with {i} in place of its literal instances. All paths that match the pattern
    // have this general form.
    [[nodiscard]] std::string general() const;

    // wildcards returns the number of {i} in the pattern.
    [[nodiscard]] std::size_t wildcards() const { return pieces_.size() - 1; }

    // append appends the path, with each {i} replaced by the next instance. Excess instances are ignored.
    void append(std::string& out, std::span<const std::string_view> instances) const;

    // matches returns whether a path, which contains the given instances, contains the pattern's literal
    // instances in the same places, and stores the other instances in own. Both must have the same general form.
    bool matches(std::string_view path, std::span<const std::string_view> instances,
                 std::vector<std::string_view>& own) const;

 private:
    std::string text_;
    std::vector<std::string> pieces_;  // the parts between the occurrences of {i}
};

// generalise stores a path with {i} in place of each instance, and these instances as views into the path.
void generalise(std::string_view path, std::string& general, std::vector<std::string_view>& instances);

}  // namespace ostrel::tool

#endif

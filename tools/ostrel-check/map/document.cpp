#include "map/document.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>
#include <utility>
#include <vector>

namespace ostrel::tool {

namespace {

using nlohmann::ordered_json;

// Position is an iterator that counts lines while a parser reads them.
class Position {
 public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    Position(const char* at, std::size_t* line) : at_(at), line_(line) {}
    reference operator*() const { return *at_; }
    Position& operator++()
    {
        if (*at_ == '\n') ++*line_;
        ++at_;
        return *this;
    }
    bool operator==(const Position& other) const { return at_ == other.at_; }

 private:
    const char* at_;
    std::size_t* line_;
};

// Places records the line number of each part of a document while a parser reads the document.
class Places {
 public:
    Places(const std::size_t& line, std::map<std::string, std::size_t>& lines) : line_(line), lines_(lines) {}

    void look(ordered_json::parse_event_t event, const ordered_json& parsed)
    {
        using Event = ordered_json::parse_event_t;
        switch (event) {
            case Event::key:
                levels_.back().name = escaped(parsed.get<std::string>());
                note();
                break;
            case Event::object_start:
            case Event::array_start:
                begin_part();
                levels_.push_back({event == Event::array_start, 0, ""});
                break;
            case Event::object_end:
            case Event::array_end:
                levels_.pop_back();
                break;
            case Event::value:
                begin_part();
                break;
        }
    }

 private:
    struct Level {
        bool is_array;
        std::size_t count;
        std::string name;
    };

    static std::string escaped(std::string_view name)
    {
        std::string result;
        for (const char c : name) {
            if (c == '~' || c == '/') {
                result.append(c == '~' ? "~0" : "~1");
            } else {
                result += c;
            }
        }
        return result;
    }

    void begin_part()
    {
        if (levels_.empty() || !levels_.back().is_array) return;
        levels_.back().name = std::to_string(levels_.back().count++);
        note();
    }

    void note()
    {
        std::string pointer;
        for (const Level& level : levels_) pointer.append("/").append(level.name);
        lines_.emplace(std::move(pointer), line_);
    }

    const std::size_t& line_;
    std::map<std::string, std::size_t>& lines_;
    std::vector<Level> levels_;
};

std::string read_file(const std::string& name)
{
    errno = 0;
    std::ifstream file(name, std::ios::binary);
    std::string text(std::istreambuf_iterator<char>(file), {});
    if (!file.is_open() || file.bad() || errno != 0) {
        throw std::invalid_argument("cannot read " + name + ": " +
                                    std::generic_category().message(errno == 0 ? EIO : errno));
    }
    return text;
}

}  // namespace

Document::Document(std::string file) : file_(std::move(file))
{
    const std::string text = read_file(file_);
    std::size_t line = 1;
    Places places(line, lines_);
    try {
        root_ = ordered_json::parse(Position(text.data(), &line), Position(text.data() + text.size(), &line),
                                    [&](int, ordered_json::parse_event_t event, const ordered_json& parsed) {
                                        places.look(event, parsed);
                                        return true;
                                    });
    } catch (const ordered_json::parse_error& error) {
        // The part before the first colon contains only the parser's own error number and position.
        const std::string_view message = error.what();
        const std::size_t colon = message.find(": ");
        throw std::invalid_argument(
            file_ + ":" + std::to_string(line) + ": invalid JSON: " +
            std::string(message.substr(colon == std::string_view::npos ? 0 : colon + 2)));
    }
}

std::size_t Document::line_of(const std::string& pointer) const
{
    const auto found = lines_.find(pointer);
    return found == lines_.end() ? 1 : found->second;
}

void Document::complain(const std::string& pointer, std::string_view problem) const
{
    throw std::invalid_argument(file_ + ":" + std::to_string(line_of(pointer)) + ": " +
                                (pointer.empty() ? "" : pointer + ": ") + std::string(problem));
}

void Document::require_members(const std::string& pointer, const ordered_json& object,
                               std::initializer_list<std::string_view> names) const
{
    if (!object.is_object()) complain(pointer, "must be an object");
    for (const auto& [name, value] : object.items()) {
        if (std::ranges::find(names, name) == names.end()) complain(pointer + "/" + name, "unknown member");
    }
}

std::string Document::text(const std::string& pointer, const ordered_json& object, const char* name,
                           bool is_needed) const
{
    const auto found = object.find(name);
    if (found == object.end()) {
        if (is_needed) complain(pointer, std::string("\"") + name + "\" is missing");
        return "";
    }
    return text_of(pointer + "/" + name, *found);
}

std::string Document::text_of(const std::string& pointer, const ordered_json& value) const
{
    if (!value.is_string()) complain(pointer, "must be a string");
    std::string result = value.get<std::string>();
    if (result.find('\0') != std::string::npos) complain(pointer, "must not contain U+0000");
    return result;
}

const ordered_json& Document::array(const std::string& pointer, const ordered_json& object, const char* name,
                                    bool is_needed) const
{
    static const ordered_json kNone = ordered_json::array();
    const auto found = object.find(name);
    if (found == object.end()) {
        if (is_needed) complain(pointer, std::string("\"") + name + "\" is missing");
        return kNone;
    }
    if (!found->is_array()) complain(pointer + "/" + name, "must be an array");
    return *found;
}

std::vector<std::string> Document::texts(const std::string& pointer, const ordered_json& object,
                                         const char* name) const
{
    std::vector<std::string> result;
    const ordered_json& values = array(pointer, object, name, false);
    result.reserve(values.size());
    for (std::size_t i = 0; i < values.size(); ++i)
        result.push_back(text_of(pointer + "/" + name + "/" + std::to_string(i), values[i]));
    return result;
}

}  // namespace ostrel::tool

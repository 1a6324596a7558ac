#include "line.h"

#include <nlohmann/json.hpp>
#include <stdexcept>

#include "catalogue/case.h"

namespace ostrel::tool {

namespace {

using nlohmann::json;

// require_shallow refuses what could only be copied and taken apart on a deep stack.
void require_shallow(std::string_view text)
{
    constexpr int kDeepest = 16;
    int depth = 0;
    bool is_in_text = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (is_in_text) {
            if (c == '\\') ++i;
            if (c == '"') is_in_text = false;
        } else if (c == '"') {
            is_in_text = true;
        } else if (c == '{' || c == '[') {
            if (++depth > kDeepest) throw std::invalid_argument("the JSON is nested too deeply");
        } else if (c == '}' || c == ']') {
            --depth;
        }
    }
}

}  // namespace

void Line::read_json(std::string_view line)
{
    // Errors are worded by the one parser below; what is plain takes a fraction of the time without it.
    function_ = catalogue::read_plain_case(line, values_);
    if (function_ != nullptr) return;
    require_shallow(line);
    // To the parser it would be the end.
    if (line.find('\0') != std::string_view::npos)
        throw std::invalid_argument("no valid JSON: it holds a NUL");
    json row;
    try {
        row = json::parse(line);
    } catch (const json::exception& error) {
        // What stands before the colon is the parser's own numbering.
        const std::string_view message = error.what();
        const std::size_t colon = message.find(": ");
        throw std::invalid_argument(
            "no valid JSON: " + std::string(message.substr(colon == std::string_view::npos ? 0 : colon + 2)));
    }
    catalogue::Case read = catalogue::case_from_json(row);
    function_ = read.function;
    values_ = std::move(read.values);
}

bool Line::read(std::string_view line)
{
    function_ = nullptr;
    values_.clear();
    if (line.ends_with('\r')) line.remove_suffix(1);
    const std::size_t begin = line.find_first_not_of(" \t");
    if (begin == std::string_view::npos || line[begin] == '#') return false;
    if (line[begin] == '{') {
        read_json(line);
        return true;
    }
    words_.split(line);
    const std::span<const std::string> words = words_.all();
    function_ = catalogue::find(words.front());
    if (function_ == nullptr) throw std::invalid_argument(catalogue::unknown_function(words.front()));
    read_values(*function_, words.subspan(1), values_);
    return true;
}

}  // namespace ostrel::tool

#include "line.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "catalogue/case.h"

namespace ostrel::tool {

namespace {

using nlohmann::json;

// PlainCase hears the common form of a case, {"check": name, "args": [text, number or null, ...]} in ASCII, from
// the parser. Without a document in between, a batch takes two thirds of the time. Whatever else it hears, an
// error included, it answers with false, which ends the parsing.
class PlainCase {
 public:
    explicit PlainCase(std::vector<catalogue::Value>& values) : values_(&values) {}

    [[nodiscard]] const catalogue::Function* function() const { return function_; }

    bool start_object(std::size_t /*size*/) { return enter(Place::kOutside, Place::kMembers); }
    bool end_object() { return function_ != nullptr && has_args_; }
    bool start_array(std::size_t /*size*/) { return enter(Place::kArgs, Place::kArguments); }
    bool end_array() { return enter(Place::kArguments, Place::kMembers); }

    bool key(const std::string& name)
    {
        if (name == "check" && function_ == nullptr) return enter(Place::kMembers, Place::kCheck);
        if (name != "args" || has_args_) return false;
        has_args_ = true;
        return enter(Place::kMembers, Place::kArgs);
    }

    bool string(const std::string& text)
    {
        if (place_ != Place::kCheck) return is_ascii(text) && add(text);
        function_ = catalogue::find(text);
        return function_ != nullptr && enter(Place::kCheck, Place::kMembers);
    }

    bool null() { return add(nullptr); }
    bool number_integer(json::number_integer_t number) { return add(static_cast<long long>(number)); }
    bool number_unsigned(json::number_unsigned_t number)
    {
        return number <= 0xFFFFFFFF && add(static_cast<long long>(number));
    }

    static bool boolean(bool /*value*/) { return false; }
    static bool number_float(json::number_float_t /*number*/, const std::string& /*text*/) { return false; }
    static bool binary(const json::binary_t& /*bytes*/) { return false; }
    static bool parse_error(std::size_t /*position*/, const std::string& /*last*/,
                            const json::exception& /*error*/)
    {
        return false;
    }

 private:
    enum class Place { kOutside, kMembers, kCheck, kArgs, kArguments };

    static bool is_ascii(std::string_view text)
    {
        return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    }

    bool enter(Place from, Place to)
    {
        if (place_ != from) return false;
        place_ = to;
        return true;
    }

    template <typename Part>
    bool add(const Part& part)
    {
        constexpr std::size_t kMostValues = 4;
        if (place_ != Place::kArguments || values_->size() == kMostValues) return false;
        values_->emplace_back(part);
        return true;
    }

    Place place_ = Place::kOutside;
    const catalogue::Function* function_ = nullptr;
    std::vector<catalogue::Value>* values_;
    bool has_args_ = false;
};

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
    PlainCase plain(values_);
    if (json::sax_parse(line, &plain)) {
        function_ = plain.function();
        return;
    }
    values_.clear();
    require_shallow(line);
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

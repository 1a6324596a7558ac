#include "read/json_tree.h"

#include <charconv>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "read/json_parser.h"

namespace ostrel::tool {

namespace {

using nlohmann::ordered_json;

template <typename Number>
bool add_number(ordered_json& value, std::string_view token)
{
    Number number = 0;
    const char* end = token.data() + token.size();
    const auto read = std::from_chars(token.data(), end, number);
    if (read.ec != std::errc() || read.ptr != end) return false;
    value = number;
    return true;
}

class TreeBuilder : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, TreeBuilder> {
 public:
    ordered_json take() { return std::move(root_); }

    // NOLINTBEGIN(bugprone-derived-method-shadowing-base-method)
    bool Null() { return add(nullptr); }
    bool Bool(bool value) { return add(value); }
    bool RawNumber(const char* begin, rapidjson::SizeType size, bool /*copy*/)
    {
        const std::string_view token(begin, size);
        ordered_json value;
        if (!add_number<std::uint64_t>(value, token) && !add_number<std::int64_t>(value, token))
            value = token;
        return add(std::move(value));
    }
    bool String(const char* begin, rapidjson::SizeType size, bool /*copy*/)
    {
        return add(std::string_view(begin, size));
    }
    bool Key(const char* begin, rapidjson::SizeType size, bool /*copy*/)
    {
        name_.assign(begin, size);
        return true;
    }
    bool StartObject() { return start(ordered_json::object()); }
    bool StartArray() { return start(ordered_json::array()); }
    bool EndObject(rapidjson::SizeType /*members*/) { return end(); }
    bool EndArray(rapidjson::SizeType /*elements*/) { return end(); }
    // NOLINTEND(bugprone-derived-method-shadowing-base-method)

 private:
    ordered_json& place()
    {
        if (open_.empty()) return root_;
        ordered_json& outside = *open_.back();
        return outside.is_object() ? outside[name_] : outside.emplace_back(nullptr);
    }

    bool add(ordered_json value)
    {
        place() = std::move(value);
        return true;
    }

    bool start(ordered_json value)
    {
        if (open_.size() == kDeepest) return false;
        ordered_json& inside = place();
        inside = std::move(value);
        open_.push_back(&inside);
        return true;
    }

    bool end()
    {
        open_.pop_back();
        return true;
    }

    ordered_json root_;
    std::vector<ordered_json*> open_;
    std::string name_;
};

}  // namespace

ordered_json json_tree(std::string_view text)
{
    require_json(text);
    TreeBuilder builder;
    const rapidjson::ParseResult result = JsonParser().parse(text, builder);
    if (result.Code() == rapidjson::kParseErrorTermination)
        throw std::invalid_argument("the JSON is nested too deeply");
    if (result.IsError()) throw std::invalid_argument("invalid JSON: " + describe(result.Code()));
    return builder.take();
}

}  // namespace ostrel::tool

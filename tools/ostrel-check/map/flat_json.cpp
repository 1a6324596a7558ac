#include "map/flat_json.h"

#include <array>
#include <charconv>
#include <stdexcept>

namespace ostrel::tool {

void FlatJson::read(std::string_view text)
{
    require_json(text);
    levels_.clear();
    path_.clear();
    texts_.clear();
    places_.clear();
    members_.clear();
    problem_.clear();
    const rapidjson::ParseResult result = parser_.parse(text, *this);
    if (!result.IsError()) return;
    places_.clear();
    if (result.Code() != rapidjson::kParseErrorTermination)
        problem_ = "invalid JSON: " + describe(result.Code()) + " (at byte " +
                   std::to_string(result.Offset() + 1) + ")";
    throw std::invalid_argument(problem_);
}

FlatJson::Parameter FlatJson::parameter(std::size_t index) const
{
    const Offsets& place = places_[index];
    const std::string_view texts = texts_;
    return {texts.substr(place.path, place.path_size), texts.substr(place.value, place.value_size)};
}

std::string_view FlatJson::bytes_of(const Member& member)
{
    scratch_.clear();
    encode(scratch_, member.value, encoding_);
    return scratch_;
}

bool FlatJson::start(bool is_array)
{
    if (levels_.size() >= kDeepest) {
        problem_ = "the JSON is nested too deeply";
        return false;
    }
    if (levels_.empty() && is_array) {
        problem_ = "a gateway must be a JSON object";
        return false;
    }
    if (!levels_.empty()) enter(name_);
    levels_.push_back({is_array, 0, path_.size()});
    return true;
}

// enter appends the name to the path or, in an array, the number of the next element.
void FlatJson::enter(std::string_view name)
{
    Level& level = levels_.back();
    path_.resize(level.path_size);
    if (!path_.empty()) path_ += '.';
    if (!level.is_array) {
        path_ += name;
        return;
    }
    std::array<char, 24> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), ++level.count);
    path_.append(digits.data(), end.ptr);
}

bool FlatJson::end()
{
    levels_.pop_back();
    return true;
}

bool FlatJson::take_base64(rapidjson::SizeType members)
{
    constexpr std::string_view kName = ".base64";
    if (members != 1 || levels_.size() < 2 || places_.empty()) return true;
    Offsets& last = places_.back();
    const std::string_view path = std::string_view(texts_).substr(last.path, last.path_size);
    const std::size_t outside = levels_.back().path_size;
    if (path.size() != outside + kName.size() || path.substr(outside) != kName) return true;
    scratch_.clear();
    try {
        decode_base64(scratch_, std::string_view(texts_).substr(last.value, last.value_size));
    } catch (const std::invalid_argument& error) {
        problem_ = error.what();
        return false;
    }
    last.path_size = outside;
    texts_.resize(last.value);
    texts_ += scratch_;
    last.value_size = scratch_.size();
    return true;
}

bool FlatJson::Null()
{
    if (is_at_member()) members_.push_back({name_, "null", true});
    if (!levels_.empty() && levels_.back().is_array) ++levels_.back().count;
    return true;
}

// is_at_member returns whether the value that is being read is that of a member.
bool FlatJson::is_at_member() const
{
    return levels_.size() == 1 && name_.find('.') == std::string_view::npos;
}

bool FlatJson::Key(const char* begin, rapidjson::SizeType size, bool /*copy*/)
{
    name_ = {begin, size};
    return true;
}

bool FlatJson::scalar(std::string_view text, bool is_token)
{
    if (levels_.empty()) {
        problem_ = "a gateway must be a JSON object";
        return false;
    }
    if (is_at_member()) {
        members_.push_back({name_, text, is_token});
        return true;
    }
    enter(name_);
    if (text.find('\0') != std::string_view::npos) {
        problem_ = path_ + " contains U+0000, which would end the value in C";
        return false;
    }
    Offsets place{texts_.size(), path_.size(), 0, 0};
    texts_ += path_;
    place.value = texts_.size();
    try {
        encode(texts_, text, encoding_);
    } catch (const std::invalid_argument& error) {
        problem_ = path_ + ": " + error.what();
        return false;
    }
    place.value_size = texts_.size() - place.value;
    places_.push_back(place);
    return true;
}

}  // namespace ostrel::tool

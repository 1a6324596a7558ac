#include "read/json_object.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "catalogue/catalogue.h"
#include "read/encoding.h"

namespace ostrel::tool {

namespace {

// Names are compared with each other.
constexpr std::size_t kMostMembers = 1000;
constexpr std::size_t kMostItems = 64;

constexpr const char* kNotAName = "\"check\" must be the name of a check";
constexpr const char* kNotAnArray = "\"args\" must be an array";
constexpr const char* kNotBase64 = "an object that is an argument must be {\"base64\": text}";

}  // namespace

JsonObject::JsonObject(const Reading& reading)
    : reading_(&reading), has_one_check_(catalogue::find(reading.check) != nullptr)
{
    value_items_.resize(reading.values.size());
}

void JsonObject::read(std::string_view text, Record& record)
{
    record.clear();
    kinds_ = require_json(text);
    text_ = text;
    record_ = &record;
    place_ = Place::kObject;
    depth_ = 0;
    skipped_ = 0;
    has_check_ = false;
    has_args_ = false;
    has_value_.assign(value_items_.size(), false);
    problem_.clear();
    scratch_.clear();
    // Views into it must hold. What is decoded and what is made compact are each at most as long as the text.
    scratch_.reserve(2 * text.size());

    const rapidjson::ParseResult result = parser_.parse(text, *this);
    if (result.IsError() && result.Code() != rapidjson::kParseErrorTermination) {
        const std::string at = " (at byte " + std::to_string(result.Offset() + 1) + ")";
        throw std::invalid_argument("broken JSON: " + describe(result.Code()) + at);
    }
    if (problem_.empty()) require_all();
    if (!problem_.empty()) throw std::invalid_argument(problem_);
}

void JsonObject::require_all()
{
    if (has_one_check_) record_->check = reading_->check;
    if (reading_->needs_check && record_->check.empty()) complain(kNotAName);
    if (value_items_.empty()) {
        if (!has_args_ && reading_->needs_check) complain(kNotAnArray);
        return;
    }
    for (std::size_t i = 0; i < value_items_.size(); ++i) {
        if (!has_value_[i]) complain("there is no member \"" + reading_->values[i] + "\"");
        const std::vector<Item>& items = value_items_[i];
        record_->items.insert(record_->items.end(), items.begin(), items.end());
    }
}

// complain keeps the first problem.
void JsonObject::complain(std::string problem)
{
    if (problem_.empty()) problem_ = std::move(problem);
}

bool JsonObject::Bool(bool value)
{
    const std::string_view token = value ? "true" : "false";
    return scalar(Item::Kind::kText, token, token);
}

bool JsonObject::RawNumber(const char* begin, rapidjson::SizeType size, bool /*copy*/)
{
    return scalar(Item::Kind::kText, {begin, size}, {begin, size});
}

bool JsonObject::String(const char* begin, rapidjson::SizeType size, bool /*copy*/)
{
    const std::string_view text(begin, size);
    if (kinds_.has_backslashes && valid_utf8(text) < size) {
        complain(describe(rapidjson::kParseErrorStringUnicodeSurrogateInvalid));
    }
    if (skipped_ > 0) return true;
    if (place_ == Place::kCheck) {
        record_->check = text;
        place_ = Place::kMembers;
        return true;
    }
    if (place_ == Place::kBase64) {
        add_base64(text);
        place_ = Place::kWrapping;
        return true;
    }
    if (place_ != Place::kPassed) return scalar(Item::Kind::kText, text, {});
    const std::size_t at = parser_.offset_of(begin) - 1;
    pass(text_.substr(at, kinds_.has_backslashes ? end_of_string(text_, at) - at : size + 2));
    return true;
}

bool JsonObject::scalar(Item::Kind kind, std::string_view text, std::string_view token)
{
    if (skipped_ > 0) return true;
    switch (place_) {
        case Place::kObject:
            complain("a record is an object of JSON");
            break;
        case Place::kCheck:
            complain(kNotAName);
            place_ = Place::kMembers;
            break;
        case Place::kArgs:
            complain(kNotAnArray);
            place_ = Place::kMembers;
            break;
        case Place::kPassed:
            pass(token);
            break;
        case Place::kBase64:
        case Place::kOther:
            complain(kNotBase64);
            place_ = Place::kWrapping;
            break;
        default:
            if (place_ == Place::kTexts && kind == Item::Kind::kNull)
                complain("an array of texts cannot hold null");
            add_item(kind, text);
            finish_value();
    }
    return true;
}

bool JsonObject::Key(const char* begin, rapidjson::SizeType size, bool /*copy*/)
{
    const std::string_view name(begin, size);
    if (kinds_.has_backslashes && valid_utf8(name) < size) {
        complain(describe(rapidjson::kParseErrorStringUnicodeSurrogateInvalid));
    }
    if (skipped_ > 0) return true;
    if (place_ == Place::kMembers) {
        enter_member(name);
    } else if (name == "base64") {
        place_ = Place::kBase64;
    } else {
        const bool is_vector = name == "repeat" || name == "join";
        complain(is_vector ? "\"" + std::string(name) +
                                 "\" is the notation of the conformance vectors, which a batch does not read"
                           : kNotBase64);
        place_ = Place::kOther;
    }
    return true;
}

void JsonObject::enter_member(std::string_view name)
{
    name_ = name;
    if (!has_one_check_ && name == (reading_->check.empty() ? "check" : reading_->check)) {
        enter_once(Place::kCheck, has_check_, name);
        return;
    }
    const auto value = std::ranges::find(reading_->values, name) - reading_->values.begin();
    if (value < static_cast<std::ptrdiff_t>(reading_->values.size())) {
        const auto index = static_cast<std::size_t>(value);
        bool has_it = has_value_[index];
        items_ = &value_items_[index];
        items_->clear();
        enter_once(Place::kValue, has_it, name);
        has_value_[index] = has_it;
        return;
    }
    if (name == "args" && value_items_.empty()) {
        items_ = &record_->items;
        items_->clear();
        enter_once(Place::kArgs, has_args_, name);
        return;
    }
    const bool is_known = name == "id" || name == "parameter";
    if (reading_->is_strict && !is_known) complain("unknown member \"" + std::string(name) + "\"");
    const auto before = std::ranges::find(record_->members, name, &Member::name);
    bool has_it = before != record_->members.end();
    if (has_it) record_->members.erase(before);
    enter_once(Place::kPassed, has_it, name);
}

void JsonObject::enter_once(Place place, bool& has_it, std::string_view name)
{
    if (has_it && reading_->is_strict) complain("doubled member \"" + std::string(name) + "\"");
    has_it = true;
    place_ = place;
}

void JsonObject::pass(std::string_view token)
{
    place_ = Place::kMembers;
    if (record_->members.size() == kMostMembers) {
        complain("the record has more than " + std::to_string(kMostMembers) + " members");
        return;
    }
    if (kinds_.has_controls) {
        const std::size_t begin = scratch_.size();
        append_compact(scratch_, token);
        token = std::string_view(scratch_).substr(begin);
    }
    record_->members.push_back({name_, token, true});
}

bool JsonObject::start(bool is_object)
{
    if (++depth_ > kDeepest) {
        complain("the JSON is nested too deeply");
        return false;
    }
    if (skipped_ > 0) {
        ++skipped_;
        return true;
    }
    switch (place_) {
        case Place::kObject:
            if (is_object) {
                place_ = Place::kMembers;
                return true;
            }
            complain("a record is an object of JSON");
            break;
        case Place::kCheck:
            complain(kNotAName);
            break;
        case Place::kArgs:
            if (!is_object) {
                place_ = Place::kItems;
                return true;
            }
            complain(kNotAnArray);
            break;
        case Place::kPassed:
            begin_ = parser_.offset() - 1;
            break;
        case Place::kBase64:
        case Place::kOther:
            complain(kNotBase64);
            break;
        default:
            if (is_object) {
                outside_wrapping_ = place_;
                place_ = Place::kWrapping;
                return true;
            }
            if (place_ != Place::kTexts) {
                texts_ = items_->size();
                add_item(Item::Kind::kTexts, {});
                outside_texts_ = place_;
                place_ = Place::kTexts;
                return true;
            }
            complain("an array of texts cannot hold an array");
    }
    ++skipped_;
    return true;
}

bool JsonObject::EndObject(rapidjson::SizeType /*members*/) { return end(); }

bool JsonObject::EndArray(rapidjson::SizeType /*elements*/) { return end(); }

bool JsonObject::end()
{
    --depth_;
    if (skipped_ > 0) {
        if (--skipped_ == 0) finish_skipping();
        return true;
    }
    switch (place_) {
        case Place::kItems:
            place_ = Place::kMembers;
            break;
        case Place::kTexts:
            if (texts_ < items_->size()) (*items_)[texts_].count = items_->size() - texts_ - 1;
            place_ = outside_texts_;
            finish_value();
            break;
        case Place::kWrapping:
            place_ = outside_wrapping_;
            finish_value();
            break;
        default:
            place_ = Place::kEnd;
    }
    return true;
}

// finish_value goes on after a member that is an argument.
void JsonObject::finish_value()
{
    if (place_ == Place::kValue) place_ = Place::kMembers;
}

void JsonObject::finish_skipping()
{
    switch (place_) {
        case Place::kPassed:
            pass(text_.substr(begin_, parser_.offset() - begin_));
            break;
        case Place::kCheck:
        case Place::kArgs:
        case Place::kValue:
            place_ = Place::kMembers;
            break;
        case Place::kBase64:
        case Place::kOther:
            place_ = Place::kWrapping;
            break;
        default:
            break;
    }
}

void JsonObject::add_item(Item::Kind kind, std::string_view text)
{
    if (items_->size() == kMostItems) {
        complain("no check takes that many arguments");
        return;
    }
    if (reading_->encoding == Encoding::kUtf8 || is_ascii(text)) {
        items_->push_back({kind, text, 0});
        return;
    }
    const std::size_t begin = scratch_.size();
    try {
        encode(scratch_, text, reading_->encoding);
    } catch (const std::invalid_argument& error) {
        complain(error.what());
    }
    items_->push_back({kind, std::string_view(scratch_).substr(begin), 0});
}

void JsonObject::add_base64(std::string_view text)
{
    if (items_->size() == kMostItems) {
        complain("no check takes that many arguments");
        return;
    }
    const std::size_t begin = scratch_.size();
    try {
        decode_base64(scratch_, text);
    } catch (const std::invalid_argument& error) {
        complain(error.what());
    }
    items_->push_back({Item::Kind::kText, std::string_view(scratch_).substr(begin), 0});
}

}  // namespace ostrel::tool

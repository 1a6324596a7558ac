#include <stdexcept>

#include "read/encoding.h"
#include "read/json_object.h"

namespace ostrel::tool {

namespace {

constexpr std::size_t kMostItems = 64;

}  // namespace

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
        add_item(Item::Kind::kText, text);
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
                texts_ = argument_->size();
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
            if (texts_ < argument_->size()) (*argument_)[texts_].count = argument_->size() - texts_ - 1;
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
    if (argument_->size() == kMostItems) {
        complain("no check takes that many arguments");
        return;
    }
    try {
        Item item = place_ == Place::kBase64 ? items_.of_base64(text) : items_.of_text(text);
        item.kind = kind;
        argument_->push_back(item);
    } catch (const std::invalid_argument& error) {
        complain(error.what());
    }
}

}  // namespace ostrel::tool

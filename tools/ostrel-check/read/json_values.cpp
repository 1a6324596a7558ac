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
    if (state_ == State::kCheck) {
        record_->check = text;
        state_ = State::kMembers;
        return true;
    }
    if (state_ == State::kBase64) {
        add_item(Item::Kind::kText, text);
        state_ = State::kWrapping;
        return true;
    }
    if (state_ != State::kPassed) return scalar(Item::Kind::kText, text, {});
    const std::size_t at = parser_.offset_of(begin) - 1;
    pass(text_.substr(at, kinds_.has_backslashes ? end_of_string(text_, at) - at : size + 2));
    return true;
}

bool JsonObject::scalar(Item::Kind kind, std::string_view text, std::string_view token)
{
    if (skipped_ > 0) return true;
    switch (state_) {
        case State::kObject:
            complain("a record must be a JSON object");
            break;
        case State::kCheck:
            complain(kNotAName);
            state_ = State::kMembers;
            break;
        case State::kArgs:
            complain(kNotAnArray);
            state_ = State::kMembers;
            break;
        case State::kPassed:
            pass(token);
            break;
        case State::kBase64:
        case State::kOther:
            complain(kNotBase64);
            state_ = State::kWrapping;
            break;
        default:
            if (state_ == State::kTexts && kind == Item::Kind::kNull)
                complain("an array of strings must not contain null");
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
    switch (state_) {
        case State::kObject:
            if (is_object) {
                state_ = State::kMembers;
                return true;
            }
            complain("a record must be a JSON object");
            break;
        case State::kCheck:
            complain(kNotAName);
            break;
        case State::kArgs:
            if (!is_object) {
                state_ = State::kItems;
                return true;
            }
            complain(kNotAnArray);
            break;
        case State::kPassed:
            begin_ = parser_.offset() - 1;
            break;
        case State::kBase64:
        case State::kOther:
            complain(kNotBase64);
            break;
        default:
            if (is_object) {
                outside_wrapping_ = state_;
                state_ = State::kWrapping;
                return true;
            }
            if (state_ != State::kTexts) {
                texts_ = argument_->size();
                add_item(Item::Kind::kTexts, {});
                outside_texts_ = state_;
                state_ = State::kTexts;
                return true;
            }
            complain("an array of strings must not contain an array");
    }
    ++skipped_;
    return true;
}

bool JsonObject::end()
{
    --depth_;
    if (skipped_ > 0) {
        if (--skipped_ == 0) finish_skipping();
        return true;
    }
    switch (state_) {
        case State::kItems:
            state_ = State::kMembers;
            break;
        case State::kTexts:
            if (texts_ < argument_->size()) (*argument_)[texts_].count = argument_->size() - texts_ - 1;
            state_ = outside_texts_;
            finish_value();
            break;
        case State::kWrapping:
            state_ = outside_wrapping_;
            finish_value();
            break;
        default:
            state_ = State::kEnd;
    }
    return true;
}

void JsonObject::finish_value()
{
    if (state_ == State::kValue) state_ = State::kMembers;
}

void JsonObject::finish_skipping()
{
    switch (state_) {
        case State::kPassed:
            pass(text_.substr(begin_, parser_.offset() - begin_));
            break;
        case State::kCheck:
        case State::kArgs:
        case State::kValue:
            state_ = State::kMembers;
            break;
        case State::kBase64:
        case State::kOther:
            state_ = State::kWrapping;
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
        Item item = state_ == State::kBase64 ? items_.of_base64(text) : items_.of_text(text);
        item.kind = kind;
        argument_->push_back(item);
    } catch (const std::invalid_argument& error) {
        complain(error.what());
    }
}

}  // namespace ostrel::tool

#include "read/json_object.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "catalogue/catalogue.h"
#include "read/encoding.h"

namespace ostrel::tool {

namespace {

// The number of members is limited because each name is compared with all others.
constexpr std::size_t kMostMembers = 1000;

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
    state_ = State::kObject;
    depth_ = 0;
    skipped_ = 0;
    has_check_ = false;
    has_args_ = false;
    has_value_.assign(value_items_.size(), false);
    problem_.clear();
    items_.begin(text.size(), reading_->encoding);

    const rapidjson::ParseResult result = parser_.parse(text, *this);
    if (result.IsError() && result.Code() != rapidjson::kParseErrorTermination) {
        const std::string at = " (at byte " + std::to_string(result.Offset() + 1) + ")";
        throw std::invalid_argument("invalid JSON: " + describe(result.Code()) + at);
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

void JsonObject::complain(std::string problem)
{
    if (problem_.empty()) problem_ = std::move(problem);
}

bool JsonObject::Key(const char* begin, rapidjson::SizeType size, bool /*copy*/)
{
    const std::string_view name(begin, size);
    if (kinds_.has_backslashes && valid_utf8(name) < size) {
        complain(describe(rapidjson::kParseErrorStringUnicodeSurrogateInvalid));
    }
    if (skipped_ > 0) return true;
    if (state_ == State::kMembers) {
        enter_member(name);
    } else if (name == "base64") {
        state_ = State::kBase64;
    } else {
        const bool is_vector = name == "repeat" || name == "join";
        complain(is_vector ? "\"" + std::string(name) +
                                 "\" is notation of the conformance vectors, which batch does not accept"
                           : kNotBase64);
        state_ = State::kOther;
    }
    return true;
}

void JsonObject::enter_member(std::string_view name)
{
    name_ = name;
    if (!has_one_check_ && name == (reading_->check.empty() ? "check" : reading_->check)) {
        enter_once(State::kCheck, has_check_, name);
        return;
    }
    const auto value = std::ranges::find(reading_->values, name) - reading_->values.begin();
    if (value < static_cast<std::ptrdiff_t>(reading_->values.size())) {
        const auto index = static_cast<std::size_t>(value);
        bool has_it = has_value_[index];
        argument_ = &value_items_[index];
        argument_->clear();
        enter_once(State::kValue, has_it, name);
        has_value_[index] = has_it;
        return;
    }
    if (name == "args" && value_items_.empty()) {
        argument_ = &record_->items;
        argument_->clear();
        enter_once(State::kArgs, has_args_, name);
        return;
    }
    const bool is_known = name == "id" || name == "parameter";
    if (reading_->is_strict && !is_known) complain("unknown member \"" + std::string(name) + "\"");
    const auto before = std::ranges::find(record_->members, name, &Member::name);
    bool has_it = before != record_->members.end();
    if (has_it) record_->members.erase(before);
    enter_once(State::kPassed, has_it, name);
}

void JsonObject::enter_once(State place, bool& has_it, std::string_view name)
{
    if (has_it && reading_->is_strict) complain("duplicate member \"" + std::string(name) + "\"");
    has_it = true;
    state_ = place;
}

void JsonObject::pass(std::string_view token)
{
    state_ = State::kMembers;
    if (record_->members.size() == kMostMembers) {
        complain("the record has more than " + std::to_string(kMostMembers) + " members");
        return;
    }
    if (kinds_.has_controls) {
        token = items_.compact(token);
    }
    record_->members.push_back({name_, token, true, !kinds_.has_backslashes});
}

}  // namespace ostrel::tool

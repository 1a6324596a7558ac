// Reads a record that is a JSON object.
#ifndef OSTREL_TOOLS_READ_JSON_OBJECT_H
#define OSTREL_TOOLS_READ_JSON_OBJECT_H

#include <rapidjson/encodings.h>
#include <rapidjson/reader.h>

#include <string>
#include <string_view>
#include <vector>

#include "read/items.h"
#include "read/json_parser.h"
#include "read/reading.h"
#include "read/record.h"

namespace ostrel::tool {

// JsonObject reads {"check": name, "args": [...]} and keeps every other member. It continues after a problem,
// so that the result can identify the record.
class JsonObject : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, JsonObject> {
 public:
    explicit JsonObject(const Reading& reading);

    // read reads an object. Throws std::invalid_argument with a message for the user.
    void read(std::string_view text, Record& record);

    // The parser calls these. The base class defines the handlers for all other events.
    // NOLINTBEGIN(bugprone-derived-method-shadowing-base-method)
    bool Null() { return scalar(Item::Kind::kNull, {}, "null"); }
    bool Bool(bool value);
    bool RawNumber(const char* begin, rapidjson::SizeType size, bool copy);
    bool String(const char* begin, rapidjson::SizeType size, bool copy);
    bool Key(const char* begin, rapidjson::SizeType size, bool copy);
    bool StartObject() { return start(true); }
    bool EndObject(rapidjson::SizeType /*members*/) { return end(); }
    bool StartArray() { return start(false); }
    bool EndArray(rapidjson::SizeType /*elements*/) { return end(); }
    // NOLINTEND(bugprone-derived-method-shadowing-base-method)

 private:
    static constexpr const char* kNotAName = "\"check\" must be the name of a check";
    static constexpr const char* kNotAnArray = "\"args\" must be an array of values";
    static constexpr const char* kNotBase64 =
        "an argument that is an object must have the form {\"base64\": text}";

    // State is the part of the record that is read next.
    enum class State {
        kObject,   // the record itself
        kMembers,  // its members
        kCheck,
        kArgs,
        kItems,     // in the array of arguments
        kValue,     // the value of a member that is an argument
        kTexts,     // in an array that is one argument
        kWrapping,  // {"base64": text}
        kBase64,
        kOther,   // a member other than "base64" in such an object, which is not allowed
        kPassed,  // the value of a member that is passed through
        kEnd,
    };

    bool start(bool is_object);
    bool end();
    bool scalar(Item::Kind kind, std::string_view text, std::string_view token);
    void finish_value();
    void finish_skipping();
    void add_item(Item::Kind kind, std::string_view text);
    void pass(std::string_view token);
    void enter_member(std::string_view name);
    void enter_once(State place, bool& has_it, std::string_view name);
    void require_all();
    void complain(std::string problem);

    const Reading* reading_;
    bool has_one_check_;  // all records are for the same check
    JsonParser parser_;
    Items items_;
    std::vector<std::vector<Item>> value_items_;

    // The state of the record that is being read.
    std::string_view text_;
    Record* record_ = nullptr;
    ByteKinds kinds_;
    State state_ = State::kObject;
    State outside_texts_ = State::kItems;
    State outside_wrapping_ = State::kItems;
    std::vector<Item>* argument_ = nullptr;  // the items of one argument, or of all arguments
    std::size_t depth_ = 0;
    std::size_t skipped_ = 0;  // arrays and objects that are open and being skipped
    std::size_t begin_ = 0;    // where a value that is passed through begins
    std::size_t texts_ = 0;    // index of the item for the array that is being read
    std::string_view name_;
    bool has_check_ = false;
    bool has_args_ = false;
    std::vector<bool> has_value_;
    std::string problem_;
};

}  // namespace ostrel::tool

#endif

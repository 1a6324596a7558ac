// FlatJson: the values of a JSON object, each with its path.
#ifndef OSTREL_TOOLS_MAP_FLAT_JSON_H
#define OSTREL_TOOLS_MAP_FLAT_JSON_H

#include <rapidjson/encodings.h>
#include <rapidjson/reader.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "read/encoding.h"
#include "read/json_parser.h"
#include "read/record.h"

namespace ostrel::tool {

// A value that is directly in the object under a name without "." is a member. Every other value is a parameter. Its
// path consists of the names that lead to it and, for an element of an array, the element's number from 1. null is
// not a value, and {"base64": text} is its decoded bytes.
class FlatJson : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, FlatJson> {
 public:
    explicit FlatJson(Encoding encoding) : encoding_(encoding) {}

    // read reads an object. The results are valid until the next object. Throws std::invalid_argument with a message
    // for the user.
    void read(std::string_view text);

    struct Parameter {
        std::string_view path;
        std::string_view value;  // the bytes
    };
    [[nodiscard]] std::size_t size() const { return places_.size(); }
    [[nodiscard]] Parameter parameter(std::size_t index) const;
    [[nodiscard]] const std::vector<Member>& members() const { return members_; }

    // bytes_of returns the value of a member.
    [[nodiscard]] std::string_view bytes_of(const Member& member);

    // The base class calls these, and has its own versions of the others.
    // NOLINTBEGIN(bugprone-derived-method-shadowing-base-method)
    bool Null() { return skip(); }
    bool Bool(bool value) { return scalar(value ? "true" : "false", true); }
    bool RawNumber(const char* begin, rapidjson::SizeType size, bool /*copy*/)
    {
        return scalar({begin, size}, true);
    }
    bool String(const char* begin, rapidjson::SizeType size, bool /*copy*/)
    {
        return scalar({begin, size}, false);
    }
    bool Key(const char* begin, rapidjson::SizeType size, bool copy);
    bool StartObject() { return start(false); }
    bool EndObject(rapidjson::SizeType members) { return take_base64(members) && end(); }
    bool StartArray() { return start(true); }
    bool EndArray(rapidjson::SizeType /*elements*/) { return end(); }
    // NOLINTEND(bugprone-derived-method-shadowing-base-method)

 private:
    struct Level {
        bool is_array;
        std::size_t count;      // of elements
        std::size_t path_size;  // of the path to it
    };
    struct Offsets {  // in texts_
        std::size_t path;
        std::size_t path_size;
        std::size_t value;
        std::size_t value_size;
    };

    bool start(bool is_array);
    bool end();
    bool skip();
    bool scalar(std::string_view text, bool is_token);
    void enter(std::string_view name);
    bool take_base64(rapidjson::SizeType members);

    Encoding encoding_;
    JsonParser parser_;
    std::vector<Level> levels_;
    std::string path_;
    std::string_view name_;  // of the member that is read
    std::string texts_;
    std::vector<Offsets> places_;
    std::vector<Member> members_;
    std::string scratch_;
    std::string problem_;
};

}  // namespace ostrel::tool

#endif

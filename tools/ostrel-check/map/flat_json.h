// The values in a JSON object, each with its path.
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

// A value directly in the object is a member if its name contains no ".". Every other value is a parameter.
// Its path consists of the names that lead to it, and the elements of an array are numbered from 1. null is
// not the value of a parameter, and {"base64": TEXT} stands for the decoded bytes.
class FlatJson : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, FlatJson> {
 public:
    explicit FlatJson(Encoding encoding) : encoding_(encoding) {}

    // The results are valid until the next call. Throws std::invalid_argument with a message for the user.
    void read(std::string_view text);

    struct Parameter {
        std::string_view path;
        std::string_view value;  // in the chosen encoding, or decoded from base64
    };
    [[nodiscard]] std::size_t size() const { return places_.size(); }
    [[nodiscard]] Parameter parameter(std::size_t index) const;
    [[nodiscard]] const std::vector<Member>& members() const { return members_; }

    // bytes_of returns the value of a member in the chosen encoding. It is valid until the next call.
    [[nodiscard]] std::string_view bytes_of(const Member& member);

    // The parser calls these functions. The base class provides those that are not defined here.
    // NOLINTBEGIN(bugprone-derived-method-shadowing-base-method)
    bool Null();
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
        std::size_t count;      // number of elements so far
        std::size_t path_size;  // size of the path to the object or array
    };
    struct Offsets {  // positions and sizes in texts_
        std::size_t path;
        std::size_t path_size;
        std::size_t value;
        std::size_t value_size;
    };

    bool start(bool is_array);
    bool end();
    [[nodiscard]] bool is_at_member() const;
    bool scalar(std::string_view text, bool is_token);
    void enter(std::string_view name);
    bool take_base64(rapidjson::SizeType members);

    Encoding encoding_;
    JsonParser parser_;
    std::vector<Level> levels_;
    std::string path_;
    std::string_view name_;  // name of the member that is being read
    std::string texts_;
    std::vector<Offsets> places_;
    std::vector<Member> members_;
    std::string scratch_;
    std::string problem_;
};

}  // namespace ostrel::tool

#endif

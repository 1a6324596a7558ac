// Writes the values of calls as JSON with RapidJSON.
#ifndef OSTREL_TOOLS_WRITE_JSON_WRITER_H
#define OSTREL_TOOLS_WRITE_JSON_WRITER_H

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cstring>
#include <string>
#include <string_view>

#include "calling/caller.h"
#include "read/encoding.h"
#include "read/record.h"

namespace ostrel::tool {

// JsonWriter copies strings that need no escapes, and finished JSON, as a whole. RapidJSON's own writer
// processes both byte by byte, which would take half of the time that a result needs.
class JsonWriter : public rapidjson::Writer<rapidjson::StringBuffer> {
 public:
    using Writer::Writer;

    // plain writes a string that is known to need no escapes, such as the name of a member or of a verdict.
    [[gnu::always_inline]] void plain(std::string_view text)
    {
        Prefix(rapidjson::kStringType);
        char* place = os_->Push(text.size() + 2);
        *place = '"';
        std::memcpy(place + 1, text.data(), text.size());
        place[text.size() + 1] = '"';
    }

    // members writes finished members of an object unchanged. They may be given in several pieces, of which at
    // least one must not be empty.
    template <typename... Pieces>
    [[gnu::always_inline]] void members(const Pieces&... pieces)
    {
        Level& object = *level_stack_.template Top<Level>();
        const std::size_t comma = object.valueCount > 0 ? 1 : 0;
        object.valueCount += 2;  // any even number of names and values
        char* place = os_->Push((std::string_view(pieces).size() + ... + comma));
        *place = ',';
        place += comma;
        const auto append = [&place](std::string_view piece) {
            std::memcpy(place, piece.data(), piece.size());
            place += piece.size();
        };
        (append(pieces), ...);
    }

    void raw(std::string_view json);

    // text writes a string, which must be valid UTF-8.
    void text(std::string_view text);
};

// write_text escapes every byte that is not printable ASCII as \xNN if the string is not valid UTF-8.
void write_text(JsonWriter& json, std::string_view text);

// write_bytes writes the bytes of a value as a string, or as {"base64": text} if they cannot be decoded.
void write_bytes(JsonWriter& json, std::string_view bytes, Encoding encoding);

void write_value(JsonWriter& json, const catalogue::Value& value, Encoding encoding);

// write_member writes the value of a member that is passed through.
void write_member(JsonWriter& json, const Member& member);

// text_of returns the value of a member that is passed through: the text of a string, or the JSON of any
// other value. The result is a view into the member or into memory.
std::string_view text_of(const Member& member, std::string& memory);

// append_bytes does the same as write_bytes for JSON that is built without a writer.
void append_bytes(std::string& out, std::string_view bytes, Encoding encoding);

}  // namespace ostrel::tool

#endif

#include "web/reasons/call.h"

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace ostrel::web {

namespace {

using rules::Value;

enum Tag : char { kNull, kText, kInteger, kUnsigned, kBlocks };

std::string call;

class CallReader {
 public:
    explicit CallReader(const char* begin) : next_(begin) {}

    // read reads one value. A string reuses the memory of the value's previous string.
    void read(Value& value)
    {
        const char tag = *next_++;
        if (tag == kNull) {
            value = nullptr;
        } else if (tag == kText) {
            auto* const before = std::get_if<std::string>(&value);
            (before == nullptr ? value.emplace<std::string>() : *before).assign(text());
        } else if (tag == kInteger) {
            value = static_cast<long long>(static_cast<std::int32_t>(number()));
        } else if (tag == kUnsigned) {
            value = static_cast<long long>(number());
        } else {
            const std::uint32_t count = number();
            auto& blocks = value.emplace<std::vector<std::string>>();
            for (std::uint32_t i = 0; i < count; ++i) blocks.emplace_back(text());
        }
    }

 private:
    std::uint32_t number()
    {
        std::uint32_t number = 0;
        std::memcpy(&number, next_, sizeof number);
        next_ += sizeof number;
        return number;
    }

    std::string_view text()
    {
        const std::uint32_t length = number();
        next_ += length;
        return {next_ - length, length};
    }

    const char* next_;
};

}  // namespace

const std::vector<Value>& written_call(const rules::Check& check)
{
    static std::vector<Value> values;
    values.resize(check.arguments.size());
    CallReader reader(call.data());
    for (Value& value : values) reader.read(value);
    return values;
}

char* room_for_call(std::size_t size)
{
    if (size > call.size()) call.resize(size);
    return call.data();
}

}  // namespace ostrel::web

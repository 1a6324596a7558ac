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

class Reader {
 public:
    explicit Reader(std::string_view rest) : rest_(rest) {}

    [[nodiscard]] bool is_at_end() const { return rest_.empty(); }

    Value value()
    {
        const char tag = rest_.front();
        rest_.remove_prefix(1);
        if (tag == kNull) return nullptr;
        if (tag == kText) return text();
        const std::uint32_t number = this->number();
        if (tag == kInteger) return static_cast<long long>(static_cast<std::int32_t>(number));
        if (tag == kUnsigned) return static_cast<long long>(number);
        std::vector<std::string> blocks;
        for (std::uint32_t i = 0; i < number; ++i) blocks.push_back(text());
        return blocks;
    }

 private:
    std::uint32_t number()
    {
        std::uint32_t number = 0;
        std::memcpy(&number, rest_.data(), sizeof number);
        rest_.remove_prefix(sizeof number);
        return number;
    }

    std::string text()
    {
        const std::uint32_t length = number();
        std::string text(rest_.substr(0, length));
        rest_.remove_prefix(length);
        return text;
    }

    std::string_view rest_;
};

}  // namespace

std::vector<Value> written_call()
{
    std::vector<Value> values;
    for (Reader reader(call); !reader.is_at_end();) values.push_back(reader.value());
    return values;
}

char* room_for_call(std::size_t size)
{
    call.resize(size);
    return call.data();
}

}  // namespace ostrel::web

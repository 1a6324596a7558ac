#include "read/items.h"

#include "read/json_parser.h"

namespace ostrel::tool {

Item Items::of_text(std::string_view text)
{
    if (encoding_ == Encoding::kUtf8 || is_ascii(text)) return {Item::Kind::kText, text, 0};
    const std::size_t begin = made_.size();
    encode(made_, text, encoding_);
    return {Item::Kind::kText, made_since(begin), 0};
}

Item Items::of_base64(std::string_view text)
{
    const std::size_t begin = made_.size();
    decode_base64(made_, text);
    return {Item::Kind::kText, made_since(begin), 0};
}

std::string_view Items::compact(std::string_view json)
{
    const std::size_t begin = made_.size();
    append_compact(made_, json);
    return made_since(begin);
}

}  // namespace ostrel::tool

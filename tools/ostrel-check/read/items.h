// Converts text in a file to arguments.
#ifndef OSTREL_TOOLS_READ_ITEMS_H
#define OSTREL_TOOLS_READ_ITEMS_H

#include <cstddef>
#include <string>
#include <string_view>

#include "read/encoding.h"
#include "read/record.h"

namespace ostrel::tool {

// Items makes items, whose views are valid until the next call to begin.
class Items {
 public:
    // begin reserves memory for a record of the given size, each byte of which may be used twice.
    void begin(std::size_t size, Encoding encoding)
    {
        encoding_ = encoding;
        made_.clear();
        made_.reserve(2 * size);
    }

    // Both throw std::invalid_argument with a message for the user.
    Item of_text(std::string_view text);
    Item of_base64(std::string_view text);

    // compact returns JSON without the blanks and line endings outside strings.
    std::string_view compact(std::string_view json);

 private:
    [[nodiscard]] std::string_view made_since(std::size_t begin) const
    {
        return std::string_view(made_).substr(begin);
    }

    Encoding encoding_ = Encoding::kUtf8;
    std::string made_;  // bytes that do not occur in the record itself
};

}  // namespace ostrel::tool

#endif

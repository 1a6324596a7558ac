// Items: texts of a file as arguments.
#ifndef OSTREL_TOOLS_READ_ITEMS_H
#define OSTREL_TOOLS_READ_ITEMS_H

#include <cstddef>
#include <string>
#include <string_view>

#include "read/encoding.h"
#include "read/record.h"

namespace ostrel::tool {

// Items makes items, whose views hold until it begins again.
class Items {
 public:
    // begin makes room for the items of a record of that size, each byte of which is used twice at most.
    void begin(std::size_t size, Encoding encoding)
    {
        encoding_ = encoding;
        made_.clear();
        made_.reserve(2 * size);
    }

    // These throw std::invalid_argument with a message for the user.
    Item of_text(std::string_view text);
    Item of_base64(std::string_view text);

    // compact returns JSON without what is blank outside of its strings.
    std::string_view compact(std::string_view json);

 private:
    [[nodiscard]] std::string_view made_since(std::size_t begin) const
    {
        return std::string_view(made_).substr(begin);
    }

    Encoding encoding_ = Encoding::kUtf8;
    std::string made_;  // what is not in the record itself
};

}  // namespace ostrel::tool

#endif

// A row of CSV: where it ends, and its fields.
#ifndef OSTREL_TOOLS_READ_CSV_ROW_H
#define OSTREL_TOOLS_READ_CSV_ROW_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel::tool {

// RowEnd is where the row at the front of a text ends, with its line end.
struct RowEnd {
    std::size_t size = 0;
    bool is_open = false;  // the text ends within quotation marks, or where more of the row may follow
};

// find_row_end looks for the end of a row. A row whose quotation marks are broken is its first line, so that what follows is
// read all the same. Where the text is all there is, is_open tells that such a mark is never closed, and size is that
// of the first line.
RowEnd find_row_end(std::string_view text, char delimiter);

// CsvRow splits a row, with the same memory again and again.
class CsvRow {
 public:
    // split throws std::invalid_argument with a message for the user.
    void split(std::string_view row, char delimiter);

    // fields hold as long as the row does, and until the next one is split.
    [[nodiscard]] const std::vector<std::string_view>& fields() const { return fields_; }

 private:
    std::size_t take_quoted(std::string_view row, std::size_t at);

    std::vector<std::string_view> fields_;
    std::string unquoted_;  // fields in which quotation marks were doubled
};

}  // namespace ostrel::tool

#endif

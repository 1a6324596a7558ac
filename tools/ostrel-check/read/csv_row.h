// Finds the end of a CSV row and splits the row into fields.
#ifndef OSTREL_TOOLS_READ_CSV_ROW_H
#define OSTREL_TOOLS_READ_CSV_ROW_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel::tool {

// RowEnd describes where the row at the front of the input ends. The size includes the row's line ending.
struct RowEnd {
    std::size_t size = 0;
    bool is_open = false;  // the input ends within quotation marks, or more of the row may follow
};

// find_row_end finds the end of a row. A row with faulty quotation marks ends with its first line, so that
// the following lines are still read. If a quoted field is not closed, is_open is set and size is the size of
// the first line.
RowEnd find_row_end(std::string_view text, char delimiter);

class CsvRow {
 public:
    // split throws std::invalid_argument with a message for the user.
    void split(std::string_view row, char delimiter);

    // fields returns views that are valid until the next split, provided that the row itself remains valid.
    [[nodiscard]] const std::vector<std::string_view>& fields() const { return fields_; }

 private:
    std::size_t take_quoted(std::string_view row, std::size_t at);

    std::vector<std::string_view> fields_;
    std::string unquoted_;  // the fields that contained doubled quotation marks
};

}  // namespace ostrel::tool

#endif

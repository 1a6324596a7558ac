// A row of CSV: its end and its fields.
#ifndef OSTREL_TOOLS_READ_CSV_ROW_H
#define OSTREL_TOOLS_READ_CSV_ROW_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel::tool {

// RowEnd is the end of the row at the front of a text, after its line end.
struct RowEnd {
    std::size_t size = 0;
    bool is_open = false;  // the text ends within quotation marks, or where more of the row may follow
};

// find_row_end finds the end of a row. A row with faulty quotation marks ends with its first line, so that the
// following lines are still read. If a quotation mark is not closed, is_open is set and size is that of the first
// line.
RowEnd find_row_end(std::string_view text, char delimiter);

// CsvRow splits rows and reuses its memory.
class CsvRow {
 public:
    // split throws std::invalid_argument with a message for the user.
    void split(std::string_view row, char delimiter);

    // fields returns views that are valid as long as the row is, and until the next split.
    [[nodiscard]] const std::vector<std::string_view>& fields() const { return fields_; }

 private:
    std::size_t take_quoted(std::string_view row, std::size_t at);

    std::vector<std::string_view> fields_;
    std::string unquoted_;  // fields in which quotation marks were doubled
};

}  // namespace ostrel::tool

#endif

// Reads records that are rows of CSV or TSV.
#ifndef OSTREL_TOOLS_READ_CSV_H
#define OSTREL_TOOLS_READ_CSV_H

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "read/csv_row.h"
#include "read/items.h"
#include "read/reader.h"

namespace ostrel::tool {

char delimiter_of(FileFormat format, const Reading& reading);

// CsvReader takes the check and its arguments from columns, and passes every other column through. By
// default, the check is in the column "check", and the arguments are in "value", or in "value_1", "value_2"
// and so on.
class CsvReader : public Reader {
 public:
    // Throws std::invalid_argument, with a message for the user, if the header is faulty or lacks a column.
    CsvReader(FileFormat format, const Reading& reading, std::string_view header);

    std::size_t next(std::string_view rest) override;
    Found read(std::string_view text, std::size_t part, Record& record) override;

 private:
    [[nodiscard]] std::optional<std::size_t> column(std::string_view name) const;
    std::size_t require_column(std::string_view name) const;
    void choose_values();
    void choose_passed();

    const Reading* reading_;
    char delimiter_;
    std::vector<std::string> names_;
    std::optional<std::size_t> check_;
    std::vector<std::size_t> values_;
    std::vector<std::size_t> passed_;
    CsvRow row_;
    Items items_;
};

}  // namespace ostrel::tool

#endif

// Reads the records of a file as calls to checks.
#ifndef OSTREL_TOOLS_READ_CASES_H
#define OSTREL_TOOLS_READ_CASES_H

#include <memory>
#include <string>
#include <vector>

#include "catalogue/catalogue.h"
#include "read/reader.h"

namespace ostrel::tool {

// Cases reads the entries that a Reader finds, and reuses its memory.
class Cases {
 public:
    explicit Cases(const Reading& reading) : reading_(&reading) {}

    // open prepares to read the entries of a file. It does nothing if the file is already open.
    void open(std::size_t file, FileFormat format, std::string_view preamble);

    std::size_t next(std::string_view rest) { return reader_->next(rest); }

    // read reads a record as Reader::read does and, if it is a case, finds the check and the arguments. It
    // returns false if there is no record. Throws std::invalid_argument with a message for the user.
    bool read(std::string_view text, std::size_t part);

    // has_more returns whether the entry contains another record, even after read has thrown.
    [[nodiscard]] bool has_more() const { return found_ == Found::kMore; }

    // These return what read found, even if it then threw. function returns NULL if no check was found.
    [[nodiscard]] const catalogue::Function* function() const { return function_; }
    [[nodiscard]] const std::vector<catalogue::Value>& values() const { return values_; }
    [[nodiscard]] const Record& record() const { return record_; }

 private:
    const Reading* reading_;
    std::size_t file_ = 0;
    std::string preamble_;
    std::unique_ptr<Reader> reader_;
    Record record_;
    Found found_ = Found::kNothing;
    const catalogue::Function* function_ = nullptr;
    std::vector<catalogue::Value> values_;
};

}  // namespace ostrel::tool

#endif

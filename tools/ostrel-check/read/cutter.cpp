#include "read/cutter.h"

#include <cstring>

#include "map/map_cutter.h"
#include "read/csv.h"
#include "read/csv_row.h"
#include "read/json_file.h"

namespace ostrel::tool {

namespace {

// LineCutter cuts after whole lines. A subclass may define what a line is.
class LineCutter : public Cutter {
 public:
    Cut cut(std::string_view bytes, bool is_end) override
    {
        Cut cut;
        if (is_skipping_) {
            const std::size_t end = bytes.find('\n');
            is_skipping_ = end == std::string_view::npos;
            cut.dropped = is_skipping_ ? bytes.size() : end + 1;
            bytes.remove_prefix(cut.dropped);
        }
        cut_lines(cut, bytes, is_end);
        if (cut.preamble == 0 && cut.size == 0 && bytes.size() > kLongestText) {
            cut.problem = "the line is longer than 16 MiB";
            is_skipping_ = true;
        }
        return cut;
    }

 protected:
    virtual void cut_lines(Cut& cut, std::string_view bytes, bool is_end)
    {
        const std::size_t last = bytes.rfind('\n');
        cut.size = is_end ? bytes.size() : last == std::string_view::npos ? 0 : last + 1;
    }

 private:
    bool is_skipping_ = false;  // the rest of a line that is too long is being dropped
};

class CsvCutter : public LineCutter {
 public:
    CsvCutter(FileFormat format, const Reading& reading) : delimiter_(delimiter_of(format, reading)) {}

 protected:
    void cut_lines(Cut& cut, std::string_view bytes, bool is_end) override
    {
        if (!has_header_) {
            cut.preamble = cut_row(bytes, is_end);
            has_header_ = cut.preamble > 0;
            bytes.remove_prefix(cut.preamble);
            if (!has_header_) return;
        }
        // If there are no quotation marks, every row is a line.
        const std::size_t last = bytes.rfind('\n');
        const std::size_t lines = last == std::string_view::npos ? 0 : last + 1;
        if (lines > 0 && std::memchr(bytes.data(), '"', lines) == nullptr) cut.size = lines;
        while (cut.size < bytes.size()) {
            const std::size_t size = cut_row(bytes.substr(cut.size), is_end);
            if (size == 0) break;
            cut.size += size;
        }
    }

 private:
    // cut_row returns the size of the first row, or 0 if it needs more bytes.
    [[nodiscard]] std::size_t cut_row(std::string_view bytes, bool is_end) const
    {
        if (bytes.empty()) return 0;
        const RowEnd row = find_row_end(bytes, delimiter_);
        const bool is_broken = bytes.size() > kLongestText && row.size < bytes.size();
        return row.is_open && !is_end && !is_broken ? 0 : row.size;
    }

    char delimiter_;
    bool has_header_ = false;
};

}  // namespace

std::unique_ptr<Cutter> make_cutter(FileFormat format, const Reading& reading)
{
    if (reading.map != nullptr) return std::make_unique<MapCutter>(format, reading);
    switch (format) {
        case FileFormat::kCsv:
        case FileFormat::kTsv:
            return std::make_unique<CsvCutter>(format, reading);
        case FileFormat::kJson:
            return make_json_cutter();
        default:
            return std::make_unique<LineCutter>();
    }
}

}  // namespace ostrel::tool

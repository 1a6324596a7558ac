#include "read/reader.h"

#include <algorithm>

#include "map/map_reader.h"
#include "read/csv.h"
#include "read/json_file.h"
#include "read/lines.h"

namespace ostrel::tool {

std::size_t Reader::skip(std::string_view rest, std::uint64_t line)
{
    std::size_t size = 0;
    for (std::uint64_t at = 0; at < line && size < rest.size();) {
        const std::string_view text = rest.substr(size, next(rest.substr(size)));
        size += text.size();
        at += static_cast<std::uint64_t>(std::ranges::count(text, '\n'));
    }
    return size;
}

std::unique_ptr<Reader> make_reader(FileFormat format, const Reading& reading, std::string_view preamble)
{
    if (reading.map != nullptr) return std::make_unique<MapReader>(*reading.map, format, reading, preamble);
    switch (format) {
        case FileFormat::kCsv:
        case FileFormat::kTsv:
            return std::make_unique<CsvReader>(format, reading, preamble);
        case FileFormat::kJson:
            return std::make_unique<JsonReader>(reading);
        case FileFormat::kNdjson:
            return std::make_unique<LineReader>(reading, true);
        default:
            return std::make_unique<LineReader>(reading, false);
    }
}

}  // namespace ostrel::tool

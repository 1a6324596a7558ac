#include "read/reader.h"

#include "map/map_reader.h"
#include "read/csv.h"
#include "read/json_file.h"
#include "read/lines.h"

namespace ostrel::tool {

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

#include "read/reader.h"

#include <algorithm>
#include <cstring>

#include "map/map_reader.h"
#include "read/block.h"
#include "read/csv.h"
#include "read/json_file.h"
#include "read/lines.h"

namespace ostrel::tool {

std::uint64_t count_lines(std::string_view text)
{
    constexpr std::size_t kMostBlocks = 255;  // a byte of a block counts no more
    std::uint64_t lines = 0;
    while (text.size() >= sizeof(Block)) {
        const std::size_t blocks = std::min(text.size() / sizeof(Block), kMostBlocks);
        Block counts{};
        for (std::size_t i = 0; i < blocks; ++i) {
            Block block;
            std::memcpy(&block, text.data() + i * sizeof block, sizeof block);
            counts -= static_cast<Block>(block == '\n');  // each byte that matches is -1
        }
        for (std::size_t i = 0; i < sizeof counts; ++i) lines += counts[i];
        text.remove_prefix(blocks * sizeof(Block));
    }
    return lines + static_cast<std::uint64_t>(std::ranges::count(text, '\n'));
}

std::size_t Reader::skip(std::string_view rest, std::uint64_t line)
{
    std::size_t size = 0;
    for (std::uint64_t at = 0; at < line && size < rest.size();) {
        const std::string_view text = rest.substr(size, next(rest.substr(size)));
        size += text.size();
        at += count_lines(text);
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

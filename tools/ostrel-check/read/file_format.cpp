#include "read/file_format.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

#include "read/csv_row.h"

namespace ostrel::tool {

namespace {

using Ending = std::pair<std::string_view, FileFormat>;

constexpr std::array<Ending, 7> kEndings = {{{".ndjson", FileFormat::kNdjson},
                                             {".jsonl", FileFormat::kNdjson},
                                             {".json", FileFormat::kJson},
                                             {".csv", FileFormat::kCsv},
                                             {".tsv", FileFormat::kTsv},
                                             {".tab", FileFormat::kTsv},
                                             {".words", FileFormat::kWords}}};

constexpr std::string_view kUtf16 = "the file is UTF-16; convert it with iconv -f UTF-16 -t UTF-8";
// Without a byte-order mark, iconv must be told the order.
constexpr std::string_view kUtf16Be = "the file is UTF-16BE; convert it with iconv -f UTF-16BE -t UTF-8";
constexpr std::string_view kUtf16Le = "the file is UTF-16LE; convert it with iconv -f UTF-16LE -t UTF-8";
constexpr std::string_view kUtf32 = "the file is UTF-32; convert it with iconv -f UTF-32 -t UTF-8";

// Front describes a kind of unreadable file that is identified by its first bytes.
struct Front {
    std::string_view bytes;
    std::string_view problem;
};

using namespace std::string_view_literals;

constexpr std::array<Front, 9> kFronts = {{
    {"\x1F\x8B", "the file is compressed with gzip; decompress it with gzip -d"},
    {"BZh91AY&SY", "the file is compressed with bzip2; decompress it with bzip2 -d"},
    {"\xFD"
     "7zXZ",
     "the file is compressed with xz; decompress it with xz -d"},
    {"\x28\xB5\x2F\xFD", "the file is compressed with Zstandard; decompress it with zstd -d"},
    {"PK\x03\x04", "the file is a ZIP archive, as spreadsheets are; export it as CSV"},
    {"\xFF\xFE\0\0"sv, kUtf32},
    {"\0\0\xFE\xFF"sv, kUtf32},
    {"\xFF\xFE", kUtf16},
    {"\xFE\xFF", kUtf16},
}};

bool is_header(std::string_view line, char delimiter, const Reading& reading)
{
    if (line.find(delimiter) == std::string_view::npos) return false;
    CsvRow row;
    try {
        row.split(line, delimiter);
    } catch (const std::invalid_argument&) {
        return false;
    }
    return std::ranges::any_of(row.fields(), [&](std::string_view name) {
        if (name == "check" || name == "value" || name == "value_1") return true;
        return !name.empty() &&
               (name == reading.check || std::ranges::find(reading.values, name) != reading.values.end());
    });
}

}  // namespace

std::optional<FileFormat> format_of_name(std::string_view name)
{
    for (const auto& [ending, format] : kEndings) {
        if (name.ends_with(ending)) return format;
    }
    return {};
}

FileFormat format_of_bytes(std::string_view front, const Reading& reading)
{
    const std::size_t begin = front.find_first_not_of(" \t\r\n");
    if (begin != std::string_view::npos && front[begin] == '[') return FileFormat::kJson;
    const std::string_view line = front.substr(0, front.find('\n'));
    if (begin != std::string_view::npos && front[begin] == '{') {
        // An object with a line ending after its opening brace spans several lines.
        const std::size_t next = front.find_first_not_of(" \t\r", begin + 1);
        if (next != std::string_view::npos && front[next] == '\n') return FileFormat::kJson;
        return reading.map == nullptr ? FileFormat::kWords : FileFormat::kNdjson;
    }
    if (is_header(line, '\t', reading)) return FileFormat::kTsv;
    return is_header(line, reading.delimiter.value_or(','), reading) ? FileFormat::kCsv : FileFormat::kWords;
}

std::string_view why_not_text(std::string_view front)
{
    for (const Front& known : kFronts) {
        if (front.starts_with(known.bytes)) return known.problem;
    }
    if (front.size() < 4) return {};
    const auto is_nul = [&](std::size_t at) { return front[at] == '\0'; };
    const bool is_utf16 = is_nul(0) == is_nul(2) && is_nul(1) == is_nul(3) && is_nul(0) != is_nul(1);
    if (!is_utf16) return {};
    return is_nul(0) ? kUtf16Be : kUtf16Le;
}

}  // namespace ostrel::tool

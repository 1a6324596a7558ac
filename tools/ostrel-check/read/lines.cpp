#include "read/lines.h"

#include <algorithm>
#include <stdexcept>

#include "read/encoding.h"

namespace ostrel::tool {

LineReader::LineReader(const Reading& reading, bool only_json)
    : reading_(&reading), only_json_(only_json), object_(reading)
{
}

std::size_t LineReader::next(std::string_view rest) { return std::min(rest.find('\n'), rest.size() - 1) + 1; }

Found LineReader::read(std::string_view text, std::size_t /*part*/, Record& record)
{
    record.clear();
    if (text.ends_with('\n')) text.remove_suffix(1);
    if (text.ends_with('\r')) text.remove_suffix(1);
    const std::size_t begin = text.find_first_not_of(" \t");
    if (begin == std::string_view::npos || text[begin] == '#') return Found::kNothing;
    if (only_json_ || text[begin] == '{') {
        object_.read(text, record);
    } else {
        read_words(text, record);
    }
    return Found::kRecord;
}

// read_words takes the first word as the name of the check and the remaining words as its arguments.
void LineReader::read_words(std::string_view line, Record& record)
{
    const std::size_t nul = line.find('\0');
    if (nul != std::string_view::npos) {
        throw std::invalid_argument("byte " + std::to_string(nul + 1) + " of the line is NUL");
    }
    if (reading_->encoding != Encoding::kUtf8) {
        const std::size_t begin = line.find_first_not_of(" \t");
        record.check = line.substr(begin, line.find_first_of(" \t", begin) - begin);
        // Blanks, quotation marks and escapes are ASCII, so the conversion does not change them.
        encoded_.clear();
        encode(encoded_, line, reading_->encoding);
        line = encoded_;
    }
    words_.split(line);
    record.check = words_.all().front();
    for (std::size_t i = 1; i < words_.all().size(); ++i) record.items.push_back(words_.item(i));
}

}  // namespace ostrel::tool

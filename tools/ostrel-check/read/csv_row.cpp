#include "read/csv_row.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace ostrel::tool {

namespace {

constexpr char kQuote = '"';

// skip_quoted returns the position after the closing quotation mark, or npos if there is none.
std::size_t skip_quoted(std::string_view text, std::size_t at)
{
    for (++at;; ++at) {
        at = text.find(kQuote, at);
        if (at == std::string_view::npos) return at;
        ++at;
        if (at == text.size() || text[at] != kQuote) return at;
    }
}

bool ends_field(std::string_view text, std::size_t at, char delimiter)
{
    if (at == text.size() || text[at] == delimiter || text[at] == '\n') return true;
    return text[at] == '\r' && (at + 1 == text.size() || text[at + 1] == '\n');
}

}  // namespace

RowEnd find_row_end(std::string_view text, char delimiter)
{
    const std::size_t line_end = text.find('\n');
    const std::size_t line = line_end == std::string_view::npos ? text.size() : line_end + 1;
    const bool is_open = line_end == std::string_view::npos;
    if (text.substr(0, line).find(kQuote) == std::string_view::npos) return {line, is_open};
    for (std::size_t at = 0; at < text.size();) {
        if (text[at] == kQuote) {
            at = skip_quoted(text, at);
            if (at == std::string_view::npos) return {line, true};
            if (!ends_field(text, at, delimiter)) return {line, is_open};
        }
        while (at < text.size() && text[at] != delimiter && text[at] != '\n') ++at;
        if (at == text.size()) break;
        if (text[at++] == '\n') return {at, false};
    }
    return {text.size(), true};
}

void CsvRow::split(std::string_view row, char delimiter)
{
    if (row.ends_with('\n')) row.remove_suffix(1);
    if (row.ends_with('\r')) row.remove_suffix(1);
    fields_.clear();
    unquoted_.clear();
    unquoted_.reserve(row.size());  // so that views into it stay valid
    const bool has_quotes = row.find(kQuote) != std::string_view::npos;
    const auto refuse = [&](const char* what) {
        throw std::invalid_argument("field " + std::to_string(fields_.size() + 1) + " " + what);
    };
    for (std::size_t at = 0;; ++at) {
        if (has_quotes && at < row.size() && row[at] == kQuote) {
            at = take_quoted(row, at);
            if (at == std::string_view::npos) refuse("has no closing quotation mark");
            if (at < row.size() && row[at] != delimiter) {
                fields_.pop_back();
                refuse("continues after its closing quotation mark");
            }
        } else {
            const std::size_t end = std::min(row.find(delimiter, at), row.size());
            fields_.push_back(row.substr(at, end - at));
            if (has_quotes && fields_.back().find(kQuote) != std::string_view::npos) {
                fields_.pop_back();
                refuse("contains a quotation mark but is not quoted");
            }
            at = end;
        }
        if (at == row.size()) return;
    }
}

// take_quoted returns the position after the closing quotation mark, or npos if there is none.
std::size_t CsvRow::take_quoted(std::string_view row, std::size_t at)
{
    const std::size_t end = skip_quoted(row, at);
    if (end == std::string_view::npos) return end;
    const std::string_view inside = row.substr(at + 1, end - at - 2);
    if (inside.find(kQuote) == std::string_view::npos) {
        fields_.push_back(inside);
        return end;
    }
    const std::size_t begin = unquoted_.size();
    for (std::size_t i = 0; i < inside.size(); ++i) {
        unquoted_ += inside[i];
        if (inside[i] == kQuote) ++i;
    }
    fields_.push_back(std::string_view(unquoted_).substr(begin));
    return end;
}

}  // namespace ostrel::tool

#include "read/json_file.h"

#include <algorithm>

#include "read/json_parser.h"

namespace ostrel::tool {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

std::size_t skip_blanks(std::string_view text, std::size_t at)
{
    return std::min(text.find_first_not_of(kBlanks, at), text.size());
}

// Element is the state of a scan for the end of the element at the front of the text.
struct Element {
    std::size_t at = 0;
    std::size_t depth = 0;
    bool is_in_string = false;
    bool is_whole = false;

    void look(std::string_view text)
    {
        while (at < text.size() && !is_whole) {
            if (is_in_string) {
                while (at < text.size() && text[at] != '"' && text[at] != '\\') ++at;
                if (at == text.size()) return;
                if (text[at] == '\\' && at + 1 == text.size()) return;
                is_in_string = text[at] != '"';
                at += is_in_string ? 2 : 1;
                is_whole = !is_in_string && depth == 0;
                continue;
            }
            look_outside_of_strings(text);
        }
    }

 private:
    void look_outside_of_strings(std::string_view text)
    {
        const char c = text[at];
        if (c == '"') {
            is_in_string = true;
        } else if (c == '{' || c == '[') {
            ++depth;
        } else if (depth > 0) {
            if (c == '}' || c == ']') is_whole = --depth == 0;
        } else if (c == ',' || c == ']' || c == '}' || kBlanks.find(c) != std::string_view::npos) {
            is_whole = true;
            return;
        }
        ++at;
        if (depth == 0 || is_in_string || is_whole) return;
        const auto is_bracket = [](char one) { return one == '{' || one == '}' || one == '[' || one == ']'; };
        while (at < text.size() && text[at] != '"' && !is_bracket(text[at])) ++at;
    }
};

// Depth is a SAX handler that only counts how deeply JSON is nested.
struct Depth : rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Depth> {
    std::size_t depth = 0;
    // NOLINTBEGIN(bugprone-derived-method-shadowing-base-method)
    bool StartObject() { return ++depth <= kDeepest; }
    bool StartArray() { return ++depth <= kDeepest; }
    bool EndObject(rapidjson::SizeType /*members*/) { return --depth < kDeepest; }
    bool EndArray(rapidjson::SizeType /*elements*/) { return --depth < kDeepest; }
    // NOLINTEND(bugprone-derived-method-shadowing-base-method)
};

class JsonCutter : public Cutter {
 public:
    Cut cut(std::string_view bytes, bool is_end) override
    {
        Cut cut;
        std::size_t at = 0;
        while (cut.problem.empty()) {
            if (expected_ != Expected::kRestOfElement) at = cut_separators(bytes, at, cut);
            if (expected_ != Expected::kRestOfElement) break;
            element_.look(bytes.substr(at));
            if (!element_.is_whole && !is_end) break;
            if (element_.is_whole || (element_.depth == 0 && !element_.is_in_string)) {
                at = take_element(bytes, at, cut);
            } else {
                find_fault(bytes.substr(at), cut);
            }
        }
        if (cut.problem.empty() && is_end) require_end(bytes, cut);
        if (cut.problem.empty() && cut.dropped + cut.size == 0 && bytes.size() > kLongestText) {
            complain(cut, "the element is longer than 16 MiB", 0);
        }
        count_columns(bytes, cut);
        return cut;
    }

 private:
    enum class Expected { kBegin, kFirst, kElement, kRestOfElement, kComma, kAnotherObject, kNothing };

    // cut_separators moves to the next element, and drops or cuts off the bytes before it.
    std::size_t cut_separators(std::string_view bytes, std::size_t at, Cut& cut)
    {
        while (true) {
            at = skip_blanks(bytes, at);
            // Separators after an element belong to it, and separators before the first element are dropped.
            (cut.size == 0 ? cut.dropped : cut.size) = cut.size == 0 ? at : at - cut.dropped;
            if (at == bytes.size()) return at;
            const char c = bytes[at];
            if (expected_ == Expected::kBegin && c == '[') {
                expected_ = Expected::kFirst;
            } else if (expected_ == Expected::kFirst && c == ']') {
                expected_ = Expected::kNothing;
            } else if (expected_ == Expected::kComma && (c == ',' || c == ']')) {
                expected_ = c == ',' ? Expected::kElement : Expected::kNothing;
            } else if (expected_ == Expected::kComma) {
                complain(cut, "a comma or ] is missing", 0);
                return at;
            } else if (expected_ == Expected::kNothing) {
                complain(cut, "unexpected data after the end of the array", 0);
                return at;
            } else if (c == ',' || c == ']' || c == '}') {
                complain(cut, std::string("an element is missing before ") + c, 0);
                return at;
            } else {
                is_array_ = expected_ == Expected::kFirst || expected_ == Expected::kElement;
                expected_ = Expected::kRestOfElement;
                element_ = Element();
                return at;
            }
            ++at;
        }
    }

    std::size_t take_element(std::string_view bytes, std::size_t at, Cut& cut)
    {
        find_fault(bytes.substr(at, element_.at), cut);
        if (!cut.problem.empty()) return at;
        expected_ = is_array_ ? Expected::kComma : Expected::kAnotherObject;
        cut.size += element_.at;
        return at + element_.at;
    }

    // find_fault reports invalid JSON, except for faults that the reader reports.
    void find_fault(std::string_view element, Cut& cut)
    {
        const std::size_t nul = element.find('\0');
        if (nul != std::string_view::npos) {
            complain(cut, "the byte is NUL", nul);
            return;
        }
        Depth depth;
        const rapidjson::ParseResult result = parser_.parse(element, depth);
        const bool is_readers = result.Code() == rapidjson::kParseErrorTermination ||
                                result.Code() == rapidjson::kParseErrorStringUnicodeSurrogateInvalid;
        if (result.IsError() && !(is_readers && element_.is_whole)) {
            complain(cut, describe(result.Code()), result.Offset());
        }
    }

    void require_end(std::string_view bytes, Cut& cut)
    {
        const std::size_t end = bytes.size() - cut.dropped - cut.size;
        if (expected_ == Expected::kFirst || expected_ == Expected::kElement ||
            expected_ == Expected::kComma) {
            complain(cut, "the file ends within the array", end);
        }
    }

    // complain stores a position, from which the line is derived. count_columns adds the column.
    static void complain(Cut& cut, std::string problem, std::size_t at)
    {
        cut.problem = std::move(problem);
        cut.problem_at = at;
        cut.ends_file = true;
    }

    // count_columns moves past the bytes dropped and cut off, and adds the column to a problem's message.
    void count_columns(std::string_view bytes, Cut& cut)
    {
        const auto count = [&](std::string_view text) {
            const std::size_t line_end = text.rfind('\n');
            if (line_end != std::string_view::npos) column_ = 1;
            text.remove_prefix(line_end == std::string_view::npos ? 0 : line_end + 1);
            // The continuation bytes of a character occupy no column.
            column_ += static_cast<std::size_t>(std::ranges::count_if(
                text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
        };
        count(bytes.substr(0, cut.dropped + cut.size));
        if (cut.problem.empty()) return;
        count(bytes.substr(cut.dropped + cut.size, cut.problem_at));
        cut.problem =
            "column " + std::to_string(column_) + ": " + cut.problem + "; the rest of the file is not read";
    }

    Expected expected_ = Expected::kBegin;
    bool is_array_ = false;
    Element element_;
    std::size_t column_ = 1;
    JsonParser parser_;
};

}  // namespace

std::size_t JsonReader::next(std::string_view rest)
{
    Element element;
    element.look(rest);
    std::size_t at = skip_blanks(rest, element.at);
    while (at < rest.size() && (rest[at] == ',' || rest[at] == ']')) at = skip_blanks(rest, at + 1);
    return at;
}

Found JsonReader::read(std::string_view text, std::size_t /*part*/, Record& record)
{
    Element element;
    element.look(text);
    object_.read(text.substr(0, element.at), record);
    return Found::kRecord;
}

std::unique_ptr<Cutter> make_json_cutter() { return std::make_unique<JsonCutter>(); }

}  // namespace ostrel::tool

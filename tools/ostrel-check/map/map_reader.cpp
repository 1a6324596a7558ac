#include "map/map_reader.h"

#include <stdexcept>

namespace ostrel::tool {

Found MapReader::read(std::string_view text, std::size_t part, Record& record)
{
    const bool goes_on =
        part > 0 && part == next_part_ && text.data() == text_.data() && text.size() == text_.size();
    if (!goes_on) begin(text);
    for (; next_part_ < part; ++next_part_) {
        if (!make_next(record)) return Found::kNothing;
    }
    ++next_part_;
    return make_next(record) ? Found::kMore : Found::kNothing;
}

std::size_t MapReader::skip(std::string_view rest, std::uint64_t line)
{
    begin(rest);
    for (Next next = read_row(); next != Next::kNothing; next = read_row()) {
        if (next == Next::kGatewayEnd) is_in_gateway_ = false;
        if (next != Next::kRow || (is_in_gateway_ && is_of_gateway())) continue;
        if (line_ >= line) return begin_;
        enter_gateway();
    }
    return rest.size();
}

void MapReader::begin(std::string_view text)
{
    text_ = text;
    rest_ = text;
    next_part_ = 0;
    line_ = 0;
    next_line_ = 0;
    is_in_gateway_ = false;
    is_ending_ = false;
    has_waiting_ = false;
    is_read_ = false;
    mapper_.begin_gateway();
}

bool MapReader::make_next(Record& record)
{
    while (true) {
        if (mapper_.next(record, lack_)) {
            record.problem = lack_.text;
            record.problem_id = lack_.id;
            record.problem_argument = lack_.argument;
            record.problem_path = lack_.parameter;
            record.problem_found = lack_.found;
            record.problem_allowed = lack_.allowed;
            return true;
        }
        if (is_ending_) {
            record.clear();
            record.kind = Record::Kind::kGatewayEnd;
            record.counts = mapper_.counts();
            record.end = end_line_;
            is_ending_ = false;
            is_in_gateway_ = false;
            mapper_.begin_gateway();
            return true;
        }
        if (std::exchange(has_waiting_, false)) {
            take_row();
            continue;
        }
        switch (read_row()) {
            case Next::kRow:
                has_waiting_ = is_in_gateway_ && !is_of_gateway();
                if (has_waiting_) {
                    end_gateway(line_);
                } else {
                    take_row();
                }
                break;
            case Next::kGatewayEnd:
                if (is_in_gateway_) end_gateway(next_line_);
                break;
            case Next::kProblem:
                record.clear();
                record.line = line_;
                record.problem = problem_;
                add_members(dump_.faulty_row(), record);
                return true;
            case Next::kNothing:
                if (!is_in_gateway_) return false;
                end_gateway(next_line_);
                break;
        }
    }
}

MapReader::Next MapReader::read_row()
{
    while (true) {
        if (is_read_) {
            row_.line = line_;
            if (dump_.next_row(row_)) return Next::kRow;
            is_read_ = false;
            if (dump_.is_whole_gateway()) return Next::kGatewayEnd;
        }
        if (rest_.empty()) return Next::kNothing;
        try {
            take_text();
        } catch (const std::invalid_argument& error) {
            problem_ = error.what();
            return Next::kProblem;
        }
    }
}

void MapReader::take_text()
{
    const std::string_view text = rest_.substr(0, dump_.next(rest_));
    begin_ = text_.size() - rest_.size();
    rest_.remove_prefix(text.size());
    line_ = next_line_;
    next_line_ += count_lines(text);
    dump_.read(text);
    is_read_ = true;
}

bool MapReader::is_of_gateway() const
{
    if (dump_.is_whole_gateway() || is_whole_gateway_) return dump_.is_whole_gateway() == is_whole_gateway_;
    return dump_.gateway() == gateway_;
}

void MapReader::enter_gateway()
{
    is_in_gateway_ = true;
    is_whole_gateway_ = dump_.is_whole_gateway();
    gateway_ = dump_.gateway();
}

void MapReader::take_row()
{
    if (!is_in_gateway_) enter_gateway();
    mapper_.take(row_);
}

void MapReader::end_gateway(std::uint64_t next_line)
{
    is_ending_ = true;
    end_line_ = next_line;
    mapper_.end_gateway();
}

}  // namespace ostrel::tool

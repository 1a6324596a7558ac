#include "map/map_cutter.h"

#include <stdexcept>

#include "map/unmapped.h"

namespace ostrel::tool {

MapCutter::MapCutter(FileFormat format, const Reading& reading)
    : format_(format),
      reading_(&reading),
      plain_(plain_reading(reading)),
      cutter_(make_cutter(format, plain_))
{
}

Cut MapCutter::cut(std::string_view bytes, bool is_end)
{
    const std::size_t all = bytes.size();
    // Bytes that the file's cutter has already cut off must not be passed to it again.
    Cut cut = cutter_->cut(bytes.substr(whole_), is_end);
    if (cut.preamble > 0) {
        preamble_ = bytes.substr(whole_ + cut.dropped, cut.preamble);
        dump_.reset();
    }
    const bool begins_file = whole_ == 0;
    if (begins_file) {
        bytes.remove_prefix(cut.dropped + cut.preamble);
    } else {
        // Dropped bytes between rows or objects are added to the row or object before them.
        cut.size += cut.dropped;
        cut.dropped = 0;
    }
    whole_ += cut.size;
    look(bytes.substr(0, whole_));
    const bool ends_gateway = is_end || !cut.problem.empty();
    const bool is_too_long = begin_ == 0 && all > kLongestText;
    cut.size = ends_gateway || is_too_long ? whole_ : begin_;
    if (is_too_long && !ends_gateway) {
        cut.problem = "a gateway is larger than 16 MiB; the remainder is judged as another gateway";
        if (reading_->group.empty()) cut.problem += "; use --group to separate the gateways of a file";
    }
    if (cut.size == whole_) is_in_gateway_ = false;
    whole_ -= cut.size;
    seen_ -= cut.size;
    begin_ = 0;
    return cut;
}

// look reads the new rows, and records where the last gateway begins.
void MapCutter::look(std::string_view bytes)
{
    if (seen_ == bytes.size()) return;
    if (!dump_) {
        try {
            dump_ = std::make_unique<Dump>(format_, *reading_, preamble_);
        } catch (const std::invalid_argument&) {
            seen_ = begin_ = bytes.size();  // every reader will report the problem
            return;
        }
    }
    while (seen_ < bytes.size()) {
        const std::string_view text = bytes.substr(seen_, dump_->next(bytes.substr(seen_)));
        const std::size_t at = seen_;
        seen_ += text.size();
        look_at(text, at);
    }
}

// read_text ignores text that cannot be read, because the worker reports the error.
void MapCutter::read_text(std::string_view text)
{
    try {
        dump_->read(text);
    } catch (const std::invalid_argument&) {
        return;
    }
}

void MapCutter::look_at(std::string_view text, std::size_t at)
{
    read_text(text);
    DumpRow row;
    for (bool is_first = true; dump_->next_row(row); is_first = false) {
        if (is_first && (dump_->is_whole_gateway() || !is_in_gateway_ || dump_->gateway() != gateway_))
            begin_gateway(at);
    }
    if (dump_->is_whole_gateway()) is_in_gateway_ = false;
    if (!is_in_gateway_) begin_ = seen_;
}

void MapCutter::begin_gateway(std::size_t at)
{
    begin_ = at;
    is_in_gateway_ = true;
    gateway_ = dump_->gateway();
    reading_->split->begin(gateway_);
}

}  // namespace ostrel::tool

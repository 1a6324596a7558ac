#include "batch/log.h"

#include <algorithm>
#include <cstring>

namespace ostrel::tool {

namespace {

// Head precedes the strings of a row (reason, parameter and example) and contains their sizes.
struct Head {
    std::uint16_t check = 0;
    std::uint16_t verdict = 0;
    std::int32_t code = 0;
    std::uint32_t reason = 0;
    std::uint32_t parameter = 0;
    std::uint32_t example = 0;
};

Head head_of(const SummaryRow& row)
{
    Head head;
    head.check = row.check;
    head.verdict = static_cast<std::uint16_t>(row.verdict);
    head.code = row.code;
    head.reason = static_cast<std::uint32_t>(row.reason.size());
    head.parameter = static_cast<std::uint32_t>(row.parameter.size());
    head.example = static_cast<std::uint32_t>(row.example.size());
    return head;
}

// A worker that has logged this many kinds of cases forgets them, and logs an example of each kind again.
constexpr std::size_t kMostKnown = std::size_t{1} << 14;

}  // namespace

void for_each_row(const Log& log, const Log::Size& size, const std::function<void(const SummaryRow&)>& visit)
{
    std::string_view rest(log.rows.data(), size.bytes);
    const auto take = [&](std::size_t count) {
        const std::string_view taken = rest.substr(0, count);
        rest.remove_prefix(taken.size());
        return taken;
    };
    for (std::uint32_t i = 0; i < size.rows; ++i) {
        Head head;
        std::memcpy(&head, take(sizeof head).data(), sizeof head);
        SummaryRow row;
        row.check = head.check;
        row.verdict = static_cast<Verdict>(head.verdict);
        row.code = head.code;
        row.reason = take(head.reason);
        row.parameter = take(head.parameter);
        row.example = take(head.example);
        visit(row);
    }
}

std::uint32_t LogWriter::append(Log::Size& size, SummaryRow row)
{
    std::size_t room = Log::kLongestRow - sizeof(Head);
    row.reason = row.reason.substr(0, room);
    room -= row.reason.size();
    row.parameter = row.parameter.substr(0, room);
    room -= row.parameter.size();
    // An example that does not fit is omitted, because cutting it would leave invalid JSON.
    if (row.example.size() > room) row.example = {};
    const Head head = head_of(row);
    char* at = log_->rows.data() + size.bytes;
    std::memcpy(at, &head, sizeof head);
    at += sizeof head;
    for (const std::string_view text : {row.reason, row.parameter, row.example})
        at = std::ranges::copy(text, at).out;
    size.bytes = static_cast<std::uint32_t>(at - log_->rows.data());
    return size.rows++;
}

void LogWriter::add(Log::Size& size, const SummaryRow& row, std::uint32_t lines, std::size_t written,
                    const std::function<std::string()>& example)
{
    const Head head = head_of(row);
    key_.assign(reinterpret_cast<const char*>(&head), sizeof head).append(row.reason).append(row.parameter);
    KnownRow*& known = last_known_[row.check % last_known_.size()];
    if (known == nullptr || known->first != key_) {
        const auto found = known_.find(key_);
        known = found == known_.end() ? nullptr : &*found;
    }
    if (known == nullptr) {
        if (known_.size() == kMostKnown) {
            known_.clear();
            last_known_.fill(nullptr);
        }
        const std::string told = example();
        SummaryRow with_example = row;
        with_example.example = told;
        known = &*known_.emplace(key_, Known{round_, append(size, with_example)}).first;
    } else if (known->second.round != round_) {
        known->second = {round_, append(size, row)};
    }
    log_->entries[size.entries++] = {known->second.row, lines, static_cast<std::uint32_t>(written), {}};
}

void LogWriter::add_end(Log::Size& size, std::uint32_t lines, std::size_t written,
                        const GatewayCounts& gateway)
{
    log_->entries[size.entries++] = {Log::kNoRow, lines, static_cast<std::uint32_t>(written), gateway};
}

}  // namespace ostrel::tool

#include "batch/batch.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <deque>
#include <system_error>
#include <vector>

#include "map/unmapped.h"
#include "system/stop_signals.h"
#include "terminal/progress.h"
#include "write/render_csv.h"
#include "write/show.h"

namespace ostrel::tool {

namespace {

class Batch {
 public:
    Batch(const Rules& rules, const Closing& closing, unsigned jobs)
        : rules_(&rules),
          closing_(&closing),
          input_(rules.files, rules.reading, rules.first_number),
          line_(rules.start_line),
          meter_(size_of(rules.files))
    {
        for (unsigned i = 0; i < jobs; ++i) idle_.push_back(std::make_unique<Slot>(rules));
    }

    int run()
    {
        if (!begin()) return error_ == EPIPE ? kExitAccepted : stop();
        // Chunks are assigned in order, and their results are taken in the same order.
        while (true) {
            if (StopSignals::number() != 0) {
                clear_keys();
                for (const auto& slot : busy_) slot->ask_to_stop();
            }
            take_finished();
            if (error_ == EPIPE) return exit_code();  // the reader has closed the pipe
            if (error_ != 0 || is_stopped()) return stop();
            const bool can_read = !idle_.empty() && StopSignals::number() == 0 && !input_.is_at_end();
            if (busy_.empty() && !can_read) return finish();
            if (wait(can_read)) read();
            for (const auto& slot : busy_) slot->look();
            if (meter_.is_due()) show_progress();
        }
    }

 private:
    // begin writes no CSV header for a resumed batch, which appends to results that already have one.
    bool begin()
    {
        const Style& style = rules_->style;
        if (style.format != Format::kCsv || style.no_results || rules_->start_line > 1) return true;
        const Fitted fitted = write_what_fits(STDOUT_FILENO, csv_header(style));
        error_ = fitted.error;
        if (error_ != 0) take_back(STDOUT_FILENO, fitted.size);
        return error_ == 0;
    }

    [[nodiscard]] bool is_stopped() const
    {
        return StopSignals::number() != 0 && (busy_.empty() || !busy_.front()->is_running());
    }

    void show_progress()
    {
        Advance advance{summary_.tally().sum(), summary_.tally().of(Verdict::kRefused), bytes_};
        for (const auto& slot : busy_) {
            advance.cases += slot->judged().cases;
            advance.refused += slot->judged().refused;
            advance.bytes -= slot->left();
        }
        meter_.show(advance);
    }

    void take_finished()
    {
        while (!busy_.empty() && !busy_.front()->is_running()) {
            meter_.clear();
            Slot& front = *busy_.front();
            const Taken taken = front.take(STDOUT_FILENO, summary_);
            file_ = front.file();
            if (taken.line != line_ || taken.is_within_line) is_within_line_ = taken.is_within_line;
            line_ = taken.line;
            error_ = taken.error;
            if (error_ != 0) return;
            if (!front.is_done()) {
                if (front.is_running()) continue;
                return;  // the slot was asked to stop
            }
            idle_.push_back(std::move(busy_.front()));
            busy_.pop_front();
        }
    }

    // wait waits until there is something to do, and returns whether there is input to read.
    bool wait(bool can_read)
    {
        if (can_read && input_.is_ready()) return true;
        std::vector<pollfd> waiting = {{signals_.descriptor(), POLLIN, 0}};
        if (StopSignals::number() != 0) waiting.front().fd = -1;  // the signal has already been noticed
        if (can_read) waiting.push_back({input_.descriptor(), POLLIN, 0});
        for (const auto& slot : busy_) {
            if (slot->is_running()) waiting.push_back({slot->answers(), POLLIN, 0});
        }
        // With this tick, a call that does not return is detected after 1 to 1.125 times its time limit.
        const double longest = meter_.is_wanted() ? 250.0 : 1000.0;
        const double tick = std::clamp(rules_->limit / 8 * 1000, 1.0, longest);
        poll(waiting.data(), waiting.size(), busy_.empty() ? -1 : static_cast<int>(tick));
        return can_read && waiting[1].revents != 0;
    }

    void read()
    {
        std::optional<Chunk> chunk = input_.read();
        if (!chunk) return;
        bytes_ += chunk->text.size();
        if (chunk->file == 0 && !skip(*chunk)) return;
        const bool starts_file = chunk->file != 0 ? chunk->starts_file : !std::exchange(has_begun_, true);
        if (rules_->style.format == Format::kTable && !rules_->style.no_results && rules_->files.size() > 1 &&
            starts_file) {
            append_escaped(chunk->heading, rules_->files[chunk->file], kLongestText);
            chunk->heading += ":\n";
        }
        busy_.push_back(std::move(idle_.back()));
        idle_.pop_back();
        busy_.back()->judge(*chunk);
    }

    // skip drops what begins before the start line from a chunk, and returns whether anything is left.
    bool skip(Chunk& chunk)
    {
        if (chunk.line >= rules_->start_line) return true;
        if (skipping_ == nullptr) skipping_ = make_reader(chunk.format, rules_->reading, chunk.preamble);
        const std::size_t skipped = skipping_->skip(chunk.text, rules_->start_line - chunk.line);
        chunk.line += count_lines(chunk.text.substr(0, skipped));
        chunk.text.remove_prefix(skipped);
        meter_.skip(skipped);
        return !chunk.text.empty();
    }

    void clear_keys()
    {
        if (!std::exchange(is_interrupted_, true)) meter_.clear_keys();
    }

    int stop()
    {
        meter_.clear();
        // A signal may have arrived since the main loop last checked for one.
        if (StopSignals::number() != 0) clear_keys();
        if (error_ != 0) {
            say("ostrel-check: cannot write the results: " + std::generic_category().message(error_) + "\n");
        }
        sum_up();
        std::string where = "stopped after line " + std::to_string(line_ - 1);
        // A batch may stop within a line, because all records of a JSON file may be on one line, and
        // because a gateway may produce more results than a worker can hold back.
        if (is_within_line_) {
            where = rules_->reading.map == nullptr ? "stopped within line "
                                                   : "stopped within the gateways of line ";
            where += std::to_string(line_);
        }
        if (rules_->files.size() > 1) {
            where += " of ";
            append_escaped(where, rules_->files[file_], kLongestText);
        }
        if (is_within_line_) {
            say(where + ", after " + std::to_string(summary_.tally().sum()) + " records in total\n");
            return exit_code_of_stop();
        }
        where += "; resume with --start-line " + std::to_string(line_);
        if (file_ > 0) where += ", and name that file first";
        say(where + "\n");
        return exit_code_of_stop();
    }

    [[nodiscard]] int exit_code_of_stop() const
    {
        constexpr int kBySignal = 128;
        return error_ != 0 ? kExitUsage : kBySignal + StopSignals::number();
    }

    int finish()
    {
        meter_.clear();
        return sum_up() ? exit_code() : kExitUsage;
    }

    [[nodiscard]] int exit_code() const
    {
        const bool is_readable = input_.unreadable_files() == 0;
        if (closing_->exits_with_zero) return is_readable ? kExitAccepted : kExitUsage;
        return std::max(summary_.tally().exit_code(), is_readable ? kExitAccepted : kExitUsage);
    }

    // sum_up does not let the summary follow stream or CSV results, or results that could not be written.
    bool sum_up()
    {
        summary_.add_unreadable_files(input_.unreadable_files());
        if (const SplitGateways* split = rules_->reading.split; split != nullptr) {
            summary_.unmapped().use_map();
            summary_.unmapped().add({0, 0, 0, 0, split->count()});
            summary_.unmapped().note_split(split->first());
            if (!closing_->has_summary) say(summary_.unmapped().text());
        }
        return write_summary(*closing_, summary_, rules_->style.with_rows,
                             error_ == 0 && is_followed_by_summary());
    }

    [[nodiscard]] bool is_followed_by_summary() const
    {
        const Format format = rules_->style.format;
        return rules_->style.no_results || format == Format::kTable || format == Format::kJson;
    }

    const Rules* rules_;
    const Closing* closing_;
    StopSignals signals_;
    Input input_;
    std::vector<std::unique_ptr<Slot>> idle_;
    std::deque<std::unique_ptr<Slot>> busy_;
    Summary summary_;
    std::uint64_t bytes_ = 0;  // bytes read so far
    std::size_t file_ = 0;     // index of the file that line_ refers to
    std::uint64_t line_;
    int error_ = 0;  // errno of a failed write of results, or 0
    bool has_begun_ = false;
    bool is_interrupted_ = false;
    bool is_within_line_ = false;  // only some of the line's records have been written
    std::unique_ptr<Reader> skipping_;
    Meter meter_;
};

}  // namespace

int run_batch(const Rules& rules, const Closing& closing, unsigned jobs)
{
    return Batch(rules, closing, jobs).run();
}

}  // namespace ostrel::tool

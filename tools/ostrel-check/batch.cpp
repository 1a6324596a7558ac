#include "batch.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <deque>
#include <vector>

#include "progress.h"
#include "show.h"

namespace ostrel::tool {

namespace {

class Batch {
 public:
    Batch(const Rules& rules, unsigned jobs) : rules_(&rules), input_(rules.files, rules.reading)
    {
        for (unsigned i = 0; i < jobs; ++i) idle_.push_back(std::make_unique<Slot>(rules));
    }

    int run()
    {
        if (rules_->style.format == Format::kCsv && !write_all(STDOUT_FILENO, csv_header(rules_->style)))
            return 0;
        // Chunks are given out in order, and taken back in that order.
        while (take_finished()) {
            const bool can_read = !idle_.empty() && !input_.is_at_end();
            if (busy_.empty() && !can_read) return finish();
            if (wait(can_read)) read();
            for (const auto& slot : busy_) slot->look();
            show_progress();
        }
        return tally_.exit_code();  // nobody reads any more
    }

 private:
    void show_progress()
    {
        std::uint64_t cases = tally_.sum();
        for (const auto& slot : busy_) cases += slot->cases();
        meter_.show(cases);
    }

    // take_finished writes out what is done at the front; false: nobody reads any more.
    bool take_finished()
    {
        while (!busy_.empty() && !busy_.front()->is_running()) {
            meter_.clear();
            if (!busy_.front()->take(STDOUT_FILENO, tally_, counts_)) return false;
            if (!busy_.front()->is_done()) continue;
            idle_.push_back(std::move(busy_.front()));
            busy_.pop_front();
        }
        return true;
    }

    // wait waits until there is something to do, and says whether there is something to read.
    bool wait(bool can_read)
    {
        if (can_read && input_.is_ready()) return true;
        std::vector<pollfd> waiting;
        if (can_read) waiting.push_back({input_.descriptor(), POLLIN, 0});
        for (const auto& slot : busy_) {
            if (slot->is_running()) waiting.push_back({slot->answers(), POLLIN, 0});
        }
        // A call that does not return is noticed after one to one and an eighth of its limit.
        const double longest = meter_.is_wanted() ? 250.0 : 1000.0;
        const double tick = std::clamp(rules_->limit / 8 * 1000, 1.0, longest);
        poll(waiting.data(), waiting.size(), busy_.empty() ? -1 : static_cast<int>(tick));
        return can_read && waiting.front().revents != 0;
    }

    void read()
    {
        std::optional<Chunk> chunk = input_.read();
        if (!chunk) return;
        if (rules_->style.format == Format::kTable && rules_->files.size() > 1 && chunk->starts_file) {
            append_escaped(chunk->heading, rules_->files[chunk->file], kLongestText);
            chunk->heading += ":\n";
        }
        busy_.push_back(std::move(idle_.back()));
        idle_.pop_back();
        busy_.back()->give(*chunk);
    }

    int finish()
    {
        const std::uint64_t unreadable = input_.unreadable_files();
        meter_.clear();
        if (rules_->style.format == Format::kJson) {
            write_all(STDOUT_FILENO, json_summary(tally_, counts_, unreadable));
        } else if (rules_->style.format == Format::kTable) {
            write_all(STDOUT_FILENO, summary(tally_, counts_, unreadable));
        } else if (rules_->style.format == Format::kCsv) {
            say(summary(tally_, counts_, unreadable));
        }
        return unreadable > 0 ? std::max(tally_.exit_code(), kExitUsage) : tally_.exit_code();
    }

    const Rules* rules_;
    Input input_;
    std::vector<std::unique_ptr<Slot>> idle_;
    std::deque<std::unique_ptr<Slot>> busy_;
    Tally tally_;
    Counts counts_;
    Meter meter_;
};

}  // namespace

int run_batch(const Rules& rules, unsigned jobs) { return Batch(rules, jobs).run(); }

}  // namespace ostrel::tool

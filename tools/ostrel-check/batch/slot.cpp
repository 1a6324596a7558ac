#include "batch/slot.h"

#include <poll.h>
#include <unistd.h>

#include <span>

#include "judge/driver.h"
#include "judge/reason.h"
#include "judge/redact.h"

namespace ostrel::tool {

Slot::Slot(const Rules& rules) : rules_(&rules), arena_(map_arena()), cases_(rules.reading) {}

Slot::~Slot() { stop_worker(); }

void Slot::stop_worker()
{
    if (worker_ > 0) stop(worker_);
    worker_ = 0;
    orders_ = Pipe();
    answers_ = Pipe();
}

void Slot::start_worker()
{
    orders_ = make_pipe();
    answers_ = make_pipe();
    worker_ = fork_guarded();
    if (worker_ == 0) {
        orders_.writing.close();
        answers_.reading.close();
        run_worker(*arena_, rules_->style, rules_->reading, rules_->files, orders_.reading, answers_.writing);
    }
    orders_.reading.close();
    answers_.writing.close();
}

void Slot::judge(const Chunk& chunk)
{
    arena_->file = chunk.file;
    arena_->format = chunk.format;
    arena_->preamble_size = chunk.preamble.size();
    arena_->input_size = chunk.preamble.size() + chunk.text.size();
    // g++ 12 compiles std::ranges::copy to a loop over bytes.
    chunk.preamble.copy(arena_->input.data(), chunk.preamble.size());
    chunk.text.copy(arena_->input.data() + chunk.preamble.size(), chunk.text.size());
    Progress progress;
    progress.read = chunk.preamble.size();
    progress.line = progress.next = chunk.line;
    arena_->commit(progress);
    heading_ = chunk.heading;
    if (!chunk.problem.empty()) {
        conclude(Verdict::kMalformed, chunk.problem);
    } else {
        start_round();
    }
}

void Slot::start_round()
{
    is_running_ = true;
    commits_seen_ = arena_->commits();
    seen_at_ = Clock::now();
    if (worker_ == 0) start_worker();
    // If the worker has ended in the meantime, the next call to look detects that.
    write_all(orders_.writing.number(), "g");
}

void Slot::look()
{
    if (!is_running_) return;
    pollfd answered{answers(), POLLIN, 0};
    if (poll(&answered, 1, 0) > 0) {
        char answer = 0;
        is_running_ = false;
        if (read(answers(), &answer, 1) == 1) return;
        const Ending ending = wait_for(worker_);
        worker_ = 0;
        if (arena_->rest_of_input().empty()) return;
        conclude(Verdict::kEnded, describe_ending(ending, mentions_assertion(arena_->prints.err.view())));
        return;
    }
    const Clock::time_point now = Clock::now();
    if (const std::uint64_t commits = arena_->commits(); commits != commits_seen_) {
        commits_seen_ = commits;
        seen_at_ = now;
    } else if (std::chrono::duration<double>(now - seen_at_).count() > rules_->limit) {
        is_running_ = false;
        stop_worker();
        if (arena_->commits() != commits_seen_) return;  // the worker made progress at the last moment
        conclude(Verdict::kNoReturn, describe_no_return(rules_->limit));
    }
}

// conclude sets the verdict on the record at which the worker ended, and moves past the record.
void Slot::conclude(Verdict verdict, std::string problem)
{
    Progress progress = arena_->progress();
    const std::string_view rest = arena_->rest_of_input();
    Result result;
    std::string_view text;
    bool has_more = false;
    if (verdict != Verdict::kMalformed) {
        try {
            cases_.open(arena_->file, arena_->format, arena_->preamble());
            text = rest.substr(0, cases_.next(rest));
            cases_.read(text, progress.part);
            result.function = cases_.function();
        } catch (const std::exception&) {
            // A record that cannot be read cannot have ended the worker.
            result.function = nullptr;
        }
        has_more = !text.empty() && cases_.has_more();
        // If no record can be found, the rest of the chunk cannot be judged.
        if (text.empty()) text = rest;
        result.values = &cases_.values();
        result.record = &cases_.record();
    }
    result.verdict = result.function == nullptr ? Verdict::kMalformed : verdict;
    if (result.function != nullptr) clean_up_after(*result.function);
    result.problem = std::move(problem);
    if (result.verdict != Verdict::kMalformed) {
        const calling::Prints& prints = arena_->prints;
        result.printed = {prints.out.view(), prints.out.size, prints.err.view(), prints.out.cut};
    }
    explain(result);
    Redactor redactor;
    if (rules_->style.redacts) redactor.redact(result, rules_->style.encoding);
    std::string memory;
    conclusion_ += render_result(memory, rules_->style,
                                 {rules_->files[arena_->file], progress.line + cases_.record().line}, result);
    const std::uint64_t line = progress.next;
    progress.advance(text, has_more, cases_.record());
    ++progress.cases;
    std::string parameter;
    LogWriter(arena_->log)
        .add(progress.log, row_of(result, rules_->style, parameter),
             static_cast<std::uint32_t>(progress.next - line), progress.written + conclusion_.size(),
             [&] { return example_of(result, rules_->style); });
    release_prints(arena_->prints);
    arena_->commit(progress);
}

// write_out returns the number of bytes written, not counting the heading.
std::size_t Slot::write_out(int descriptor, int& error)
{
    std::size_t written = 0;
    const std::string_view results(arena_->output.data(), arena_->progress().written);
    for (const std::string_view text : {std::string_view(heading_), results, std::string_view(conclusion_)}) {
        const Fitted fitted = write_what_fits(descriptor, text);
        error = fitted.error;
        if (text.data() == heading_.data()) {
            // A heading without results is useless.
            if (error != 0) take_back(descriptor, fitted.size);
        } else {
            written += fitted.size;
        }
        if (error != 0) break;
    }
    heading_.clear();
    conclusion_.clear();
    return written;
}

// count adds the written results to the summary, and returns the number of their log entries.
std::uint32_t Slot::count(std::size_t written, Summary& summary)
{
    const Log& log = arena_->log;
    const Log::Size& size = arena_->progress().log;
    std::uint32_t done = 0;
    while (done < size.entries && log.entries[done].written <= written) ++done;
    if (done < size.entries) {
        // The batch can resume only at the beginning of a line.
        while (done > 0 && log.entries[done - 1].lines == 0) --done;
    }
    std::vector<std::uint64_t> counts(size.rows);
    for (const Log::Entry& entry : std::span(log.entries).first(done)) {
        if (entry.row != Log::kNoRow) ++counts[entry.row];
        const GatewayCounts& gateway = entry.gateway;
        if (gateway.parameters > 0)
            summary.unmapped().add({1, gateway.parameters, gateway.skipped, gateway.repeated, 0});
    }
    std::size_t next = 0;
    for_each_row(log, size, [&](const SummaryRow& row) {
        const std::uint64_t count = counts[next++];
        if (count > 0) summary.add({row, false, count});
    });
    return done;
}

Taken Slot::take(int descriptor, Summary& summary)
{
    Taken taken;
    Progress progress = arena_->progress();
    const Log& log = arena_->log;
    taken.line = progress.next;
    const std::size_t written = write_out(descriptor, taken.error);
    const std::uint32_t done = count(written, summary);
    if (taken.error != 0) {
        take_back(descriptor, written - (done == 0 ? 0 : log.entries[done - 1].written));
        for (std::uint32_t i = done; i < progress.log.entries; ++i) taken.line -= log.entries[i].lines;
    }
    taken.is_within_line = done > 0 && log.entries[done - 1].lines == 0;
    // The last line of a file might not end in a line feed.
    if (taken.is_within_line && taken.error == 0 && is_done() && arena_->format != FileFormat::kJson) {
        taken.is_within_line = false;
        ++taken.line;
    }
    release_pages(arena_->output.data(), progress.written, kEnoughOutput);
    progress.cases = 0;
    progress.refused = 0;
    progress.written = 0;
    progress.log = {};
    arena_->commit(progress);
    if (taken.error != 0 || (arena_->is_to_stop() && !progress.is_within)) return taken;
    if (arena_->rest_of_input().empty()) {
        release_pages(arena_->input.data(), arena_->input_size, kChunk);
    } else {
        start_round();
    }
    return taken;
}

}  // namespace ostrel::tool

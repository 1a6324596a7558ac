#include "slot.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>

#include "driver.h"

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

void Slot::give(const Chunk& chunk)
{
    arena_->file = chunk.file;
    arena_->format = chunk.format;
    arena_->preamble_size = chunk.preamble.size();
    arena_->input_size = chunk.preamble.size() + chunk.text.size();
    std::memcpy(arena_->input.data(), chunk.preamble.data(), chunk.preamble.size());
    std::memcpy(arena_->input.data() + chunk.preamble.size(), chunk.text.data(), chunk.text.size());
    Progress progress;
    progress.read = chunk.preamble.size();
    progress.line = chunk.line;
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
    // A worker that has ended meanwhile is noticed by look.
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
        if (arena_->commits() != commits_seen_) return;  // it went on at the last moment
        conclude(Verdict::kNoReturn, describe_no_return(rules_->limit));
    }
}

// conclude gives the verdict on the record at which the worker stopped, and goes on after it.
void Slot::conclude(Verdict verdict, std::string problem)
{
    Progress progress = arena_->progress();
    const std::string_view rest = arena_->rest_of_input();
    Result result;
    std::string_view text;
    if (verdict != Verdict::kMalformed) {
        try {
            cases_.open(arena_->file, arena_->format, arena_->preamble());
            text = rest.substr(0, cases_.next(rest));
            cases_.read(text, progress.part);
            result.function = cases_.function();
        } catch (const std::exception&) {
            // A record that cannot be read ends no worker; should it do so all the same, the verdict stands.
        }
        result.values = &cases_.values();
        result.record = &cases_.record();
    }
    result.verdict = result.function == nullptr ? Verdict::kMalformed : verdict;
    if (result.function != nullptr) clean_up_after(*result.function);
    result.problem = std::move(problem);
    if (result.verdict != Verdict::kMalformed) {
        const catalogue::Prints& prints = arena_->prints;
        result.printed = {prints.out.view(), prints.out.size, prints.err.view(), prints.out.cut};
    }
    append_result(conclusion_, rules_->style, {rules_->files[arena_->file], progress.line}, result);
    progress.advance(text, !text.empty() && cases_.has_more());
    progress.tally.add(result.verdict);
    arena_->counts.add(result);
    arena_->commit(progress);
}

bool Slot::take(int descriptor, Tally& tally, Counts& counts)
{
    Progress progress = arena_->progress();
    tally.add(progress.tally);
    counts.add(arena_->counts);
    arena_->counts.clear();
    if (!write_all(descriptor, heading_)) return false;
    if (!write_all(descriptor, {arena_->output.data(), progress.written})) return false;
    if (!write_all(descriptor, conclusion_)) return false;
    heading_.clear();
    conclusion_.clear();
    progress.tally = Tally();
    progress.written = 0;
    arena_->commit(progress);
    if (!arena_->rest_of_input().empty()) {
        start_round();
        return true;
    }
    give_back(arena_->output.data(), arena_->output.size(), kEnoughOutput);
    give_back(arena_->input.data(), arena_->input.size(), kChunk);
    give_back(arena_->prints.out.bytes, sizeof arena_->prints.out.bytes, kChunk);
    give_back(arena_->prints.err.bytes, sizeof arena_->prints.err.bytes, kChunk);
    return true;
}

}  // namespace ostrel::tool

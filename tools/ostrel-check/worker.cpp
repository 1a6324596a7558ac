#include "worker.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>

#include "driver.h"
#include "read/cases.h"

namespace ostrel::tool {

namespace {

// Judge judges lines, with the same memory again and again.
class Judge {
 public:
    Judge(Arena& arena, const Style& style, const Reading& reading, const std::vector<std::string>& files)
        : arena_(&arena), style_(style), files_(&files), capture_(arena.prints), cases_(reading)
    {
    }

    // round judges records until the input is done or the output is enough.
    void round()
    {
        Progress progress = arena_->progress();
        cases_.open(arena_->file, arena_->format, arena_->preamble());
        std::string_view rest = arena_->rest_of_input();
        while (!rest.empty() && progress.written < kEnoughOutput) {
            const std::string_view text = rest.substr(0, cases_.next(rest));
            line_number_ = progress.line;
            bool has_more = true;
            while (has_more && progress.written < kEnoughOutput) {
                has_more = judge(text, progress);
                progress.advance(text, has_more);
                arena_->commit(progress);
            }
            rest.remove_prefix(text.size());
        }
    }

 private:
    // judge tells whether the text holds another record.
    bool judge(std::string_view text, Progress& progress)
    {
        result_.after.clear();
        result_.problem.clear();
        try {
            if (!cases_.read(text, progress.part)) {
                write_nothing(progress);
                return false;
            }
            caller_.load(*cases_.function(), cases_.values());
            result_.function = cases_.function();
        } catch (const std::exception& error) {
            refuse_record(error.what(), progress);
            return cases_.has_more();
        }
        const Turn turn(*result_.function, [&] { arena_->commit(progress); });
        capture_.clear();
        const int code = caller_.call();
        result_.printed = capture_.look();
        result_.after = caller_.written();
        tool::judge(result_, code);
        // The time that the reason takes is not the call's.
        if (result_.verdict == Verdict::kRefused) arena_->commit(progress);
        write(progress);
        return cases_.has_more();
    }

    void refuse_record(std::string_view problem, Progress& progress)
    {
        result_.verdict = Verdict::kMalformed;
        result_.function = cases_.function();
        result_.problem = problem;
        result_.printed = {};
        write(progress);
    }

    // write_nothing answers a line without a case: with an empty one where each line is to have its own.
    void write_nothing(Progress& progress)
    {
        if (style_.format != Format::kStream) return;
        arena_->output[progress.written++] = '\n';
    }

    void write(Progress& progress)
    {
        text_.clear();
        result_.values = &cases_.values();
        result_.record = &cases_.record();
        append_result(text_, style_, {(*files_)[arena_->file], line_number_}, result_);
        if (text_.size() > kOutput - kEnoughOutput) {
            refuse_record("the result is too long to be written", progress);
            return;
        }
        std::memcpy(arena_->output.data() + progress.written, text_.data(), text_.size());
        progress.written += text_.size();
        progress.tally.add(result_.verdict);
        arena_->counts.add(result_);
        if (text_.capacity() > kEnoughOutput) text_ = std::string();
    }

    Arena* arena_;
    Style style_;
    const std::vector<std::string>* files_;
    catalogue::Capture capture_;
    catalogue::Caller caller_;
    Cases cases_;
    std::uint64_t line_number_ = 0;
    Result result_;
    std::string text_;
};

}  // namespace

void append_result(std::string& out, const Style& style, const Place& place, const Result& result)
{
    const bool is_harmless = exit_code(result.verdict) == kExitAccepted;
    if (style.only_refused && is_harmless) return;
    switch (style.format) {
        case Format::kTable:
            append_row(out, place, result);
            break;
        case Format::kCsv:
            append_csv(out, style, place, result);
            break;
        case Format::kJson:
        case Format::kStream:
            append_json(out, style, place, result);
            break;
    }
}

void run_worker(Arena& arena, const Style& style, const Reading& reading,
                const std::vector<std::string>& files, const Descriptor& orders, const Descriptor& answers)
{
    // A check that runs a program must not give it the batch to read, nor a way to write between the results.
    const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(nothing, standard);
    Judge judge(arena, style, reading, files);
    char order = 0;
    while (read(orders.number(), &order, 1) == 1) {
        judge.round();
        if (write(answers.number(), &order, 1) != 1) break;
    }
    _exit(0);
}

}  // namespace ostrel::tool

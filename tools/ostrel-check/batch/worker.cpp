#include "batch/worker.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstring>
#include <optional>
#include <utility>

#include "judge/driver.h"
#include "judge/reason.h"
#include "judge/redact.h"
#include "map/unmapped.h"
#include "read/cases.h"

namespace ostrel::tool {

namespace {

class Judge {
 public:
    Judge(Arena& arena, Style style, const Reading& reading, const std::vector<std::string>& files)
        : arena_(&arena),
          style_(std::move(style)),
          files_(&files),
          capture_(arena.prints),
          cases_(reading),
          map_(reading.map),
          log_(arena.log)
    {
    }

    // round ends when the input ends, the output or the log is full, or the supervisor asks it to stop.
    void round()
    {
        log_.begin();
        Progress progress = arena_->progress();
        noted_line_ = progress.next;
        cases_.open(arena_->file, arena_->format, arena_->preamble());
        std::string_view rest = arena_->rest_of_input();
        while (!rest.empty() && goes_on(progress)) {
            const std::string_view text = rest.substr(0, cases_.next(rest));
            bool has_more = true;
            while (has_more && goes_on(progress)) {
                has_more = judge(text, progress);
                progress.advance(text, has_more, cases_.record());
                note(progress);
                arena_->commit(progress);
            }
            rest.remove_prefix(text.size());
        }
    }

 private:
    [[nodiscard]] bool goes_on(const Progress& progress) const
    {
        if (progress.written >= kMostOutput || !Log::has_room(progress.log)) return false;
        if (progress.is_within) return true;
        return progress.written < kEnoughOutput && !Log::is_half_full(progress.log) && !arena_->is_to_stop();
    }

    // judge judges one record of an entry, and returns whether the entry contains another.
    bool judge(std::string_view text, Progress& progress)
    {
        result_.clear();
        kind_ = Record::Kind::kCase;
        try {
            if (!cases_.read(text, progress.part)) {
                kind_.reset();
                if (map_ == nullptr) write_nothing(progress);
                return false;
            }
            kind_ = cases_.record().kind;
            if (kind_ != Record::Kind::kCase) return cases_.has_more();
            caller_.load(*cases_.function(), cases_.values());
        } catch (const std::exception& error) {
            refuse_record(error.what(), progress);
            return cases_.has_more();
        }
        result_.function = cases_.function();
        result_.values = &cases_.values();
        judge_case(progress);
        write(progress);
        release_prints(arena_->prints);
        return cases_.has_more();
    }

    void judge_case(const Progress& progress)
    {
        const catalogue::Function& function = *result_.function;
        if (!style_.tries_known && is_known_not_to_return(function, *result_.values)) {
            answer_at_once(result_);
            return;
        }
        const bool asks = asks_driver(function, *result_.values);
        if (asks && !style_.driver_problem.empty()) {
            blame_driver(result_, style_.driver_problem);
            result_.is_tried = false;
            return;
        }
        if (asks) {
            call_with_driver(progress);
            return;
        }
        call();
        if (result_.verdict != Verdict::kRefused) return;
        // The call's time limit does not cover finding the reason.
        arena_->commit(progress);
        explain(result_);
    }

    void call()
    {
        capture_.clear();
        const int code = caller_.call();
        result_.printed = capture_.look();
        result_.after = caller_.written();
        tool::judge(result_, code);
    }

    void call_with_driver(const Progress& progress)
    {
        const Turn turn(*result_.function, [&] { arena_->commit(progress); });
        Listening listening;
        call();
        const Heard heard = listening.heard();
        said_.assign(result_.printed.err).append(heard.said);
        result_.printed.err = said_;
        explain_by_driver(result_, heard);
    }

    void refuse_record(std::string_view problem, Progress& progress)
    {
        result_.verdict = Verdict::kMalformed;
        result_.function = cases_.function();
        result_.values = &cases_.values();
        result_.problem = problem;
        result_.printed = {};
        explain_lack(result_, cases_.record());
        write(progress);
    }

    // write_nothing writes an empty line for a line without a case, if every line must have a result.
    void write_nothing(Progress& progress)
    {
        if (style_.format == Format::kStream && !style_.no_results) arena_->output[progress.written++] = '\n';
    }

    void write(Progress& progress)
    {
        result_.record = &cases_.record();
        if (style_.redacts) redactor_.redact(result_, style_.encoding);
        const std::string_view text = render_result(
            text_, style_, {(*files_)[arena_->file], progress.line + cases_.record().line}, result_);
        if (text.size() > kOutput - kMostOutput) {
            refuse_record("the result is too long to be written", progress);
            return;
        }
        std::memcpy(arena_->output.data() + progress.written, text.data(), text.size());
        progress.written += text.size();
        ++progress.cases;
        if (result_.verdict == Verdict::kRefused) ++progress.refused;
        if (text_.capacity() > kEnoughOutput) text_ = std::string();
    }

    // note logs the last record. progress has already moved past it.
    void note(Progress& progress)
    {
        const auto lines = static_cast<std::uint32_t>(progress.next - noted_line_);
        noted_line_ = progress.next;
        // The end of the chunk's last gateway has already been logged.
        if (map_ != nullptr && !kind_ && lines == 0) return;
        const Record& record = cases_.record();
        if (kind_ == Record::Kind::kCase) {
            log_.add(progress.log, row_of(result_, style_, parameter_), lines, progress.written,
                     [&] { return example_of(result_, style_); });
        } else if (kind_ == Record::Kind::kUnmapped) {
            log_.add(progress.log, row_of_unmapped(record, parameter_), lines, progress.written,
                     [&] { return std::string(why_unmapped(*map_, parameter_)); });
        } else {
            log_.add_end(progress.log, lines, progress.written, kind_ ? record.counts : GatewayCounts());
        }
    }

    Arena* arena_;
    Style style_;
    const std::vector<std::string>* files_;
    calling::Capture capture_;
    calling::Caller caller_;
    Cases cases_;
    const Map* map_;  // NULL if there is none
    std::uint64_t noted_line_ = 0;
    Result result_;
    LogWriter log_;
    std::optional<Record::Kind> kind_;  // kind of the last record, if there was one
    Redactor redactor_;
    std::string text_;
    std::string parameter_;
    std::string said_;  // output to standard error, including the driver's
};

}  // namespace

void run_worker(Arena& arena, const Style& style, const Reading& reading,
                const std::vector<std::string>& files, const Descriptor& orders, const Descriptor& answers)
{
    // A program that a check runs must not read the batch's input or write to its output.
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

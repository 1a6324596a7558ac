#include "judge/single.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <optional>
#include <system_error>

#include "judge/driver.h"
#include "judge/reason.h"
#include "read/words.h"
#include "system/process.h"
#include "terminal/style.h"
#include "write/render_table.h"
#include "write/show.h"

namespace ostrel::tool {

using calling::Caller;

namespace {

// One-byte messages from the check's process to the process that waits for it.
constexpr std::string_view kReturnMark = "r";
constexpr std::string_view kAssertionMark = "a";

constexpr std::size_t kHanging = 2;

// Marker marks the library's output as it arrives, to distinguish it from the messages of this program.
class Marker {
 public:
    explicit Marker(int descriptor)
        : is_terminal_(isatty(descriptor) == 1), columns_(columns_of(descriptor, kAnyWidth))
    {
    }

    std::string marked(std::string_view text)
    {
        std::string result;
        while (!text.empty()) {
            const std::string_view line = text.substr(0, text.find('\n'));
            const bool is_ended = line.size() < text.size();
            text.remove_prefix(line.size() + (is_ended ? 1 : 0));
            append(result, line, is_ended);
            begins_line_ = is_ended;
        }
        return result;
    }

    [[nodiscard]] bool begins_line() const { return begins_line_; }

 private:
    void append(std::string& out, std::string_view line, bool is_ended) const
    {
        if (begins_line_ && line.empty()) return;  // many messages end in two line feeds
        std::string shown(begins_line_ ? kLibrary : "");
        const bool is_whole = !shown.empty() && is_ended;
        // Control bytes in a value must not reach a terminal.
        if (is_terminal_) {
            append_escaped(shown, line, line.size());
        } else {
            shown += line;
        }
        if (is_whole) {
            append_wrapped(out, shown, 0, kHanging, columns_);
        } else {
            out.append(shown).append(is_ended ? "\n" : "");
        }
    }

    bool is_terminal_;
    std::size_t columns_;
    bool begins_line_ = true;
};

Marker& marker_of(int descriptor)
{
    static Marker out(STDOUT_FILENO);
    static Marker error(STDERR_FILENO);
    return descriptor == STDOUT_FILENO ? out : error;
}

// pass_on returns what the C library expects from a stream's write function. It must not throw.
ssize_t pass_on(int descriptor, std::string_view text)
{
    try {
        const bool is_written = write_all(descriptor, marker_of(descriptor).marked(text));
        return is_written ? static_cast<ssize_t>(text.size()) : -1;
    } catch (const std::system_error&) {
        return -1;
    }
}

ssize_t print(void*, const char* bytes, std::size_t size) { return pass_on(STDOUT_FILENO, {bytes, size}); }

ssize_t print_error(void* news, const char* bytes, std::size_t size)
{
    if (mentions_assertion({bytes, size})) {
        write_all(static_cast<const Descriptor*>(news)->number(), kAssertionMark);
    }
    return pass_on(STDERR_FILENO, {bytes, size});
}

// watch_output passes output on as it arrives. It tracks whether the output ends in the middle of a line,
// because the verdict must begin a new line, and it distinguishes a failed assertion from any other abort.
void watch_output(const Descriptor& news)
{
    stdout = calling::open_stream(print, nullptr, isatty(STDOUT_FILENO) == 1 ? _IOLBF : _IOFBF);
    stderr = calling::open_stream(print_error, const_cast<Descriptor*>(&news), _IONBF);
}

std::string verdict_line(const Result& result)
{
    std::string text;
    append_wrapped(text, describe(result), 0, kHanging, columns_of(STDOUT_FILENO, kAnyWidth));
    const std::size_t end = std::min(text.find_first_of(":\n"), text.size());
    const bool is_good = exit_code(result.verdict) == kExitAccepted;
    return painted(text.substr(0, end), is_good ? Colour::kGreen : Colour::kRed,
                   wants_colours(STDOUT_FILENO)) +
           text.substr(end);
}

void call_check(Caller& caller, Result& result, const Descriptor& news)
{
    std::optional<Listening> listening;
    if (asks_driver(*result.function, *result.values)) listening.emplace();
    judge(result, caller.call());
    write_all(news.number(), kReturnMark);
    std::fflush(nullptr);
    if (!listening) {
        explain(result);
        return;
    }
    const Heard heard = listening->heard();
    say(heard.said);
    explain_by_driver(result, heard);
}

[[noreturn]] void call(Caller& caller, Result& result, const Descriptor& news)
{
    const int nothing = open("/dev/null", O_RDONLY | O_CLOEXEC);
    dup2(nothing, STDIN_FILENO);
    watch_output(news);
    call_check(caller, result, news);
    result.after = caller.written();
    std::string text = marker_of(STDOUT_FILENO).begins_line() ? "" : "\n";
    text += verdict_line(result);
    append_after(text, result, kHanging, columns_of(STDOUT_FILENO, kAnyWidth));
    write_all(STDOUT_FILENO, text);
    _exit(exit_code(result.verdict));
}

enum class News { kReturned, kAsserted, kEnded, kNone };

News wait_for_news(const Descriptor& news, double seconds)
{
    pollfd waiting{news.number(), POLLIN, 0};
    int ready = 0;
    do {
        ready = poll(&waiting, 1, static_cast<int>(seconds * 1000));
    } while (ready < 0 && errno == EINTR);
    if (ready <= 0) return News::kNone;
    char byte = 0;
    if (read(news.number(), &byte, 1) != 1) return News::kEnded;
    return byte == kReturnMark.front() ? News::kReturned : News::kAsserted;
}

int conclude(const Result& result)
{
    write_all(STDOUT_FILENO, verdict_line(result));
    return exit_code(result.verdict);
}

}  // namespace

int judge_one(const catalogue::Function& function, std::span<const std::string> words, const Manner& manner)
{
    Result result;
    result.function = &function;
    std::vector<catalogue::Value> values;
    read_values(*result.function, words, values);
    result.values = &values;
    Caller caller;
    caller.load(*result.function, values);
    if (!manner.tries_known && is_known_not_to_return(*result.function, values)) {
        answer_at_once(result);
        return conclude(result);
    }
    if (!manner.driver_problem.empty() && asks_driver(*result.function, values)) {
        blame_driver(result, manner.driver_problem);
        return conclude(result);
    }

    const Turn turn(*result.function);  // may wait, so it comes before the time limit starts
    Pipe pipe = make_pipe();
    const pid_t child = fork_guarded();
    if (child == 0) call(caller, result, pipe.writing);
    pipe.writing.close();

    const News news = wait_for_news(pipe.reading, manner.limit);
    if (news == News::kReturned) {
        const Ending ending = wait_for(child);
        return ending.by_signal ? kExitEnded : ending.number;
    }
    if (news == News::kNone) {
        stop(child);
        result.verdict = Verdict::kNoReturn;
        result.problem = describe_no_return(manner.limit);
    } else {
        result.verdict = Verdict::kEnded;
        result.problem = describe_ending(wait_for(child), news == News::kAsserted);
    }
    clean_up_after(*result.function);
    explain(result);
    return conclude(result);
}

}  // namespace ostrel::tool

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>

#include "catalogue/caller.h"
#include "process.h"
#include "study.h"

namespace ostrel::tool {

using catalogue::Function;
using catalogue::Kind;
using catalogue::Row;
using catalogue::Value;

namespace {

constexpr std::size_t kMostTrials = 8;
constexpr int kLimit = 2000;  // milliseconds

// with_null gives the values of all arguments, that one NULL.
std::vector<Value> with_null(const Function& function, std::size_t argument, const Row& row)
{
    std::vector<Value> values = row.values;
    for (std::size_t i = values.size(); i < function.arguments.size(); ++i) {
        values.push_back(function.arguments[i].kind == Kind::kIntegerOut ? Value(0LL) : Value(std::string()));
    }
    values[argument] = nullptr;
    return values;
}

// describe_null says what becomes of a call.
std::string describe_null(const Function& function, const std::vector<Value>& values)
{
    Pipe pipe = make_pipe();
    const pid_t child = fork_guarded();
    if (child == 0) {
        const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
        for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(nothing, standard);
        catalogue::Caller caller;
        caller.load(function, values);
        const int code = caller.call();
        write_all(pipe.writing.number(), std::to_string(code));
        _exit(0);
    }
    pipe.writing.close();
    pollfd waiting{pipe.reading.number(), POLLIN, 0};
    if (poll(&waiting, 1, kLimit) <= 0) {
        stop(child);
        return "the check does not return";
    }
    std::string code(16, '\0');
    const ssize_t size = read(pipe.reading.number(), code.data(), code.size());
    const Ending ending = wait_for(child);
    if (size > 0) {
        code.resize(static_cast<std::size_t>(size));
        if (!function.is_verdict) return "answers " + code;
        return code == "0" ? "accepted" : "refused with " + code;
    }
    if (ending.by_signal && ending.number == SIGABRT) return "ends the process, by a failed assertion";
    return "ends the process, by a memory fault";
}

}  // namespace

std::string null_outcome(const Function& function, std::size_t argument, const std::vector<Row>& rows)
{
    const Kind kind = function.arguments[argument].kind;
    if (kind == Kind::kInteger || kind == Kind::kUnsigned) return "";
    // The other arguments decide whether this one is looked at.
    std::vector<std::vector<Value>> trials;
    for (const Row& row : rows) {
        std::vector<Value> values = with_null(function, argument, row);
        const bool is_known = std::ranges::find(trials, values) != trials.end();
        if (!is_known && catalogue::may_be_called(function, values)) trials.push_back(std::move(values));
    }
    // A check that may not be called with NULL in the place of a number's text is called all the same.
    if (trials.empty()) trials.push_back(with_null(function, argument, rows.front()));
    const std::size_t count = std::min(trials.size(), kMostTrials);
    std::vector<std::string> outcomes;
    for (std::size_t i = 0; i < count; ++i) {
        std::string outcome = describe_null(function, trials[i * trials.size() / count]);
        if (std::ranges::find(outcomes, outcome) == outcomes.end()) outcomes.push_back(std::move(outcome));
    }
    if (outcomes.size() == 1) return outcomes.front();
    std::string text = "depends on the other arguments: ";
    for (const std::string& outcome : outcomes)
        text.append(&outcome == outcomes.data() ? "" : "; or ").append(outcome);
    return text;
}

}  // namespace ostrel::tool

#include "map/probe.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <charconv>
#include <stdexcept>

#include "calling/caller.h"
#include "judge/driver.h"
#include "judge/reason.h"
#include "judge/verdict.h"
#include "rules/evaluate.h"
#include "system/process.h"

namespace ostrel::tool {

namespace {

constexpr int kPatience = 2000;  // milliseconds

// as_argument returns the text as a value, or nothing if the argument is a number and the text is not.
std::optional<catalogue::Value> as_argument(const catalogue::Argument& argument, const std::string& text)
{
    if (!argument.is_number()) return catalogue::Value(text);
    long long number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return catalogue::Value(number);
}

}  // namespace

Probe::Probe(const Map& map, const MapEntry& entry) : entry_(&entry)
{
    std::size_t index = 0;
    for (const catalogue::Argument& argument : entry.function->arguments) {
        if (argument.is_only_written()) continue;
        const Source& source = entry.sources[index++];
        if (source.kind == Source::Kind::kValue) {
            values_.emplace_back(std::string());
            continue;
        }
        std::string text = source.kind == Source::Kind::kConstant ? source.constant : source.example;
        const bool has_example = source.kind == Source::Kind::kConstant || !text.empty();
        if (source.words) {
            const auto found = source.words->find(text);
            text = found == source.words->end() ? "" : found->second;
        }
        std::optional<catalogue::Value> value = as_argument(argument, text);
        if (!has_example || !value) {
            throw std::invalid_argument(map.file + ":" + std::to_string(entry.line) + ": the argument \"" +
                                        std::string(argument.name) +
                                        "\" needs an \"example\" for comparisons");
        }
        if (argument.kind == catalogue::Kind::kBlocks)
            value = std::vector<std::string>(argument.blocks, text);
        values_.push_back(*std::move(value));
        others_.emplace_back(argument.name, text);
    }
}

std::optional<std::vector<catalogue::Value>> Probe::values_with(const std::string& value) const
{
    std::vector<catalogue::Value> values = values_;
    std::size_t index = 0;
    for (const catalogue::Argument& argument : entry_->function->arguments) {
        if (argument.is_only_written()) continue;
        const std::size_t here = index++;
        if (here == entry_->value) {
            std::string text = value;
            if (const auto& words = entry_->sources[here].words) {
                const auto found = words->find(value);
                if (found == words->end()) return std::nullopt;
                text = found->second;
            }
            const std::optional<catalogue::Value> passed = as_argument(argument, text);
            if (!passed) return std::nullopt;
            values[here] = *passed;
        } else if (entry_->value == values.size()) {
            // The value is one of several strings in an argument.
            if (auto* texts = std::get_if<std::vector<std::string>>(&values[here])) texts->front() = value;
        }
    }
    return values;
}

std::optional<int> Probe::predict(const std::string& value) const
{
    const auto values = values_with(value);
    if (!values) return std::nullopt;
    const rules::Answer answer =
        rules::evaluate_within(rules::kMostWork, *entry_->function->check,
                               catalogue::completed(*entry_->function, *values), gateway());
    if (answer.outside != rules::Outside::kNo) return std::nullopt;
    return answer.code;
}

std::optional<int> Probe::judge(const std::string& value) const
{
    const auto values = values_with(value);
    if (!values) return std::nullopt;
    calling::Caller caller;
    caller.load(*entry_->function, *values);
    const Turn turn(*entry_->function);
    Pipe pipe = make_pipe();
    const pid_t child = fork_guarded();
    if (child == 0) {
        const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
        for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(nothing, standard);
        const int code = caller.call();
        const bool is_written = write(pipe.writing.number(), &code, sizeof code) == sizeof code;
        _exit(is_written ? 0 : 1);
    }
    pipe.writing.close();
    pollfd waiting{pipe.reading.number(), POLLIN, 0};
    int code = 0;
    const bool has_answer =
        poll(&waiting, 1, kPatience) > 0 && read(pipe.reading.number(), &code, sizeof code) == sizeof code;
    stop(child);
    clean_up_after(*entry_->function);
    if (!has_answer) return std::nullopt;
    return code;
}

std::string Probe::reason(const std::string& value) const
{
    const auto values = values_with(value);
    if (!values) return "";
    Result result;
    result.function = entry_->function;
    result.values = &*values;
    tool::judge(result, predict(value).value_or(0));
    explain(result);
    return result.why.text;
}

}  // namespace ostrel::tool

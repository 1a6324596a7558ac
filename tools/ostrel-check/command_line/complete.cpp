#include "command_line/complete.h"

#include <algorithm>

#include "catalogue/catalogue.h"
#include "catalogue/names.h"
#include "command_line/choice.h"
#include "command_line/formatter.h"
#include "judge/reason.h"
#include "rules/explain.h"
#include "rules/walk.h"

namespace ostrel::tool {

using catalogue::Argument;
using catalogue::Function;

namespace {

using Candidates = std::vector<Candidate>;

void add_names(Candidates& candidates)
{
    for (const Function& function : catalogue::functions())
        candidates.push_back({std::string(function.name), rules::accepted(*function.check, gateway())});
}

// In an option's type, literal words are in lower case, and placeholders such as FILE in capital letters.
Candidates values_of(const std::string& type)
{
    Candidates candidates;
    for (const std::string& word : CLI::detail::split(type, kOr)) {
        if (word == "FILE") {
            candidates.push_back({std::string(kFiles), ""});
        } else if (word == "NAME") {
            add_names(candidates);
        } else if (word == "FAMILY") {
            for (const std::string_view family : catalogue::families())
                candidates.push_back({std::string(family), ""});
        } else if (word == catalogue::in_lower_case(word)) {
            candidates.push_back({word, ""});
        }
    }
    return candidates;
}

Candidates long_options_of(const CLI::App& app)
{
    Candidates candidates;
    for (const CLI::Option* option : options_of(app)) {
        for (const std::string& name : option->get_lnames())
            candidates.push_back({"--" + name, option->get_description()});
    }
    return candidates;
}

// keywords_at returns the keywords of the argument to which the value at the given index belongs.
Candidates keywords_at(std::string_view name, std::size_t value)
{
    const Function* function = catalogue::find_in_any_case(name);
    if (function == nullptr) return {};
    for (std::size_t i = 0; i < function->arguments.size(); ++i) {
        const Argument& argument = function->arguments[i];
        if (argument.is_only_written()) continue;
        if (value < argument.blocks) {
            Candidates candidates;
            for (std::string& keyword : rules::keywords(*function->check, i, gateway()))
                candidates.push_back({std::move(keyword), ""});
            return candidates;
        }
        value -= argument.blocks;
    }
    return {};
}

// Parser reads the words before the one to be completed as the command-line parser would.
class Parser {
 public:
    explicit Parser(const CLI::App& app) : app_(&app) {}

    void pass(const std::string& word)
    {
        if (!check_.empty()) {
            ++values_;
        } else if (option_ != nullptr && (needs_value() || !word.starts_with('-'))) {
            option_ = nullptr;
        } else if (!only_words_ && word.starts_with('-') && word != "-") {
            option_ = word.find('=') == std::string::npos ? takes_value(word) : nullptr;
            only_words_ = word == "--";
        } else {
            option_ = nullptr;
            pass_positional(word);
        }
    }

    [[nodiscard]] Candidates candidates(const std::string& word) const
    {
        if (!check_.empty()) return keywords_at(check_, values_);
        if (!only_words_ && word.starts_with("--")) {
            const std::size_t end = word.find('=');
            if (end != std::string::npos) return values_of(type_of(takes_value(word.substr(0, end))));
        }
        if (option_ != nullptr && needs_value()) return values_of(option_->get_type_name());
        if (!only_words_ && word.starts_with('-')) return long_options_of(*app_);
        Candidates all = option_ == nullptr ? Candidates() : values_of(option_->get_type_name());
        if (app_->get_parent() == nullptr) {
            if (!only_words_) add_commands(all);
            add_names(all);
            return all;
        }
        for (Candidate& candidate : positionals()) all.push_back(std::move(candidate));
        return all.empty() && word.empty() ? long_options_of(*app_) : all;
    }

 private:
    [[nodiscard]] const CLI::Option* takes_value(const std::string& name) const
    {
        const CLI::Option* option = app_->get_option_no_throw(name);
        return option != nullptr && option->get_items_expected_max() > 0 ? option : nullptr;
    }

    static std::string type_of(const CLI::Option* option)
    {
        return option == nullptr ? "" : option->get_type_name();
    }

    [[nodiscard]] bool needs_value() const { return option_->get_items_expected_min() > 0; }

    void pass_positional(const std::string& word)
    {
        if (app_->get_parent() != nullptr) {
            ++values_;
            return;
        }
        const std::vector<const CLI::App*> commands = commands_of(*app_);
        const auto found = std::ranges::find(commands, word, &CLI::App::get_name);
        if (found != commands.end() && !only_words_) {
            app_ = *found;
        } else {
            check_ = word;
        }
    }

    void add_commands(Candidates& candidates) const
    {
        for (const CLI::App* command : commands_of(*app_))
            candidates.push_back({command->get_name(), command->get_description()});
    }

    [[nodiscard]] Candidates positionals() const
    {
        const std::vector<const CLI::Option*> all = positionals_of(*app_);
        if (all.empty()) return {};
        const bool takes_more = all.back()->get_items_expected_max() >= CLI::detail::expected_max_vector_size;
        if (values_ >= all.size() && !takes_more) return {};
        return values_of(all[std::min(values_, all.size() - 1)]->get_name(true));
    }

    const CLI::App* app_;                  // the program, or one of its commands
    const CLI::Option* option_ = nullptr;  // the option that still needs its value
    bool only_words_ = false;              // "--" has been read
    std::string check_;
    std::size_t values_ = 0;  // number of values read so far for the check or the command
};

}  // namespace

std::vector<Candidate> complete(const CLI::App& app, std::span<const std::string> words)
{
    Candidates result;
    if (words.empty()) return result;
    Parser parser(app);
    for (const std::string& word : words.first(words.size() - 1)) parser.pass(word);
    const std::string& last = words.back();
    const std::size_t begin = last.starts_with("--") ? last.find('=') : std::string::npos;
    const std::string wanted =
        catalogue::in_lower_case(begin == std::string::npos ? last : last.substr(begin + 1));
    for (Candidate& candidate : parser.candidates(last)) {
        const bool fits = catalogue::in_lower_case(candidate.word).starts_with(wanted);
        if (fits || candidate.word == kFiles) result.push_back(std::move(candidate));
    }
    return result;
}

}  // namespace ostrel::tool

// Lines: what a function prints, found by comparing what its rows print with the library's messages.

#include <algorithm>
#include <optional>

#include "catalogue/rows.h"
#include "catalogue/texts.h"

namespace ostrel::catalogue {

namespace {

// Known is a text that may stand in a message, and its name.
struct Known {
    std::string text;
    std::string name;
};

std::string in_brackets(std::string_view name) { return "<" + std::string(name) + ">"; }

// known_of lists what a row's messages can hold, the longest text first.
std::vector<Known> known_of(const Function& function, const Row& row)
{
    std::vector<Known> known;
    std::size_t written = 0;
    for (std::size_t i = 0; i < row.values.size(); ++i) {
        const Argument& argument = function.arguments[i];
        const bool may_be_written = argument.kind == Kind::kBuffer || argument.kind == Kind::kBlocks;
        std::vector<Value> forms = {row.values[i]};
        if (may_be_written && written < row.after.size()) forms.push_back(row.after[written]);
        if (may_be_written) ++written;
        for (const Value& value : forms) {
            if (const auto* text = std::get_if<std::string>(&value)) {
                known.push_back({*text, in_brackets(argument.name)});
                if (const std::size_t comma = text->find(','); comma != std::string::npos) {
                    known.push_back(
                        {text->substr(0, comma), "<first of " + std::string(argument.name) + ">"});
                    known.push_back(
                        {text->substr(comma + 1), "<second of " + std::string(argument.name) + ">"});
                }
            } else if (const auto* texts = std::get_if<std::vector<std::string>>(&value)) {
                for (const std::string& block : *texts) known.push_back({block, "<key>"});
            }
        }
    }
    std::ranges::stable_sort(known, std::ranges::greater(), [](const Known& one) { return one.text.size(); });
    return known;
}

class Reader {
 public:
    Reader(const Function& function, const Row& row)
        : function_(&function), known_(known_of(function, row)), row_(&row)
    {
    }

    // read gives the messages that the text consists of.
    std::optional<std::string> read(std::string_view text) const
    {
        if (text.empty()) return "";
        std::string_view rest = messages();
        while (!rest.empty()) {
            const std::string_view message = rest.substr(0, rest.find('\n'));
            rest.remove_prefix(message.size() + 1);
            if (auto shown = match(message, text, true)) return shown;
        }
        return std::nullopt;
    }

 private:
    // match compares the text with the rest of a message; behind it read goes on.
    std::optional<std::string> match(std::string_view message, std::string_view text, bool is_first) const
    {
        std::string shown;
        while (!message.empty()) {
            if (message.starts_with("%s") || message.starts_with("%.*s")) {
                const std::string_view rest = message.substr(message.find('s') + 1);
                return match_text(shown, rest, text, is_first);
            }
            if (message.starts_with("%d")) {
                std::size_t digits = text.starts_with('-') ? 1 : 0;
                while (digits < text.size() && text[digits] >= '0' && text[digits] <= '9') ++digits;
                shown += number_name(text.substr(0, digits));
                message.remove_prefix(2);
                if (digits == 0) return std::nullopt;
                text.remove_prefix(digits);
                continue;
            }
            if (message.starts_with("%c")) {
                // A message that is one byte and nothing else could be read into any text.
                if (text.empty() || (is_first && text.size() > 1)) return std::nullopt;
                shown += "<byte>";
                message.remove_prefix(2);
                text.remove_prefix(1);
                continue;
            }
            const bool is_line_end = message.starts_with("\\n");
            const char expected = is_line_end ? '\n' : message[0];
            if (text.empty() || text[0] != expected) return std::nullopt;
            shown.append(message.substr(0, is_line_end ? 2 : 1));
            message.remove_prefix(is_line_end ? 2 : 1);
            text.remove_prefix(1);
        }
        const auto behind = read(text);
        if (!behind) return std::nullopt;
        return shown + *behind;
    }

    std::optional<std::string> match_text(const std::string& shown, std::string_view message,
                                          std::string_view text, bool is_first) const
    {
        if (is_first) {  // the name of a function
            const std::size_t end =
                text.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_");
            if (end != std::string_view::npos && end > 0 && text[end] == ':') {
                auto rest = match(message, text.substr(end), false);
                if (rest) return shown + std::string(text.substr(0, end)) + *rest;
            }
        }
        for (const Known& known : known_) {
            if (!text.starts_with(known.text)) continue;
            auto rest = match(message, text.substr(known.text.size()), false);
            if (rest) return shown + known.name + *rest;
        }
        return std::nullopt;
    }

    // number_name tells a number that follows from the arguments from one that is part of the message.
    std::string number_name(std::string_view digits) const
    {
        for (std::size_t i = 0; i < row_->values.size(); ++i) {
            const auto* number = std::get_if<long long>(&row_->values[i]);
            if (number != nullptr && std::to_string(*number) == digits) {
                return in_brackets(function_->arguments[i].name);
            }
        }
        return std::string(digits);
    }

    const Function* function_;
    std::vector<Known> known_;
    const Row* row_;
};

// merge puts <number> where texts that are otherwise the same have different numbers.
std::optional<std::string> merge(std::string_view a, std::string_view b)
{
    const auto is_digit = [](char c) { return c >= '0' && c <= '9'; };
    constexpr std::string_view kNumber = "<number>";
    std::string result;
    std::size_t i = 0;
    std::size_t j = 0;
    const auto take = [&](std::string_view text, std::size_t& at) {
        if (text.substr(at).starts_with(kNumber)) {
            at += kNumber.size();
            return kNumber;
        }
        const std::size_t begin = at;
        while (at < text.size() && is_digit(text[at])) ++at;
        return text.substr(begin, at - begin);
    };
    while (i < a.size() && j < b.size()) {
        const std::string_view first = take(a, i);
        const std::string_view second = take(b, j);
        if (first.empty() != second.empty()) return std::nullopt;
        if (!first.empty()) {
            result += first == second ? first : kNumber;
            continue;
        }
        if (a[i] != b[j]) return std::nullopt;
        result += a[i++];
        ++j;
    }
    if (i < a.size() || j < b.size()) return std::nullopt;
    return result;
}

// without_repeats leaves one of equal messages that follow each other.
std::string without_repeats(const std::string& text)
{
    std::string result;
    for (const std::string& message : messages_in(text)) {
        if (!result.ends_with(message)) result += message;
    }
    return result;
}

std::vector<std::string> read_all(const Function& function, const std::vector<Row>& rows,
                                  bool want_unexplained)
{
    std::vector<std::string> lines;
    for (const Row& row : rows) {
        constexpr std::size_t kLongest = 20'000;  // a long value has nothing to say that a short one has not
        if (row.out.size() > kLongest || row.err.size() > kLongest) continue;
        const Reader reader(function, row);
        for (const std::string& text : {row.out, row.err}) {
            const auto line = reader.read(text);
            if (want_unexplained) {
                if (!line) lines.push_back(text);
                continue;
            }
            if (!line || line->empty()) continue;
            const std::string distinct = without_repeats(*line);
            bool is_known = false;
            for (std::string& other : lines) {
                if (auto merged = merge(other, distinct)) {
                    other = *merged;
                    is_known = true;
                    break;
                }
            }
            if (!is_known) lines.push_back(distinct);
        }
    }
    return lines;
}

}  // namespace

std::vector<std::string> messages_in(std::string_view text)
{
    std::vector<std::string> result;
    while (!text.empty()) {
        std::size_t end = std::min(text.find("\\n"), text.size());
        while (text.substr(end).starts_with("\\n")) end += 2;
        result.emplace_back(text.substr(0, end));
        text.remove_prefix(end);
    }
    return result;
}

std::vector<std::string> lines_of(const Function& function, const std::vector<Row>& rows)
{
    return read_all(function, rows, false);
}

std::vector<std::string> unexplained_of(const Function& function, const std::vector<Row>& rows)
{
    return read_all(function, rows, true);
}

}  // namespace ostrel::catalogue

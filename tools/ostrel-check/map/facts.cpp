#include "map/facts.h"

#include <charconv>
#include <fstream>
#include <stdexcept>
#include <utility>

namespace ostrel::tool {

namespace {

constexpr std::string_view kHeader = "path\taccess\ttype\tlimits\tsecret";

std::vector<std::string_view> split(std::string_view text, std::string_view separator)
{
    std::vector<std::string_view> parts;
    while (true) {
        const std::size_t at = text.find(separator);
        parts.push_back(text.substr(0, at));
        if (at == std::string_view::npos) return parts;
        text.remove_prefix(at + separator.size());
    }
}

bool take(std::string_view& text, std::string_view prefix)
{
    if (!text.starts_with(prefix)) return false;
    text.remove_prefix(prefix.size());
    return true;
}

std::optional<long long> number_of(std::string_view text)
{
    if (text.empty()) return std::nullopt;
    long long number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        throw std::invalid_argument("\"" + std::string(text) + "\" is not a number");
    return number;
}

Range range_of(std::string_view text)
{
    const std::size_t dots = text.find("..");
    if (dots == std::string_view::npos)
        throw std::invalid_argument("\"" + std::string(text) + "\" is not a range");
    return {number_of(text.substr(0, dots)), number_of(text.substr(dots + 2))};
}

void read_limits(ModelFacts& facts)
{
    if (facts.limits.empty()) return;
    for (std::string_view limit : split(facts.limits, "; ")) {
        if (take(limit, "range ")) {
            facts.numbers.push_back(range_of(limit));
        } else if (take(limit, "list length ")) {
            facts.list_lengths.push_back(range_of(limit));
        } else if (take(limit, "length ")) {
            facts.lengths.push_back(range_of(limit));
        } else if (take(limit, "one of ")) {
            for (const std::string_view word : split(limit, "|")) facts.keywords.emplace_back(word);
        } else if (take(limit, "pattern ")) {
            for (const std::string_view one : split(limit, " || ")) facts.patterns.emplace_back(one);
        } else {
            throw std::invalid_argument("unknown limit \"" + std::string(limit) + "\"");
        }
    }
}

}  // namespace

Model read_facts(const std::string& file)
{
    std::ifstream lines(file);
    if (!lines) throw std::invalid_argument("cannot read " + file);
    Model model;
    std::string line;
    for (std::size_t number = 1; std::getline(lines, line); ++number) {
        try {
            if (number == 1) {
                if (line != kHeader) throw std::invalid_argument("the header is not that of a file of facts");
                continue;
            }
            const std::vector<std::string_view> columns = split(line, "\t");
            if (columns.size() != 5) throw std::invalid_argument("a row must have five columns");
            ModelFacts facts;
            std::string_view type = columns[2];
            facts.is_list = take(type, "list of ");
            facts.type = type;
            facts.limits = columns[3];
            facts.is_hidden = columns[4] == "hidden";
            facts.is_writable = columns[1] == "readWrite";
            read_limits(facts);
            model.emplace(columns[0], std::move(facts));
        } catch (const std::invalid_argument& error) {
            throw std::invalid_argument(file + ":" + std::to_string(number) + ": " + error.what());
        }
    }
    return model;
}

}  // namespace ostrel::tool

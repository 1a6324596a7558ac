#include "read/words.h"

#include <stdexcept>

#include "read/bind.h"

namespace ostrel::tool {

using catalogue::Argument;
using catalogue::Function;
using catalogue::Kind;
using catalogue::Value;

namespace {

bool is_blank(char c) { return c == ' ' || c == '\t'; }

bool is_letter_or_digit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

int hexadecimal(char c)
{
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

// read_escape reads an escape from the position after its backslash, and returns the position after it.
std::size_t read_escape(std::string_view text, std::size_t at, std::string& word)
{
    if (at == text.size()) throw std::invalid_argument("a backslash at the end must be written as \\\\");
    const char c = text[at];
    if (c == 'x') {
        const int high = at + 1 < text.size() ? hexadecimal(text[at + 1]) : -1;
        const int low = at + 2 < text.size() ? hexadecimal(text[at + 2]) : -1;
        if (high < 0 || low < 0) throw std::invalid_argument("\\x needs two hexadecimal digits");
        word += static_cast<char>(high << 4 | low);
        return at + 3;
    }
    if (c == 'n') {
        word += '\n';
    } else if (c == 'r') {
        word += '\r';
    } else if (c == 't') {
        word += '\t';
    } else if (is_letter_or_digit(c)) {
        throw std::invalid_argument(std::string("\\") + c + " is not an escape; write a backslash as \\\\");
    } else {
        word += c;
    }
    return at + 1;
}

// read_quoted reads up to the closing quotation mark and returns the position after it.
std::size_t read_quoted(std::string_view line, std::size_t at, std::string& word)
{
    const char mark = line[at++];
    while (at < line.size() && line[at] != mark) {
        if (mark == '"' && line[at] == '\\') {
            at = read_escape(line, at + 1, word);
        } else {
            word += line[at++];
        }
    }
    if (at >= line.size()) throw std::invalid_argument(std::string("no closing ") + mark);
    return at + 1;
}

}  // namespace

void Words::split(std::string_view line)
{
    count_ = 0;
    std::size_t at = 0;
    while (true) {
        while (at < line.size() && is_blank(line[at])) ++at;
        if (at == line.size() || line[at] == '#') return;
        at = read_word(line, at);
    }
}

std::size_t Words::read_word(std::string_view line, std::size_t at)
{
    if (count_ == words_.size()) {
        words_.emplace_back();
        are_plain_.push_back(true);
    }
    std::string& word = words_[count_];
    word.clear();
    are_plain_[count_] = true;
    while (at < line.size() && !is_blank(line[at])) {
        std::size_t plain = at;
        while (plain < line.size() && !is_blank(line[plain]) && line[plain] != '\'' && line[plain] != '"' &&
               line[plain] != '\\') {
            ++plain;
        }
        word.append(line, at, plain - at);
        at = plain;
        if (at == line.size() || is_blank(line[at])) break;
        are_plain_[count_] = false;
        at = line[at] == '\\' ? read_escape(line, at + 1, word) : read_quoted(line, at, word);
    }
    ++count_;
    return at;
}

std::string read_escapes(std::string_view text)
{
    std::string result;
    for (std::size_t at = 0; at < text.size();) {
        if (text[at] == '\\') {
            at = read_escape(text, at + 1, result);
        } else {
            result += text[at++];
        }
    }
    return result;
}

Item Words::item(std::size_t word) const
{
    if (are_plain_[word]) return item_of(words_[word]);
    return {Item::Kind::kText, words_[word], 0};
}

Item item_of(std::string_view word)
{
    if (word == kNull) return {Item::Kind::kNull, {}, 0};
    const bool is_doubled = word.starts_with('@') && word.ends_with(kNull) &&
                            word.find_first_not_of('@') == word.size() - kNull.size() + 1;
    return {Item::Kind::kText, is_doubled ? word.substr(1) : word, 0};
}

void read_values(const Function& function, std::span<const std::string> words, std::vector<Value>& values)
{
    std::vector<Item> items;
    for (const std::string& word : words) items.push_back(item_of(word));
    tool::bind(function, items, values);  // not std::bind
}

std::string usage_of(const Function& function)
{
    std::string usage(function.name);
    for (const Argument& argument : function.arguments) {
        if (argument.is_only_written()) continue;
        const std::string name(argument.name);
        if (argument.kind == Kind::kBlocks) {
            for (std::size_t i = 1; i <= argument.blocks; ++i) usage += " " + name + "_" + std::to_string(i);
        } else {
            usage += " " + name + (argument.is_number() ? ":number" : "");
        }
    }
    return usage;
}

}  // namespace ostrel::tool

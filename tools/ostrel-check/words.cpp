#include "words.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

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

// read_escape reads what follows a backslash and gives the place behind it.
std::size_t read_escape(std::string_view text, std::size_t at, std::string& word)
{
    if (at == text.size()) throw std::invalid_argument("a \\ stands at the end");
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
        throw std::invalid_argument(std::string("\\") + c + " is no escape; a backslash itself is \\\\");
    } else {
        word += c;
    }
    return at + 1;
}

// read_quoted reads up to the closing quotation mark and gives the place behind it.
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

bool is_number(const Argument& argument)
{
    return argument.kind == Kind::kInteger || argument.kind == Kind::kUnsigned ||
           argument.kind == Kind::kIntegerOut;
}

// read_number reads a decimal number, or a hexadecimal one behind 0x.
Value read_number(const Argument& argument, std::string_view word)
{
    std::string_view digits = word;
    const bool negative = digits.starts_with('-');
    if (negative || digits.starts_with('+')) digits.remove_prefix(1);
    const bool is_hexadecimal = digits.starts_with("0x") || digits.starts_with("0X");
    if (is_hexadecimal) digits.remove_prefix(2);
    unsigned long long number = 0;
    const char* end = digits.data() + digits.size();
    const auto read = std::from_chars(digits.data(), end, number, is_hexadecimal ? 16 : 10);
    if (digits.empty() || read.ptr != end) {
        throw std::invalid_argument("argument " + std::string(argument.name) + " takes a number; \"" +
                                    std::string(word.substr(0, 40)) + "\" is none");
    }
    // Whatever is far outside the range of an argument stays outside.
    if (read.ec != std::errc()) number = 1ULL << 62;
    const auto magnitude = static_cast<long long>(std::min(number, 1ULL << 62));
    return negative ? -magnitude : magnitude;
}

Value read_text(std::string_view word)
{
    if (word == kNull) return nullptr;
    const bool is_doubled = word.starts_with('@') && word.ends_with(kNull) &&
                            word.find_first_not_of('@') == word.size() - kNull.size() + 1;
    return std::string(is_doubled ? word.substr(1) : word);
}

// take_words fills values and says whether the words were neither too few nor too many.
bool take_words(const Function& function, std::span<const std::string> words, bool outputs_given,
                std::vector<Value>& values)
{
    values.clear();
    for (const Argument& argument : function.arguments) {
        if (argument.output_only && !outputs_given) continue;
        if (words.empty()) return false;
        const std::string& word = words.front();
        if (argument.kind == Kind::kBlocks && word != kNull) {
            if (words.size() < argument.blocks) return false;
            std::vector<std::string> texts;
            for (const std::string& text : words.first(argument.blocks)) {
                const Value value = read_text(text);
                if (!std::holds_alternative<std::string>(value)) return false;
                texts.push_back(std::get<std::string>(value));
            }
            values.emplace_back(std::move(texts));
            words = words.subspan(argument.blocks);
            continue;
        }
        values.push_back(is_number(argument) && word != kNull ? read_number(argument, word)
                                                              : read_text(word));
        words = words.subspan(1);
    }
    return words.empty();
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
    if (count_ == words_.size()) words_.emplace_back();
    std::string& word = words_[count_];
    word.clear();
    while (at < line.size() && !is_blank(line[at])) {
        std::size_t plain = at;
        while (plain < line.size() && !is_blank(line[plain]) && line[plain] != '\'' && line[plain] != '"' &&
               line[plain] != '\\') {
            ++plain;
        }
        word.append(line, at, plain - at);
        at = plain;
        if (at == line.size() || is_blank(line[at])) break;
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

void read_values(const Function& function, std::span<const std::string> words, std::vector<Value>& values)
{
    if (take_words(function, words, false, values) || take_words(function, words, true, values)) return;
    throw std::invalid_argument(std::to_string(words.size()) +
                                (words.size() == 1 ? " value was" : " values were") +
                                " given; expected: " + usage_of(function));
}

std::string usage_of(const Function& function)
{
    std::string usage(function.name);
    for (const Argument& argument : function.arguments) {
        if (argument.output_only) continue;
        const std::string name(argument.name);
        if (argument.kind == Kind::kBlocks) {
            for (std::size_t i = 1; i <= argument.blocks; ++i) usage += " " + name + "_" + std::to_string(i);
        } else {
            usage += " " + name + (is_number(argument) ? ":number" : "");
        }
    }
    return usage;
}

}  // namespace ostrel::tool

#include "read/bind.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <string>

#include "catalogue/names.h"
#include "read/words.h"
#include "write/show.h"

namespace ostrel::tool {

using catalogue::Argument;
using catalogue::Function;
using catalogue::Kind;
using catalogue::Value;

namespace {

// read_number reads a decimal number or, after 0x, a hexadecimal one.
long long read_number(const Argument& argument, std::string_view word)
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
        std::string message = "argument " + std::string(argument.name) + " must be a number, but \"";
        append_escaped(message, word, 40);
        throw std::invalid_argument(message.append("\" is not one"));
    }
    // A number that is far out of range is replaced by a smaller one that is still out of range.
    if (read.ec != std::errc()) number = 1ULL << 62;
    const auto magnitude = static_cast<long long>(std::min(number, 1ULL << 62));
    return negative ? -magnitude : magnitude;
}

void require_c_text(const Argument& argument, std::string_view text)
{
    if (text.find('\0') == std::string_view::npos) return;
    throw std::invalid_argument("argument " + std::string(argument.name) +
                                " contains U+0000 (NUL), which would end the value in C");
}

void set_text(Value& value, std::string_view text)
{
    if (auto* before = std::get_if<std::string>(&value)) {
        before->assign(text);
    } else {
        value.emplace<std::string>(text);
    }
}

void set_texts(const Argument& argument, Value& value, std::span<const Item> items)
{
    std::vector<std::string> texts;
    texts.reserve(items.size());
    for (const Item& item : items) {
        require_c_text(argument, item.text);
        texts.emplace_back(item.text);
    }
    value = std::move(texts);
}

bool are_texts(std::span<const Item> items)
{
    return std::ranges::all_of(items, [](const Item& item) { return item.kind == Item::Kind::kText; });
}

// take assigns the items to values, and returns whether their number was correct.
bool take(const Function& function, std::span<const Item> items, bool outputs_given,
          std::vector<Value>& values)
{
    std::size_t count = 0;
    for (const Argument& argument : function.arguments) {
        if (argument.is_only_written() && !outputs_given) continue;
        if (items.empty()) return false;
        if (count == values.size()) values.emplace_back();
        Value& value = values[count++];
        const Item& item = items.front();
        items = items.subspan(1);
        if (item.kind == Item::Kind::kNull) {
            value = nullptr;
        } else if (item.kind == Item::Kind::kTexts) {
            set_texts(argument, value, items.first(item.count));
            items = items.subspan(item.count);
        } else if (argument.kind == Kind::kBlocks) {
            const std::size_t others = argument.blocks - 1;
            if (items.size() < others || !are_texts(items.first(others))) return false;
            set_texts(argument, value, {&item, argument.blocks});
            items = items.subspan(others);
        } else if (argument.is_number() || argument.kind == Kind::kIntegerOut) {
            value = read_number(argument, item.text);
        } else {
            require_c_text(argument, item.text);
            set_text(value, item.text);
        }
    }
    values.resize(count);
    return items.empty();
}

std::size_t count_arguments(std::span<const Item> items)
{
    std::size_t count = 0;
    for (std::size_t i = 0; i < items.size(); i += 1 + items[i].count) ++count;
    return count;
}

}  // namespace

const Function& bind_check(const Record& record)
{
    const Function* function = catalogue::find(record.check);
    if (function == nullptr) throw std::invalid_argument(catalogue::unknown_function(record.check));
    return *function;
}

std::span<const Item> without_spares(const Function& function, const Record& record)
{
    std::span<const Item> items = record.items;
    if (!record.may_have_spares) return items;
    std::size_t taken = 0;
    for (const Argument& argument : function.arguments)
        taken += argument.is_only_written() ? 0 : argument.blocks;
    while (items.size() > taken && items.back().kind == Item::Kind::kText && items.back().text.empty()) {
        items = items.first(items.size() - 1);
    }
    return items;
}

void bind(const Function& function, std::span<const Item> items, std::vector<Value>& values)
{
    if (take(function, items, false, values) || take(function, items, true, values)) return;
    const std::size_t count = count_arguments(items);
    throw std::invalid_argument(std::to_string(count) + (count == 1 ? " value was" : " values were") +
                                " given; expected: " + usage_of(function));
}

}  // namespace ostrel::tool

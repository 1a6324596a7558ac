#include "calling/caller.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <new>
#include <stdexcept>
#include <utility>

#include "rules/walk.h"

namespace ostrel::calling {

using catalogue::Argument;
using catalogue::Function;
using catalogue::Kind;
using catalogue::Raw;
using catalogue::Value;

namespace {

std::size_t page_size()
{
    static const auto size = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    return size;
}

std::invalid_argument bad_argument(const Argument& argument, const char* what)
{
    return std::invalid_argument("argument " + std::string(argument.name) + " " + what);
}

const std::string& text_of(const Argument& argument, const Value& value)
{
    const auto* text = std::get_if<std::string>(&value);
    if (text == nullptr) throw bad_argument(argument, "must be a string or NULL");
    if (text->find('\0') != std::string::npos) throw bad_argument(argument, "must not contain a NUL byte");
    return *text;
}

template <typename T>
T number_of(const Argument& argument, const Value& value)
{
    const auto* number = std::get_if<long long>(&value);
    if (number == nullptr) throw bad_argument(argument, "must be a number");
    if (!std::in_range<T>(*number)) {
        throw bad_argument(argument, std::is_signed_v<T> ? "must be a number from -2147483648 to 2147483647"
                                                         : "must be a number from 0 to 4294967295");
    }
    return static_cast<T>(*number);
}

// text_at reads a string, which has no terminator if it fills its buffer.
std::string text_at(const char* begin, std::size_t capacity) { return {begin, strnlen(begin, capacity)}; }

}  // namespace

GuardedMemory::~GuardedMemory() { release(); }

void GuardedMemory::release()
{
    if (mapping_ != nullptr) munmap(mapping_, usable_ + 2 * page_size());
    mapping_ = nullptr;
}

char* GuardedMemory::place(std::size_t size, Edge edge)
{
    if (mapping_ == nullptr || size > usable_) {
        release();
        const std::size_t page = page_size();
        usable_ = (std::max<std::size_t>(size, 1) + page - 1) / page * page;
        void* mapping = mmap(nullptr, usable_ + 2 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (mapping == MAP_FAILED) throw std::bad_alloc();
        mapping_ = static_cast<char*>(mapping);
        if (mprotect(mapping_ + page, usable_, PROT_READ | PROT_WRITE) != 0) throw std::bad_alloc();
    }
    char* begin = mapping_ + page_size();
    return edge == Edge::kBegin ? begin : begin + usable_ - size;
}

void Caller::load_argument(std::size_t index, const std::vector<Value>& values)
{
    const Value& value = values[index];
    const Argument& argument = function_->arguments[index];
    Raw& raw = raw_[index];
    if (argument.kind == Kind::kInteger) {
        raw.integer = number_of<int>(argument, value);
        return;
    }
    if (argument.kind == Kind::kUnsigned) {
        raw.natural = number_of<unsigned>(argument, value);
        return;
    }
    if (std::holds_alternative<std::nullptr_t>(value)) return;
    GuardedMemory& memory = memory_.at(index);
    if (argument.kind == Kind::kIntegerOut) {
        const int initial = number_of<int>(argument, value);
        capacity_.at(index) = sizeof initial;
        raw.pointer = memory.place(sizeof initial, edge_);
        std::memcpy(raw.pointer, &initial, sizeof initial);
        return;
    }
    if (argument.kind == Kind::kBlocks) {
        const auto* texts = std::get_if<std::vector<std::string>>(&value);
        if (texts == nullptr || texts->size() != argument.blocks) {
            throw bad_argument(
                argument, ("must be an array of " + std::to_string(argument.blocks) + " strings").c_str());
        }
        const std::size_t size = argument.blocks * argument.block_size;
        char* block = memory.place(size, edge_);
        std::memset(block, 0, size);
        raw.pointer = block;
        for (const std::string& text : *texts) {
            text_of(argument, text);
            if (text.size() >= argument.block_size)
                throw bad_argument(argument, "contains a string that is too long");
            std::memcpy(block, text.data(), text.size());
            block += argument.block_size;
        }
        return;
    }
    const std::string& text = text_of(argument, value);
    const std::size_t size = catalogue::room_of(*function_, index, values);
    char* place = memory.place(size, edge_);
    std::memcpy(place, text.data(), text.size());
    std::memset(place + text.size(), 0, size - text.size());
    capacity_.at(index) = size;
    raw.pointer = place;
}

void Caller::load(const Function& function, const std::vector<Value>& values)
{
    const auto arguments = function.arguments;
    if (values.size() != arguments.size()) {
        const auto inputs =
            static_cast<std::size_t>(std::ranges::count(arguments, false, &Argument::is_only_written));
        if (values.size() == inputs) {
            load(function, catalogue::completed(function, values));
            return;
        }
        std::string expected;
        for (const Argument& argument : arguments) {
            if (argument.is_only_written()) continue;
            expected.append(expected.empty() ? "" : ", ").append(argument.name);
            if (argument.blocks > 1)
                expected += " (an array of " + std::to_string(argument.blocks) + " strings)";
        }
        throw std::invalid_argument(std::string(function.name) + " takes " + std::to_string(inputs) +
                                    (inputs == 1 ? " argument: " : " arguments: ") + expected + "; " +
                                    std::to_string(values.size()) + (values.size() == 1 ? " was" : " were") +
                                    " given");
    }
    function_ = &function;
    raw_.assign(arguments.size(), Raw());
    for (std::size_t i = 0; i < arguments.size(); ++i) load_argument(i, values);
}

Value Caller::held(std::size_t index) const
{
    const Argument& argument = function_->arguments[index];
    const char* begin = static_cast<const char*>(raw_[index].pointer);
    if (begin == nullptr) return nullptr;
    if (argument.kind == Kind::kIntegerOut) {
        int number = 0;
        std::memcpy(&number, begin, sizeof number);
        return number == catalogue::kUnwritten ? Value(nullptr) : Value(static_cast<long long>(number));
    }
    if (argument.kind == Kind::kBuffer) return text_at(begin, capacity_.at(index));
    std::vector<std::string> texts;
    texts.reserve(argument.blocks);
    for (std::size_t block = 0; block < argument.blocks; ++block) {
        texts.push_back(text_at(begin + block * argument.block_size, argument.block_size));
    }
    return texts;
}

std::vector<Written> Caller::written() const
{
    std::vector<Written> result;
    for (std::size_t i = 0; i < raw_.size(); ++i) {
        const Argument& argument = function_->arguments[i];
        if (rules::is_written(argument)) result.push_back({&argument, held(i)});
    }
    return result;
}

}  // namespace ostrel::calling

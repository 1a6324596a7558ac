#include "oracle/mutator.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <limits>

namespace ostrel::oracle {

namespace {

// kTelling contains separators and the bytes at the boundaries of character classes.
constexpr char kTelling[] =
    "\0\1\2\3\t\n\x1F !\"#%&'()*+,-./0123456789:;<=>?@AFGZ[\\]^_`afgxz{|}~\x7F\x80\x9F\xA0\xA1\xE9\xFF";

bool is_digit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

Mutator::Mutator(std::vector<std::string> seeds, std::uint64_t seed)
    : seeds_(std::move(seeds)), state_(seed * 2 + 1)
{
    for (const std::string& one : seeds_) {
        for (std::size_t begin = 1; begin <= one.size();) {
            const std::size_t end = std::min(one.find('\0', begin), one.size());
            fields_.push_back(one.substr(begin, end - begin));
            begin = end + 1;
        }
    }
    std::ranges::sort(fields_);
    // NOLINTNEXTLINE(modernize-use-ranges): clang 14 cannot read the subrange that std::ranges::unique returns.
    fields_.erase(std::unique(fields_.begin(), fields_.end()), fields_.end());
}

std::size_t Mutator::below(std::size_t bound)
{
    state_ ^= state_ << 13;
    state_ ^= state_ >> 7;
    state_ ^= state_ << 17;
    return static_cast<std::size_t>(state_ >> 16) % bound;
}

const std::string& Mutator::next()
{
    input_ = seeds_[below(seeds_.size())];
    for (std::size_t changes = below(4) + 1; changes > 0; --changes) change();
    return input_;
}

const std::string& Mutator::next(const std::string& from)
{
    input_ = from;
    for (std::size_t changes = below(3); changes > 0; --changes) change();
    return input_;
}

void Mutator::replace(std::size_t begin, std::size_t size, const std::string& with)
{
    input_.replace(begin, std::min(size, input_.size() - begin), with);
}

void Mutator::change_number()
{
    const auto first = std::find_if(input_.begin() + 1, input_.end(), is_digit);
    std::vector<std::size_t> starts;
    for (auto i = first; i != input_.end(); ++i) {
        if (is_digit(*i) && !is_digit(*(i - 1)))
            starts.push_back(static_cast<std::size_t>(i - input_.begin()));
    }
    if (starts.empty()) return;
    const std::size_t begin = starts[below(starts.size())];
    long long number = 0;
    const char* const digits = input_.data() + begin;
    const auto read = std::from_chars(digits, input_.data() + input_.size(), number);
    if (read.ec != std::errc() || number == std::numeric_limits<long long>::max()) return;
    constexpr long long kEdges[] = {0,   1,   9,     10,    59,    60,      99,         100,
                                    127, 128, 255,   256,   1000,  4096,    9999,       10000,
                                    254, 366, 32768, 65535, 65536, 1048576, 2147483647, 2147483648};
    switch (below(3)) {
        case 0:
            number += 1;
            break;
        case 1:
            number = std::max(number - 1, 0LL);
            break;
        default:
            number = kEdges[below(std::size(kEdges))];
            break;
    }
    replace(begin, static_cast<std::size_t>(read.ptr - digits), std::to_string(number));
}

// change keeps the first byte, which selects the function.
void Mutator::change()
{
    if (input_.size() < 2) input_.resize(2, ' ');
    const std::size_t begin = 1 + below(input_.size() - 1);
    const std::size_t size = 1 + below(std::min<std::size_t>(input_.size() - begin, below(8) == 0 ? 64 : 4));
    switch (below(11)) {
        case 0:
            input_[begin] = static_cast<char>(below(256));
            break;
        case 1:
            input_[begin] = kTelling[below(sizeof kTelling - 1)];
            break;
        case 2:
            input_.insert(begin, 1, kTelling[below(sizeof kTelling - 1)]);
            break;
        case 3:
            replace(begin, size, "");
            break;
        case 4:
            input_.insert(begin, input_.substr(begin, size));
            break;
        case 5:
            input_.insert(begin, fields_[below(fields_.size())]);
            break;
        case 6: {
            const std::size_t end = std::min(input_.find('\0', begin), input_.size());
            const std::size_t field = input_.rfind('\0', begin - 1);
            const std::size_t first = field == std::string::npos || field == 0 ? 1 : field + 1;
            replace(first, std::max(end, first) - first, fields_[below(fields_.size())]);
            break;
        }
        case 7:
            input_[begin] = static_cast<char>(input_[begin] ^ 0x20);
            break;
        case 8:
            input_.insert(begin, {2, static_cast<char>(below(4) == 0 ? below(256) : below(40))});
            break;
        case 9:
            input_.push_back(kTelling[below(sizeof kTelling - 1)]);
            break;
        default:
            change_number();
            break;
    }
}

}  // namespace ostrel::oracle

#include "fuzz/options.h"

#include <charconv>
#include <cstring>
#include <stdexcept>
#include <string_view>

namespace ostrel::fuzz {

namespace {

template <typename T>
T read_option(const char* text)
{
    T value{};
    if (std::from_chars(text, text + std::strlen(text), value).ec != std::errc()) {
        throw std::invalid_argument(std::string("not a number: ") + text);
    }
    return value;
}

}  // namespace

Options read_options(int argc, char** argv)
{
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--random" && i + 1 < argc) {
            options.random = read_option<std::size_t>(argv[++i]);
        } else if (argument == "--refusals" && i + 1 < argc) {
            options.refusals = read_option<std::size_t>(argv[++i]);
        } else if (argument == "--check" && i + 1 < argc) {
            options.check = argv[++i];
        } else if (argument == "--with" && i + 1 < argc) {
            options.with = argv[++i];
        } else if (argument == "--table" && i + 1 < argc) {
            options.table = argv[++i];
        } else if (argument == "--floor" && i + 1 < argc) {
            options.floor = read_option<std::uint64_t>(argv[++i]);
        } else if (argument == "--seed" && i + 1 < argc) {
            options.seed = read_option<std::uint64_t>(argv[++i]);
        } else {
            options.folders.emplace_back(argument);
        }
    }
    return options;
}

}  // namespace ostrel::fuzz

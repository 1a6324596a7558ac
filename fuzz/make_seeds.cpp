// fuzz_seeds OUT writes each call in vectors/*.ndjson as an input to OUT/FAMILY/. It writes the strings in
// the calls and in the descriptions to OUT/FAMILY.dict, a dictionary for libFuzzer and AFL++.

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <set>

#include "fuzz/fuzzer.h"
#include "oracle/harvest.h"
#include "oracle/library.h"
#include "vectors/rows.h"

namespace ostrel::fuzz {

namespace {

constexpr std::size_t kLongestWord = 32;  // bytes; AFL++ accepts up to 128, and libFuzzer up to 64

// add_words adds a string and its pieces between separators.
void add_words(const std::string& text, std::set<std::string>& words)
{
    std::string piece;
    for (const char c : text + ",") {
        if (std::string_view(",;|/@=").find(c) == std::string_view::npos) {
            piece += c;
            continue;
        }
        if (piece.size() > 1 && piece.size() <= kLongestWord) words.insert(piece);
        piece.clear();
    }
    if (text.size() > 1 && text.size() <= kLongestWord) words.insert(text);
}

void add_words(const calling::Case& given, std::set<std::string>& words)
{
    for (const catalogue::Value& value : given.values) {
        if (const auto* text = std::get_if<std::string>(&value)) add_words(*text, words);
        if (const auto* texts = std::get_if<std::vector<std::string>>(&value)) {
            for (const std::string& text : *texts) add_words(text, words);
        }
    }
}

void write_dictionary(const std::filesystem::path& file, const std::set<std::string>& words)
{
    std::ofstream stream(file);
    for (const std::string& word : words) {
        stream << '"';
        for (const char c : word) {
            char escaped[8];
            std::snprintf(escaped, sizeof escaped, "\\x%02x", static_cast<unsigned char>(c));
            stream << escaped;
        }
        stream << "\"\n";
    }
}

void make_seeds(std::string_view family, const std::vector<vectors::Row>& rows,
                const std::filesystem::path& out)
{
    const Fuzzer fuzzer(family);
    const std::filesystem::path folder = out / family;
    std::filesystem::create_directories(folder);
    std::set<std::string> words;
    std::size_t count = 0;
    for (const vectors::Row& row : rows) {
        const calling::Case& given = row.given;
        const auto input = fuzzer.encode(*given.function, given.values);
        if (!input) continue;
        add_words(given, words);
        const auto file = folder / (std::to_string(++count) + "-" + std::string(given.function->name));
        std::ofstream(file, std::ios::binary) << *input;
    }
    for (const catalogue::Function& function : catalogue::functions()) {
        if (function.family != family) continue;
        for (const std::string& word : oracle::harvest(*function.check, oracle::library_build())) {
            if (word.size() > 1 && word.size() <= kLongestWord) words.insert(word);
        }
    }
    write_dictionary(out / (std::string(family) + ".dict"), words);
}

}  // namespace

}  // namespace ostrel::fuzz

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("usage: fuzz_seeds OUT\n", stderr);
        return 2;
    }
    try {
        const auto rows = ostrel::vectors::read_cases();
        for (const auto family : ostrel::catalogue::families())
            ostrel::fuzz::make_seeds(family, rows, argv[1]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "fuzz_seeds: %s\n", error.what());
        return 1;
    }
    return 0;
}

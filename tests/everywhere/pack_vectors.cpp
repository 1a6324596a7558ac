// Writes the vectors in the packed form that packed_vectors_test reads, since that test must run without a
// JSON library or a C++ run-time library.
//
// usage: pack_vectors OUTPUT
//
// The file begins with "ostrel vectors 3\n" and the number of rows. Numbers are 32-bit and little-endian. A
// string consists of its length and its bytes. A text consists of the number of its parts and the parts, each
// of which is a repeat count and a string. A row consists of the label, the function and the kinds of its
// arguments (all strings), the kinds of C library to which it applies (a sum of the numbers that atoi_at_hand
// in packed_vectors_test.c defines), whether all output is flushed, the code, out and err (both texts), and
// then for each argument: its size in memory (0 for NULL), the number before and after the call, the number
// of texts, the texts before the call, and the texts after it. The kinds are i (int), u (unsigned), t (text,
// read), n (int, written) and b (texts, written); only b has texts after the call. A row with several answers
// becomes several rows.

#include <cstdint>
#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "vectors/rows.h"

namespace ostrel::vectors {

using catalogue::Kind;
using catalogue::Value;

namespace {

void put(std::string& packed, std::size_t number)
{
    for (int shift = 0; shift < 32; shift += 8) packed += static_cast<char>(number >> shift & 0xFF);
}

void put_string(std::string& packed, std::string_view bytes)
{
    put(packed, bytes.size());
    packed += bytes;
}

// repeated_at returns the size and the count of a piece repeated at the beginning of the text, or zeros.
std::pair<std::size_t, std::size_t> repeated_at(std::string_view text)
{
    constexpr std::size_t kLongestPiece = 64;
    constexpr std::size_t kLong = 512;
    for (std::size_t size = 1; size <= kLongestPiece && size + kLong <= text.size(); ++size) {
        std::size_t end = size;
        while (end < text.size() && text[end] == text[end - size]) ++end;
        if (end >= kLong) return {size, end / size};
    }
    return {0, 0};
}

void put_text(std::string& packed, std::string_view text)
{
    std::string parts;
    std::size_t count = 0;
    const auto add = [&](std::size_t times, std::string_view piece) {
        if (piece.empty()) return;
        put(parts, times);
        put_string(parts, piece);
        ++count;
    };
    std::size_t begin = 0;
    for (std::size_t i = 0; i < text.size();) {
        const auto [size, times] = repeated_at(text.substr(i));
        if (times > 0) {
            add(1, text.substr(begin, i - begin));
            add(times, text.substr(i, size));
            begin = i + size * times;
        }
        i = times > 0 ? begin : i + 1;
    }
    add(1, text.substr(begin));
    put(packed, count);
    packed += parts;
}

void put_number(std::string& packed, const Value& value)
{
    const auto* number = std::get_if<long long>(&value);
    put(packed, static_cast<std::uint32_t>(number == nullptr ? catalogue::kUnwritten : *number));
}

std::vector<std::string> texts_of(const Value& value)
{
    if (const auto* text = std::get_if<std::string>(&value)) return {*text};
    const auto* texts = std::get_if<std::vector<std::string>>(&value);
    return texts == nullptr ? std::vector<std::string>() : *texts;
}

char letter_of(Kind kind)
{
    switch (kind) {
        case Kind::kText:
            return 't';
        case Kind::kBuffer:
        case Kind::kBlocks:
            return 'b';
        case Kind::kInteger:
            return 'i';
        case Kind::kUnsigned:
            return 'u';
        case Kind::kIntegerOut:
            break;
    }
    return 'n';
}

std::string packed_row(const Row& row, const Promise& promise, unsigned atois)
{
    const catalogue::Function& function = *row.given.function;
    const std::vector<Value> before = catalogue::completed(function, row.given.values);
    std::vector<Value> after = before;
    std::size_t written = 0;
    std::string kinds;
    for (std::size_t i = 0; i < before.size(); ++i) {
        kinds += letter_of(function.arguments[i].kind);
        const bool is_written = kinds.back() == 'b' || kinds.back() == 'n';
        if (is_written && promise.is_written) after[i] = promise.result.after.at(written++);
    }

    std::string packed;
    put_string(packed, row.module + ":" + std::to_string(row.line) + " " + std::string(function.name));
    put_string(packed, function.name);
    put_string(packed, kinds);
    put(packed, atois);
    put(packed, promise.result.flushed ? 1 : 0);
    put(packed, static_cast<std::uint32_t>(promise.result.code));
    put_text(packed, promise.result.out);
    put_text(packed, promise.result.err);
    for (std::size_t i = 0; i < before.size(); ++i) {
        const std::vector<std::string> texts = texts_of(before[i]);
        const bool is_null = std::holds_alternative<std::nullptr_t>(before[i]);
        put(packed, is_null           ? 0
                    : kinds[i] == 'b' ? catalogue::room_of(function, i, before)
                    : texts.empty()   ? sizeof(int)
                                      : texts.front().size() + 1);
        put_number(packed, before[i]);
        put_number(packed, after[i]);
        put(packed, texts.size());
        for (const std::string& text : texts) put_text(packed, text);
        if (kinds[i] != 'b') continue;
        const std::vector<std::string> texts_after = texts_of(after[i]);
        if (texts_after.size() != texts.size()) throw std::invalid_argument("\"after\" does not suit");
        for (const std::string& text : texts_after) put_text(packed, text);
    }
    return packed;
}

void pack(const char* output)
{
    std::string rows;
    std::size_t count = 0;
    for (const Row& row : read_cases()) {
        unsigned others = 0;
        for (const Atoi atoi : kAtois) {
            const unsigned bit = 1U << static_cast<unsigned>(atoi);
            const auto found = row.elsewhere.find(atoi);
            if (found == row.elsewhere.end()) {
                others |= bit;
            } else {
                rows += packed_row(row, found->second, bit);
                ++count;
            }
        }
        rows += packed_row(row, row.promise, others);
        ++count;
    }
    std::string head = "ostrel vectors 3\n";
    put(head, count);
    std::ofstream file(output, std::ios::binary);
    file << head << rows << std::flush;
    if (!file) throw std::runtime_error(std::string("cannot write ") + output);
}

}  // namespace

}  // namespace ostrel::vectors

int main(int argc, char** argv)
{
    try {
        if (argc != 2) throw std::runtime_error("usage: pack_vectors OUTPUT");
        ostrel::vectors::pack(argv[1]);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
}

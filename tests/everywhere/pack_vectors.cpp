// Writes the vectors in the form that packed_vectors_test reads, which runs where there is neither a JSON
// library nor a C++ run-time library.
//
// usage: pack_vectors OUTPUT
//
// The file begins with "ostrel vectors 2\n" and the number of rows. Numbers are 32 bits, least significant byte
// first; a string is its length and its bytes; a text is the number of its parts, and for each how often it is
// repeated and a string; NULL is 0xFFFFFFFF parts. A row is: label, function, kinds of the arguments (strings), the C
// libraries with which it holds (1: long of 64 bits, 2: bounds of an int, 4: wrapping), whether all is flushed, code,
// out, err (texts), and for each argument by its kind
//   i, u  the number
//   t     a text that is only read
//   n     1, the number before and the number after the call, or 0 for NULL
//   b     the number of buffers, the bytes of each, their texts before and after the call
// A row of the vectors with several answers is as many rows here.

#include <cstdint>
#include <exception>
#include <fstream>
#include <iostream>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "calling/caller.h"
#include "calling/case.h"
#include "catalogue/value_json.h"
#include "vectors/answers.h"
#include "vectors/rows.h"

namespace ostrel::catalogue {

using calling::Caller;
using calling::Case;
using nlohmann::json;
using vectors::Atoi;
using vectors::kAtois;

namespace {

constexpr std::uint32_t kNull = 0xFFFFFFFF;

void put(std::string& packed, std::uint32_t number)
{
    for (int shift = 0; shift < 32; shift += 8) packed += static_cast<char>(number >> shift & 0xFF);
}

void put_number(std::string& packed, const json& number)
{
    put(packed, static_cast<std::uint32_t>(number.get<long long>()));
}

void put_string(std::string& packed, std::string_view bytes)
{
    put(packed, static_cast<std::uint32_t>(bytes.size()));
    packed += bytes;
}

// append_parts takes a text apart, so that a long one stays as short as it stands in the row.
void append_parts(std::vector<json>& parts, const json& text)
{
    if (text.is_object() && text.contains("join")) {
        for (const json& part : text["join"]) append_parts(parts, part);
    } else if (const auto* string = text.get_ptr<const std::string*>();
               string == nullptr || !string->empty()) {
        parts.push_back(text);
    }
}

void put_text(std::string& packed, const json& text)
{
    if (text.is_null()) {
        put(packed, kNull);
        return;
    }
    std::vector<json> parts;
    append_parts(parts, text);
    put(packed, static_cast<std::uint32_t>(parts.size()));
    for (const json& part : parts) {
        const bool is_repeated = part.is_object() && part.contains("repeat");
        put(packed, is_repeated ? part.at("times").get<std::uint32_t>() : 1);
        put_string(packed, text_from_json(is_repeated ? part["repeat"] : part));
    }
}

char kind_letter(const Argument& argument)
{
    switch (argument.kind) {
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
            return 'n';
    }
    throw std::logic_error("an argument of an unknown kind");
}

void put_buffers(std::string& packed, std::size_t size, const json& before, const json& after)
{
    const json texts_before = before.is_array() ? before : json::array({before});
    const json texts_after = after.is_array() ? after : json::array({after});
    if (texts_before.size() != texts_after.size()) throw std::invalid_argument("\"after\" does not suit");
    put(packed, static_cast<std::uint32_t>(texts_before.size()));
    put(packed, static_cast<std::uint32_t>(size));
    for (const json& text : texts_before) put_text(packed, text);
    for (const json& text : texts_after) put_text(packed, text);
}

std::string packed_row(const json& row, const std::string& label, std::uint32_t atois)
{
    const Case given = calling::case_from_json(row);
    Caller().load(*given.function, given.values);  // refuses what does not suit the function
    const auto arguments = given.function->arguments;
    const json& args = row["args"];
    const std::vector<catalogue::Value> values = catalogue::completed(*given.function, given.values);

    std::string packed;
    put_string(packed, label + " " + std::string(given.function->name));
    put_string(packed, given.function->name);
    std::string kinds;
    for (const Argument& argument : arguments) kinds += kind_letter(argument);
    put_string(packed, kinds);
    put(packed, atois);
    put(packed, row.value("flushed", true) ? 1 : 0);
    put_number(packed, row.at("code"));
    put_text(packed, row.value("out", json("")));
    put_text(packed, row.value("err", json("")));

    std::size_t next = 0;
    std::size_t next_after = 0;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const bool is_given = args.size() == arguments.size() || !arguments[i].is_only_written();
        const json value = is_given          ? args.at(next++)
                           : kinds[i] == 'n' ? json(catalogue::kUnwritten)
                                             : json("");
        json after = value;
        if (kinds[i] == 'b' || kinds[i] == 'n') {
            if (row.contains("after")) after = row["after"].at(next_after++);
        }
        switch (kinds[i]) {
            case 'i':
            case 'u':
                put_number(packed, value);
                break;
            case 't':
                put_text(packed, value);
                break;
            case 'b':
                put_buffers(packed, catalogue::room_of(*given.function, i, values), value, after);
                break;
            default:
                put(packed, value.is_null() ? 0 : 1);
                if (value.is_null()) break;
                put_number(packed, value);
                put_number(packed, after.is_null() ? json(catalogue::kUnwritten) : after);
        }
    }
    return packed;
}

// append_row packs the row once for each of its answers, and gives their number.
std::uint32_t append_row(std::string& rows, const json& row, const std::string& label)
{
    std::uint32_t count = 1;
    std::uint32_t others = 0;
    for (const Atoi atoi : kAtois) {
        const std::uint32_t bit = 1U << static_cast<unsigned>(atoi);
        if (!vectors::has_answer_for(row, atoi)) {
            others |= bit;
            continue;
        }
        rows += packed_row(vectors::answered(row, atoi), label, bit);
        ++count;
    }
    rows += packed_row(vectors::answered(row, Atoi::kLong64), label, others);
    return count;
}

void pack(const char* output)
{
    std::string rows;
    std::uint32_t count = 0;
    for (const vectors::Row& row : vectors::read_cases())
        count += append_row(rows, json::parse(row.text), row.module + ":" + std::to_string(row.line));
    std::string head = "ostrel vectors 2\n";
    put(head, count);
    std::ofstream file(output, std::ios::binary);
    file << head << rows << std::flush;
    if (!file) throw std::runtime_error(std::string("cannot write ") + output);
}

}  // namespace

}  // namespace ostrel::catalogue

int main(int argc, char** argv)
{
    try {
        if (argc != 2) throw std::runtime_error("usage: pack_vectors OUTPUT");
        ostrel::catalogue::pack(argv[1]);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
}

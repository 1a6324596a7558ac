#include "command_line/reading_options.h"

#include <optional>
#include <string>
#include <string_view>

#include "command_line/choice.h"
#include "read/words.h"

namespace ostrel::tool {

namespace {

std::string one_byte(const std::string& given)
{
    const std::string delimiter = read_escapes(given);
    constexpr std::string_view kTaken("\"\r\n\0", 4);
    if (delimiter.size() == 1 && kTaken.find(delimiter) == std::string_view::npos) return {};
    return "the delimiter must be a single byte other than NUL, \", CR or LF";
}

}  // namespace

void add_reading(CLI::App& batch, Reading& reading)
{
    add_choice<std::optional<FileFormat>, FileFormat>(batch, "--format", reading.format,
                                                      {{"words", FileFormat::kWords},
                                                       {"ndjson", FileFormat::kNdjson},
                                                       {"csv", FileFormat::kCsv},
                                                       {"tsv", FileFormat::kTsv},
                                                       {"json", FileFormat::kJson}},
                                                      "Read this format (from file name or first bytes)");
    add_choice<Encoding, Encoding>(batch, "--encoding", reading.encoding,
                                   {{"utf-8", Encoding::kUtf8}, {"latin-1", Encoding::kLatin1}},
                                   "Pass values in this encoding (utf-8)");
    batch
        .add_option_function<std::string>(
            "--delimiter", [&](const std::string& given) { reading.delimiter = read_escapes(given).front(); },
            "Use this delimiter in CSV (,)")
        ->check(one_byte)
        ->type_name("BYTE");
    batch.add_option("--check", reading.check, "Read checks from this column, or use one for all")
        ->type_name("COLUMN|NAME");
    batch.add_option("--value", reading.values, "Read an argument from this column; repeatable")
        ->type_name("COLUMN")
        ->allow_extra_args(false)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    batch.add_option("--group", reading.group, "With --map: tell gateways apart by this column")
        ->type_name("COLUMN");
    batch.add_option("--parameter", reading.parameter, "With --map: read paths from this column")
        ->type_name("COLUMN");
    batch.add_flag("--strict", reading.is_strict, "Refuse unknown and duplicate members and columns");
}

}  // namespace ostrel::tool

// Tests that a file with arbitrary bytes yields the same records, no matter how it is divided into chunks, and
// the functions that examine several bytes at a time.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "read/cases.h"
#include "read/cutter.h"
#include "read/json_parser.h"
#include "read/reader.h"

namespace ostrel::tool {

namespace {

using Dice = std::mt19937;

std::size_t roll(Dice& dice, std::size_t sides) { return dice() % sides; }

std::string shown(const Item& item)
{
    return std::to_string(static_cast<int>(item.kind)) + ":" + std::to_string(item.count) + ":" +
           std::string(item.text);
}

// FileReading reads a file as a supervisor and its worker do.
class FileReading {
 public:
    FileReading(FileFormat format, const Reading& reading)
        : format_(format), cases_(reading), cutter_(make_cutter(format, reading))
    {
    }

    // add supplies more bytes and returns whether reading continues.
    bool add(std::string_view bytes, bool is_end)
    {
        rest_ += bytes;
        while (!is_over_) {
            const Cut cut = cutter_->cut(rest_, is_end);
            EXPECT_LE(cut.dropped + cut.preamble + cut.size, rest_.size());
            line_ += count_lines(std::string_view(rest_).substr(0, cut.dropped));
            rest_.erase(0, cut.dropped);
            if (cut.preamble > 0 && !open(rest_.substr(0, cut.preamble))) return false;
            rest_.erase(0, cut.preamble);
            read(std::string_view(rest_).substr(0, cut.size));
            rest_.erase(0, cut.size);
            if (!cut.problem.empty()) {
                EXPECT_LE(cut.problem_at, rest_.size());
                const std::uint64_t line =
                    line_ + count_lines(std::string_view(rest_).substr(0, cut.problem_at));
                records.push_back("line " + std::to_string(line) + ": " + cut.problem);
            }
            is_over_ = cut.ends_file;
            if (cut.dropped + cut.preamble + cut.size == 0 && cut.problem.empty()) break;
        }
        if (is_end && !is_over_) {
            EXPECT_EQ("", rest_);
        }
        return !is_over_;
    }

    std::vector<std::string> records;

 private:
    bool open(const std::string& preamble)
    {
        preamble_ = preamble;
        line_ += count_lines(preamble);
        try {
            cases_.open(0, format_, preamble_);
        } catch (const std::invalid_argument& error) {
            records.emplace_back(error.what());
            is_over_ = true;
        }
        return !is_over_;
    }

    void read(std::string_view texts)
    {
        if (texts.empty()) return;
        cases_.open(0, format_, preamble_);
        while (!texts.empty()) {
            const std::size_t size = cases_.next(texts);
            ASSERT_GT(size, 0U);
            ASSERT_LE(size, texts.size());
            const std::string_view entry = texts.substr(0, size);
            add_record(entry);
            line_ += count_lines(entry);
            texts.remove_prefix(size);
        }
    }

    void add_record(std::string_view text)
    {
        std::string record = "line " + std::to_string(line_) + ": ";
        try {
            record += cases_.read(text, 0) ? std::string(cases_.function()->name) : "nothing";
        } catch (const std::invalid_argument& error) {
            record.append("malformed, ").append(error.what());
            EXPECT_NE("", std::string_view(error.what()));
        }
        if (record.ends_with("nothing")) {
            records.push_back(record);
            return;
        }
        for (const Item& item : cases_.record().items) record.append(", ").append(shown(item));
        for (const Member& member : cases_.record().members) {
            record.append(", ").append(member.name).append("=").append(member.value);
            if (member.is_json) {
                EXPECT_EQ(std::string_view::npos, member.value.find('\n')) << member.value;
            }
        }
        records.push_back(record);
    }

    FileFormat format_;
    Cases cases_;
    std::unique_ptr<Cutter> cutter_;
    std::string preamble_;
    std::string rest_;
    std::uint64_t line_ = 1;
    bool is_over_ = false;
};

const std::vector<std::string>& files()
{
    static const std::vector<std::string> all = {
        // NOLINTNEXTLINE(bugprone-suspicious-missing-comma): a file of several lines
        "PARAM_check_port 80\n# c\n\nTcmValidatePPPPassword \"a\\xE9 b\" "
        "'c'\n{\"check\":\"PARAM_check_port\",\"args\":[\"1\"]}\r\n@null",
        "{\"id\":1,\"check\":\"PARAM_check_num_range\",\"args\":[\"15\",1,20.5],\"x\":{\"y\":[1,null,"
        "\"\\u00e9\"]"
        "}}\n"
        "{\"check\":\"TcmValidatePPPPassword\",\"args\":[{\"base64\":\"6Q==\"}],\"id\":\"\\ud83d\\ude00\"}\n",
        "id,check,value\r\n1,PARAM_check_port,80\r\n\"2\",\"PARAM_check_bool_value\",\"a\r\nb, "
        "\"\"c\"\"\"\r\n\r\n3,PARAM_check_port,\xC3\xA9\n",
        "id\tcheck\tvalue_1\tvalue_2\n1\tPARAM_check_port\t80\t\n\"2\"\tcountChar\t\"a\nb\"\t97\n",
        "[\n  {\"check\": \"PARAM_check_port\",\n \"args\": [\"1\"], \"at\": {\"x\": [1,\n 2]}},\n "
        "{\"args\":[[\"a\",\"b\"]],\"check\":\"f\"}\n, 5, \"x\"]\n",
        "{\"check\": \"PARAM_check_port\", \"args\": [true]}\n{\n\"id\": 1e5}\n",
    };
    return all;
}

const std::vector<std::string>& pieces_of_changes()
{
    static const std::vector<std::string> all = {"\"",
                                                 "\"\"",
                                                 ",",
                                                 "\n",
                                                 "\r\n",
                                                 "\r",
                                                 "{",
                                                 "}",
                                                 "[",
                                                 "]",
                                                 ":",
                                                 "\\",
                                                 "\\u0000",
                                                 "\\ud800",
                                                 "\\udc00",
                                                 "\xC3\xA9",
                                                 "\xFF",
                                                 "\t",
                                                 " ",
                                                 "#",
                                                 "@null",
                                                 "null",
                                                 "true",
                                                 "1.10",
                                                 "-",
                                                 "1e3",
                                                 "\"args\":",
                                                 "\"check\":",
                                                 "\"base64\":",
                                                 "\"repeat\":",
                                                 "\"id\":1,",
                                                 "'",
                                                 "\\x41",
                                                 std::string(1, '\0'),
                                                 "[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[["};
    return all;
}

std::string changed(std::string text, Dice& dice)
{
    for (std::size_t changes = roll(dice, 6); changes > 0; --changes) {
        const std::size_t at = roll(dice, text.size() + 1);
        const std::size_t size = std::min(roll(dice, 12), text.size() - at);
        switch (roll(dice, 4)) {
            case 0:
                text.erase(at, size);
                break;
            case 1:
                text.insert(at, text.substr(roll(dice, text.size() + 1), roll(dice, 60)));
                break;
            case 2:
                if (at < text.size()) text[at] = static_cast<char>(dice());
                break;
            default:
                text.insert(at, pieces_of_changes()[roll(dice, pieces_of_changes().size())]);
        }
    }
    return text;
}

Reading any_reading(Dice& dice)
{
    Reading reading;
    if (roll(dice, 3) == 0) reading.encoding = Encoding::kLatin1;
    reading.is_strict = roll(dice, 4) == 0;
    if (roll(dice, 5) == 0) reading.check = "PARAM_check_port";
    if (roll(dice, 5) == 0) reading.values = {"id"};
    if (roll(dice, 8) == 0) reading.delimiter = ';';
    return reading;
}

TEST(Readers, FindTheSameRecordsHoweverTheBytesArrive)
{
    const char* runs = std::getenv("OSTREL_TEST_RUNS");
    const long count = runs != nullptr ? std::atol(runs) : 10000;
    Dice dice(17);  // NOLINT(bugprone-random-generator-seed): the same files in every run
    std::size_t met = 0;
    for (long i = 0; i < count; ++i) {
        const std::string text = changed(files()[roll(dice, files().size())], dice);
        const auto format = static_cast<FileFormat>(roll(dice, 5));
        const Reading reading = any_reading(dice);
        FileReading whole(format, reading);
        whole.add(text, true);
        FileReading pieces(format, reading);
        std::string_view rest = text;
        bool goes_on = true;
        while (goes_on && !rest.empty()) {
            const std::size_t size = 1 + roll(dice, std::min<std::size_t>(rest.size(), 1 + roll(dice, 40)));
            goes_on = pieces.add(rest.substr(0, size), false);
            rest.remove_prefix(size);
        }
        if (goes_on) pieces.add("", true);
        ASSERT_EQ(whole.records, pieces.records)
            << static_cast<int>(format) << " in run " << i << ": " << text;
        met += whole.records.size();
    }
    EXPECT_GT(met, static_cast<std::size_t>(count));
}

TEST(Lines, AreCounted)
{
    constexpr std::size_t kLongest = 9000;
    Dice dice(18);  // NOLINT(bugprone-random-generator-seed): the same texts in every run
    for (std::size_t size = 0; size < kLongest; size += 1 + size / 100) {
        std::string text(size, '\n');
        EXPECT_EQ(size, count_lines(text));
        for (char& c : text) c = "\n\x0B\x8A\xFF"[roll(dice, 4)];
        EXPECT_EQ(std::ranges::count(text, '\n'), count_lines(text));
    }
}

TEST(PlainSize, EndsBeforeTheFirstByteThatJsonEscapes)
{
    constexpr std::size_t kLongest = 50;
    for (std::size_t size = 0; size < kLongest; ++size) {
        EXPECT_EQ(size, plain_size(std::string(size, 'x')));
        for (std::size_t at = 0; at < size; ++at) {
            for (int byte = 0; byte < 256; ++byte) {
                std::string text(size, 'x');
                text[at] = static_cast<char>(byte);
                const bool is_plain = byte >= ' ' && byte != '"' && byte != '\\';
                EXPECT_EQ(is_plain ? size : at, plain_size(text)) << byte;
                text.back() = '"';
                EXPECT_EQ(is_plain ? size - 1 : at, plain_size(text)) << byte;
            }
        }
    }
}

}  // namespace

}  // namespace ostrel::tool

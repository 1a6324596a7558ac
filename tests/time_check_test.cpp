// The time-zone table as a whole, and what the lookups write.

#include <gtest/gtest.h>
#include <ostrel/time_check.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "calling/capture.h"
#include "rules/rules.h"
#include "src/time_zone_table.h"

namespace ostrel::tests {

namespace {

struct Row {
    std::string offset;
    std::string name;

    bool operator==(const Row&) const = default;
};

// table_of is the first table that steps look something up in.
const rules::Table* table_of(const std::vector<rules::Step>& steps)
{
    for (const rules::Step& step : steps) {
        if (step.condition.table != nullptr) return step.condition.table;
        for (const auto* further : {&step.steps, &step.otherwise}) {
            if (const rules::Table* table = table_of(*further)) return table;
        }
    }
    return nullptr;
}

// zones is the table as it is described, which is searched from the top.
const std::vector<Row>& zones()
{
    static const std::vector<Row> all = [] {
        std::vector<Row> rows;
        for (const auto& row : table_of(rules::find("Time_validate_tzone_and_tzone_name")->steps)->rows)
            rows.push_back({std::string(row.at(0)), std::string(row.at(1))});
        return rows;
    }();
    return all;
}

// built_in_rows reads the library's table.
std::vector<Row> built_in_rows()
{
    std::vector<Row> rows;
    const char* text = kTimeZones;
    while (*text != '\0') {
        Row row;
        row.offset = text;
        text += row.offset.size() + 1;
        row.name = text;
        text += row.name.size() + 1;
        rows.push_back(row);
    }
    EXPECT_EQ(kTimeZones + sizeof kTimeZones, text + 1) << "something stands behind the empty row";
    return rows;
}

// Buffer is a caller's buffer with a pattern in it.
class Buffer {
 public:
    explicit Buffer(const std::string& text) : bytes_(128, '\xAA')
    {
        bytes_.replace(0, text.size() + 1, text.c_str(), text.size() + 1);
    }

    char* data() { return bytes_.data(); }

    bool operator==(const Buffer&) const = default;

    friend void PrintTo(const Buffer& buffer, std::ostream* stream)
    {
        *stream << testing::PrintToString(buffer.bytes_);
    }

 private:
    std::string bytes_;
};

// validate calls with two texts and expects what the buffers hold afterwards, to their last byte.
int validate(const std::string& tzone, const std::string& name, const std::string& tzone_after,
             const std::string& name_after)
{
    Buffer tzone_buffer(tzone);
    Buffer name_buffer(name);
    const calling::Capture capture;
    const int code = Time_validate_tzone_and_tzone_name(tzone_buffer.data(), name_buffer.data());
    EXPECT_EQ(Buffer(tzone_after), tzone_buffer);
    EXPECT_EQ(Buffer(name_after), name_buffer);
    return code;
}

int validate(const std::string& tzone, const std::string& name) { return validate(tzone, name, tzone, name); }

}  // namespace

TEST(TimeZoneTable, HoldsEachRowVerbatimAndInOrder) { EXPECT_EQ(zones(), built_in_rows()); }

TEST(TimeZoneTable, HasItsProperties)
{
    const std::vector<Row> rows = built_in_rows();
    EXPECT_EQ(75U, rows.size());
    std::vector<std::string> offsets;
    std::map<std::string, int> rows_of;
    std::size_t longest = 0;
    for (const Row& row : rows) {
        EXPECT_EQ(6U, row.offset.size());
        if (offsets.empty() || offsets.back() != row.offset) offsets.push_back(row.offset);
        ++rows_of[row.offset];
        longest = std::max(longest, row.name.size());
    }
    EXPECT_EQ(32U, rows_of.size());
    EXPECT_EQ(32U, offsets.size()) << "rows of one offset stand apart";
    EXPECT_EQ(54U, longest);
    EXPECT_EQ(54U, rows[26].name.size());
    EXPECT_FALSE(rows_of.contains("+00:00"));
    const std::map<std::string, int> repeated = {{"+02:00", 6}, {"+01:00", 5}, {"+08:00", 5}, {"+10:00", 5},
                                                 {"-06:00", 4}, {"+03:00", 4}, {"-07:00", 3}, {"-05:00", 3},
                                                 {"-04:00", 3}, {"-03:00", 3}, {"+06:00", 3}, {"+09:00", 3},
                                                 {"-01:00", 2}, {"-00:00", 2}, {"+04:00", 2}, {"+05:00", 2},
                                                 {"+07:00", 2}, {"+09:30", 2}, {"+11:00", 2}, {"+12:00", 2}};
    std::erase_if(rows_of, [](const auto& run) { return run.second == 1; });
    EXPECT_EQ(repeated, rows_of);
}

// A name that is one byte longer at either end belongs to no row, so what the library holds is what is
// listed.
TEST(TimeZoneLookups, KnowEachRowVerbatim)
{
    for (const Row& row : zones()) {
        EXPECT_EQ(0, validate(row.offset, row.name));
        for (int byte = 1; byte < 256; ++byte) {
            const std::string more(1, static_cast<char>(byte));
            EXPECT_EQ(402, validate(row.offset, row.name + more)) << row.name << " " << byte;
            EXPECT_EQ(402, validate(row.offset, more + row.name)) << row.name << " " << byte;
            EXPECT_EQ(402, validate(row.offset + more, row.name)) << row.offset << " " << byte;
        }
    }
}

TEST(TimeZoneLookups, FillInTheFirstRowAndNothingBeyondTheTerminator)
{
    for (const Row& row : zones()) {
        const auto first = std::ranges::find(zones(), row.offset, &Row::offset);
        EXPECT_EQ(0, validate(row.offset, "", row.offset, first->name));
        const auto holder = std::ranges::find_if(
            zones(), [&](const Row& other) { return other.name.find(row.name) != std::string::npos; });
        EXPECT_EQ(0, validate("", row.name, holder->offset, row.name));
    }
}

// Every part of every offset finds the first row that holds it.
TEST(TimeZoneLookups, FindPartsOfOffsets)
{
    for (const Row& row : zones()) {
        const std::string offset = row.offset;
        for (std::size_t begin = 0; begin < offset.size(); ++begin) {
            for (std::size_t length = 1; begin + length <= offset.size(); ++length) {
                const std::string part = offset.substr(begin, length);
                const auto first = std::ranges::find_if(
                    zones(), [&](const Row& other) { return other.offset.find(part) != std::string::npos; });
                EXPECT_EQ(0, validate(part, "", part, first->name)) << part;
            }
        }
    }
}

TEST(TimeZoneLookups, LeaveTheBuffersAsTheyWereOnFailure)
{
    EXPECT_EQ(402, validate("+00:00", ""));
    EXPECT_EQ(402, validate("+13:00", ""));
    EXPECT_EQ(402, validate("", "tokyo"));
    EXPECT_EQ(402, validate("+00:00", "London"));
    EXPECT_EQ(402, validate("x", "y"));
    EXPECT_EQ(0, validate("", ""));
}

}  // namespace ostrel::tests

// The table of time zones.

#include <gtest/gtest.h>
#include <ostrel/time_check.h>

#include <string>
#include <vector>

#include "rules/rules.h"
#include "src/time_zone_table.h"

namespace ostrel::tests {

namespace {

struct Zone {
    std::string offset;
    std::string name;

    bool operator==(const Zone&) const = default;
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
const std::vector<Zone>& zones()
{
    static const std::vector<Zone> all = [] {
        std::vector<Zone> rows;
        for (const auto& row : table_of(rules::find("Time_validate_tzone_and_tzone_name")->steps)->rows)
            rows.push_back({std::string(row.at(0)), std::string(row.at(1))});
        return rows;
    }();
    return all;
}

// built_in_rows reads the library's table.
std::vector<Zone> built_in_rows()
{
    std::vector<Zone> rows;
    const char* text = kTimeZones;
    while (*text != '\0') {
        Zone row;
        row.offset = text;
        text += row.offset.size() + 1;
        row.name = text;
        text += row.name.size() + 1;
        rows.push_back(row);
    }
    EXPECT_EQ(kTimeZones + sizeof kTimeZones, text + 1) << "something follows the empty row";
    return rows;
}

}  // namespace

TEST(TimeZoneTable, HoldsEachRowVerbatimAndInOrder) { EXPECT_EQ(zones(), built_in_rows()); }

}  // namespace ostrel::tests

#include "tests/rules/rows.h"

#include <map>

namespace ostrel::tests {

using catalogue::Function;

const std::vector<Row>& all_rows()
{
    static const std::vector<Row> all = vectors::read_cases();
    return all;
}

const Rows& rows_of(const Function& function)
{
    static const auto all = [] {
        std::map<const Function*, Rows> result;
        for (const Row& row : all_rows()) {
            if (row.elsewhere.empty()) result[row.given.function].emplace_back(row);
        }
        return result;
    }();
    return all.at(&function);
}

std::vector<const Function*> all_functions()
{
    std::vector<const Function*> all;
    for (const Function& function : catalogue::functions()) all.push_back(&function);
    return all;
}

}  // namespace ostrel::tests

#include "tests/rules/rows.h"

#include <map>

namespace ostrel::tests {

using catalogue::Function;

const std::vector<Row>& rows_of(const Function& function)
{
    static const auto all = [] {
        std::map<const Function*, std::vector<Row>> result;
        for (Row& row : read_cases()) {
            if (row.elsewhere.empty()) result[row.given.function].push_back(std::move(row));
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

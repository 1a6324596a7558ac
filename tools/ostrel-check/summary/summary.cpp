#include "summary/summary.h"

#include <algorithm>

namespace ostrel::tool {

Summary::Summary() : checks_(catalogue::functions().size() + 1) {}

void Summary::add(Kinds& kinds, const SummaryRow& row, std::uint64_t count)
{
    Kind& kind = kinds[{row.verdict, row.code, std::string(row.reason)}];
    kind.count += count;
    if (kind.example.empty()) kind.example = row.example;
}

void Summary::add(const CountedRow& counted)
{
    const SummaryRow& row = counted.row;
    if (row.check == kUnmapped) {
        unmapped_.add(row.parameter, counted.count, row.example);
        return;
    }
    tally_.add(row.verdict, counted.count);
    OfCheck& check = checks_[std::min<std::size_t>(row.check, checks_.size() - 1)];
    // Parameters counted together have no example, because it would depend on the order of the records.
    SummaryRow without_example = row;
    without_example.example = {};
    auto& parameters = check.parameters;
    const auto found = parameters.find(row.parameter);
    const bool is_beyond = found == parameters.end() && parameters.size() == kMostParameters &&
                           row.parameter > parameters.rbegin()->first;
    if (counted.is_others || is_beyond) {
        add(check.others, without_example, counted.count);
    } else if (found != parameters.end()) {
        add(found->second, row, counted.count);
    } else {
        add(parameters[std::string(row.parameter)], row, counted.count);
        if (parameters.size() <= kMostParameters) return;
        const auto last = std::prev(parameters.end());
        for (const auto& [key, kind] : last->second) check.others[key].count += kind.count;
        parameters.erase(last);
    }
}

void Summary::for_each(const std::function<void(const CountedRow&)>& visit) const
{
    CountedRow counted;
    const auto show = [&](const Kinds& kinds) {
        for (const auto& [key, kind] : kinds) {
            counted.row.verdict = std::get<Verdict>(key);
            counted.row.code = std::get<int>(key);
            counted.row.reason = std::get<std::string>(key);
            counted.row.example = kind.example;
            counted.count = kind.count;
            visit(counted);
        }
    };
    for (std::size_t i = 0; i < checks_.size(); ++i) {
        counted.row.check = i + 1 == checks_.size() ? kNoCheck : static_cast<std::uint16_t>(i);
        counted.is_others = false;
        for (const auto& [parameter, kinds] : checks_[i].parameters) {
            counted.row.parameter = parameter;
            show(kinds);
        }
        counted.row.parameter = {};
        counted.is_others = true;
        show(checks_[i].others);
    }
}

}  // namespace ostrel::tool

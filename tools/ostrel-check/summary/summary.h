// The outcomes of a batch's records, counted by check, parameter and reason.
#ifndef OSTREL_TOOLS_SUMMARY_SUMMARY_H
#define OSTREL_TOOLS_SUMMARY_SUMMARY_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "map/unmapped.h"
#include "summary/row.h"

namespace ostrel::tool {

struct CountedRow {
    SummaryRow row;
    bool is_others = false;  // the records have parameters that are not counted individually
    std::uint64_t count = 0;
};

// Summary stores at most kMostParameters parameters of each check, the first ones in byte order, and counts
// the records with any other parameters of the check together, even if such a parameter occurs again.
// Therefore, adding up the summaries of the parts of an input yields the summary of the whole input.
class Summary {
 public:
    static constexpr std::size_t kMostParameters = 1000;

    Summary();

    void add(const CountedRow& counted);
    void add_unreadable_files(std::uint64_t count) { unreadable_files_ += count; }

    // unmapped returns the counts that apply only to gateway dumps.
    [[nodiscard]] Unmapped& unmapped() { return unmapped_; }
    [[nodiscard]] const Unmapped& unmapped() const { return unmapped_; }

    [[nodiscard]] const Tally& tally() const { return tally_; }
    [[nodiscard]] std::uint64_t unreadable_files() const { return unreadable_files_; }

    // for_each visits the rows in the order of the catalogue, then by parameter, verdict, code and reason.
    void for_each(const std::function<void(const CountedRow&)>& visit) const;

 private:
    struct Kind {
        std::uint64_t count = 0;
        std::string example;
    };
    using Kinds = std::map<std::tuple<Verdict, int, std::string>, Kind>;
    struct OfCheck {
        std::map<std::string, Kinds, std::less<>> parameters;
        Kinds others;
    };

    static void add(Kinds& kinds, const SummaryRow& row, std::uint64_t count);

    std::vector<OfCheck> checks_;  // in the catalogue's order; the last one is for records without a check
    Tally tally_;
    Unmapped unmapped_;
    std::uint64_t unreadable_files_ = 0;
};

}  // namespace ostrel::tool

#endif

// Runs every row of the vectors in one process, with as little code around the calls as possible, and counts
// the rows whose result differs. Any finding of a tool, and any difference under a locale, is therefore the
// library's fault.
//
// usage: replay [LOCALE [BYTES]]
//
// LOCALE must be installed; the default is C. If BYTES is given, rows with longer strings are skipped.

#include <cctype>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <string>

#include "vectors/rows.h"

namespace {

using namespace ostrel;
using namespace ostrel::vectors;

// is_as_promised returns whether the row has the promised result, and prints both results if it does not.
bool is_as_promised(const Row& row, calling::Caller& caller, calling::Capture& capture)
{
    caller.load(*row.given.function, row.given.values);
    const CallResult expected = expected_result(row, caller.written());
    const CallResult actual = actual_result(caller, capture);
    if (actual == expected) return true;
    std::cerr << row.file.filename().string() << ':' << row.line << ": promised";
    PrintTo(expected, &std::cerr);
    std::cerr << "but was";
    PrintTo(actual, &std::cerr);
    return false;
}

}  // namespace

int main(int argc, char** argv)
{
    std::vector<Row> rows = read_cases();
    const std::size_t longest = argc > 2 ? std::stoul(argv[2]) : std::numeric_limits<std::size_t>::max();
    std::erase_if(rows, [longest](const Row& row) { return longest_text(row.given) > longest; });
    const char* locale = argc > 1 ? argv[1] : "C";
    if (std::setlocale(LC_ALL, locale) == nullptr) {
        std::cerr << "the locale " << locale << " is not known; LOCPATH holds the ones that the tests made\n";
        return 2;
    }
    std::size_t failures = 0;
    calling::Capture capture;
    calling::Caller at_end(calling::Edge::kEnd);
    calling::Caller at_begin(calling::Edge::kBegin);
    for (const Row& row : rows) {
        if (!is_as_promised(row, at_end, capture)) ++failures;
        if (!is_as_promised(row, at_begin, capture)) ++failures;
    }
    // A locale that changes nothing would prove nothing.
    std::cout << "locale " << locale << ": characters of up to " << MB_CUR_MAX << " bytes, decimal "
              << std::localeconv()->decimal_point << ", lower I is " << std::tolower('I') << "\n"
              << rows.size() << " rows, " << failures << " failures\n";
    return failures == 0 ? 0 : 1;
}

// Rows: the vectors, as examples of what a function answers, and what is known of it from elsewhere.
#ifndef OSTREL_CATALOGUE_ROWS_H
#define OSTREL_CATALOGUE_ROWS_H

#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

// Row is a call and what it leaves behind.
struct Row {
    std::vector<Value> values;
    int code = 0;
    std::string out;
    std::string err;
    std::vector<Value> after;  // empty: as before
};

// rows_of gives the function's rows. Those whose answer depends on the C library are left out.
std::vector<Row> rows_of(const Function& function);

// Oddity is a behaviour that is kept on purpose.
struct Oddity {
    std::string_view title;
    std::string text;
};

// oddities_of gives what docs/decisions.md has on the function.
std::vector<Oddity> oddities_of(const Function& function);

// condition_of gives the condition of that code which holds for these values, and what its test adds. The
// condition is NULL where the catalogue cannot tell.
struct Finding {
    const Code* condition = nullptr;
    std::string detail;
};

Finding condition_of(const Function& function, std::span<const Value> values, int code);

// lines_of gives what is printed for such rows: the library's messages, with the arguments' names in angle
// brackets where they stand. Each distinct text once; those that are nothing are left out, and so is a
// message that only repeats the one before it.
std::vector<std::string> lines_of(const Function& function, const std::vector<Row>& rows);

// messages_in cuts such a text behind each line end.
std::vector<std::string> messages_in(std::string_view text);

// unexplained_of gives the rows of which lines_of could make nothing.
std::vector<std::string> unexplained_of(const Function& function, const std::vector<Row>& rows);

}  // namespace ostrel::catalogue

#endif

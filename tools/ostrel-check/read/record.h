// Record: the content of one record of a file, in any format.
#ifndef OSTREL_TOOLS_READ_RECORD_H
#define OSTREL_TOOLS_READ_RECORD_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace ostrel::tool {

// Item is an argument, or a value from which one is made. text contains the bytes that are passed: characters are
// already encoded as the user chose, and base64 is decoded. Numbers and Booleans are texts with their tokens from the
// file.
struct Item {
    enum class Kind {
        kText,
        kNull,
        kTexts,  // the next count items are the texts of one argument
    };
    Kind kind = Kind::kText;
    std::string_view text;
    std::size_t count = 0;
};

// Member is a member or a column that no reader needs and that each result repeats.
struct Member {
    std::string_view name;   // in UTF-8, without escapes
    std::string_view value;  // a JSON token or a text, as in the file
    bool is_json = false;
};

// GatewayCounts counts what the dump of a gateway contains apart from judged values.
struct GatewayCounts {
    std::uint32_t parameters = 0;  // all of them
    std::uint32_t skipped = 0;     // because the map says that their values carry no information
    std::uint32_t repeated = 0;    // siblings that occurred again, whose earlier values are lost
};

// Record is reused. Its views refer to the reader and to the text that was read, and are valid until the next record
// is read.
struct Record {
    // Kind is what was found. Only a map finds anything but cases.
    enum class Kind {
        kCase,
        kUnmapped,    // a parameter that the map has no check for
        kGatewayEnd,  // all of a gateway has been read
    };
    Kind kind = Kind::kCase;
    std::uint64_t line = 0;  // where the record begins, counted from the beginning of its text
    std::string_view check;  // its name; empty if the record has none
    std::string_view path;   // of a parameter without a check
    GatewayCounts counts;    // at the end of a gateway
    std::uint64_t end = 0;   // likewise: the line where the next gateway begins
    std::vector<Item> items;
    std::vector<Member>
        members;               // "id" and "parameter" among them, in the order of the record, no name twice
    std::string_view problem;  // not empty: why there is no call
    std::string_view problem_id;        // id of the problem, if the record itself is not at fault
    std::string_view problem_argument;  // the argument that has no value
    std::string_view problem_path;      // the parameter that its value would come from
    bool may_have_spares = false;       // excess empty items mean nothing

    void clear()
    {
        kind = Kind::kCase;
        check = {};
        path = {};
        items.clear();
        members.clear();
        problem = problem_id = problem_argument = problem_path = {};
        may_have_spares = false;
    }

    // find returns the last member of that name, or NULL.
    [[nodiscard]] const Member* find(std::string_view name) const
    {
        const auto found = std::ranges::find(members.rbegin(), members.rend(), name, &Member::name);
        return found == members.rend() ? nullptr : &*found;
    }
};

}  // namespace ostrel::tool

#endif

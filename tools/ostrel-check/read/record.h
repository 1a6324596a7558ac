// The content of one record of a file in any format.
#ifndef OSTREL_TOOLS_READ_RECORD_H
#define OSTREL_TOOLS_READ_RECORD_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace ostrel::tool {

// Item is an argument, or a value from which one is made. text contains the bytes that are passed: characters
// are already in the encoding that the user chose, and base64 is decoded. For a number or a Boolean, text is
// the token in the file.
struct Item {
    enum class Kind {
        kText,
        kNull,
        kTexts,  // the next count items are the blocks of one argument
    };
    Kind kind = Kind::kText;
    std::string_view text;
    std::size_t count = 0;
};

// Member is a member or a column that the reader does not need, and that the result repeats.
struct Member {
    std::string_view name;   // in UTF-8, without escapes
    std::string_view value;  // JSON or plain text, as in the file
    bool is_json = false;
    bool has_plain_name = false;  // the name is known to need no escapes in JSON
};

// GatewayCounts counts what a gateway's dump contains apart from judged values.
struct GatewayCounts {
    std::uint32_t parameters = 0;  // all parameters
    std::uint32_t skipped = 0;     // those whose values carry no information, according to the map
    std::uint32_t repeated = 0;    // siblings that occurred again, so that their earlier values are lost
};

// Record is reused. Its views refer to the reader and to the entry that was read, and are valid until the
// next record is read.
struct Record {
    // Kind is the kind of record that was found. Without a map, every record is a case.
    enum class Kind {
        kCase,
        kUnmapped,    // a parameter that the map has no check for
        kGatewayEnd,  // a whole gateway has been read
    };
    Kind kind = Kind::kCase;
    std::uint64_t line = 0;  // where the record begins, counted from the beginning of its entry
    std::string_view check;  // the check's name, or empty if the record has none
    std::string_view path;   // the path of a parameter without a check
    GatewayCounts counts;    // at the end of a gateway
    std::uint64_t end = 0;   // at the end of a gateway, the line where the next one begins
    std::vector<Item> items;
    std::vector<Member> members;  // in the record's order, with unique names, including "id" and "parameter"
    std::string_view problem;     // if not empty, why there is no call
    std::string_view problem_id;  // id of the problem, if the record itself is correct
    std::string_view problem_argument;  // the argument that has no value
    std::string_view problem_path;      // the parameter that its value would come from
    std::string_view problem_found;     // the value that has no translation, if problem_allowed is not empty
    std::span<const std::string_view> problem_allowed;  // the values that have one
    bool may_have_spares = false;  // superfluous empty items at the end are to be ignored

    void clear()
    {
        kind = Kind::kCase;
        check = {};
        path = {};
        items.clear();
        members.clear();
        problem = problem_id = problem_argument = problem_path = problem_found = {};
        problem_allowed = {};
        may_have_spares = false;
    }

    // find returns the last member with the given name, or NULL.
    [[nodiscard]] const Member* find(std::string_view name) const
    {
        const auto found = std::ranges::find(members.rbegin(), members.rend(), name, &Member::name);
        return found == members.rend() ? nullptr : &*found;
    }
};

}  // namespace ostrel::tool

#endif

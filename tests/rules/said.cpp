#include "tests/rules/said.h"

#include <string_view>
#include <utility>

#include "rules/sets.h"

namespace ostrel::rules {

namespace {

using Texts = std::vector<std::string_view>;
using Numbers = std::vector<long long>;

Reason reason(std::string_view id, Datum found = {}, Datum allowed = {})
{
    Reason result;
    result.id = id;
    result.found = std::move(found);
    result.allowed = std::move(allowed);
    return result;
}

Reason at(std::size_t offset, Reason result)
{
    result.offset = offset;
    return result;
}

Reason read_as(long long number, Reason result)
{
    result.read_as = number;
    return result;
}

Reason limited(std::string_view limit, Reason result)
{
    result.limit = limit;
    return result;
}

Reason of(std::string_view part, Reason result)
{
    result.part = part;
    return result;
}

Reason item(std::size_t number, Reason result)
{
    result.item = number;
    return result;
}

Reason converted(std::string_view how, Reason result)
{
    result.conversion = how;
    return result;
}

std::vector<Expectation> of_numbers()
{
    return {
        {reason("a_multiple", 36, 18), "is 36; multiples of 18 are not allowed"},
        {read_as(36, reason("a_multiple", 36, 18)), "is read as 36; multiples of 18 are not allowed"},
        {reason("end_before_start", 8, 9),
         "is 8; it must be at least 9, the last octet of the start address"},
        {reason("equal", 7, 7), "is 7, which is not allowed"},
        {read_as(0, reason("equal", 0, 0)), "is read as 0, which is not allowed"},
        {reason("listed_by_driver", 6), "is 6, which the wireless driver lists"},
        {read_as(6, reason("listed_by_driver", 6)), "is read as 6, which the wireless driver lists"},
        {reason("no_channel_listed", 6), "is 6; the wireless driver lists no allowed channel"},
        {read_as(6, reason("no_channel_listed", 6)),
         "is read as 6; the wireless driver lists no allowed channel"},
        {reason("not_a_multiple", 17, 18), "is 17; a multiple of 18 is needed"},
        {read_as(0, reason("not_a_multiple", 0, 18)), "is read as 0; a multiple of 18 is needed"},
        {reason("not_equal", 7, 8), "is 7; 8 is expected"},
        {read_as(7, reason("not_equal", 7, 8)), "is read as 7; 8 is expected"},
        {reason("not_listed_by_driver", 7, Numbers{6}),
         "is 7; of the channels that the wireless driver lists, 6 is allowed"},
        {read_as(7, reason("not_listed_by_driver", 7, Numbers{1, 6})),
         "is read as 7; of the channels that the wireless driver lists, 1, 6 are allowed"},
        {read_as(-1, reason("number_beyond_int", "4294967295", 1)),
         "contains the number 4294967295, which does not fit in an int; this gateway reads it as -1"},
        {limited("number_too_low", read_as(-1, reason("number_beyond_int", "4294967295", 1))),
         "contains the number 4294967295, which does not fit in an int; this gateway reads it as -1; at "
         "least 1 "
         "is "
         "needed"},
        {reason("number_forbidden", 80, Numbers{80, 161}), "is 80; 80, 161 are not allowed"},
        {reason("number_forbidden", 80, Numbers{80}), "is 80; 80 is not allowed"},
        {read_as(80, reason("number_forbidden", 80, Numbers{80, 161})),
         "is read as 80; 80, 161 are not allowed"},
        {reason("number_in_range", 54001, Numbers{54000, 54999}),
         "is 54001; numbers from 54000 to 54999 are not allowed"},
        {read_as(54001, reason("number_in_range", 54001, Numbers{54000, 54999})),
         "is read as 54001; numbers from 54000 to 54999 are not allowed"},
        {reason("number_not_allowed", 3, Numbers{0}), "is 3; only 0 is allowed"},
        {read_as(3, reason("number_not_allowed", 3, Numbers{0, 1})), "is read as 3; only 0, 1 are allowed"},
        {reason("number_out_of_range", 4, Numbers{0, 3}), "is 4; the allowed range is 0 to 3"},
        {read_as(4, reason("number_out_of_range", 4, Numbers{0, 3})),
         "is read as 4; the allowed range is 0 to 3"},
        {reason("number_too_high", 256, 255), "is 256; at most 255 is allowed"},
        {read_as(256, reason("number_too_high", 256, 255)), "is read as 256; at most 255 is allowed"},
        {reason("number_too_low", -2, -1), "is -2; at least -1 is needed"},
        {read_as(0, reason("number_too_low", 0, 1)), "is read as 0; at least 1 is needed"},
    };
}

std::vector<Expectation> of_lengths_and_counts()
{
    return {
        {reason("another_length", 1, 10), "has 1 byte; the earlier items have 10"},
        {reason("another_length", 26, 10), "has 26 bytes; the earlier items have 10"},
        {reason("empty", 0), "is empty"},
        {reason("empty_as_listed"), "is empty, and the list already has an empty entry"},
        {reason("forbidden_length", 1, Numbers{1}), "has 1 byte, which is not allowed"},
        {reason("forbidden_length", 5, Numbers{5}), "has 5 bytes, which is not allowed"},
        {reason("list_full", 160, 159), "needs 160 bytes together with the list; at most 159 are allowed"},
        {reason("not_empty", 3), "is not empty, but must be empty"},
        {reason("only_other_set", 0), "is empty, but the other value is not"},
        {reason("too_long", 1, 0), "has 1 byte; at most 0 are allowed"},
        {reason("too_long", 2, 1), "has 2 bytes; at most 1 is allowed"},
        {reason("too_long", 34, 32), "has 34 bytes; at most 32 are allowed"},
        {reason("too_many_items", 2, 1), "has 2 items; at most 1 is allowed"},
        {reason("too_many_items", 3, 2), "has 3 items; at most 2 are allowed"},
        {reason("too_many_labels", 7, 6), "has 7 labels; at most 6 are allowed"},
        {reason("too_short", 0, 1), "has 0 bytes; at least 1 is needed"},
        {reason("too_short", 1, 4), "has 1 byte; at least 4 are needed"},
        {reason("wrong_item_count", 1, Numbers{4}), "has 1 part; 4 are needed"},
        {reason("wrong_item_count", 3, Numbers{4}), "has 3 parts; 4 are needed"},
        {reason("wrong_length", 1, Numbers{64}), "has 1 byte; 64 are needed"},
        {reason("wrong_length", 12, Numbers{10, 26}), "has 12 bytes; one of 10, 26 is needed"},
    };
}

std::vector<Expectation> of_bytes()
{
    return {
        {at(21, reason("colon_in_path")),
         "has a \":\" in the path that begins at byte 22; this is allowed only after a port"},
        {at(3, reason("contains", "ab", "ab")), "\"ab\" at byte 4 is not allowed"},
        {at(1, reason("group_address", "1", Set("02"))),
         "byte 2 is \"1\", which makes this a group address; 0 2 are allowed there"},
        {at(2, reason("incomplete", "", kDigits)), "ends before byte 3, where digits are expected"},
        {at(10, reason("incomplete", "", Set("T"))), "ends before byte 11, where \"T\" is expected"},
        {at(0, reason("not_in_set", "#", kDigits)), "byte 1 is \"#\"; digits are allowed"},
        {at(5, reason("not_in_set", "\x9F", kBlank)), "byte 6 is \\x9F; a space is allowed"},
        {at(5, reason("not_in_set", " ", kNameSet)),
         "byte 6 is a space; letters, digits and - . _ are allowed"},
        {reason("numeric_name"), "contains only digits and dots; a letter or \"-\" is needed"},
        {reason("only_of_set", "12", kDigits), "contains only digits; at least one other byte is needed"},
        {at(19, reason("too_much", "x", Set())), "continues at byte 20, where it must end"},
        {at(4, reason("wrong_shape", "/", Set("-"))), "byte 5 is \"/\"; \"-\" is expected there"},
        {at(0, reason("wrong_shape", "x", kDigits)), "byte 1 is \"x\"; digits are expected there"},
        {at(19, reason("wrong_shape_or_end", "Z", Set("+-"))),
         "byte 20 is \"Z\"; + - or the end is expected there"},
    };
}

std::vector<Expectation> of_words()
{
    return {
        {reason("equal", "a", "a"), "is \"a\", which is not allowed"},
        {reason("forbidden_keyword", "Normal", Texts{"Normal", "Other"}),
         "is \"Normal\"; Normal, Other are not allowed"},
        {reason("forbidden_keyword", "Normal", Texts{"Normal"}), "is \"Normal\"; Normal is not allowed"},
        {reason("forbidden_prefix", "0.0.0.0", Texts{"0.0"}), "begins with 0.0, which is not allowed"},
        {reason("forbidden_prefix", "abc", Texts{"a", "b"}), "begins with one of a, b, which is not allowed"},
        {reason("forbidden_suffix", "ab", "b"), "ends with \"b\", which is not allowed"},
        {reason("in_table", "1"), "is \"1\", which is not allowed"},
        {reason("lacks", "@", "@"), "does not contain \"@\""},
        {reason("not_a_keyword", "x", Texts{"Static"}), "is not Static"},
        {reason("not_a_keyword", "x", Texts{"None", "1,2", ""}), "is not one of None, \"1,2\", \"\""},
        {reason("not_equal", "a", "b"), "is \"a\"; \"b\" is expected"},
        {reason("not_in_table", "x", Texts{"1"}), "\"x\" matches no known entry"},
        {reason("not_of_offset", "Lima", Texts{"Alaska"}),
         "does not occur in any name for this offset: Alaska"},
        {reason("not_part_of_any", "x", Texts{"La Paz", "Lima"}),
         "does not occur in any of \"La Paz\", Lima"},
        {reason("wrong_prefix", "x", Texts{"UTC"}), "does not begin with UTC"},
        {reason("wrong_prefix", "x", Texts{"http://", "https://"}),
         "does not begin with any of http://, https://"},
        {reason("wrong_suffix", "x", "b"), "does not end with \"b\""},
    };
}

std::vector<Expectation> of_forms_and_lists()
{
    return {
        {reason("accepted"), "has a form that is not allowed here"},
        {reason("already_listed", "1.1.1.1"), "is \"1.1.1.1\", which is already in the list"},
        {reason("another_subnet", "10.0.0.", "192.168.1."),
         "does not begin with \"192.168.1.\", the prefix of the subnet"},
        {reason("first_server"), "is the first server, which cannot be deleted"},
        {reason("forbidden_form", "1.2.3.4", "an IPv4 address"),
         "is an IPv4 address, which is not allowed here"},
        {reason("forbidden_shape"), "has a form that is not allowed here"},
        {reason("last_item"), "is the last item"},
        {reason("driver_asked"), "depends on the wireless driver, whose channel list is not known here"},
        {reason("never_returns"), "is a value for which the check does not return"},
        {reason("null_asserted"), "is NULL, which fails an assertion in the check"},
        {reason("null_read"), "is NULL, but the check reads it"},
        {reason("too_much_work"), "the values are too long to work out a reason"},
        {reason("neither_server"), "is not one of the current servers"},
        {reason("no_key_left"), "contains no printable, non-empty key"},
        {reason("not_listed", "1.1.1.1"), "is \"1.1.1.1\", which is not in the list"},
        {reason("not_null"), "is not NULL, but must be NULL"},
        {reason("null"), "is NULL"},
        {reason("pass_phrase_alone"),
         "is given without a pre-shared key; a pass phrase alone is not accepted"},
        {reason("repeated_item", "1.1.1.1"), "is \"1.1.1.1\", which occurs again later in the list"},
    };
}

// of_places returns the sentences for a part, for an item, and for a converted value.
std::vector<Expectation> of_places()
{
    return {
        {of("octet 3", reason("number_too_high", 256, 255)), "octet 3 is 256; at most 255 is allowed"},
        {at(8, of("the host", reason("not_in_set", "_", kDigits))),
         "in the host, byte 9 is \"_\"; digits are allowed"},
        {item(1, reason("too_short", 2, 7)), "has 2 bytes; at least 7 are needed"},
        {item(1, at(8, reason("not_in_set", "x", kDigits))), "byte 9 is \"x\"; digits are allowed"},
        {item(1, of("octet 2", reason("empty", 0))), "octet 2 is empty"},
        {converted("rewritten", reason("too_long", 33, 32)),
         "has 33 bytes; at most 32 are allowed (rewritten)"},
        {reason("unknown"), ""},
    };
}

}  // namespace

const std::vector<Expectation>& all_said()
{
    static const std::vector<Expectation> all = [] {
        std::vector<Expectation> result;
        for (auto* const part :
             {of_numbers, of_lengths_and_counts, of_bytes, of_words, of_forms_and_lists, of_places}) {
            const std::vector<Expectation> said = part();
            result.insert(result.end(), said.begin(), said.end());
        }
        return result;
    }();
    return all;
}

}  // namespace ostrel::rules

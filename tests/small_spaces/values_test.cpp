// Tests every single byte at each position in values of every check, and every value in small spaces of
// date-times, time zones, character references, account names, channels and keys.

#include <set>
#include <string>
#include <tuple>

#include "rules/walk.h"
#include "src/time_zone_table.h"
#include "tests/small_spaces/spaces.h"
#include "tests/support/reference_names.h"
#include "vectors/rows.h"

namespace ostrel::tests {

using catalogue::Function;
using rules::Value;
using vectors::Row;

TEST_F(SmallSpaces, EveryByteInEveryPlaceOfATextOfEveryCheck)
{
    std::set<std::tuple<const Function*, std::size_t, int>> tried;
    for (const Row& row : vectors::read_cases()) {
        const Function& function = *row.given.function;
        const std::vector<Value> values = catalogue::completed(function, row.given.values);
        const int code = row.promise.result.code;
        if (rules::asks_driver(*function.check)) continue;
        for (std::size_t argument = 0; argument < values.size(); ++argument) {
            const auto* text = std::get_if<std::string>(&values[argument]);
            if (text == nullptr || text->empty() || text->size() > 24) continue;
            if (!tried.emplace(&function, argument, code).second) continue;
            for (std::size_t place = 0; place <= text->size(); ++place) {
                std::vector<Value> changed = values;
                changed[argument] = text->substr(0, place);
                expect(function, changed);
                for (int byte = 1; byte <= 255 && place < text->size(); ++byte) {
                    changed[argument] = *text;
                    std::get<std::string>(changed[argument])[place] = static_cast<char>(byte);
                    expect(function, changed);
                }
            }
        }
    }
}

TEST_F(SmallSpaces, DateTimes)
{
    Texts texts;
    for (const std::string text : {"20120229T23:59:59", "2012-02-29T23:59:59", "2012-02-29T23:59:59+12:34",
                                   "0229T23:59:59", "02-29T23:59:59", "+12:59", "-00:00"}) {
        for (std::size_t i = 0; i <= text.size(); ++i) {
            for (int byte = 1; byte <= 255; ++byte)
                texts.push_back(text.substr(0, i) + static_cast<char>(byte) + text.substr(i));
            for (const std::string& digits : texts_of("0123456789", 2)) {
                if (i + digits.size() <= text.size())
                    texts.push_back(text.substr(0, i) + digits + text.substr(i + digits.size()));
            }
        }
    }
    expect_each({"TcmValidateTime", "TcmValidateDaylightSavingsTime", "TcmValidateTimeZoneFormate"}, texts);
}

TEST_F(SmallSpaces, TimeZones)
{
    const Function& function = *catalogue::find("Time_validate_tzone_and_tzone_name");
    std::string table;
    for (const auto& row : rules::tables(*function.check).front()->rows) {
        const std::string offset(row.at(0));
        const std::string name(row.at(1));
        table += offset + '\0' + name + '\0';
        for (std::size_t begin = 0; begin < offset.size(); ++begin) {
            for (std::size_t size = 1; begin + size <= offset.size(); ++size)
                expect(function, {offset.substr(begin, size), ""});
        }
        expect(function, {"", name});
        expect(function, {offset, name});
        for (int byte = 1; byte <= 255; ++byte) {
            const std::string more(1, static_cast<char>(byte));
            expect(function, {offset, name + more});
            expect(function, {offset, more + name});
            expect(function, {offset + more, name});
        }
    }
    EXPECT_EQ(table, std::string(kTimeZones, sizeof kTimeZones - 1)) << "each row verbatim and in order";
}

// Tests names and near misses, numbers in each form, and pieces of references in every order.
TEST_F(SmallSpaces, CharacterReferences)
{
    Texts texts = {"&amp;lt;", "&amp;amp;", "&#38;#65;", "&#x26;lt&#59;"};  // results are not converted again
    for (const auto& [name, byte] : reference_names()) {
        const std::string reference = "&" + name + ";";
        for (const std::string& text :
             {reference, "a" + reference + "b", reference + reference, "&" + name, "&" + name + " ;",
              "& " + name + ";", "&" + name + "x;", name + ";", "&" + name.substr(1) + ";",
              "&" + name.substr(0, name.size() - 1) + ";"})
            texts.push_back(text);
        for (std::size_t i = 1; i <= name.size(); ++i) {
            for (int other = 1; other < 256; ++other) {
                texts.push_back(reference);
                texts.back()[i] = static_cast<char>(other);
            }
        }
    }
    Texts numbers = {"4294967361", "18446744073709551681", "100000041", "10000000000000041",
                     std::string(1000, '0')};
    for (int number = -1; number <= 300; ++number) numbers.push_back(std::to_string(number));
    for (const char* digits : {"a", "F", "1a", "fF", "100", "20AC", "65535", "99999999", "ffffffff", "g"})
        numbers.emplace_back(digits);
    for (const std::string& number : numbers) {
        for (const char* form : {"&#", "&#0000", "&#x", "&#X", "&#x000"}) {
            for (const char* end : {";", "", " ", "g;"}) texts.push_back(form + number + end);
        }
    }
    const Texts pieces = {"&", "#", "x", ";", "0", "65", "F", "amp", "ETH", "yuml", "\xE9"};
    for (const std::string& text : texts_of(pieces, 4)) texts.push_back("&" + text);
    expect_each({"WLAN_check_ssid"}, texts);
}

TEST_F(SmallSpaces, AccountNames)
{
    std::set<std::string> locals;
    for (std::size_t length = 1; length <= 33; ++length) {
        for (std::size_t a = 0; a <= length; ++a) {
            for (std::size_t b = a; b <= length; ++b) {
                for (std::size_t c = b; c <= length; ++c) {
                    std::string local(length + 1, '7');
                    local[a] = local[b] = local[c] = '#';
                    locals.insert(local.substr(0, length));
                }
            }
        }
    }
    for (const std::string& local : locals) {
        for (const char* realm : {"", "@example.net", "@setup.example.net"})
            expect("TcmValidatePPPUsername", {local + realm, 77LL});
    }
}

TEST_F(SmallSpaces, Channels)
{
    for (int channel = -300; channel <= 300; ++channel)
        expect("WLAN_check_channel", {std::to_string(channel), "RADIO_5GHz"});
    for (int primary = -2; primary <= 200; ++primary) {
        for (int second = -2; second <= 200; ++second) {
            expect("WLAN_check_second_channel", {std::to_string(primary), std::to_string(second)});
            expect("WLAN_check_5g_second_channel", {std::to_string(primary), std::to_string(second)});
        }
    }
}

TEST_F(SmallSpaces, WepKeys)
{
    const std::string key = "0123456789";
    for (std::size_t place = 0; place < key.size(); ++place) {
        for (int byte = 1; byte <= 255; ++byte) {
            std::string changed = key;
            changed[place] = static_cast<char>(byte);
            expect("WLAN_check_wepkeys", {Texts{key, changed, key, key}});
        }
    }
    for (std::size_t first = 1; first <= 256; ++first) {
        for (const std::size_t other : {std::size_t{0}, std::size_t{10}, std::size_t{26}, first})
            expect("WLAN_check_wepkeys",
                   {Texts{std::string(first, 'a'), "", std::string(other, 'a'), std::string(first, 'b')}});
    }
}

}  // namespace ostrel::tests

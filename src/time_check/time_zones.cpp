#include "time_check/time_zones.h"

#include <ostrel/result_code.h>

#include <cstring>

#include "support/report.h"
#include "support/text.h"

namespace ostrel {

namespace {

// The table is one text: a row is an offset and a name, each with its terminator, and an empty row ends it.
// The rows and their order are contract, the spelling of the names and of the zero offset included.
constexpr char kTimeZones[] =
    // clang-format off
    "-12:00\0International Date Line West\0"
    "-11:00\0Midway Island, Samoa\0"
    "-10:00\0Hawaii\0"
    "-09:00\0Alaska\0"
    "-08:00\0Pacific Time, Tijuana\0"
    "-07:00\0Arizona, Mazatlan\0"
    "-07:00\0Chihuahua, La Paz\0"
    "-07:00\0Mountain Time\0"
    "-06:00\0Central America\0"
    "-06:00\0Central Time\0"
    "-06:00\0Guadalajara, Mexico City, Monterrey\0"
    "-06:00\0Saskatchewan\0"
    "-05:00\0Bogota, Lima, Quito\0"
    "-05:00\0Eastern Time\0"
    "-05:00\0Indiana\0"
    "-04:00\0Atlantic Time\0"
    "-04:00\0Caracas, La Paz\0"
    "-04:00\0Santiago\0"
    "-03:30\0Newfoundland\0"
    "-03:00\0Brasilia\0"
    "-03:00\0Buenos Aires, Georgetown\0"
    "-03:00\0Greenland\0"
    "-02:00\0Mid-Atlantic\0"
    "-01:00\0Azores\0"
    "-01:00\0Cape Verde Is.\0"
    "-00:00\0Casablanca, Monrovia\0"
    "-00:00\0Greenwich Mean Time: Dublin, Edinburgh, Lisbon, London\0"
    "+01:00\0Amsterdam, Berlin, Bern, Rome, Stockholm, Vienna\0"
    "+01:00\0Belgrade, Bratislava, Budapest, Ljubljana, Prague\0"
    "+01:00\0Brussels, Copenhagen, Madrid, Paris\0"
    "+01:00\0Sarajevo, Skopje, Warsaw, Zagreb\0"
    "+01:00\0West Central Africa\0"
    "+02:00\0Athens, Istanbul, Minsk\0"
    "+02:00\0Bucharest\0"
    "+02:00\0Cairo\0"
    "+02:00\0Harare, Pretoria\0"
    "+02:00\0Helsinki, Kyiv, Riga, Sofia, Tallinn, Vilnius\0"
    "+02:00\0Jerusalem\0"
    "+03:00\0Baghdad\0"
    "+03:00\0Kuwait, Riyadh\0"
    "+03:00\0Moscow, St. Petersburg, Volgograd\0"
    "+03:00\0Nairobi\0"
    "+03:30\0Tehran\0"
    "+04:00\0Abu Dhabi, Muscat\0"
    "+04:00\0Baku, Tbilisi, Yerevan\0"
    "+04:30\0Kabul\0"
    "+05:00\0Ekaterinburg\0"
    "+05:00\0Islamabad, Karachi, Tashkent\0"
    "+05:30\0Chennai, Kolkata, Mumbai, New Delhi\0"
    "+05:45\0Kathmandu\0"
    "+06:00\0Almaty, Novosibirsk\0"
    "+06:00\0Astana, Dhaka\0"
    "+06:00\0Sri Jayawardenepura\0"
    "+06:30\0Rangoon\0"
    "+07:00\0Bangkok, Hanoi, Jakarta\0"
    "+07:00\0Krasnoyarsk\0"
    "+08:00\0Beijing, Chongquing, Hong Kong, Urumqi\0"
    "+08:00\0Irkutsk, Ulaan Bataar\0"
    "+08:00\0Kuala Lumpur, Singapore\0"
    "+08:00\0Perth\0"
    "+08:00\0Taipei\0"
    "+09:00\0Osaka, Sapporo, Tokyo\0"
    "+09:00\0Seoul\0"
    "+09:00\0Yakutsk\0"
    "+09:30\0Adelaide\0"
    "+09:30\0Darwin\0"
    "+10:00\0Brisbane\0"
    "+10:00\0Canberra, Melbourne, Sydney\0"
    "+10:00\0Guam, Port Moresby\0"
    "+10:00\0Hobart\0"
    "+10:00\0Vladivostok\0"
    "+11:00\0Magadan\0"
    "+11:00\0Solomon Is., New Caledonia\0"
    "+12:00\0Auckland, Wellington\0"
    "+12:00\0Fiji, Kamchatka, Marshall Is.\0";
// clang-format on

constexpr std::size_t kOffsetSize = 7;  // of an offset and its terminator

// A row begins with its offset, so that a pointer to it is the offset's text.
const char* name_of(const char* row) { return row + kOffsetSize; }

const char* row_after(const char* row)
{
    const char* name = name_of(row);
    return name + std::strlen(name) + 1;
}

bool contains(const char* text, const char* part) { return std::strstr(text, part) != nullptr; }

}  // namespace

int get_tzone_name_by_tzone(const char* tzone, char* name_out)
{
    for (const char* row = kTimeZones; *row != '\0'; row = row_after(row)) {
        if (!contains(row, tzone)) continue;
        const char* name = name_of(row);
        std::memcpy(name_out, name, std::strlen(name) + 1);
        return OSTREL_VALID;
    }
    return refuse(OSTREL_WRONG_FORM, "Error in %s: Error Time Zone:%s\n\n", __func__, tzone);
}

int get_tzone_by_tzone_name(char* tzone_out, const char* name)
{
    for (const char* row = kTimeZones; *row != '\0'; row = row_after(row)) {
        if (!contains(name_of(row), name)) continue;
        std::memcpy(tzone_out, row, kOffsetSize);
        return OSTREL_VALID;
    }
    return refuse(OSTREL_WRONG_FORM, "Error in %s: Error Time Zone Name:%s\n\n", __func__, name);
}

int is_tzone_consistent_with_tz_name(const char* tzone, const char* name)
{
    for (const char* row = kTimeZones; *row != '\0'; row = row_after(row)) {
        if (equals(row, tzone) && contains(name_of(row), name)) return OSTREL_VALID;
    }
    return refuse(OSTREL_WRONG_FORM, "Error in %s: Time Zone:%s and Time Zone Name:%s is not consistent\n",
                  __func__, tzone, name);
}

}  // namespace ostrel

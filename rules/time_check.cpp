#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

namespace {

constexpr std::size_t kOffset = 0;
constexpr std::size_t kName = 1;

// The zero offset has a minus sign. If several rows have the same offset, the first one is used.
const Table& zones()
{
    static const Table kZones = {
        {"offset", "name"},
        {
            {"-12:00", "International Date Line West"},
            {"-11:00", "Midway Island, Samoa"},
            {"-10:00", "Hawaii"},
            {"-09:00", "Alaska"},
            {"-08:00", "Pacific Time, Tijuana"},
            {"-07:00", "Arizona, Mazatlan"},
            {"-07:00", "Chihuahua, La Paz"},
            {"-07:00", "Mountain Time"},
            {"-06:00", "Central America"},
            {"-06:00", "Central Time"},
            {"-06:00", "Guadalajara, Mexico City, Monterrey"},
            {"-06:00", "Saskatchewan"},
            {"-05:00", "Bogota, Lima, Quito"},
            {"-05:00", "Eastern Time"},
            {"-05:00", "Indiana"},
            {"-04:00", "Atlantic Time"},
            {"-04:00", "Caracas, La Paz"},
            {"-04:00", "Santiago"},
            {"-03:30", "Newfoundland"},
            {"-03:00", "Brasilia"},
            {"-03:00", "Buenos Aires, Georgetown"},
            {"-03:00", "Greenland"},
            {"-02:00", "Mid-Atlantic"},
            {"-01:00", "Azores"},
            {"-01:00", "Cape Verde Is."},
            {"-00:00", "Casablanca, Monrovia"},
            {"-00:00", "Greenwich Mean Time: Dublin, Edinburgh, Lisbon, London"},
            {"+01:00", "Amsterdam, Berlin, Bern, Rome, Stockholm, Vienna"},
            {"+01:00", "Belgrade, Bratislava, Budapest, Ljubljana, Prague"},
            {"+01:00", "Brussels, Copenhagen, Madrid, Paris"},
            {"+01:00", "Sarajevo, Skopje, Warsaw, Zagreb"},
            {"+01:00", "West Central Africa"},
            {"+02:00", "Athens, Istanbul, Minsk"},
            {"+02:00", "Bucharest"},
            {"+02:00", "Cairo"},
            {"+02:00", "Harare, Pretoria"},
            {"+02:00", "Helsinki, Kyiv, Riga, Sofia, Tallinn, Vilnius"},
            {"+02:00", "Jerusalem"},
            {"+03:00", "Baghdad"},
            {"+03:00", "Kuwait, Riyadh"},
            {"+03:00", "Moscow, St. Petersburg, Volgograd"},
            {"+03:00", "Nairobi"},
            {"+03:30", "Tehran"},
            {"+04:00", "Abu Dhabi, Muscat"},
            {"+04:00", "Baku, Tbilisi, Yerevan"},
            {"+04:30", "Kabul"},
            {"+05:00", "Ekaterinburg"},
            {"+05:00", "Islamabad, Karachi, Tashkent"},
            {"+05:30", "Chennai, Kolkata, Mumbai, New Delhi"},
            {"+05:45", "Kathmandu"},
            {"+06:00", "Almaty, Novosibirsk"},
            {"+06:00", "Astana, Dhaka"},
            {"+06:00", "Sri Jayawardenepura"},
            {"+06:30", "Rangoon"},
            {"+07:00", "Bangkok, Hanoi, Jakarta"},
            {"+07:00", "Krasnoyarsk"},
            {"+08:00", "Beijing, Chongquing, Hong Kong, Urumqi"},
            {"+08:00", "Irkutsk, Ulaan Bataar"},
            {"+08:00", "Kuala Lumpur, Singapore"},
            {"+08:00", "Perth"},
            {"+08:00", "Taipei"},
            {"+09:00", "Osaka, Sapporo, Tokyo"},
            {"+09:00", "Seoul"},
            {"+09:00", "Yakutsk"},
            {"+09:30", "Adelaide"},
            {"+09:30", "Darwin"},
            {"+10:00", "Brisbane"},
            {"+10:00", "Canberra, Melbourne, Sydney"},
            {"+10:00", "Guam, Port Moresby"},
            {"+10:00", "Hobart"},
            {"+10:00", "Vladivostok"},
            {"+11:00", "Magadan"},
            {"+11:00", "Solomon Is., New Caledonia"},
            {"+12:00", "Auckland, Wellington"},
            {"+12:00", "Fiji, Kamchatka, Marshall Is."},
        },
    };
    return kZones;
}

// The sizes of the longest offset and the longest name, including their terminators.
constexpr int kOffsetRoom = 7;
constexpr int kNameRoom = 55;

using Lines = std::vector<Line>;

// If one of the two values is empty, it is filled in from the other, which may be a substring of an offset or
// a name. If both are given, the offset must be complete.
Check zone_and_name()
{
    const Effects no_name =
        Lines{line("Error in get_tzone_name_by_tzone: Error Time Zone:<tzone>\n\n"),
              line("Error in Time_validate_tzone_and_tzone_name: NOT get timezone name from "
                   "timezone:<tzone>\n\n")};
    const Effects no_offset =
        Lines{line("Error in get_tzone_by_tzone_name: Error Time Zone Name:<tzone_name>\n\n"),
              line("Error in Time_validate_tzone_and_tzone_name: NOT get timezone from timezone "
                   "name:<tzone_name>\n\n")};
    const Effects disagree =
        Lines{line("Error in is_tzone_consistent_with_tz_name: Time Zone:<tzone> and Time Zone "
                   "Name:<tzone_name> is not consistent\n"),
              line("Error in Time_validate_tzone_and_tzone_name: Timezone:<tzone> and timezone "
                   "name:<tzone_name> aren't consistent\n")};
    const Match name_has = {kName, Match::How::kPart, "tzone_name"};
    const Match offset_has = {kOffset, Match::How::kPart, "tzone"};
    const Match offset_is = {kOffset, Match::How::kEqual, "tzone"};
    const auto unknown = [](std::string_view id, const std::vector<Match>& matches) {
        return because(id, not_(in_table(zones(), matches)));
    };
    return check(
        "Time_validate_tzone_and_tzone_name",
        {buffer("tzone", "the offset of the time zone")
             .needs(larger({kOffsetRoom, sum({length("tzone"), 1})})),
         buffer("tzone_name", "the name of the time zone")
             .needs(larger({kNameRoom, sum({length("tzone_name"), 1})}))},
        {when(empty("tzone_name"),
              {accept(empty("tzone")), refuse(402, unknown("not_part_of_any", {offset_has}), no_name),
               write("tzone_name", cell(kName))},
              {when(empty("tzone"),
                    {refuse(402, unknown("not_part_of_any", {name_has}), no_offset),
                     write("tzone", cell(kOffset))},
                    {refuse(402, unknown("not_a_keyword", {offset_is}), disagree),
                     refuse(402, unknown("not_of_offset", {name_has, offset_is}), disagree)})})});
}

Check both_or_none()
{
    const Effects message = line(
        "Error in TIME_check_sync_daylight_saving_time: DaylightSavingsStart :<start> and "
        "DaylightSavingsEnd :<end> should be set none or both\n");
    const auto only_other_set = [](const char* one, const char* other) {
        return because("only_other_set", all_of({not_empty(other), empty(one)}));
    };
    return check("TIME_check_sync_daylight_saving_time",
                 {text("start", "when daylight saving starts"), text("end", "when daylight saving ends")},
                 {refuse(600, only_other_set("start", "end"), message),
                  refuse(600, only_other_set("end", "start"), message)});
}

Line not_printable()
{
    return line("Error in TIME_check_ascii_string: <value> is not printable ascii string\n");
}

// A value that is empty or not printable is accepted, but a message is printed.
Check printable(std::string_view name, std::string_view what, Step refusal)
{
    const Condition is_refused = refused_by("PARAM_check_printable_ascii_string");
    return check(name, {text("value", what)},
                 {print(not_printable(), is_refused), accept(is_refused), std::move(refusal)});
}

}  // namespace

std::vector<Check> time_check()
{
    const Effects out_of_range =
        line("Error in TIME_check_ntpserver_length: <value> is out of range for the value of NTPServer\n");
    return {
        zone_and_name(),
        both_or_none(),
        printable(
            "TIME_check_local_time_zone", "the offset of the local time zone",
            refuse(402, refused_by("TcmValidateTimeZoneFormate"),
                   Lines{line("Error in check_timezone_formate: <value> is not validate timezone formate\n"),
                         line("Error in TIME_check_local_time_zone: Failed check local timezone.\n\n")})),
        printable("TIME_check_local_time_zone_name", "the name of the local time zone",
                  refuse(402, longer_than(63),
                         line("Error in TIME_check_local_time_zone_name: Failed check local timezone "
                              "name.\n\n"))),
        printable("TIME_check_daylight_saving_start_or_end", "when daylight saving starts or ends",
                  refuse(402, refused_by("TcmValidateDaylightSavingsTime"),
                         Lines{line("Error in check_daylight_saving_time: <value> is not validate daylight "
                                    "saving time\n"),
                               line("Error in TIME_check_daylight_saving_start_or_end: Failed check daylight "
                                    "saving time.\n\n")})),
        check("TIME_check_ntpserver_length", {text("value", "an NTP server")},
              {refuse(601, empty(), out_of_range), refuse(601, longer_than(64), out_of_range)}),
        check("TIME_check_url", {text("value", "the host of an NTP server")},
              {refuse(402, refused_by("ValidateURL"),
                      line("Error in TIME_check_url: <value> is not validate URL\n"))}),
        check("TIME_check_ascii_string", {text("value", "a printable string")},
              {refuse(-1, refused_by("PARAM_check_printable_ascii_string"), not_printable())}),
        check("TIME_check_NTP_server", {text("value", "the host of an NTP server")},
              {refuse(its_code(), refused_by("TIME_check_ntpserver_length")),
               refuse(its_code(), refused_by("TIME_check_url"))}),
    };
}

}  // namespace ostrel::rules

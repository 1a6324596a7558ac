#include <ostrel/character_sets.h>
#include <ostrel/time_check.h>

#include "catalogue/entry.h"

namespace ostrel::catalogue {

std::vector<Function> time_checks()
{
    return {
        check<Time_validate_tzone_and_tzone_name>(
            "Time_validate_tzone_and_tzone_name",
            {buffer("tzone", "an offset, in a buffer of 7 bytes; may be empty", 7)
                 .writes("when accepted and empty: the offset of the first row whose name holds tzone_name, "
                         "unless that is empty too"),
             buffer("tzone_name", "the name of a zone or a part of it, in a buffer of 55 bytes; may be empty",
                    55)
                 .writes("when accepted and empty: the name of the first row whose offset holds tzone, "
                         "unless that is empty too")},
            "an offset and a name of one row of the time-zone table; an empty one is filled in",
            {{402, "no row has the offset",
              when([](std::span<const Value> values) { return text_of(values, 1).empty(); })},
             {402, "no row has the name",
              when([](std::span<const Value> values) { return text_of(values, 0).empty(); })},
             {402, "no row has both the offset and the name", when([](std::span<const Value> values) {
                  return !text_of(values, 0).empty() && !text_of(values, 1).empty();
              })}}),
        check<TIME_check_sync_daylight_saving_time>(
            "TIME_check_sync_daylight_saving_time",
            {{"start", "when daylight saving starts; not examined"}, {"end", "when it ends; not examined"}},
            "both empty or neither",
            {{600, "the start is empty and the end is not", is_empty(0)},
             {600, "the end is empty and the start is not", is_empty(1)}}),
        check<TIME_check_local_time_zone>(
            "TIME_check_local_time_zone",
            {{"value", "an offset in hours and minutes, 6 bytes; may be empty"}},
            "a time-zone offset (TcmValidateTimeZoneFormate); the empty and the unprintable value are valid",
            {{402, "printable, and no offset", fails(zone_offset_fault)}}),
        check<TIME_check_local_time_zone_name>(
            "TIME_check_local_time_zone_name", {{"value", "the name of a zone, at most 63 bytes"}},
            "at most 63 characters; the empty and the unprintable value are valid",
            {{402, "printable, and longer than 63 characters"}}),
        check<TIME_check_daylight_saving_start_or_end>(
            "TIME_check_daylight_saving_start_or_end",
            {{"value", "a date-time, or 13 or 14 bytes without a year; may be empty"}},
            "a switch-over (TcmValidateDaylightSavingsTime); the empty and the unprintable value are valid",
            {{402, "printable, and no switch-over", fails(switch_over_fault)}}),
        check<TIME_check_ntpserver_length>(
            "TIME_check_ntpserver_length", {{"value", "a text, 1 to 64 bytes"}}, "1 to 64 bytes",
            {{601, "empty", is_empty()}, {601, "longer than 64 bytes", longer_than(64)}}),
        check<TIME_check_url>("TIME_check_url", {{"value", "a host name or an IPv4 address"}},
                              "a bare host (ValidateURL)", {{402, "no bare host", fails(host_fault)}}),
        check<TIME_check_ascii_string>(
            "TIME_check_ascii_string", {{"value", "a text, 1 byte or more"}},
            "one or more bytes, each of 0x20 to 0x7E",
            {{-1, "empty", is_empty()},
             {-1, "a byte that is not printable ASCII", outside(CHARSET_ASCII_PRINTABLE)}}),
        check<TIME_check_NTP_server>("TIME_check_NTP_server",
                                     {{"value", "a host name or an IPv4 address, 1 to 64 bytes"}},
                                     "a bare host (ValidateURL) of at most 64 characters",
                                     {{601, "empty", is_empty()},
                                      {601, "longer than 64 bytes", longer_than(64)},
                                      {402, "the length is right, and it is no host", fails(host_fault)}}),
    };
}

}  // namespace ostrel::catalogue

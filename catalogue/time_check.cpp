#include <ostrel/time_check.h>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

std::vector<Function> time_checks()
{
    return {
        check<Time_validate_tzone_and_tzone_name>(
            "Time_validate_tzone_and_tzone_name", {buffer("tzone", 7), buffer("tzone_name", 55)},
            "an offset and a name of one row of the time-zone table; an empty one is filled in",
            {{402, "no row has them both, or the one that is given"}}),
        check<TIME_check_sync_daylight_saving_time>("TIME_check_sync_daylight_saving_time", {"start", "end"},
                                                    "both empty or neither",
                                                    {{600, "one of the two is empty"}}),
        check<TIME_check_local_time_zone>(
            "TIME_check_local_time_zone", {"value"},
            "a time-zone offset (TcmValidateTimeZoneFormate); the empty and the unprintable value are valid",
            {{402, "printable, and no offset"}}),
        check<TIME_check_local_time_zone_name>(
            "TIME_check_local_time_zone_name", {"value"},
            "at most 63 characters; the empty and the unprintable value are valid",
            {{402, "printable, and longer than 63 characters"}}),
        check<TIME_check_daylight_saving_start_or_end>(
            "TIME_check_daylight_saving_start_or_end", {"value"},
            "a switch-over (TcmValidateDaylightSavingsTime); the empty and the unprintable value are valid",
            {{402, "printable, and no switch-over"}}),
        check<TIME_check_ntpserver_length>("TIME_check_ntpserver_length", {"value"}, "1 to 64 bytes",
                                           {{601, "empty, or longer than 64 bytes"}}),
        check<TIME_check_url>("TIME_check_url", {"value"}, "a bare host (ValidateURL)",
                              {{402, "any other value"}}),
        check<TIME_check_ascii_string>("TIME_check_ascii_string", {"value"},
                                       "one or more bytes, each of 0x20 to 0x7E",
                                       {{-1, "empty, or another byte"}}),
        check<TIME_check_NTP_server>(
            "TIME_check_NTP_server", {"value"}, "a bare host (ValidateURL) of at most 64 characters",
            {{601, "empty, or longer than 64 bytes"}, {402, "the length is right, and it is no host"}}),
    };
}

}  // namespace ostrel::catalogue

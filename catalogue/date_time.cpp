#include <ostrel/date_time.h>

#include "catalogue/entry.h"

namespace ostrel::catalogue {

std::vector<Function> date_time()
{
    return {
        check<ValidateDay>("ValidateDay",
                           {{"year", "the year, any number"},
                            {"month", "the month, 1 to 12"},
                            {"day", "the day of the month; there is no lower limit"}},
                           "a day that is not after the end of the month; 0 and below are valid",
                           {{-1, "the month is not 1 to 12", when([](std::span<const Value> values) {
                                 return number_of(values, 1) < 1 || number_of(values, 1) > 12;
                             })},
                            {-1, "the month has fewer days", when([](std::span<const Value> values) {
                                 return number_of(values, 1) >= 1 && number_of(values, 1) <= 12;
                             })}}),
        check<TcmValidateTime>(
            "TcmValidateTime", {{"value", "a date-time, 17, 19 or 25 bytes; years 1970 to 9999"}},
            "YYYYMMDDThh:mm:ss or YYYY-MM-DDThh:mm:ss, the latter also with an offset such as +01:00; from "
            "1970 on",
            {{-1, "no date-time", fails(date_time_fault)}}),
        check<TcmValidateDaylightSavingsTime>(
            "TcmValidateDaylightSavingsTime", {{"value", "a date-time, or 13 or 14 bytes without a year"}},
            "a date-time (TcmValidateTime), or MMDDThh:mm:ss or MM-DDThh:mm:ss",
            {{-1, "neither a date-time nor one without a year", fails(switch_over_fault)}}),
        check<TcmValidateTimeZoneFormate>("TcmValidateTimeZoneFormate",
                                          {{"value", "an offset in hours and minutes, 6 bytes"}},
                                          "a time-zone offset of -12:59 to +12:59: sign, two digits, :, two "
                                          "digits",
                                          {{-1, "no time-zone offset", fails(zone_offset_fault)}}),
    };
}

}  // namespace ostrel::catalogue

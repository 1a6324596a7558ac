#include <ostrel/date_time.h>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

std::vector<Function> date_time()
{
    return {
        check<ValidateDay>("ValidateDay", {"year", "month", "day"},
                           "a day that is not after the end of the month; 0 and below are valid",
                           {{-1, "the month is not 1 to 12, or has fewer days"}}),
        check<TcmValidateTime>(
            "TcmValidateTime", {"value"},
            "YYYYMMDDThh:mm:ss or YYYY-MM-DDThh:mm:ss, the latter also with an offset such as +01:00; from "
            "1970 on",
            {{-1, "another form, a year before 1970, or a field out of range"}}),
        check<TcmValidateDaylightSavingsTime>(
            "TcmValidateDaylightSavingsTime", {"value"},
            "a date-time (TcmValidateTime), or MMDDThh:mm:ss or MM-DDThh:mm:ss",
            {{-1, "another form, a year before 1970, or a field out of range"}}),
        check<TcmValidateTimeZoneFormate>("TcmValidateTimeZoneFormate", {"value"},
                                          "a time-zone offset of -12:59 to +12:59: sign, two digits, :, two "
                                          "digits",
                                          {{-1, "another form, or a field out of range"}}),
    };
}

}  // namespace ostrel::catalogue

#include <ostrel/character_sets.h>
#include <ostrel/mgtserver_check.h>

#include "catalogue/entry.h"

namespace ostrel::catalogue {

std::vector<Function> management()
{
    return {
        check<MGTSERVER_check_server_url>("MGTSERVER_check_server_url",
                                          {{"value_p", "a URL, at most 256 bytes"}},
                                          "the URL of a management server (TcmValidateServerURL)",
                                          {{402, "no URL of a management server", fails(server_url_fault)}}),
        check<MGTSERVER_check_firmware_url>("MGTSERVER_check_firmware_url",
                                            {{"value_p", "a URL, at most 256 bytes"}},
                                            "the URL of a firmware image (TcmValidatefirmwareURL)",
                                            {{402, "no URL of a firmware image", fails(firmware_url_fault)}}),
        check<MGTSERVER_check_server_password>("MGTSERVER_check_server_password",
                                               {{"value_p", "a password, at most 256 bytes"}},
                                               "at most 256 bytes", {{402, "longer than 256 bytes"}}),
        check<MGTSERVER_check_conn_request_username>(
            "MGTSERVER_check_conn_request_username", {{"value_p", "a user name, at most 256 bytes"}},
            "at most 256 bytes (MGTSERVER_check_server_password, which reports)",
            {{402, "longer than 256 bytes"}}),
        check<MGTSERVER_check_conn_request_password>(
            "MGTSERVER_check_conn_request_password", {{"value_p", "a password, at most 256 bytes"}},
            "at most 256 bytes (MGTSERVER_check_server_password, which reports)",
            {{402, "longer than 256 bytes"}}),
        check<MGTSERVER_check_periodic_inform>("MGTSERVER_check_periodic_inform",
                                               {{"value_p", "a truth value, 1 byte or more"}},
                                               "any value but the empty one", {{402, "empty"}}),
        check<MGTSERVER_check_periodic_inform_time>(
            "MGTSERVER_check_periodic_inform_time",
            {{"value_p", "a date-time, 17, 19 or 25 bytes; years 1970 to 9999"}},
            "a date-time (TcmValidateTime)", {{402, "no date-time", fails(date_time_fault)}}),
        check<MGTSERVER_check_periodic_inform_interval>(
            "MGTSERVER_check_periodic_inform_interval", {{"value_p", "seconds, 1 or more"}},
            "the leading number is above 0", {{402, "empty, no leading number, or 0 or below"}}),
    };
}

std::vector<Function> guest_access()
{
    return {
        check<GUESTACCESS_check_max_allowed_number>(
            "GUESTACCESS_check_max_allowed_number", {{"value", "a number, 1 to 99, 1 or 2 digits"}},
            "1 or 2 digits, not all of them 0",
            {{802, "the leading number is above 0, and the value is longer than 2 characters"},
             {803, "the leading number is above 0, and another character stands beside it",
              outside(CHARSET_DIGITS)},
             {402, "the leading number is not above 0, or there is none"}}),
        check<GUESTACCESS_check_password>(
            "GUESTACCESS_check_password", {{"value", "a password, 4 to 32 bytes"}},
            "4 to 32 letters and digits",
            {{801, "shorter than 4 characters"},
             {802, "longer than 32 characters"},
             {803, "a character that is neither letter nor digit", outside(CHARSET_ALNUM)}}),
    };
}

std::vector<Function> hnap()
{
    return {
        check<HNAPCORE_check_username>(
            "HNAPCORE_check_username", {{"value", "a user name, 1 to 16 bytes"}},
            "1 to 16 printable Latin-1 bytes",
            {{801, "empty"},
             {802, "longer than 16 bytes"},
             {803, "a byte that is not printable; 0xA0 is none", outside(CHARSET_LATIN1_PRINTABLE)}}),
        check<HNAPCORE_check_timezone>(
            "HNAPCORE_check_timezone",
            {{"value", "UTC and an offset of any length, which is not examined"},
             output(
                 "offset_out",
                 "a buffer of 7 bytes or more, and of as many as the value has behind UTC with a terminator",
                 7)
                 .writes("when accepted: what stands behind UTC, or +00:00, and a terminator")},
            "UTC in upper or lower case and anything behind it, which is the offset; none is +00:00",
            {{-1, "the value does not begin with UTC"}}),
        check<HNAPCORE_check_locale>("HNAPCORE_check_locale",
                                     {{"value",
                                       "a locale",
                                       {"en-us", "fr-ca", "fr-fr", "de-de", "es-es", "it-it", "nl-nl",
                                        "sv-se", "ar-sa", "pl-pl", "th-th"}}},
                                     "en-us, fr-ca, fr-fr, de-de, es-es, it-it, nl-nl, sv-se, ar-sa, pl-pl "
                                     "or th-th, in upper or lower case",
                                     {{-1, "any other value"}}),
    };
}

}  // namespace ostrel::catalogue

#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

namespace {

constexpr std::string_view kAssertion = "value_p != ((void *)0)";

std::vector<Check> management_server()
{
    return {
        check("MGTSERVER_check_server_url",
              {text("value_p", "the URL of the management server").asserts(kAssertion)},
              {refuse(402, refused_by("TcmValidateServerURL"),
                      line("Error in MGTSERVER_check_server_url: Error server url:<value_p>\n\n"))}),
        check("MGTSERVER_check_firmware_url",
              {text("value_p", "the URL of a firmware image").asserts(kAssertion)},
              {refuse(402, refused_by("TcmValidatefirmwareURL"),
                      line("Error in MGTSERVER_check_firmware_url: Error server url:<value_p>\n\n"))}),
        check("MGTSERVER_check_server_password",
              {text("value_p", "the password of the management server").secret().asserts(kAssertion)},
              {refuse(402, longer_than(256),
                      line("Error in MGTSERVER_check_server_password: Error password:<value_p>\n\n"))}),
        check("MGTSERVER_check_conn_request_username",
              {text("value_p", "the user name of a connection request")},
              {refuse(its_code(), refused_by("MGTSERVER_check_server_password"))}),
        check("MGTSERVER_check_conn_request_password",
              {text("value_p", "the password of a connection request").secret()},
              {refuse(its_code(), refused_by("MGTSERVER_check_server_password"))}),
        check("MGTSERVER_check_periodic_inform",
              {text("value_p", "whether the gateway reports periodically").asserts(kAssertion)},
              {refuse(402, empty(),
                      line("Error in MGTSERVER_check_periodic_inform: Error empty periodic inform\n\n"))}),
        check("MGTSERVER_check_periodic_inform_time",
              {text("value_p", "the date and time of a report").asserts(kAssertion)},
              {refuse(402, refused_by("TcmValidateTime"),
                      line("Error in MGTSERVER_check_periodic_inform_time: Error periodic inform "
                           "time:<value_p>\n\n"))}),
        check("MGTSERVER_check_periodic_inform_interval",
              {text("value_p", "the time between two reports").in("seconds").asserts(kAssertion)},
              {refuse(402, empty(),
                      line("Error in MGTSERVER_check_periodic_inform_interval: Invalite periodic inform "
                           "interval\n\n")),
               refuse(402, below(1),
                      line("Error in MGTSERVER_check_periodic_inform_interval: Invalite periodic inform "
                           "interval\n\n"))}),
    };
}

// What is malformed but above 0 prints the first line and answers for that; what is not above 0 answers for the
// number, whether it is malformed or not.
Check guests()
{
    const Condition is_malformed = refused_by("ValidateString", {1, 2, kDigits, "value"});
    return check(
        "GUESTACCESS_check_max_allowed_number", {text("value", "how many guests are allowed")},
        {print(line("Error in GUESTACCESS_check_max_allowed_number: Error max allowed number:<value>\n\n"),
               is_malformed),
         refuse(402, below(1),
                line("Error in GUESTACCESS_check_max_allowed_number: Error min allowed number:<value>\n\n")),
         refuse(its_code(), is_malformed)});
}

std::vector<Check> guest_access_and_hnap()
{
    return {
        guests(),
        check("GUESTACCESS_check_password", {text("value", "the password of the guests").secret()},
              {refuse(its_code(), refused_by("ValidateString", {4, 32, kAlnum, "value"}),
                      line("Error in GUESTACCESS_check_password: Error max allowed number:<value>\n\n"))}),
        check("HNAPCORE_check_username", {text("value", "the administrator's user name")},
              {refuse(its_code(), refused_by("ValidateString", {1, 16, kLatin1, "value"}),
                      line("Error in HNAPCORE_check_username: Error max allowed number:<value>\n\n"))}),
        check("HNAPCORE_check_timezone",
              {text("value", "\"UTC\" and the offset from it"),
               buffer("offset_out", "the offset").needs(larger({7, sum({length("value"), -2})})).output()},
              {refuse(-1, ignoring_case(not_(begins_with({"UTC"})))),
               when(length_is({3}), {write("offset_out", literal("+00:00"))},
                    {write("offset_out", slice("value", 3))})}),
        check("HNAPCORE_check_locale", {text("value", "the language of the user interface")},
              {refuse(-1, ignoring_case(none_of({"en-us", "fr-ca", "fr-fr", "de-de", "es-es", "it-it",
                                                 "nl-nl", "sv-se", "ar-sa", "pl-pl", "th-th"})))}),
    };
}

}  // namespace

std::vector<Check> management_checks()
{
    return joined_checks({management_server(), guest_access_and_hnap()});
}

}  // namespace ostrel::rules

#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

namespace {

constexpr std::string_view kAssertion = "value_p != ((void *)0)";

}  // namespace

std::vector<Check> mgtserver_check_management_server()
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
              {text("value_p", "the password for the management server").secret().asserts(kAssertion)},
              {refuse(402, longer_than(256),
                      line("Error in MGTSERVER_check_server_password: Error password:<value_p>\n\n"))}),
        check("MGTSERVER_check_conn_request_username",
              {text("value_p", "the user name for connection requests")},
              {refuse(its_code(), refused_by("MGTSERVER_check_server_password"))}),
        check("MGTSERVER_check_conn_request_password",
              {text("value_p", "the password for connection requests").secret()},
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
              {text("value_p", "the interval between reports").in("seconds").asserts(kAssertion)},
              {refuse(402, empty(),
                      line("Error in MGTSERVER_check_periodic_inform_interval: Invalite periodic inform "
                           "interval\n\n")),
               refuse(402, below(1),
                      line("Error in MGTSERVER_check_periodic_inform_interval: Invalite periodic inform "
                           "interval\n\n"))}),
    };
}

}  // namespace ostrel::rules

// The management server, guest access and HNAP.
#include <array>

#include "fuzz/model/rule.h"

namespace ostrel::model {

namespace {

Answer server_url(const std::string& value)
{
    const std::optional<bool> valid = rule::is_server_url(value);
    if (!valid) return undefined();
    if (*valid) return silent(0);
    return rule::refused(402, "MGTSERVER_check_server_url", "Error server url:" + value + "\n\n");
}

Answer firmware_url(const std::string& value)
{
    const std::optional<bool> valid = rule::is_firmware_url(value);
    if (!valid) return undefined();
    if (*valid) return silent(0);
    return rule::refused(402, "MGTSERVER_check_firmware_url", "Error server url:" + value + "\n\n");
}

// server_password judges the user name and password of connection requests too, under its own name.
Answer server_password(const std::string& value)
{
    if (value.size() <= 256) return silent(0);
    return rule::refused(402, "MGTSERVER_check_server_password", "Error password:" + value + "\n\n");
}

Answer periodic_inform(const std::string& value)
{
    if (!value.empty()) return silent(0);
    return rule::refused(402, "MGTSERVER_check_periodic_inform", "Error empty periodic inform\n\n");
}

Answer periodic_inform_time(const std::string& value)
{
    if (rule::is_date_time(value)) return silent(0);
    return rule::refused(402, "MGTSERVER_check_periodic_inform_time",
                         "Error periodic inform time:" + value + "\n\n");
}

Answer periodic_inform_interval(const std::string& value)
{
    const Number interval = read_number(value);
    if (interval.undefined) return undefined();
    if (interval.value > 0) return silent(0);
    return rule::refused(402, "MGTSERVER_check_periodic_inform_interval",
                         "Invalite periodic inform interval\n\n");
}

// max_allowed_number goes on after its first line, and keeps that line's code where the number is above 0.
Answer max_allowed_number(const std::string& value)
{
    const std::string name = "GUESTACCESS_check_max_allowed_number";
    const Number guests = read_number(value);
    if (guests.undefined) return undefined();
    Answer answer = silent(rule::length_and_set(1, 2, rule::kDigits, value));
    if (answer.code != 0) {
        answer = rule::refused(answer.code, name, "Error max allowed number:" + value + "\n\n");
    }
    if (guests.value > 0) return answer;
    return rule::followed(answer, rule::refused(402, name, "Error min allowed number:" + value + "\n\n"));
}

// guest_password and user_name borrow the line of a number.
Answer guest_password(const std::string& value)
{
    const int code = rule::length_and_set(4, 32, rule::kLettersAndDigits, value);
    if (code == 0) return silent(0);
    return rule::refused(code, "GUESTACCESS_check_password", "Error max allowed number:" + value + "\n\n");
}

Answer user_name(const std::string& value)
{
    const int code = rule::length_and_set(1, 16, rule::printable_latin1(), value);
    if (code == 0) return silent(0);
    return rule::refused(code, "HNAPCORE_check_username", "Error max allowed number:" + value + "\n\n");
}

// time_zone judges nothing behind "UTC", and does not look at the buffer where it refuses.
Answer time_zone(Arguments arguments)
{
    if (is_null(arguments[0])) return undefined();
    const std::string& value = text(arguments[0]);
    const bool begins = rule::equal_ignoring_case(value.substr(0, 3), "UTC");
    if (begins && is_null(arguments[1])) return undefined();
    Answer answer = silent(begins ? 0 : -1);
    if (!begins) {
        answer.after = {arguments[1]};
    } else if (value.size() == 3) {
        answer.after = {std::string("+00:00")};
    } else {
        answer.after = {value.substr(3)};
    }
    return answer;
}

Answer locale(const std::string& value)
{
    constexpr std::array kLocales = {"en-us", "fr-ca", "fr-fr", "de-de", "es-es", "it-it",
                                     "nl-nl", "sv-se", "ar-sa", "pl-pl", "th-th"};
    for (const char* known : kLocales) {
        if (rule::equal_ignoring_case(value, known)) return silent(0);
    }
    return silent(-1);
}

}  // namespace

void add_management(Models& models)
{
    models["MGTSERVER_check_server_url"] = on_text<server_url>;
    models["MGTSERVER_check_firmware_url"] = on_text<firmware_url>;
    models["MGTSERVER_check_server_password"] = on_text<server_password>;
    models["MGTSERVER_check_conn_request_username"] = on_text<server_password>;
    models["MGTSERVER_check_conn_request_password"] = on_text<server_password>;
    models["MGTSERVER_check_periodic_inform"] = on_text<periodic_inform>;
    models["MGTSERVER_check_periodic_inform_time"] = on_text<periodic_inform_time>;
    models["MGTSERVER_check_periodic_inform_interval"] = on_text<periodic_inform_interval>;
    models["GUESTACCESS_check_max_allowed_number"] = on_text<max_allowed_number>;
    models["GUESTACCESS_check_password"] = on_text<guest_password>;
    models["HNAPCORE_check_username"] = on_text<user_name>;
    models["HNAPCORE_check_timezone"] = time_zone;
    models["HNAPCORE_check_locale"] = on_text<locale>;
}

}  // namespace ostrel::model

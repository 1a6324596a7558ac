// The time service.
#include "fuzz/model/rule.h"
#include "fuzz/model/zones.h"

namespace ostrel::model {

namespace {

// holds: the part is anywhere in the whole; the empty part is everywhere.
bool holds(std::string_view whole, const std::string& part)
{
    return whole.find(part) != std::string_view::npos;
}

const Zone* zone_with_offset_part(const std::string& part)
{
    for (const Zone& zone : kZones) {
        if (holds(zone.offset, part)) return &zone;
    }
    return nullptr;
}

const Zone* zone_with_name_part(const std::string& part)
{
    for (const Zone& zone : kZones) {
        if (holds(zone.name, part)) return &zone;
    }
    return nullptr;
}

bool agree(const std::string& offset, const std::string& name)
{
    for (const Zone& zone : kZones) {
        if (zone.offset == offset && holds(zone.name, name)) return true;
    }
    return false;
}

// zone_of fills in the one that is empty. A lookup that fails reports before the check does.
Answer zone_of(std::string& offset, std::string& name)
{
    const std::string check = "Time_validate_tzone_and_tzone_name";
    if (offset.empty() && name.empty()) return silent(0);
    if (name.empty()) {
        if (const Zone* zone = zone_with_offset_part(offset)) {
            name = zone->name;
            return silent(0);
        }
        return rule::followed(
            rule::refused(600, "get_tzone_name_by_tzone", "Error Time Zone:" + offset + "\n\n"),
            rule::refused(402, check, "NOT get timezone name from timezone:" + offset + "\n\n"));
    }
    if (offset.empty()) {
        if (const Zone* zone = zone_with_name_part(name)) {
            offset = zone->offset;
            return silent(0);
        }
        return rule::followed(
            rule::refused(600, "get_tzone_by_tzone_name", "Error Time Zone Name:" + name + "\n\n"),
            rule::refused(402, check, "NOT get timezone from timezone name:" + name + "\n\n"));
    }
    if (agree(offset, name)) return silent(0);
    return rule::followed(
        rule::refused(600, "is_tzone_consistent_with_tz_name",
                      "Time Zone:" + offset + " and Time Zone Name:" + name + " is not consistent\n"),
        rule::refused(402, check,
                      "Timezone:" + offset + " and timezone name:" + name + " aren't consistent\n"));
}

Answer zone(Arguments arguments)
{
    if (is_null(arguments[0]) || is_null(arguments[1])) return undefined();
    std::string offset = text(arguments[0]);
    std::string name = text(arguments[1]);
    Answer answer = zone_of(offset, name);
    answer.after = {offset, name};
    return answer;
}

Answer sync_daylight_saving(const std::string& start, const std::string& end)
{
    if (start.empty() == end.empty()) return silent(0);
    return rule::refused(600, "TIME_check_sync_daylight_saving_time",
                         "DaylightSavingsStart :" + start + " and DaylightSavingsEnd :" + end +
                             " should be set none or both\n");
}

Answer ascii_string(const std::string& value)
{
    if (!value.empty() && value.find_first_not_of(rule::printable_ascii()) == std::string::npos) {
        return silent(0);
    }
    return rule::refused(-1, "TIME_check_ascii_string", value + " is not printable ascii string\n");
}

// passed_through is the answer for what is empty or not printable: valid, and reported all the same.
std::optional<Answer> passed_through(const std::string& value)
{
    Answer answer = ascii_string(value);
    if (answer.code == 0) return std::nullopt;
    answer.code = 0;
    return answer;
}

Answer local_time_zone(const std::string& value)
{
    if (const auto answer = passed_through(value)) return *answer;
    if (rule::is_zone_offset(value)) return silent(0);
    return rule::followed(
        rule::refused(-1, "check_timezone_formate", value + " is not validate timezone formate\n"),
        rule::refused(402, "TIME_check_local_time_zone", "Failed check local timezone.\n\n"));
}

Answer local_time_zone_name(const std::string& value)
{
    if (const auto answer = passed_through(value)) return *answer;
    if (value.size() <= 63) return silent(0);
    return rule::refused(402, "TIME_check_local_time_zone_name", "Failed check local timezone name.\n\n");
}

Answer daylight_saving(const std::string& value)
{
    if (const auto answer = passed_through(value)) return *answer;
    if (rule::is_switch_over(value)) return silent(0);
    return rule::followed(
        rule::refused(-1, "check_daylight_saving_time", value + " is not validate daylight saving time\n"),
        rule::refused(402, "TIME_check_daylight_saving_start_or_end",
                      "Failed check daylight saving time.\n\n"));
}

Answer server_length(const std::string& value)
{
    if (!value.empty() && value.size() <= 64) return silent(0);
    return rule::refused(601, "TIME_check_ntpserver_length",
                         value + " is out of range for the value of NTPServer\n");
}

Answer url(const std::string& value)
{
    if (rule::is_host(value)) return silent(0);
    return rule::refused(402, "TIME_check_url", value + " is not validate URL\n");
}

Answer ntp_server(const std::string& value)
{
    const Answer length = server_length(value);
    return length.code != 0 ? length : url(value);
}

}  // namespace

void add_time(Models& models)
{
    models["Time_validate_tzone_and_tzone_name"] = zone;
    models["TIME_check_sync_daylight_saving_time"] = on_texts<sync_daylight_saving>;
    models["TIME_check_local_time_zone"] = on_text<local_time_zone>;
    models["TIME_check_local_time_zone_name"] = on_text<local_time_zone_name>;
    models["TIME_check_daylight_saving_start_or_end"] = on_text<daylight_saving>;
    models["TIME_check_ntpserver_length"] = on_text<server_length>;
    models["TIME_check_url"] = on_text<url>;
    models["TIME_check_ascii_string"] = on_text<ascii_string>;
    models["TIME_check_NTP_server"] = on_text<ntp_server>;
}

}  // namespace ostrel::model

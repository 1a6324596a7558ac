// The portal's branding.
#include "fuzz/model/rule.h"

namespace ostrel::model {

namespace {

// below refuses a text that is not shorter than limit bytes, with a line that says the reverse.
Answer below(std::size_t limit, const std::string& name, const std::string& value)
{
    if (value.size() < limit) return silent(0);
    return rule::refused(
        802, name,
        "The length of string :" + value + " shoud not be less than " + std::to_string(limit) + "\n");
}

Answer isp_name(const std::string& value) { return below(32, "Param_check_ispname_value", value); }
Answer help_desk(const std::string& value) { return below(64, "Param_check_helpdesk_value", value); }
Answer page(const std::string& value) { return below(256, "Param_check_page_value", value); }
Answer logo(const std::string& value) { return below(5460, "Param_check_logo_value", value); }
Answer logo_size(const std::string& value) { return below(4096, "Param_check_logo_size_value", value); }
Answer server(const std::string& value) { return below(256, "Param_check_server_value", value); }
Answer login(const std::string& value) { return below(40, "Param_check_login_value", value); }
Answer password(const std::string& value) { return below(30, "Param_check_pword_value", value); }

Answer color(const std::string& value)
{
    const std::string name = "Param_check_color_value";
    if (value.size() != 6) {
        return rule::refused(601, name, "The length of color :" + value + " shoud not be equal to 6\n");
    }
    const std::size_t bad = value.find_first_not_of("0123456789ABCDEFabcdef");
    if (bad == std::string::npos) return silent(0);
    return rule::refused(600, name, "color :" + value + " contain invalid char " + value[bad] + "\n");
}

Answer flag(const std::string& value)
{
    if (value == "0" || value == "1") return silent(0);
    return rule::refused(601, "Param_check_bool_value", "bool value :" + value + " out of range\n");
}

// date_time is not looked at, so that it may be NULL.
Answer date_time(Arguments) { return silent(0); }

}  // namespace

void add_branding(Models& models)
{
    models["Param_check_ispname_value"] = on_text<isp_name>;
    models["Param_check_helpdesk_value"] = on_text<help_desk>;
    models["Param_check_page_value"] = on_text<page>;
    models["Param_check_logo_value"] = on_text<logo>;
    models["Param_check_logo_size_value"] = on_text<logo_size>;
    models["Param_check_server_value"] = on_text<server>;
    models["Param_check_login_value"] = on_text<login>;
    models["Param_check_pword_value"] = on_text<password>;
    models["Param_check_color_value"] = on_text<color>;
    models["Param_check_bool_value"] = on_text<flag>;
    models["Param_check_datetime_value"] = date_time;
}

}  // namespace ostrel::model

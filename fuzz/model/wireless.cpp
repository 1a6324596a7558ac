// Wireless values that the checks are made of.
#include "fuzz/model/generic.h"

#include <algorithm>

namespace ostrel::model {

namespace {

Answer allowed_bytes(const std::string& value, const std::string& allowed)
{
    return silent(value.find_first_not_of(allowed) == std::string::npos ? 0 : 803);
}

Answer shared_key(const std::string& value) { return silent(rule::shared_key(value)); }
Answer pass_phrase(const std::string& value) { return silent(rule::pass_phrase(value)); }
Answer rate(const std::string& value) { return silent(rule::is_rate(value) ? 0 : -1); }
Answer beacon_type(const std::string& value) { return silent(rule::is_beacon_type(value) ? 0 : -1); }
Answer rate_list(const std::string& value) { return silent(rule::is_rate_list(value) ? 0 : -1); }

bool is_number_of_rate(const std::string& value)
{
    const std::vector<std::string> rates = {"1",  "2",  "5.5", "6",  "9",  "11",
                                            "12", "18", "24",  "36", "48", "54"};
    return std::ranges::find(rates, value) != rates.end();
}

}  // namespace

namespace rule {

int shared_key(const std::string& value)
{
    if (value.size() != 64) return 600;
    return is_hexadecimal(value) ? 0 : 803;
}

int pass_phrase(const std::string& value) { return length_and_set(8, 63, printable_ascii(), value); }

bool is_rate(const std::string& value) { return value == "Auto" || is_number_of_rate(value); }

bool is_beacon_type(const std::string& value)
{
    return value == "None" || value == "Basic" || value == "WPA" || value == "11i" || value == "WPAand11i";
}

// An empty item is no rate, so commas at the ends and double ones need no test of their own.
bool is_rate_list(const std::string& value)
{
    if (value == "all" || value == "default") return true;
    return std::ranges::all_of(split(value, ','), is_number_of_rate);
}

Answer network_name(const std::string& value)
{
    int code = 0;
    if (value.empty()) code = 801;
    if (value.find_first_not_of(printable_ascii()) != std::string::npos) code = 803;
    if (value.size() > 32) code = 802;
    return printed(code,
                   "Info in TcmValidateSSID: The lenght of SSID is " + std::to_string(value.size()) + "\n\n");
}

}  // namespace rule

void add_wireless_values(Models& models)
{
    models["TcmValueisValid"] = on_texts<allowed_bytes>;
    models["TcmValidatePSK"] = on_text<shared_key>;
    models["TcmValidateKPP"] = on_text<pass_phrase>;
    models["TcmValidateRate"] = on_text<rate>;
    models["TcmValidateBeaconType"] = on_text<beacon_type>;
    models["TcmValidateSSID"] = on_text<rule::network_name>;
    models["TcmValidateDataTransmitRates"] = on_text<rate_list>;
}

void add_wireless(Models& models)
{
    add_wireless_values(models);
    add_wireless_modes(models);
    add_wireless_keys(models);
    add_wireless_radio(models);
    add_wireless_settings(models);
}

}  // namespace ostrel::model

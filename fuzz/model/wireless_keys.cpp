// The keys of the wireless LAN.
#include "fuzz/model/generic.h"

namespace ostrel::model {

namespace {

Answer preshared_key(const std::string& value)
{
    const int code = rule::shared_key(value);
    if (code == 0) return silent(0);
    return rule::refused(code, "WLAN_check_preshared_key", "Error key pass phrase:" + value + "\n\n");
}

// A pass phrase alone is never judged: it is refused as too short.
Answer key_or_phrase(const std::string& key, const std::string& phrase)
{
    const char* const name = "WLAN_check_preshared_key2";
    const auto key_refused = [&](int code) {
        return rule::refused(code, name, "Error PreSharedKey:" + key + "\n\n");
    };
    const auto phrase_refused = [&](int code) {
        return rule::refused(code, name, "Error KeyPassphrase:" + phrase + "\n\n");
    };
    if (!key.empty()) {
        const int code = rule::shared_key(key);
        return code == 0 ? silent(0) : key_refused(code);
    }
    if (!phrase.empty()) return phrase_refused(801);
    return rule::followed(key_refused(402), phrase_refused(402));
}

struct WepKeys {
    std::string out;
    std::size_t common = 0;

    void report(const std::string& message) { out += "Error in WLAN_check_wepkeys: " + message; }

    // judge gives the code that ends the check, or 0. It empties a key that is skipped.
    int judge(std::string& key)
    {
        if (!rule::is_printable(key)) {
            report("The key should not be empty or non printable ascii string: " + key + "\n\n");
            key.clear();
            return 0;
        }
        if (!rule::is_hexadecimal(key)) {
            report("The key should not contain non hexa char: " + key + "\n\n");
            return 803;
        }
        const std::size_t length = key.size();
        if (length > 26) {
            report("The hexa key is too long: " + key + "\n\n");
            return 802;
        }
        if (length < 10) {
            report("The hexa key is too short: " + key + "\n\n");
            return 801;
        }
        if (length > 10 && length < 26) {
            report("The hexa key length is less than 26 and more than 10: " + key + "\n\n");
            return 731;
        }
        if (common == 0) common = length;
        if (length == common) return 0;
        report("The previons valid key length is " + std::to_string(common) + " and now " +
               std::to_string(length) + " for: " + key + "\n\n");
        return 731;
    }
};

Answer wep_keys(Arguments arguments)
{
    if (is_null(arguments[0])) return undefined();
    auto keys = std::get<std::vector<std::string>>(arguments[0]);
    WepKeys state;
    int code = 0;
    for (std::size_t i = 0; i < 4 && code == 0; ++i) code = state.judge(keys[i]);
    if (code == 0 && state.common == 0) code = 402;
    Answer answer = printed(code, state.out);
    answer.after.emplace_back(keys);
    return answer;
}

// traced writes to standard error, which nothing holds back.
Answer traced(int code, const std::string& before)
{
    Answer answer = silent(code);
    answer.err = before + "The code : " + std::to_string(code) + "\n";
    return answer;
}

Answer wep_key(const std::string& key, const std::string& encryption)
{
    if (!rule::is_printable(key) && !rule::is_hexadecimal(key)) {
        Answer answer = silent(803);
        answer.err = "The key should not be empty or non printable ascii string: " + key +
                     "\nThe key should not contain non hexa char: " + key + "\n";
        return answer;
    }
    const bool suits =
        (encryption == "WEP-64" && key.size() == 10) || (encryption == "WEP-128" && key.size() == 26);
    return traced(suits ? 0 : 1002, "The key : " + key + "\n");
}

Answer key_of_type(Arguments arguments)
{
    if (is_null(arguments[0]) || is_null(arguments[1]) || is_null(arguments[2])) return undefined();
    const std::string& key = text(arguments[0]);
    const std::string& type = text(arguments[1]);
    if (type == "WPA-PSK" || type == "WPA-AUTO-PSK" || type == "WPA2-PSK") {
        return traced(rule::shared_key(key) == 0 || rule::pass_phrase(key) == 0 ? 0 : -1, "");
    }
    if (type == "WEP-OPEN" || type == "WEP-SHARED" || type == "WEP-RADIUS") {
        return wep_key(key, text(arguments[2]));
    }
    return traced(type == "WPA-RADIUS" || type == "WPA-AUTO-RADIUS" || type == "WPA2-RADIUS" ? 0 : -1, "");
}

Answer default_key(const std::string& value)
{
    const Number read = read_number(value);
    if (read.undefined) return undefined();
    if (read.value >= 0 && read.value <= 3) return silent(0);
    return rule::refused(402, "WLAN_check_default_wep_key_index",
                         "Error default wep key index:" + value + "\n\n");
}

}  // namespace

void add_wireless_keys(Models& models)
{
    models["WLAN_check_preshared_key"] = on_text<preshared_key>;
    models["WLAN_check_preshared_key2"] = on_texts<key_or_phrase>;
    models["WLAN_check_wepkeys"] = wep_keys;
    models["WLAN_check_keys"] = key_of_type;
    models["WLAN_check_default_wep_key_index"] = on_text<default_key>;
}

}  // namespace ostrel::model

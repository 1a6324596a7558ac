#include "rules/rules.h"
#include "rules/wlan_check/shared.h"

namespace ostrel::rules {

namespace {

// The pass phrase is ignored if there is a key. Without a key, it is refused.
Check key_or_pass_phrase()
{
    const Line of_key = line("Error in WLAN_check_preshared_key2: Error PreSharedKey:<psk>\n\n");
    const Line of_pass_phrase =
        line("Error in WLAN_check_preshared_key2: Error KeyPassphrase:<passphrase>\n\n");
    return check("WLAN_check_preshared_key2",
                 {text("psk", "a pre-shared key").secret(),
                  text("passphrase", "a pass phrase, in addition to the key").secret()},
                 {when(empty("psk"),
                       {refuse(801, because("pass_phrase_alone", not_empty("passphrase")), of_pass_phrase),
                        refuse(402, length_not("psk", {64}), std::vector<Line>{of_key, of_pass_phrase})}),
                  refuse(its_code(), refused_by("TcmValidatePSK", {"psk"}), of_key)});
}

Check wep_keys()
{
    return check(
        "WLAN_check_wepkeys",
        {blocks("keys", "the four WEP keys", 4, 257).secret().asserts("value != ((void *)0)")},
        {remember("common", 0),
         for_each(
             keys_of("keys"),
             {skip(refused_by("PARAM_check_printable_ascii_string"),
                   {{line("Error in WLAN_check_wepkeys: The key should not be empty or non printable ascii "
                          "string: <item>\n\n")},
                    {{"item", literal("")}}}),
              refuse(
                  803, refused_by("PARAM_check_hexa_string"),
                  line("Error in WLAN_check_wepkeys: The key should not contain non hexa char: <item>\n\n")),
              refuse(802, longer_than(26),
                     line("Error in WLAN_check_wepkeys: The hexa key is too long: <item>\n\n")),
              refuse(801, shorter_than(10),
                     line("Error in WLAN_check_wepkeys: The hexa key is too short: <item>\n\n")),
              refuse(731, length_not({10, 26}),
                     line("Error in WLAN_check_wepkeys: The hexa key length is less than 26 and more than "
                          "10: <item>\n\n")),
              remember("length", length()), when(equal("common", 0), {remember("common", "length")}),
              refuse(731, because("another_length", not_equal("length", "common")),
                     line("Error in WLAN_check_wepkeys: The previons valid key length is <common> and now "
                          "<length> for: <item>\n\n"))}),
         refuse(402, because("no_key_left", equal("common", 0)))});
}

// A key consists of 64 hexadecimal digits, or is a pass phrase of 8 to 63 characters.
std::vector<Step> pass_phrase_or_key()
{
    const Line refused = to_stderr("The code : -1\n");
    return {when(length_is("key", {64}), {refuse(-1, outside("key", kHex), refused)},
                 {refuse(-1, longer_than("key", 64), refused), refuse(-1, shorter_than("key", 8), refused),
                  refuse(-1, outside("key", kPrintable), refused)})};
}

// The character test accepts every printable character and the empty key. The length is tested afterwards.
std::vector<Step> wep_key()
{
    const auto of_length = [](const char* encryption, long long bytes) {
        return when(one_of("encryption", {encryption}),
                    {refuse(1002, length_not("key", {bytes}), to_stderr("The code : 1002\n"))});
    };
    return {when(not_empty("key"),
                 {refuse(803, outside("key", kPrintable),
                         std::vector<Line>{
                             to_stderr("The key should not be empty or non printable ascii string: <key>\n"),
                             to_stderr("The key should not contain non hexa char: <key>\n")})}),
            print(to_stderr("The key : <key>\n")),
            refuse(1002, none_of("encryption", {"WEP-64", "WEP-128"}), to_stderr("The code : 1002\n")),
            of_length("WEP-64", 10), of_length("WEP-128", 26)};
}

Check keys()
{
    return check("WLAN_check_keys",
                 {text("key", "a key or a pass phrase").secret(), text("type", "a security type"),
                  text("encryption", "an encryption method")},
                 {refuse(-1, none_of("type", kSecurityTypes), to_stderr("The code : -1\n")),
                  when(one_of("type", {"WPA-PSK", "WPA-AUTO-PSK", "WPA2-PSK"}), pass_phrase_or_key()),
                  when(one_of("type", kWepTypes), wep_key()), print(to_stderr("The code : 0\n"))});
}

}  // namespace

std::vector<Check> wlan_check_keys()
{
    return {
        check("WLAN_check_preshared_key", {text("value", "a pre-shared key").secret()},
              {refuse(its_code(), refused_by("TcmValidatePSK"),
                      line("Error in WLAN_check_preshared_key: Error key pass phrase:<value>\n\n"))}),
        key_or_pass_phrase(),
        wep_keys(),
        keys(),
        check("WLAN_check_default_wep_key_index", {text("value", "the index of a WEP key, from 0")},
              {refuse(402, not_(between(it, 0, 3)),
                      line("Error in WLAN_check_default_wep_key_index: Error default wep key "
                           "index:<value>\n\n"))}),
    };
}

}  // namespace ostrel::rules

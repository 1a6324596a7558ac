#include <ostrel/character_sets.h>

#include "bench/corpus.h"

namespace ostrel::bench {

namespace {

constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz";
constexpr std::string_view kRates[] = {"1", "2", "5.5", "6", "9", "11", "12", "18", "24", "36", "48", "54"};
constexpr std::string_view kBeacons[] = {"None", "Basic", "WPA", "11i", "WPAand11i"};

std::string ipv4(Random& random)
{
    std::string address = number(random, 1, 223);
    for (int i = 0; i < 3; ++i) address += "." + number(random, 0, 255);
    return address;
}

std::string mac(Random& random)
{
    std::string address = some(random, 2, CHARSET_HEX);
    for (int i = 0; i < 5; ++i) address += ":" + some(random, 2, CHARSET_HEX);
    return address;
}

// host gives names like those of servers: two to four labels of letters, digits and "-", the last of letters.
std::string host(Random& random)
{
    std::string name;
    for (unsigned labels = random.between(1, 3); labels > 0; --labels) {
        name += random.one_of(kLetters);
        name += some(random, random.between(1, 10), "abcdefghijklmnopqrstuvwxyz0123456789-");
        name += random.one_of(kLetters);
        name += '.';
    }
    return name + some(random, random.between(2, 4), kLetters);
}

std::string url(Random& random)
{
    std::string text = (random.one_in(2) ? "http://" : "https://") + host(random);
    if (random.one_in(4)) text += ":" + number(random, 1, 65535);
    for (unsigned steps = random.between(1, 3); steps > 0; --steps) {
        text += "/" + some(random, random.between(2, 10), "abcdefghijklmnopqrstuvwxyz0123456789-_.");
    }
    return text;
}

// date_time gives the one form that every contender takes: with dashes and an offset.
std::string date_time(Random& random)
{
    return number(random, 1970, 2099, 4) + "-" + number(random, 1, 12, 2) + "-" + number(random, 1, 28, 2) +
           "T" + number(random, 0, 23, 2) + ":" + number(random, 0, 59, 2) + ":" + number(random, 0, 59, 2) +
           (random.one_in(2) ? "+" : "-") + number(random, 0, 12, 2) + ":" + (random.one_in(4) ? "30" : "00");
}

std::string account(Random& random)
{
    return some(random, 24, CHARSET_DIGITS) + (random.one_in(2) ? "#" : "") + "0001@example.net";
}

std::string rates(Random& random)
{
    std::string list;
    for (unsigned items = random.between(4, 12); items > 0; --items) {
        if (!list.empty()) list += ',';
        list += kRates[random.between(0, 11)];
    }
    return list;
}

std::string servers(Random& random) { return ipv4(random) + (random.one_in(2) ? "," : ", ") + ipv4(random); }

// reservations gives different addresses of one subnet. All are of one length: an address that another one
// begins with counts as repeated.
std::string reservations(Random& random)
{
    std::string list;
    unsigned host = 99;
    for (unsigned items = random.between(2, 8); items > 0; --items) {
        if (!list.empty()) list += ',';
        host += random.between(1, 19);
        list += "192.168.2." + std::to_string(host);
    }
    return list;
}

// repeated gives a hostile value: a piece made again and again.
auto repeated(const std::string& head, std::string (*piece)(Random&), const std::string& between)
{
    return [=](Random& random, std::size_t length) {
        std::string text = head + piece(random);
        while (text.size() < length) text += between + piece(random);
        return text;
    };
}

// members gives values of so many of a set's characters, and long ones as hostile values.
Family members(const char* name, const char* rule, std::string_view set, unsigned shortest, unsigned longest)
{
    const std::string all(set);
    return {name, rule, [=](Random& random) { return some(random, random.between(shortest, longest), all); },
            [=](Random& random, std::size_t length) { return some(random, length, all); }};
}

std::vector<Family> make_families()
{
    const auto label = [](Random& random) { return some(random, 1, kLetters); };
    const auto octet = [](Random& random) { return number(random, 0, 255); };
    const auto rate = [](Random& random) { return std::string(kRates[random.between(0, 11)]); };
    // The items of a hostile list share their beginnings with those behind them.
    const auto reservation = [](Random& random) { return "192.168.2.1" + number(random, 0, 99, 2); };
    return {
        {"ipv4", "TcmValidateIPAddress", ipv4, repeated("", octet, ".")},
        {"mac", "TcmValidateMACaddress", mac, repeated("", mac, ":")},
        {"host", "TcmValidateDomainName", host, repeated("", label, ".")},
        {"url", "TcmValidatefirmwareURL", url, repeated("http://", label, ".")},
        {"email", "TcmValidateEmailAddress",
         [](Random& random) { return some(random, random.between(3, 12), kLetters) + "@" + host(random); },
         repeated("", label, "@.")},
        {"account", "TcmValidatePPPUsername", account,
         repeated(
             "", [](Random& random) { return some(random, 28, "0123456789#"); }, "@example.net")},
        {"date_time", "TcmValidateTime", date_time, repeated("", date_time, "")},
        members("printable", "PARAM_check_printable_ascii_string", CHARSET_ASCII_PRINTABLE, 8, 40),
        members("password", "PARAM_check_password", CHARSET_ALNUM, 8, 32),
        members("number", "PARAM_check_num_range", CHARSET_DIGITS, 4, 6),
        members("own_set_8", "ValidateString, set of 62", CHARSET_ALNUM, 8, 8),
        members("own_set_16", "ValidateString, set of 62", CHARSET_ALNUM, 16, 16),
        members("own_set_32", "ValidateString, set of 62", CHARSET_ALNUM, 32, 32),
        members("own_set_64", "ValidateString, set of 62", CHARSET_ALNUM, 64, 64),
        members("own_digits_8", "ValidateString, set of 10", CHARSET_DIGITS, 8, 8),
        {"keyword", "TcmValidateBeaconType",
         [](Random& random) { return std::string(kBeacons[random.between(0, 4)]); },
         repeated("WPAand11i", label, ""), false},
        {"rates", "TcmValidateDataTransmitRates", rates, repeated("", rate, ",")},
        {"dns_servers", "TcmValidateofferDNS", servers, repeated("", ipv4, ",")},
        {"reservations", "TcmValidateReservedAddress", reservations, repeated("", reservation, ",")},
    };
}

}  // namespace

const std::vector<Family>& families()
{
    static const std::vector<Family> all = make_families();
    return all;
}

}  // namespace ostrel::bench

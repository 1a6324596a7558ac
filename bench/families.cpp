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

// host generates two to four labels of letters, digits and "-". The last label has only letters.
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

// date_time generates the only form that every contender accepts, which has dashes and an offset.
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

// All reservations have the same length, because a prefix of another address counts as repeated.
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

// repeated returns a function that generates hostile values, each made of many pieces.
auto repeated(const std::string& head, std::string (*piece)(Random&), const std::string& between)
{
    return [=](Random& random, std::size_t length) {
        std::string text = head + piece(random);
        while (text.size() < length) text += between + piece(random);
        return text;
    };
}

// members returns a family of strings over a set's characters, of which the hostile ones are only longer.
ValueFamily members(const char* name, std::string_view set, unsigned shortest, unsigned longest)
{
    const std::string all(set);
    return {name, [=](Random& random) { return some(random, random.between(shortest, longest), all); },
            [=](Random& random, std::size_t length) { return some(random, length, all); }};
}

std::vector<ValueFamily> make_families()
{
    const auto label = [](Random& random) { return some(random, 1, kLetters); };
    const auto octet = [](Random& random) { return number(random, 0, 255); };
    const auto rate = [](Random& random) { return std::string(kRates[random.between(0, 11)]); };
    // In a hostile list, every item shares a prefix with the items after it.
    const auto reservation = [](Random& random) { return "192.168.2.1" + number(random, 0, 99, 2); };
    return {
        {"ipv4", ipv4, repeated("", octet, ".")},
        {"mac", mac, repeated("", mac, ":")},
        {"host", host, repeated("", label, ".")},
        {"url", url, repeated("http://", label, ".")},
        {"email",
         [](Random& random) { return some(random, random.between(3, 12), kLetters) + "@" + host(random); },
         repeated("", label, "@.")},
        {"account", account,
         repeated(
             "", [](Random& random) { return some(random, 28, "0123456789#"); }, "@example.net")},
        {"date_time", date_time, repeated("", date_time, "")},
        members("printable", CHARSET_ASCII_PRINTABLE, 8, 40),
        members("password", CHARSET_ALNUM, 8, 32),
        members("number", CHARSET_DIGITS, 4, 6),
        members("own_set_8", CHARSET_ALNUM, 8, 8),
        members("own_set_16", CHARSET_ALNUM, 16, 16),
        members("own_set_32", CHARSET_ALNUM, 32, 32),
        members("own_set_64", CHARSET_ALNUM, 64, 64),
        members("own_digits_8", CHARSET_DIGITS, 8, 8),
        {"keyword", [](Random& random) { return std::string(kBeacons[random.between(0, 4)]); },
         repeated("WPAand11i", label, ""), false},
        {"rates", rates, repeated("", rate, ",")},
        {"dns_servers", servers, repeated("", ipv4, ",")},
        {"reservations", reservations, repeated("", reservation, ",")},
    };
}

}  // namespace

const std::vector<ValueFamily>& families()
{
    static const std::vector<ValueFamily> all = make_families();
    return all;
}

}  // namespace ostrel::bench

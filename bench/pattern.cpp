#include <stdexcept>

#include "bench/contender.h"

namespace ostrel::bench {

namespace {

constexpr char kOctet[] = "(25[0-5]|2[0-4][0-9]|1[0-9][0-9]|[1-9]?[0-9])";
constexpr char kLabel[] = "[A-Za-z0-9-]{1,20}";
constexpr char kRate[] = "(1|2|5\\.5|6|9|11|12|18|24|36|48|54)";

std::string address() { return std::string(kOctet) + "(\\." + kOctet + "){3}"; }

std::string host() { return std::string(kLabel) + "(\\." + kLabel + "){0,5}"; }

std::string unanchored(const std::string& family)
{
    if (family == "ipv4") return address();
    if (family == "mac") return "[0-9A-Fa-f]{2}(:[0-9A-Fa-f]{2}){5}";
    if (family == "host") return host();
    if (family == "url") return "https?://" + host() + "(:[0-9]{1,5})?(/[A-Za-z0-9_./:?-]*)?";
    if (family == "email") return "[A-Za-z0-9.-]+@[A-Za-z0-9.-]+\\.[A-Za-z0-9-]+";
    if (family == "account") return "[0-9]{24}#?[0-9]{4}@example\\.net";
    if (family == "date_time") {
        return "[0-9]{4}-(0[1-9]|1[0-2])-(0[1-9]|[12][0-9]|3[01])T([01][0-9]|2[0-4]):[0-5][0-9]:[0-5][0-9]"
               "([+-][0-5][0-9]:[0-5][0-9])?";
    }
    if (family == "printable") return "[ -~]+";
    if (family == "password") return "[0-9A-Za-z]{8,32}";
    if (family == "number") return "[0-9]{1,6}";
    if (family.starts_with("own_set")) return "[0-9A-Za-z]{1,64}";
    if (family == "own_digits_8") return "[0-9]{1,64}";
    if (family == "keyword") return "(None|Basic|WPA|11i|WPAand11i)";
    if (family == "rates") return std::string("(all|default|") + kRate + "(," + kRate + ")*)";
    if (family == "dns_servers") return address() + "( *, *" + address() + ")?";
    if (family == "reservations") return "192\\.168\\.2\\.[0-9]{1,3}(,192\\.168\\.2\\.[0-9]{1,3})*";
    throw std::out_of_range(family);
}

}  // namespace

std::string pattern(const std::string& family) { return "^(" + unanchored(family) + ")$"; }

}  // namespace ostrel::bench

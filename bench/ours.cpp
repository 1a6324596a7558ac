#include <ostrel/check.h>

#include "bench/contender.h"

namespace ostrel::bench {

void add_ours(Contenders& all)
{
    const auto add = [&](const char* family, auto accepts) {
        all.push_back(contender(family, "ours", accepts));
    };
    add("ipv4", [](const char* v) { return TcmValidateIPAddress(v) == OSTREL_VALID; });
    add("mac", [](const char* v) { return TcmValidateMACaddress(v) == OSTREL_VALID; });
    add("host", [](const char* v) { return TcmValidateDomainName(v) == OSTREL_VALID; });
    add("url", [](const char* v) { return TcmValidatefirmwareURL(v) == OSTREL_VALID; });
    add("email", [](const char* v) { return TcmValidateEmailAddress(v) == OSTREL_VALID; });
    add("account", [](const char* v) {
        int type = 0;
        return TcmValidatePPPUsername(v, &type) == OSTREL_VALID;
    });
    add("date_time", [](const char* v) { return TcmValidateTime(v) == OSTREL_VALID; });
    add("printable", [](const char* v) { return PARAM_check_printable_ascii_string(v) == OSTREL_VALID; });
    add("password", [](const char* v) { return PARAM_check_password(v, 8, 32) == OSTREL_VALID; });
    add("number", [](const char* v) { return PARAM_check_num_range(v, 0, 999999) == OSTREL_VALID; });
    for (const char* family : {"own_set_8", "own_set_16", "own_set_32", "own_set_64"}) {
        add(family, [](const char* v) { return ValidateString(1, 64, CHARSET_ALNUM, v) == OSTREL_VALID; });
    }
    add("own_digits_8",
        [](const char* v) { return ValidateString(1, 64, CHARSET_DIGITS, v) == OSTREL_VALID; });
    add("keyword", [](const char* v) { return TcmValidateBeaconType(v) == OSTREL_VALID; });
    add("rates", [](const char* v) { return TcmValidateDataTransmitRates(v) == OSTREL_VALID; });
    add("dns_servers", [](const char* v) { return TcmValidateofferDNS(v) == OSTREL_VALID; });
    add("reservations",
        [](const char* v) { return TcmValidateReservedAddress(v, "192.168.2.1") == OSTREL_VALID; });
}

}  // namespace ostrel::bench

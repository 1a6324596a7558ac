// The wireless rules that the checks call; the exported ones are <ostrel/wireless.h>.
#ifndef OSTREL_PRIMITIVES_WIRELESS_H
#define OSTREL_PRIMITIVES_WIRELESS_H

#include <string_view>

namespace ostrel {

// validate_pre_shared_key is TcmValidatePSK.
int validate_pre_shared_key(std::string_view key);

// validate_pass_phrase is TcmValidateKPP.
int validate_pass_phrase(std::string_view phrase);

// is_rate_or_auto is TcmValidateRate.
bool is_rate_or_auto(std::string_view text);

bool is_beacon_type(const char* value);

// validate_ssid prints the length, see TcmValidateSSID.
int validate_ssid(std::string_view ssid);

// is_rate_set is TcmValidateDataTransmitRates.
bool is_rate_set(std::string_view text);

}  // namespace ostrel

#endif

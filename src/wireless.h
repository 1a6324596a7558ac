// The wireless rules that the checks call; the exported ones are <ostrel/wireless.h>.
#ifndef OSTREL_SRC_WIRELESS_H
#define OSTREL_SRC_WIRELESS_H

#include "src/strings.h"

// The checks pass these rules on, and the address of a hidden function needs no relocation.
#pragma GCC visibility push(hidden)
namespace ostrel {

// validate_pre_shared_key is TcmValidatePSK.
int validate_pre_shared_key(const char* key);

// kPassPhrase is the rule of TcmValidateKPP.
constexpr Text kPassPhrase = text(8, 63, kAsciiPrintable);

// validate_rate is TcmValidateRate.
int validate_rate(const char* value);

int validate_beacon_type(const char* value);

// validate_ssid prints the length, see TcmValidateSSID.
int validate_ssid(const char* ssid);

// validate_rate_set is TcmValidateDataTransmitRates.
int validate_rate_set(const char* value);

}  // namespace ostrel
#pragma GCC visibility pop

#endif

// Generic: rules that the models of the generic and the wireless checks share.
#ifndef OSTREL_FUZZ_MODEL_GENERIC_H
#define OSTREL_FUZZ_MODEL_GENERIC_H

#include <string>

#include "fuzz/model/rule.h"

namespace ostrel::model {

// The groups that add_generic and add_wireless are made of.
void add_strings(Models& models);
void add_addresses(Models& models);
void add_accounts(Models& models);
void add_parameters(Models& models);
void add_wireless_values(Models& models);
void add_wireless_modes(Models& models);
void add_wireless_keys(Models& models);
void add_wireless_radio(Models& models);
void add_wireless_settings(Models& models);

namespace rule {

// mac_address and station_address print what they stumble over, and do not flush it.
Answer mac_address(const Value& value);
Answer station_address(const Value& value);

// provisioning_code prints the first wrong position, and does not flush it.
Answer provisioning_code(const std::string& value);

// user_name_code judges the name of a PPP account.
int user_name_code(const std::string& value);

bool is_hexadecimal(const std::string& value);
bool is_printable(const std::string& value);  // and not empty

int shared_key(const std::string& value);   // 64 hexadecimal digits
int pass_phrase(const std::string& value);  // 8 to 63 printable characters
bool is_rate(const std::string& value);     // "Auto" included
bool is_beacon_type(const std::string& value);
bool is_rate_list(const std::string& value);
Answer network_name(const std::string& value);

}  // namespace rule
}  // namespace ostrel::model

#endif

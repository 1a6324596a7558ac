// All descriptions, by the modules of the library.
#ifndef OSTREL_RULES_RULES_H
#define OSTREL_RULES_RULES_H

#include <string_view>
#include <vector>

#include "rules/vocabulary.h"

namespace ostrel::rules {

// checks lists every description. Throws std::logic_error for a description with an unknown name.
const std::vector<Check>& checks();

// make_checks creates new, linked descriptions.
std::vector<Check> make_checks();

// find returns the description of that name, or NULL.
const Check* find(std::string_view name);

// registered prepares a description that is not among checks() for evaluation. Throws as checks() does.
Check registered(Check check);

// The descriptions of each module.
std::vector<Check> strings();
std::vector<Check> addresses();
std::vector<Check> accounts();
std::vector<Check> subnets();
std::vector<Check> wireless();
std::vector<Check> parameter_check();
std::vector<Check> ppp_check();
std::vector<Check> lan_check_host_configuration();
std::vector<Check> lan_check_list_editing();
std::vector<Check> wlan_check_security_modes();
std::vector<Check> wlan_check_keys();
std::vector<Check> wlan_check_radio();
std::vector<Check> wlan_check_settings();
std::vector<Check> hosts();
std::vector<Check> date_time();
std::vector<Check> names();
std::vector<Check> port_mapping_check();
std::vector<Check> l3forwarding_check();
std::vector<Check> mgtserver_check_management_server();
std::vector<Check> mgtserver_check_guest_access();
std::vector<Check> mgtserver_check_hnap_core();
std::vector<Check> time_check();
std::vector<Check> branding_check();

}  // namespace ostrel::rules

#endif

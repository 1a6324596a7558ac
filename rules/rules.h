// All descriptions, grouped by the library's modules.
#ifndef OSTREL_RULES_RULES_H
#define OSTREL_RULES_RULES_H

#include <string_view>
#include <vector>

#include "rules/vocabulary.h"

namespace ostrel::rules {

// checks returns every description. It throws std::logic_error if a description contains an unknown name.
const std::vector<Check>& checks();

// make_checks creates all descriptions and resolves their references to other checks.
std::vector<Check> make_checks();

// find returns the description of the check with the given name, or NULL if there is none.
const Check* find(std::string_view name);

// registered prepares a description that is not among checks() for evaluation, and throws as checks does.
Check registered(Check check);

// Each of these functions returns the descriptions of one module.
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

#include "catalogue/catalogue.h"

#include <ostrel/check.h>

#include <unordered_map>

namespace ostrel::catalogue {

namespace {

struct List {
    std::string_view family;
    std::vector<Function> functions;

    template <auto F>
    void add(std::string_view name)
    {
        functions.push_back(function<F>(name, family));
    }
};

// The arguments are deduced from the declarations. Everything else is described in rules/.
std::vector<Function> list_functions()
{
    List list;
    list.family = "strings";
    list.add<ValidateString>("ValidateString");
    list.add<ValidateNum>("ValidateNum");
    list.add<countChar>("countChar");
    list.family = "addresses";
    list.add<TcmValidateIPAddress>("TcmValidateIPAddress");
    list.add<TcmValidateMACaddress>("TcmValidateMACaddress");
    list.add<isValidOrdinaryMACAddress>("isValidOrdinaryMACAddress");
    list.family = "hosts";
    list.add<TcmValidateDomainName>("TcmValidateDomainName");
    list.add<ValidateURL>("ValidateURL");
    list.add<TcmValidateServerURL>("TcmValidateServerURL");
    list.add<TcmValidatefirmwareURL>("TcmValidatefirmwareURL");
    list.add<isEmail>("isEmail");
    list.add<TcmValidateEmailAddress>("TcmValidateEmailAddress");
    list.add<TcmValidateVoIPRegistrar>("TcmValidateVoIPRegistrar");
    list.add<TcmValidateVoIPSTUNServer>("TcmValidateVoIPSTUNServer");
    list.family = "accounts";
    list.add<TcmValidateProvisioningCode>("TcmValidateProvisioningCode");
    list.add<TcmValidatePPPUsername>("TcmValidatePPPUsername");
    list.add<TcmValidatePPPPassword>("TcmValidatePPPPassword");
    list.add<TcmValidateLANConfigPassword>("TcmValidateLANConfigPassword");
    list.add<TcmValidateEmailPassword>("TcmValidateEmailPassword");
    list.add<TcmValidateVoIPAnbietername>("TcmValidateVoIPAnbietername");
    list.add<TcmValidateVoIPNumber>("TcmValidateVoIPNumber");
    list.add<TcmValidateVoIPUsername>("TcmValidateVoIPUsername");
    list.add<TcmValidateVoIPPassword>("TcmValidateVoIPPassword");
    list.add<TcmValidateVoIPAreaCode>("TcmValidateVoIPAreaCode");
    list.add<TcmValidatePort>("TcmValidatePort");
    list.add<TcmValidateVoIPRegistrarPort>("TcmValidateVoIPRegistrarPort");
    list.family = "date_time";
    list.add<ValidateDay>("ValidateDay");
    list.add<TcmValidateTime>("TcmValidateTime");
    list.add<TcmValidateDaylightSavingsTime>("TcmValidateDaylightSavingsTime");
    list.add<TcmValidateTimeZoneFormate>("TcmValidateTimeZoneFormate");
    list.family = "subnets";
    list.add<isInSameSubnet>("isInSameSubnet");
    list.add<TcmValidateAddressRange>("TcmValidateAddressRange");
    list.add<TcmValidateReservedAddress>("TcmValidateReservedAddress");
    list.add<TcmValidateIPRouter>("TcmValidateIPRouter");
    list.add<TcmValidateofferDNS>("TcmValidateofferDNS");
    list.family = "wireless";
    list.add<TcmValueisValid>("TcmValueisValid");
    list.add<TcmValidatePSK>("TcmValidatePSK");
    list.add<TcmValidateKPP>("TcmValidateKPP");
    list.add<TcmValidateRate>("TcmValidateRate");
    list.add<TcmValidateBeaconType>("TcmValidateBeaconType");
    list.add<TcmValidateSSID>("TcmValidateSSID");
    list.add<TcmValidateDataTransmitRates>("TcmValidateDataTransmitRates");
    list.family = "names";
    list.add<TcmValidatePortMappingProtocol>("TcmValidatePortMappingProtocol");
    list.add<TcmValidatePortMappingDescription>("TcmValidatePortMappingDescription");
    list.add<TCM_validate_device_name>("TCM_validate_device_name");
    list.add<TcmValidateRouterName>("TcmValidateRouterName");
    list.family = "parameter_check";
    list.add<Param_check_string_len>("Param_check_string_len");
    list.add<PARAM_check_port>("PARAM_check_port");
    list.add<PARAM_check_ip_addr>("PARAM_check_ip_addr");
    list.add<PARAM_check_Ordinary_MACAddress>("PARAM_check_Ordinary_MACAddress");
    list.add<PARAM_check_MACAddress>("PARAM_check_MACAddress");
    list.add<PARAM_check_transport_protocol>("PARAM_check_transport_protocol");
    list.add<PARAM_get_protocol_from_name>("PARAM_get_protocol_from_name");
    list.add<PARAM_check_hexa_string>("PARAM_check_hexa_string");
    list.add<PARAM_check_printable_ascii_string>("PARAM_check_printable_ascii_string");
    list.add<PARAM_check_provisioning_code>("PARAM_check_provisioning_code");
    list.add<PARAM_check_ui2_value>("PARAM_check_ui2_value");
    list.add<PARAM_check_ui4_value>("PARAM_check_ui4_value");
    list.add<PARAM_check_bool_value>("PARAM_check_bool_value");
    list.add<PARAM_check_bool_value_use_str>("PARAM_check_bool_value_use_str");
    list.add<PARAM_check_number>("PARAM_check_number");
    list.add<PARAM_check_num_range>("PARAM_check_num_range");
    list.add<PARAM_check_password>("PARAM_check_password");
    list.add<PARAM_check_string_len>("PARAM_check_string_len");
    list.add<PARAM_check_string_prefix>("PARAM_check_string_prefix");
    list.add<PARAM_check_dl_test_bufsize>("PARAM_check_dl_test_bufsize");
    list.family = "wlan_check";
    list.add<WLAN_check_beacon_type>("WLAN_check_beacon_type");
    list.add<WLAN_check_basic_encryption_modes>("WLAN_check_basic_encryption_modes");
    list.add<WLAN_check_basic_authentication_modes>("WLAN_check_basic_authentication_modes");
    list.add<WLAN_check_wpa_encryption_modes>("WLAN_check_wpa_encryption_modes");
    list.add<WLAN_check_wpa_authentication_modes>("WLAN_check_wpa_authentication_modes");
    list.add<WLAN_check_IEEE11i_encryption_modes>("WLAN_check_IEEE11i_encryption_modes");
    list.add<WLAN_check_IEEE11i_authentication_modes>("WLAN_check_IEEE11i_authentication_modes");
    list.add<WLAN_check_authentication_service_mode>("WLAN_check_authentication_service_mode");
    list.add<WLAN_check_HNAP_SecurityType>("WLAN_check_HNAP_SecurityType");
    list.add<WLAN_check_HNAP_KeyRenewal>("WLAN_check_HNAP_KeyRenewal");
    list.add<WLAN_check_radius_sec>("WLAN_check_radius_sec");
    list.add<WLAN_check_preshared_key>("WLAN_check_preshared_key");
    list.add<WLAN_check_preshared_key2>("WLAN_check_preshared_key2");
    list.add<WLAN_check_wepkeys>("WLAN_check_wepkeys");
    list.add<WLAN_check_keys>("WLAN_check_keys");
    list.add<WLAN_check_default_wep_key_index>("WLAN_check_default_wep_key_index");
    list.add<WLAN_check_radio_id>("WLAN_check_radio_id");
    list.add<WLAN_check_channel>("WLAN_check_channel");
    list.add<WLAN_check_second_channel>("WLAN_check_second_channel");
    list.add<WLAN_check_5g_second_channel>("WLAN_check_5g_second_channel");
    list.add<WLAN_check_wide_channel>("WLAN_check_wide_channel");
    list.add<WLAN_check_IEEE11_mode>("WLAN_check_IEEE11_mode");
    list.add<WLAN_check_IEEE11_standard>("WLAN_check_IEEE11_standard");
    list.add<WLAN_check_ssid>("WLAN_check_ssid");
    list.add<WLAN_check_max_bit_rate>("WLAN_check_max_bit_rate");
    list.add<WLAN_check_basic_data_transmit_rate>("WLAN_check_basic_data_transmit_rate");
    list.add<WLAN_check_op_data_transmit_rate>("WLAN_check_op_data_transmit_rate");
    list.add<WLAN_check_location_description>("WLAN_check_location_description");
    list.add<WLAN_check_regulatory_domain>("WLAN_check_regulatory_domain");
    list.add<WLAN_check_device_opration_mode>("WLAN_check_device_opration_mode");
    list.add<WLAN_check_DistanceFromRoot>("WLAN_check_DistanceFromRoot");
    list.family = "ppp_check";
    list.add<PPP_check_connection_type>("PPP_check_connection_type");
    list.add<PPP_check_user_name>("PPP_check_user_name");
    list.add<PPP_check_tonline_password>("PPP_check_tonline_password");
    list.add<PPP_check_non_tonline_password>("PPP_check_non_tonline_password");
    list.add<PPP_check_pppoe_service_name>("PPP_check_pppoe_service_name");
    list.add<PPP_check_connection_trigger>("PPP_check_connection_trigger");
    list.add<PPP_check_idle_disconnect_time>("PPP_check_idle_disconnect_time");
    list.add<PPP_check_route_protocol_rx>("PPP_check_route_protocol_rx");
    list.add<PPP_check_shaping_rate>("PPP_check_shaping_rate");
    list.add<PPP_check_shaping_burst_size>("PPP_check_shaping_burst_size");
    list.family = "lan_check";
    list.add<LAN_check_ipinterface_enabled>("LAN_check_ipinterface_enabled");
    list.add<LAN_check_ip_router>("LAN_check_ip_router");
    list.add<LAN_check_interface_subnet_mask>("LAN_check_interface_subnet_mask");
    list.add<LAN_check_interface_addr_type>("LAN_check_interface_addr_type");
    list.add<LAN_check_domain_name>("LAN_check_domain_name");
    list.add<LAN_check_dhcp_addr_range>("LAN_check_dhcp_addr_range");
    list.add<LAN_check_dns_servers>("LAN_check_dns_servers");
    list.add<LAN_check_dhcp_reserved_addr>("LAN_check_dhcp_reserved_addr");
    list.add<LAN_check_config_password>("LAN_check_config_password");
    list.add<LAN_check_dhcp_lease_time>("LAN_check_dhcp_lease_time");
    list.add<LAN_check_use_allocated_wan>("LAN_check_use_allocated_wan");
    list.add<LAN_check_associated_connection>("LAN_check_associated_connection");
    list.add<LAN_check_passthrough_lease>("LAN_check_passthrough_lease");
    list.add<LAN_check_passthrough_MAC_address>("LAN_check_passthrough_MAC_address");
    list.add<LAN_check_subnet_mask>("LAN_check_subnet_mask");
    list.add<LAN_check_cis_dev_name>("LAN_check_cis_dev_name");
    list.add<LAN_check_add_allowedMACAddress>("LAN_check_add_allowedMACAddress");
    list.add<LAN_check_add_dns_servers>("LAN_check_add_dns_servers");
    list.add<LAN_check_delete_dns_server>("LAN_check_delete_dns_server");
    list.family = "port_mapping_check";
    list.add<PORTMAPPING_check_remote_host>("PORTMAPPING_check_remote_host");
    list.add<PORTMAPPING_check_external_port>("PORTMAPPING_check_external_port");
    list.add<PORTMAPPING_check_port_available>("PORTMAPPING_check_port_available");
    list.add<PORTMAPPING_check_description>("PORTMAPPING_check_description");
    list.add<PORTMAPPING_check_lease_duration>("PORTMAPPING_check_lease_duration");
    list.family = "l3forwarding_check";
    list.add<L3FORWARDING_check_interface>("L3FORWARDING_check_interface");
    list.add<L3FORWARDING_check_IP_address_and_mask>("L3FORWARDING_check_IP_address_and_mask");
    list.add<L3FORWARDING_check_ForwardingType>("L3FORWARDING_check_ForwardingType");
    list.add<L3FORWARDING_check_ForwardingMetric>("L3FORWARDING_check_ForwardingMetric");
    list.add<L3FORWARDING_check_MTU>("L3FORWARDING_check_MTU");
    list.add<L3FORWARDING_check_forwarding_policy>("L3FORWARDING_check_forwarding_policy");
    list.family = "mgtserver_check";
    list.add<MGTSERVER_check_server_url>("MGTSERVER_check_server_url");
    list.add<MGTSERVER_check_firmware_url>("MGTSERVER_check_firmware_url");
    list.add<MGTSERVER_check_server_password>("MGTSERVER_check_server_password");
    list.add<MGTSERVER_check_conn_request_username>("MGTSERVER_check_conn_request_username");
    list.add<MGTSERVER_check_conn_request_password>("MGTSERVER_check_conn_request_password");
    list.add<MGTSERVER_check_periodic_inform>("MGTSERVER_check_periodic_inform");
    list.add<MGTSERVER_check_periodic_inform_time>("MGTSERVER_check_periodic_inform_time");
    list.add<MGTSERVER_check_periodic_inform_interval>("MGTSERVER_check_periodic_inform_interval");
    list.add<GUESTACCESS_check_max_allowed_number>("GUESTACCESS_check_max_allowed_number");
    list.add<GUESTACCESS_check_password>("GUESTACCESS_check_password");
    list.add<HNAPCORE_check_username>("HNAPCORE_check_username");
    list.add<HNAPCORE_check_timezone>("HNAPCORE_check_timezone");
    list.add<HNAPCORE_check_locale>("HNAPCORE_check_locale");
    list.family = "time_check";
    list.add<Time_validate_tzone_and_tzone_name>("Time_validate_tzone_and_tzone_name");
    list.add<TIME_check_sync_daylight_saving_time>("TIME_check_sync_daylight_saving_time");
    list.add<TIME_check_local_time_zone>("TIME_check_local_time_zone");
    list.add<TIME_check_local_time_zone_name>("TIME_check_local_time_zone_name");
    list.add<TIME_check_daylight_saving_start_or_end>("TIME_check_daylight_saving_start_or_end");
    list.add<TIME_check_ntpserver_length>("TIME_check_ntpserver_length");
    list.add<TIME_check_url>("TIME_check_url");
    list.add<TIME_check_ascii_string>("TIME_check_ascii_string");
    list.add<TIME_check_NTP_server>("TIME_check_NTP_server");
    list.family = "branding_check";
    list.add<Param_check_ispname_value>("Param_check_ispname_value");
    list.add<Param_check_helpdesk_value>("Param_check_helpdesk_value");
    list.add<Param_check_page_value>("Param_check_page_value");
    list.add<Param_check_logo_value>("Param_check_logo_value");
    list.add<Param_check_logo_size_value>("Param_check_logo_size_value");
    list.add<Param_check_server_value>("Param_check_server_value");
    list.add<Param_check_login_value>("Param_check_login_value");
    list.add<Param_check_pword_value>("Param_check_pword_value");
    list.add<Param_check_color_value>("Param_check_color_value");
    list.add<Param_check_bool_value>("Param_check_bool_value");
    list.add<Param_check_datetime_value>("Param_check_datetime_value");
    return list.functions;
}

}  // namespace

const std::vector<Function>& functions()
{
    static const std::vector<Function> all = list_functions();
    return all;
}

std::vector<std::string_view> families()
{
    std::vector<std::string_view> names;
    for (const Function& function : functions()) {
        if (names.empty() || names.back() != function.family) names.push_back(function.family);
    }
    return names;
}

const Function* find(std::string_view name)
{
    static const auto by_name = [] {
        std::unordered_map<std::string_view, const Function*> all;
        for (const Function& function : functions()) all.emplace(function.name, &function);
        return all;
    }();
    const auto found = by_name.find(name);
    return found == by_name.end() ? nullptr : found->second;
}

}  // namespace ostrel::catalogue

# Made from the catalogue of ostrel-check 0.1.0 by scripts/stubs.
from collections.abc import Iterable
from typing import Literal, overload

from ostrel._verdict import Verdict
from ostrel._wire import Argument, Text, Texts

class Calls:
    @overload
    def judge(
        self,
        __check: Literal[
            "GUESTACCESS_check_max_allowed_number", "GUESTACCESS_check_password", "HNAPCORE_check_locale",
            "HNAPCORE_check_username", "L3FORWARDING_check_ForwardingMetric",
            "L3FORWARDING_check_ForwardingType", "L3FORWARDING_check_IP_address_and_mask",
            "L3FORWARDING_check_MTU", "L3FORWARDING_check_forwarding_policy",
            "L3FORWARDING_check_interface", "LAN_check_associated_connection", "LAN_check_cis_dev_name",
            "LAN_check_config_password", "LAN_check_dhcp_lease_time", "LAN_check_dns_servers",
            "LAN_check_domain_name", "LAN_check_interface_addr_type", "LAN_check_interface_subnet_mask",
            "LAN_check_ip_router", "LAN_check_ipinterface_enabled", "LAN_check_passthrough_MAC_address",
            "LAN_check_passthrough_lease", "LAN_check_subnet_mask", "LAN_check_use_allocated_wan",
            "MGTSERVER_check_conn_request_password", "MGTSERVER_check_conn_request_username",
            "MGTSERVER_check_firmware_url", "MGTSERVER_check_periodic_inform",
            "MGTSERVER_check_periodic_inform_interval", "MGTSERVER_check_periodic_inform_time",
            "MGTSERVER_check_server_password", "MGTSERVER_check_server_url", "PARAM_check_MACAddress",
            "PARAM_check_Ordinary_MACAddress", "PARAM_check_bool_value", "PARAM_check_bool_value_use_str",
            "PARAM_check_dl_test_bufsize", "PARAM_check_hexa_string", "PARAM_check_ip_addr",
            "PARAM_check_port", "PARAM_check_printable_ascii_string", "PARAM_check_provisioning_code",
            "PARAM_check_transport_protocol", "PARAM_check_ui2_value", "PARAM_check_ui4_value",
            "PARAM_get_protocol_from_name", "PORTMAPPING_check_description",
            "PORTMAPPING_check_external_port", "PORTMAPPING_check_lease_duration",
            "PORTMAPPING_check_remote_host", "PPP_check_connection_trigger", "PPP_check_connection_type",
            "PPP_check_idle_disconnect_time", "PPP_check_non_tonline_password",
            "PPP_check_pppoe_service_name", "PPP_check_route_protocol_rx", "PPP_check_shaping_burst_size",
            "PPP_check_shaping_rate", "PPP_check_tonline_password", "PPP_check_user_name",
            "Param_check_bool_value", "Param_check_color_value", "Param_check_datetime_value",
            "Param_check_helpdesk_value", "Param_check_ispname_value", "Param_check_login_value",
            "Param_check_logo_size_value", "Param_check_logo_value", "Param_check_page_value",
            "Param_check_pword_value", "Param_check_server_value", "TIME_check_NTP_server",
            "TIME_check_ascii_string", "TIME_check_daylight_saving_start_or_end",
            "TIME_check_local_time_zone", "TIME_check_local_time_zone_name",
            "TIME_check_ntpserver_length", "TIME_check_url", "TcmValidateBeaconType",
            "TcmValidateDataTransmitRates", "TcmValidateDaylightSavingsTime", "TcmValidateDomainName",
            "TcmValidateEmailAddress", "TcmValidateEmailPassword", "TcmValidateIPAddress",
            "TcmValidateIPRouter", "TcmValidateKPP", "TcmValidateLANConfigPassword",
            "TcmValidateMACaddress", "TcmValidatePPPPassword", "TcmValidatePSK", "TcmValidatePort",
            "TcmValidatePortMappingDescription", "TcmValidatePortMappingProtocol",
            "TcmValidateProvisioningCode", "TcmValidateRate", "TcmValidateRouterName", "TcmValidateSSID",
            "TcmValidateServerURL", "TcmValidateTime", "TcmValidateTimeZoneFormate",
            "TcmValidateVoIPAnbietername", "TcmValidateVoIPAreaCode", "TcmValidateVoIPNumber",
            "TcmValidateVoIPPassword", "TcmValidateVoIPRegistrar", "TcmValidateVoIPRegistrarPort",
            "TcmValidateVoIPSTUNServer", "TcmValidateVoIPUsername", "TcmValidatefirmwareURL",
            "TcmValidateofferDNS", "ValidateURL", "WLAN_check_DistanceFromRoot",
            "WLAN_check_IEEE11_standard", "WLAN_check_authentication_service_mode",
            "WLAN_check_basic_authentication_modes", "WLAN_check_basic_data_transmit_rate",
            "WLAN_check_basic_encryption_modes", "WLAN_check_beacon_type",
            "WLAN_check_default_wep_key_index", "WLAN_check_location_description",
            "WLAN_check_max_bit_rate", "WLAN_check_op_data_transmit_rate", "WLAN_check_preshared_key",
            "WLAN_check_radio_id", "WLAN_check_radius_sec", "WLAN_check_regulatory_domain",
            "WLAN_check_ssid", "WLAN_check_wpa_authentication_modes", "WLAN_check_wpa_encryption_modes",
            "isEmail", "isValidOrdinaryMACAddress",
        ],
        __value: Text | None,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "PARAM_check_number", "PARAM_check_password", "PARAM_check_string_len",
            "Param_check_string_len",
        ],
        __value_p: Text | None, __min_len: int, __max_len: int,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "WLAN_check_IEEE11i_authentication_modes", "WLAN_check_IEEE11i_encryption_modes",
            "WLAN_check_device_opration_mode",
        ],
        __value: Text | None, __readwrite_mode: int,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "LAN_check_dhcp_addr_range", "TcmValidateAddressRange",
        ],
        __startAddress: Text | None, __endAddress: Text | None, __lanAddress: Text | None,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "LAN_check_dhcp_reserved_addr", "TcmValidateReservedAddress",
        ],
        __reservedList: Text | None, __lanAddress: Text | None,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "WLAN_check_5g_second_channel", "WLAN_check_second_channel",
        ],
        __primary: Text | None, __second: Text | None,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "HNAPCORE_check_timezone",
        ],
        __value: Text | None, __offset_out: Text | None = ...,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "LAN_check_add_allowedMACAddress",
        ],
        __macAddress: Text | None, __allowedList: Text | None,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "LAN_check_add_dns_servers",
        ],
        __newServers: Text | None, __existingServers: Text | None,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "LAN_check_delete_dns_server",
        ],
        __serverAddress: Text | None, __existingServers: Text | None,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "PARAM_check_num_range",
        ],
        __value_p: Text | None, __min: int, __max: int,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "PARAM_check_string_prefix",
        ],
        __value_p: Text | None, __first_chars: Text | None,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "PORTMAPPING_check_port_available",
        ],
        __port: Text | None, __protocol: int,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "TCM_validate_device_name",
        ],
        __value: Text | None, __maxLength: int,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "TIME_check_sync_daylight_saving_time",
        ],
        __start: Text | None, __end: Text | None,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "TcmValidatePPPUsername",
        ],
        __value: Text | None, __account_type: int | None = ...,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "TcmValueisValid",
        ],
        __value: Text | None, __allowed: Text | None,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "Time_validate_tzone_and_tzone_name",
        ],
        __tzone: Text | None, __tzone_name: Text | None,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "ValidateDay",
        ],
        __year: int, __month: int, __day: int,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "ValidateNum",
        ],
        __min: int, __max: int, __charset: Text | None, __value: Text | None,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "ValidateString",
        ],
        __min_len: int, __max_len: int, __charset: Text | None, __value: Text | None,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "WLAN_check_HNAP_KeyRenewal",
        ],
        __renewal: Text | None, __interval: Text | None, __type: Text | None,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "WLAN_check_HNAP_SecurityType",
        ],
        __setting1: Text | None, __setting2: Text | None, __type: Text | None, __encryption: Text | None,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "WLAN_check_IEEE11_mode",
        ],
        __mode: Text | None, __radio: Text | None,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "WLAN_check_channel",
        ],
        __channel: Text | None, __radio: Text | None,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "WLAN_check_keys",
        ],
        __key: Text | None, __type: Text | None, __encryption: Text | None,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "WLAN_check_preshared_key2",
        ],
        __psk: Text | None, __passphrase: Text | None,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "WLAN_check_wepkeys",
        ],
        __keys: Texts | None,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "WLAN_check_wide_channel",
        ],
        __width: Text | None, __radio: Text | None,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "countChar",
        ],
        __value: Text | None, __ch: int,
    ) -> Verdict: ...
    @overload
    def judge(
        self,
        __check: Literal[
            "isInSameSubnet",
        ],
        __reference: Text | None, __address: Text | None,
    ) -> Verdict: ...
    def call(self, check: str, arguments: Iterable[Argument]) -> Verdict: ...

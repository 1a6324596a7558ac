-- Functions that refuse rows with a reason, and domains for columns.
\echo Use "ALTER EXTENSION ostrel UPDATE TO '1.1'" to load this file. \quit

CREATE FUNCTION ostrel_require("check" text, VARIADIC "values" text[]) RETURNS boolean
AS 'MODULE_PATHNAME', 'ostrel_require' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE;
CREATE FUNCTION ostrel_require("check" text, VARIADIC "values" bytea[]) RETURNS boolean
AS 'MODULE_PATHNAME', 'ostrel_require' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE;

CREATE DOMAIN ipv4_address AS text CHECK (ostrel_require('TcmValidateIPAddress', VALUE));
CREATE DOMAIN mac_address AS text CHECK (ostrel_require('TcmValidateMACaddress', VALUE));
CREATE DOMAIN station_address AS text CHECK (ostrel_require('isValidOrdinaryMACAddress', VALUE));
CREATE DOMAIN host_name AS text CHECK (ostrel_require('TcmValidateDomainName', VALUE));
CREATE DOMAIN host AS text CHECK (ostrel_require('ValidateURL', VALUE));
CREATE DOMAIN port AS text CHECK (ostrel_require('PARAM_check_port', VALUE));
CREATE DOMAIN email_address AS text CHECK (ostrel_require('TcmValidateEmailAddress', VALUE));
CREATE DOMAIN server_url AS text CHECK (ostrel_require('TcmValidateServerURL', VALUE));
CREATE DOMAIN firmware_url AS text CHECK (ostrel_require('TcmValidatefirmwareURL', VALUE));
CREATE DOMAIN provisioning_code AS text CHECK (ostrel_require('TcmValidateProvisioningCode', VALUE));
CREATE DOMAIN time_zone_offset AS text CHECK (ostrel_require('TcmValidateTimeZoneFormate', VALUE));
CREATE DOMAIN ssid AS text CHECK (ostrel_require('TcmValidateSSID', VALUE));
CREATE DOMAIN beacon_type AS text CHECK (ostrel_require('TcmValidateBeaconType', VALUE));
CREATE DOMAIN pre_shared_key AS text CHECK (ostrel_require('TcmValidatePSK', VALUE));
CREATE DOMAIN pass_phrase AS text CHECK (ostrel_require('TcmValidateKPP', VALUE));
CREATE DOMAIN ppp_user_name AS text CHECK (ostrel_require('TcmValidatePPPUsername', VALUE));
CREATE DOMAIN ppp_password AS text CHECK (ostrel_require('TcmValidatePPPPassword', VALUE));

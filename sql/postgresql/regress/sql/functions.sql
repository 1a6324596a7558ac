-- Functions that take the name of a check, and a function for each check.
CREATE EXTENSION ostrel;
SET search_path = public, ostrel;
SELECT ostrel_code('PARAM_check_port', '65535'), ostrel_code('PARAM_check_port', '65536');
SELECT ostrel_valid('PARAM_check_port', '65535'), ostrel_valid('PARAM_check_port', '65536');
SELECT jsonb_pretty(ostrel_reason('TcmValidateIPAddress', '192.168.1.256'));
SELECT ostrel_reason('TcmValidateIPAddress', '192.168.1.1');
SELECT ostrel_line('PARAM_check_port', '65536');
SELECT ostrel_line('PARAM_check_bool_value', '\xe9'::bytea);
SELECT ostrel_after('WLAN_check_ssid', 'Home &amp; Garden');
SELECT ostrel_after('WLAN_check_wepkeys', '0123456789', '', '0123456789', '');
SELECT ostrel_code('PARAM_check_num_range', '15', '1', '20'), param_check_num_range('15', 1, 20);
SELECT ostrel_code('countChar', 'a#b#c', '35');
SELECT wlan_check_wepkeys('0123456789', '0123456789', '0123456789', '0123456789');
SELECT param_check_string_len_signed('', -1, 1);
-- Arrays of one or more dimensions, and an empty array.
SELECT ostrel_valid('isInSameSubnet', VARIADIC ARRAY['192.168.1.1', '192.168.1.2']);
SELECT ostrel_valid('isInSameSubnet', VARIADIC ARRAY[['192.168.1.1'], ['192.168.1.2']]);
SELECT ostrel_valid('isInSameSubnet', VARIADIC '{}'::text[]);
-- The result is NULL for NULL, and for an array that contains NULL.
SELECT ostrel_code('isInSameSubnet', '1.2.3.4', NULL) IS NULL, isinsamesubnet('1.2.3.4', NULL) IS NULL;
-- Errors.
SELECT ostrel_code('PARAM_check_prot', '1');
SELECT ostrel_code('PARAM_check_number', '1');
SELECT ostrel_code('PARAM_check_number', '1', 'x', '2');
SELECT ostrel_code('PARAM_check_ui2_value', '1');
SELECT param_check_ui4_value('');
SELECT ostrel_code('WLAN_check_channel', '1', 'RADIO_2.4GHz');
SELECT ostrel_valid('countChar', 'a', '97');
SELECT ostrel_code('PARAM_check_port', '\x00'::bytea);
-- Constraints, indexes and foreign servers may use every function.
SELECT count(*), bool_and(provolatile = 'i' AND proparallel = 's' AND proisstrict)
FROM pg_proc WHERE pronamespace = 'ostrel'::regnamespace;

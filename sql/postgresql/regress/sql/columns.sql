-- Rows are refused when they are written, and the error contains the reason.
SET search_path = public, ostrel;
CREATE TABLE mapping (
    host ostrel.ipv4_address,
    port integer CHECK (ostrel_valid('PARAM_check_port', port::text)),
    protocol text CHECK (ostrel_require('TcmValidatePortMappingProtocol', protocol))
);
INSERT INTO mapping VALUES ('192.168.1.20', 8080, 'TCP'), (NULL, NULL, NULL);
\set VERBOSITY terse
INSERT INTO mapping VALUES ('192.168.1.20', 65536, 'TCP');
\set VERBOSITY default
INSERT INTO mapping VALUES ('192.168.1.256', 8080, 'TCP');
INSERT INTO mapping VALUES ('192.168.1.20', 8080, 'SCTP');
UPDATE mapping SET host = host || '.1';
-- For a secret, the error contains only the length.
CREATE TABLE account (name ostrel.ppp_user_name, password ostrel.ppp_password);
INSERT INTO account VALUES ('someone', E'sesame\u0001');
INSERT INTO account VALUES ('someone', repeat('sesame', 20));
-- Each domain accepts a valid value.
CREATE TABLE domains (
    a ostrel.ipv4_address, b ostrel.mac_address, c ostrel.station_address, d ostrel.host_name, e ostrel.host,
    f ostrel.port, g ostrel.email_address, h ostrel.server_url, i ostrel.firmware_url, j ostrel.provisioning_code,
    k ostrel.time_zone_offset, l ostrel.ssid, m ostrel.beacon_type, n ostrel.pre_shared_key, o ostrel.pass_phrase,
    p ostrel.ppp_user_name, q ostrel.ppp_password
);
INSERT INTO domains VALUES ('10.0.0.1', '01:00:5E:00:00:01', '00:1a:2B:3c:4D:5e', 'router.lan', '10.0.0.1', '80',
    'a@b.example', 'x-dslf_cwmp://acs.lan', 'https://fw.lan/x', '000.004.001.999', '+01:00', 'Home', '11i',
    repeat('0a', 32), 'eight letters', 'someone', 'secret');
SELECT count(*) FROM information_schema.domains WHERE domain_schema = 'ostrel';
-- An index, a generated column, and a query for rows that were written before the rules changed.
CREATE INDEX ON mapping (tcmvalidateipaddress(host));
CREATE TABLE old (host text, code integer GENERATED ALWAYS AS (tcmvalidateipaddress(host)) STORED);
INSERT INTO old VALUES ('192.168.1.1'), ('192.168.1'), (NULL);
SELECT host, code, ostrel_reason('TcmValidateIPAddress', host) ->> 'text' AS why FROM old
WHERE NOT ostrel_valid('TcmValidateIPAddress', host);

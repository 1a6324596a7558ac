-- An upgrade from the first version to the current one.
SET client_min_messages = warning;
DROP EXTENSION ostrel CASCADE;
CREATE EXTENSION ostrel VERSION '1.0';
SELECT count(*) FROM information_schema.domains WHERE domain_schema = 'ostrel';
SELECT ostrel.ostrel_valid('PARAM_check_port', '80');
ALTER EXTENSION ostrel UPDATE;
SELECT extversion FROM pg_extension WHERE extname = 'ostrel';
SELECT count(*) FROM information_schema.domains WHERE domain_schema = 'ostrel';
SELECT '1.2.3.4'::ostrel.ipv4_address;

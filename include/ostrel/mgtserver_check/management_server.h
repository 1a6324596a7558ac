/*
 * Checks for the management server.
 *
 * <ostrel/mgtserver_check.h> describes what these checks have in common.
 */
#ifndef OSTREL_MGTSERVER_CHECK_MANAGEMENT_SERVER_H
#define OSTREL_MGTSERVER_CHECK_MANAGEMENT_SERVER_H

#include <ostrel/api.h>

/*
 * MGTSERVER_check_server_url: the URL of the management server, as checked by TcmValidateServerURL.
 *
 * A NULL value fails an assertion whose message gives line 41. Returns 0, or prints
 * "Error in %s: Error server url:%s\n\n" with the value and returns OSTREL_INVALID_VALUE.
 */
OSTREL_API int MGTSERVER_check_server_url(const char* value_p);

/*
 * MGTSERVER_check_firmware_url: the URL of a firmware image, as checked by TcmValidatefirmwareURL.
 *
 * A NULL value fails an assertion whose message gives line 75. Returns 0, or prints
 * "Error in %s: Error server url:%s\n\n" with the value and returns OSTREL_INVALID_VALUE. The printed line
 * contains "server url" here too.
 */
OSTREL_API int MGTSERVER_check_firmware_url(const char* value_p);

/*
 * MGTSERVER_check_server_password: at most 256 bytes of any kind; the empty value is accepted.
 *
 * A NULL value fails an assertion whose message gives line 105. Returns 0, or prints
 * "Error in %s: Error password:%s\n\n" with the value, which is the password, and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int MGTSERVER_check_server_password(const char* value_p);

/*
 * MGTSERVER_check_conn_request_username, MGTSERVER_check_conn_request_password: the credentials of a
 * connection request. Both call MGTSERVER_check_server_password, whose name appears in the printed line and
 * in the assertion's message.
 */
OSTREL_API int MGTSERVER_check_conn_request_username(const char* value_p);
OSTREL_API int MGTSERVER_check_conn_request_password(const char* value_p);

/*
 * MGTSERVER_check_periodic_inform: the setting that controls the client's periodic reports. Every value
 * except the empty one is accepted.
 *
 * A NULL value fails an assertion whose message gives line 135. Returns 0, or prints
 * "Error in %s: Error empty periodic inform\n\n" and returns OSTREL_INVALID_VALUE.
 */
OSTREL_API int MGTSERVER_check_periodic_inform(const char* value_p);

/*
 * MGTSERVER_check_periodic_inform_time: a date-time, as checked by TcmValidateTime. The empty value is
 * refused, and so is the "unknown time" of TR-069, "0001-01-01T00:00:00Z".
 *
 * A NULL value fails an assertion whose message gives line 210. Returns 0, or prints
 * "Error in %s: Error periodic inform time:%s\n\n" with the value and returns OSTREL_INVALID_VALUE.
 */
OSTREL_API int MGTSERVER_check_periodic_inform_time(const char* value_p);

/*
 * MGTSERVER_check_periodic_inform_interval: the number of seconds between two reports, which must be greater
 * than 0 as read by atoi. Characters after the digits are ignored, so "30abc" is accepted. There is no upper
 * limit, but a number that does not fit in an int may be read as 0 or less, and is then refused.
 *
 * A NULL value fails an assertion whose message gives line 240. Returns 0, or prints
 * "Error in %s: Invalite periodic inform interval\n\n" and returns OSTREL_INVALID_VALUE.
 */
OSTREL_API int MGTSERVER_check_periodic_inform_interval(const char* value_p);

#endif

/*
 * Names: transport protocol and description of a port mapping, names of devices and of the router.
 *
 * The functions print nothing, keep no state and do not change their arguments. No pointer may be NULL.
 * Lengths count bytes; the sets are defined in character_sets.h.
 */
#ifndef OSTREL_NAMES_H
#define OSTREL_NAMES_H

#include <ostrel/api.h>

/*
 * TcmValidatePortMappingProtocol: exactly "TCP" or "UDP", in upper case.
 *
 * Returns 0 or OSTREL_INVALID. The empty value is invalid.
 */
OSTREL_API int TcmValidatePortMappingProtocol(const char* value);

/*
 * The names below return 0, OSTREL_TOO_SHORT (empty), OSTREL_TOO_LONG or OSTREL_FORBIDDEN_CHARACTER, in the
 * order of the tests.
 */

/* TcmValidatePortMappingDescription: 1 to 32 characters of CHARSET_DESCRIPTION: 0x20 to 0x7E. */
OSTREL_API int TcmValidatePortMappingDescription(const char* value);

/*
 * TCM_validate_device_name: 1 to maxLength characters of CHARSET_DEVICE_NAME: 0x20 to 0x7E. With a maxLength
 * below 1 every value except the empty one is too long.
 */
OSTREL_API int TCM_validate_device_name(const char* value, int maxLength);

/* TcmValidateRouterName: 1 to 22 characters of CHARSET_ROUTER_NAME, which contains neither space nor ".". */
OSTREL_API int TcmValidateRouterName(const char* value);

#endif

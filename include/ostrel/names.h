/*
 * Checks for the transport protocol and the description of a port mapping, and for the names of devices and
 * of the router.
 *
 * The functions print nothing, keep no state and do not change their arguments. No pointer may be NULL.
 * Lengths are in bytes; character_sets.h defines the sets.
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
 * The functions below return 0, or the code of the first test that fails: OSTREL_TOO_SHORT (the empty value),
 * OSTREL_TOO_LONG or OSTREL_FORBIDDEN_CHARACTER, in this order.
 */

/* TcmValidatePortMappingDescription: 1 to 32 characters from CHARSET_DESCRIPTION (0x20 to 0x7E). */
OSTREL_API int TcmValidatePortMappingDescription(const char* value);

/*
 * TCM_validate_device_name: 1 to maxLength characters from CHARSET_DEVICE_NAME (0x20 to 0x7E). If maxLength
 * is below 1, every value except the empty one is too long.
 */
OSTREL_API int TCM_validate_device_name(const char* value, int maxLength);

/* TcmValidateRouterName: 1 to 22 characters from CHARSET_ROUTER_NAME (no space and no "."). */
OSTREL_API int TcmValidateRouterName(const char* value);

#endif

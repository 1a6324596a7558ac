/*
 * The result codes that the checks return.
 *
 * 0 means that the value may be stored, and every other code identifies a fault. The comment on each check
 * lists the codes that the check returns.
 */
#ifndef OSTREL_RESULT_CODE_H
#define OSTREL_RESULT_CODE_H

enum ostrel_result_code {
    /* OSTREL_INVALID: the value is refused, for a reason that the code does not specify. */
    OSTREL_INVALID = -1,
    OSTREL_VALID = 0,

    /* OSTREL_INVALID_VALUE: the general refusal code of the service checks. */
    OSTREL_INVALID_VALUE = 402,
    /* OSTREL_EMPTY: a required value is empty (PPP checks). */
    OSTREL_EMPTY = 501,
    /* OSTREL_WRONG_FORM: the value has the wrong form or is of the wrong kind. */
    OSTREL_WRONG_FORM = 600,
    OSTREL_OUT_OF_RANGE = 601,

    /* OSTREL_REPEATED: the entry would occur twice in a list. */
    OSTREL_REPEATED = 701,
    /* OSTREL_NOT_IN_LIST: the entry to delete is not in the list. */
    OSTREL_NOT_IN_LIST = 702,
    /* OSTREL_WILDCARD_EXTERNAL_PORT: the port mapping's external port is empty. */
    OSTREL_WILDCARD_EXTERNAL_PORT = 716,
    /* OSTREL_LEASE_NOT_PERMANENT: the port mapping's lease is not 0. */
    OSTREL_LEASE_NOT_PERMANENT = 725,
    /* OSTREL_REMOTE_HOST_NOT_WILDCARD: the port mapping's remote host is not empty. */
    OSTREL_REMOTE_HOST_NOT_WILDCARD = 726,
    /* OSTREL_INVALID_DISTANCE: the distance from the root access point is invalid (wireless). */
    OSTREL_INVALID_DISTANCE = 728,
    /* OSTREL_WEP_KEY_LENGTH: a WEP key has an invalid length, or the WEP keys differ in length. */
    OSTREL_WEP_KEY_LENGTH = 731,

    OSTREL_TOO_SHORT = 801,
    OSTREL_TOO_LONG = 802,
    /* OSTREL_FORBIDDEN_CHARACTER: the value contains a character outside the allowed set. */
    OSTREL_FORBIDDEN_CHARACTER = 803,

    /* OSTREL_BUFFER_SIZE_TOO_LARGE: the download-test buffer size is above 1048576. */
    OSTREL_BUFFER_SIZE_TOO_LARGE = 901,

    /* OSTREL_SECURITY_TYPE_NOT_ALLOWED: the HNAP security type is not allowed. */
    OSTREL_SECURITY_TYPE_NOT_ALLOWED = 1001,
    /* OSTREL_ENCRYPTION_MISMATCH: the HNAP encryption does not suit the security type, or the length of a WEP
       key does not suit the encryption. */
    OSTREL_ENCRYPTION_MISMATCH = 1002
};

#endif

#include <ostrel/result_code.h>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

std::string_view meaning(int code)
{
    switch (code) {
        case OSTREL_VALID:
            return "valid";
        case OSTREL_INVALID:
            return "invalid";
        case OSTREL_INVALID_VALUE:
            return "invalid value";
        case OSTREL_EMPTY:
            return "a required value is empty";
        case OSTREL_WRONG_FORM:
            return "wrong form or kind";
        case OSTREL_OUT_OF_RANGE:
            return "out of range";
        case OSTREL_REPEATED:
            return "the entry would be repeated in the list";
        case OSTREL_NOT_IN_LIST:
            return "the entry is not in the list";
        case OSTREL_WILDCARD_EXTERNAL_PORT:
            return "the external port is the wildcard";
        case OSTREL_LEASE_NOT_PERMANENT:
            return "the lease is not permanent";
        case OSTREL_REMOTE_HOST_NOT_WILDCARD:
            return "the remote host is not the wildcard";
        case OSTREL_INVALID_DISTANCE:
            return "invalid distance from the root";
        case OSTREL_WEP_KEY_LENGTH:
            return "bad or differing WEP key lengths";
        case OSTREL_TOO_SHORT:
            return "too short";
        case OSTREL_TOO_LONG:
            return "too long";
        case OSTREL_FORBIDDEN_CHARACTER:
            return "a character outside the allowed set";
        case OSTREL_BUFFER_SIZE_TOO_LARGE:
            return "the buffer size is too large";
        case OSTREL_SECURITY_TYPE_NOT_ALLOWED:
            return "security type not allowed";
        case OSTREL_ENCRYPTION_MISMATCH:
            return "encryption or key length does not suit the security type";
        default:
            return "a code that the catalogue does not know";
    }
}

std::string_view constant(int code)
{
    switch (code) {
        case OSTREL_VALID:
            return "OSTREL_VALID";
        case OSTREL_INVALID:
            return "OSTREL_INVALID";
        case OSTREL_INVALID_VALUE:
            return "OSTREL_INVALID_VALUE";
        case OSTREL_EMPTY:
            return "OSTREL_EMPTY";
        case OSTREL_WRONG_FORM:
            return "OSTREL_WRONG_FORM";
        case OSTREL_OUT_OF_RANGE:
            return "OSTREL_OUT_OF_RANGE";
        case OSTREL_REPEATED:
            return "OSTREL_REPEATED";
        case OSTREL_NOT_IN_LIST:
            return "OSTREL_NOT_IN_LIST";
        case OSTREL_WILDCARD_EXTERNAL_PORT:
            return "OSTREL_WILDCARD_EXTERNAL_PORT";
        case OSTREL_LEASE_NOT_PERMANENT:
            return "OSTREL_LEASE_NOT_PERMANENT";
        case OSTREL_REMOTE_HOST_NOT_WILDCARD:
            return "OSTREL_REMOTE_HOST_NOT_WILDCARD";
        case OSTREL_INVALID_DISTANCE:
            return "OSTREL_INVALID_DISTANCE";
        case OSTREL_WEP_KEY_LENGTH:
            return "OSTREL_WEP_KEY_LENGTH";
        case OSTREL_TOO_SHORT:
            return "OSTREL_TOO_SHORT";
        case OSTREL_TOO_LONG:
            return "OSTREL_TOO_LONG";
        case OSTREL_FORBIDDEN_CHARACTER:
            return "OSTREL_FORBIDDEN_CHARACTER";
        case OSTREL_BUFFER_SIZE_TOO_LARGE:
            return "OSTREL_BUFFER_SIZE_TOO_LARGE";
        case OSTREL_SECURITY_TYPE_NOT_ALLOWED:
            return "OSTREL_SECURITY_TYPE_NOT_ALLOWED";
        case OSTREL_ENCRYPTION_MISMATCH:
            return "OSTREL_ENCRYPTION_MISMATCH";
        default:
            return "";
    }
}

}  // namespace ostrel::catalogue

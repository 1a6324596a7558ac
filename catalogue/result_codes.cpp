#include "catalogue/result_codes.h"

#include <ostrel/result_code.h>

#include <algorithm>
#include <iterator>

namespace ostrel::catalogue {

namespace {

struct ResultCode {
    int code;
    std::string_view name;
    std::string_view meaning;
};

#define NAMED(code) code, #code
constexpr ResultCode kResultCodes[] = {
    {NAMED(OSTREL_VALID), "valid"},
    {NAMED(OSTREL_INVALID), "invalid"},
    {NAMED(OSTREL_INVALID_VALUE), "invalid value"},
    {NAMED(OSTREL_EMPTY), "a required value is empty"},
    {NAMED(OSTREL_WRONG_FORM), "wrong format or type"},
    {NAMED(OSTREL_OUT_OF_RANGE), "out of range"},
    {NAMED(OSTREL_REPEATED), "the entry is already in the list"},
    {NAMED(OSTREL_NOT_IN_LIST), "the entry is not in the list"},
    {NAMED(OSTREL_WILDCARD_EXTERNAL_PORT), "the external port is the wildcard"},
    {NAMED(OSTREL_LEASE_NOT_PERMANENT), "the lease is not permanent"},
    {NAMED(OSTREL_REMOTE_HOST_NOT_WILDCARD), "the remote host is not the wildcard"},
    {NAMED(OSTREL_INVALID_DISTANCE), "invalid distance from the root"},
    {NAMED(OSTREL_WEP_KEY_LENGTH), "invalid or differing WEP key lengths"},
    {NAMED(OSTREL_TOO_SHORT), "too short"},
    {NAMED(OSTREL_TOO_LONG), "too long"},
    {NAMED(OSTREL_FORBIDDEN_CHARACTER), "a character outside the allowed set"},
    {NAMED(OSTREL_BUFFER_SIZE_TOO_LARGE), "the buffer size is too large"},
    {NAMED(OSTREL_SECURITY_TYPE_NOT_ALLOWED), "security type not allowed"},
    {NAMED(OSTREL_ENCRYPTION_MISMATCH), "encryption or key length does not match the security type"},
};
#undef NAMED

const ResultCode* find(int code)
{
    const auto* found = std::ranges::find(kResultCodes, code, &ResultCode::code);
    return found == std::end(kResultCodes) ? nullptr : found;
}

}  // namespace

std::string_view meaning(int code)
{
    const ResultCode* known = find(code);
    return known == nullptr ? "a code that the catalogue does not know" : known->meaning;
}

std::string_view constant(int code)
{
    const ResultCode* known = find(code);
    return known == nullptr ? std::string_view() : known->name;
}

}  // namespace ostrel::catalogue

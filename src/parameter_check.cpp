#include <ostrel/accounts.h>
#include <ostrel/addresses.h>
#include <ostrel/parameter_check.h>
#include <ostrel/result_code.h>

#include <cstring>

#include "src/strings.h"
#include "src/support/assertion.h"
#include "src/support/char_set.h"
#include "src/support/keywords.h"
#include "src/support/number.h"
#include "src/support/report.h"
#include "src/support/text.h"
#include "src/verdict.h"

using namespace ostrel;

namespace {

constexpr auto kProtocols = keywords("tcp|udp");
constexpr auto kBooleans = keywords("0|1");
constexpr auto kWrittenBooleans = keywords("true|false");

constexpr char kModule[] = "parameter_check";

constexpr int kLargestTestBuffer = 0x100000;

constexpr Limits kPorts{0, 65535, OSTREL_OUT_OF_RANGE};

// require_digits returns OSTREL_VALID for the empty value and refuses a value that begins with a non-digit.
// For a value that begins with a digit, it never returns, because the scan does not advance.
int require_digits(const char* value_p, const char* function)
{
    while (value_p[0] != '\0') {
        if (!contains(kDigits, value_p[0])) {
            return refuse(OSTREL_INVALID_VALUE, "Error in %s: The value %s is invalid\n", function, value_p);
        }
        // C++ lets a compiler assume that a loop without side effects terminates; this is a side effect.
        asm volatile("" ::: "memory");
    }
    return OSTREL_VALID;
}

}  // namespace

int Param_check_string_len(const char* value_p, int min_len, int max_len)
{
    if (value_p == nullptr) fail_assertion("((void *)0) != value_p", kModule, __func__, __LINE__);
    const int code = validate_length(min_len, max_len, std::strlen(value_p));
    if (code == OSTREL_TOO_SHORT) {
        return refuse(code, "Error in %s: The length of string:%s shoud not be less than %d\n", __func__,
                      value_p, min_len);
    }
    if (code == OSTREL_TOO_LONG) {
        return refuse(code, "Error in %s: The length of string:%s shoud not be more than %d\n", __func__,
                      value_p, max_len);
    }
    return OSTREL_VALID;
}

int PARAM_check_port(const char* value_p)
{
    return number_or_refuse(require_value(value_p, kModule), kPorts,
                            line("Error in %s: The port shoud be between 0~65535\n", __func__));
}

int PARAM_check_ip_addr(const char* value_p)
{
    return TcmValidateIPAddress(value_p) == OSTREL_VALID ? OSTREL_VALID : OSTREL_INVALID_VALUE;
}

int PARAM_check_Ordinary_MACAddress(const char* value_p)
{
    return isValidOrdinaryMACAddress(value_p) == OSTREL_VALID ? OSTREL_VALID : OSTREL_INVALID_VALUE;
}

int PARAM_check_MACAddress(const char* value_p)
{
    return TcmValidateMACaddress(value_p) == OSTREL_VALID ? OSTREL_VALID : OSTREL_INVALID_VALUE;
}

int PARAM_check_transport_protocol(const char* value_p)
{
    if (is_one_of_ignoring_case(value_p, kProtocols)) return OSTREL_VALID;
    return refuse(OSTREL_INVALID, "Error in %s: The transport protocol:%s is error\n", __func__, value_p);
}

int PARAM_get_protocol_from_name(const char* value_p)
{
    if (equals(value_p, "TCP")) return 0;
    return equals(value_p, "UDP") ? 1 : 2;
}

int PARAM_check_hexa_string(const char* value_p)
{
    return contains_all(kHexDigits, require_value(value_p, kModule)) ? OSTREL_VALID : OSTREL_INVALID;
}

int PARAM_check_printable_ascii_string(const char* value_p)
{
    const bool is_printable =
        value_p != nullptr && value_p[0] != '\0' && contains_all(kAsciiPrintable, value_p);
    return is_printable ? OSTREL_VALID : OSTREL_INVALID;
}

int PARAM_check_provisioning_code(const char* value_p) { return TcmValidateProvisioningCode(value_p); }

int PARAM_check_ui2_value(const char* value_p)
{
    require_value(value_p, kModule);
    if (const int code = require_digits(value_p, __func__); code != OSTREL_VALID) return code;
    const int number = leading_number(value_p);
    // Only the empty value reaches this line, and it is read as 0.
    if (number >= 0 && number < 65536) return OSTREL_VALID;  // GCOVR_EXCL_BR_LINE
    // GCOVR_EXCL_START
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: The value %s should be between [0,65536)\n", __func__,
                  value_p);
    // GCOVR_EXCL_STOP
}

int PARAM_check_ui4_value(const char* value_p)
{
    require_value(value_p, kModule);
    if (const int code = require_digits(value_p, __func__); code != OSTREL_VALID) return code;
    // Here too, only the empty value reaches this line.
    if (leading_number(value_p) >= 0) return OSTREL_VALID;  // GCOVR_EXCL_BR_LINE
    // GCOVR_EXCL_START
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: The value %s should be between [0,4296967296)\n",
                  __func__, value_p);
    // GCOVR_EXCL_STOP
}

int PARAM_check_bool_value(const char* value_p)
{
    return keyword_or_refuse(require_value(value_p, kModule), kBooleans,
                             line("Error in %s: The value %s out of range[0,1]\n", __func__, value_p));
}

int PARAM_check_bool_value_use_str(const char* value_p)
{
    return keyword_or_refuse(
        require_value(value_p, kModule), kWrittenBooleans,
        line("Error in %s: The value %s out of range[true, false]\n", __func__, value_p));
}

int PARAM_check_number(const char* value_p, int min_len, int max_len)
{
    return validate_string(value_p, min_len, max_len, kDigits);
}

int PARAM_check_num_range(const char* value_p, int min, int max)
{
    return validate_number(value_p, min, max);
}

int PARAM_check_password(const char* value_p, int min_len, int max_len)
{
    return validate_string(value_p, min_len, max_len, kAlnum);
}

int PARAM_check_string_len(const char* value_p, unsigned min_len, unsigned max_len)
{
    const std::size_t length = std::strlen(value_p);
    return length >= min_len && length <= max_len ? OSTREL_VALID : OSTREL_INVALID;
}

int PARAM_check_string_prefix(const char* value_p, const char* first_chars)
{
    require_value(value_p, kModule);
    // strchr finds the terminator of an empty value at the end of first_chars.
    return std::strchr(first_chars, value_p[0]) != nullptr ? OSTREL_VALID : OSTREL_INVALID;
}

int PARAM_check_dl_test_bufsize(const char* value_p)
{
    if (value_p == nullptr || value_p[0] == '\0') return OSTREL_OUT_OF_RANGE;
    if (!contains_all(kDigits, value_p)) {
        return refuse(OSTREL_OUT_OF_RANGE, "Error in %s: The value %s is invalid\n", __func__, value_p);
    }
    const int size = leading_number(value_p);
    if (size < 0) return OSTREL_OUT_OF_RANGE;
    if (size == 0) return OSTREL_WRONG_FORM;
    if (size <= kLargestTestBuffer) return OSTREL_VALID;
    return refuse(OSTREL_BUFFER_SIZE_TOO_LARGE, "Error in %s: The value %s should be between [1,%d)\n",
                  __func__, value_p, kLargestTestBuffer);
}

#include "src/accounts.h"

#include <ostrel/accounts.h>
#include <ostrel/result_code.h>

#include <string_view>

#include "src/strings.h"
#include "src/support/char_set.h"
#include "src/support/number.h"
#include "src/support/report.h"
#include "src/support/text.h"

using namespace ostrel;

namespace {

// The realms of the gateway's ISP, including the "@". They are arrays because a constant std::string_view
// would contain a pointer, which would need a relocation.
constexpr char kAccountRealm[] = OSTREL_ACCOUNT_REALM;
constexpr char kSetupRealm[] = OSTREL_SETUP_REALM;

constexpr bool is_realm(std::string_view text, std::size_t size)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        if ((text[i] == '@') != (i == 0)) return false;
    }
    return text.size() == size;
}

static_assert(is_realm(kAccountRealm, 12), "\"@\" and a domain of 11 characters");
static_assert(is_realm(kSetupRealm, 18), "\"@\" and a domain of 17 characters");

constexpr Text kOtherUserName = text(1, 131, kLatin1Printable);

constexpr int kNoType = 0;

// account_type returns the type of a name that has 18 to 30 characters before the account realm, at most two
// of them "#".
int account_type(std::string_view part, int separators)
{
    const std::size_t length = part.size();
    if (separators == 0) return length == 28 ? 1 : kNoType;
    if (separators == 1) {
        if (length < 29) return part[length - 5] == '#' ? 2 : kNoType;
        if (length > 29) return kNoType;
        if (part[24] == '#') return 2;
        return part[12] == '#' ? 3 : kNoType;
    }
    return length >= 19 && part[12] == '#' && part[length - 5] == '#' ? 4 : kNoType;
}

// setup_type returns the type of a name that has at most two "#" before the set-up realm.
int setup_type(std::string_view part, int separators)
{
    if (separators == 0) return part.size() == 16 ? 5 : kNoType;
    return separators == 1 && part.size() == 17 && part[12] == '#' ? 6 : kNoType;
}

// cut_realm removes the realm from the end of a name that has at least one character before it.
bool cut_realm(std::string_view& name, std::string_view realm)
{
    if (name.size() == realm.size() || !ends_with(name, realm)) return false;
    name.remove_suffix(realm.size());
    return true;
}

}  // namespace

int TcmValidateProvisioningCode(const char* value)
{
    const std::string_view code = value;
    if (code.size() != 15) return OSTREL_INVALID_VALUE;
    constexpr char kShape[] = "000.004.004.999";  // each digit is the highest one allowed at its position
    for (std::size_t i = 0; i < code.size(); ++i) {
        const char highest = kShape[i];
        const char lowest = highest == '.' ? '.' : '0';
        if (code[i] >= lowest && code[i] <= highest) continue;
        if (highest == '4' || highest == '9') {
            remark("TcmValidateProvisioningCode  pCode[%d] error \n", static_cast<int>(i));
        } else {
            remark("TcmValidateProvisioningCode  pCode[%d] error\n", static_cast<int>(i));
        }
        return OSTREL_INVALID_VALUE;
    }
    return OSTREL_VALID;
}

int TcmValidatePPPUsername(const char* value, int* type_out)
{
    std::string_view part = value;
    const bool is_account = cut_realm(part, kAccountRealm);
    if (!is_account && !cut_realm(part, kSetupRealm)) {
        const int code = validate_string(value, kOtherUserName);
        if (code == OSTREL_VALID) *type_out = 0;
        return code;
    }
    const int code = is_account ? validate_length(18, 30, part.size()) : validate_length(16, 17, part.size());
    if (code != OSTREL_VALID) return code;
    int separators = 0;
    for (const char c : part) {
        if (!contains(kPppDigits, c)) return OSTREL_FORBIDDEN_CHARACTER;
        separators += c == '#' ? 1 : 0;
    }
    if (separators >= 3) return OSTREL_VALID;
    const int type = is_account ? account_type(part, separators) : setup_type(part, separators);
    if (type == kNoType) return OSTREL_INVALID_VALUE;
    *type_out = type;
    return OSTREL_VALID;
}

int TcmValidatePPPPassword(const char* value) { return validate_string(value, kPppPassword); }

int TcmValidateLANConfigPassword(const char* value) { return validate_string(value, kLanConfigPassword); }

int TcmValidateEmailPassword(const char* value) { return validate_string(value, text(0, 255, kName)); }

int TcmValidateVoIPAnbietername(const char* value) { return validate_string(value, text(1, 32, kName)); }

int TcmValidateVoIPNumber(const char* value) { return validate_string(value, text(1, 32, kDigits)); }

int TcmValidateVoIPUsername(const char* value) { return validate_string(value, text(1, 64, kMail)); }

int TcmValidateVoIPPassword(const char* value) { return validate_string(value, text(0, 255, kName)); }

int TcmValidateVoIPAreaCode(const char* value) { return validate_string(value, text(1, 6, kDigits)); }

int TcmValidatePort(const char* value)
{
    const int port = leading_number(value);
    return port > 0 && port < 65536 ? OSTREL_VALID : OSTREL_INVALID;
}

int TcmValidateVoIPRegistrarPort(const char* value) { return TcmValidatePort(value); }

#include "primitives/hosts.h"

#include <ostrel/hosts.h>
#include <ostrel/result_code.h>

#include <cstdlib>
#include <cstring>

#include "primitives/addresses.h"
#include "primitives/strings.h"
#include "support/judge.h"
#include "support/text.h"

namespace ostrel {

namespace {

constexpr std::size_t kLongestLabel = 20;
constexpr int kMostLabels = 6;
constexpr std::size_t kLongestUrl = 256;

// is_domain_name needs no test of its own for dots that lead, trail or follow each other: they leave an empty
// label.
bool is_domain_name(std::string_view name)
{
    if (contains_all(kIpv4, name)) return false;
    for (int labels = 1; labels <= kMostLabels; ++labels) {
        const std::size_t length = leading(kHost, name).size();
        if (length < 1 || length > kLongestLabel) return false;
        if (length == name.size()) return true;
        if (name[length] != '.') return false;
        name.remove_prefix(length + 1);
    }
    return false;
}

bool is_host(std::string_view text)
{
    return is_domain_name(text) || skip_ipv4_address(text.data()) == text.data() + text.size();
}

// is_port judges the digits of a port. What follows them in memory is no digit, so that atoi reads no further.
bool is_port(std::string_view digits)
{
    const int number = std::atoi(digits.data());
    return number >= 0 && number <= 65535;
}

// is_url needs to judge by the characters of a URL only what its other parts leave: they allow fewer. A ":" in
// the path would end the host if there was none before.
bool is_url(const char* value, std::string_view scheme, std::string_view secure_scheme)
{
    std::string_view rest = value;
    if (rest.size() > kLongestUrl) return false;
    if (starts_with(rest, scheme)) {
        rest.remove_prefix(scheme.size());
    } else if (starts_with(rest, secure_scheme)) {
        rest.remove_prefix(secure_scheme.size());
    } else {
        return false;
    }
    const std::string_view host = leading(kName, rest);
    if (!is_host(host)) return false;
    rest.remove_prefix(host.size());
    const bool has_port = !rest.empty() && rest[0] == ':';
    if (has_port) {
        rest.remove_prefix(1);
        const std::string_view port = leading(kDigits, rest);
        if (!is_port(port)) return false;
        rest.remove_prefix(port.size());
    }
    return rest.empty() ||
           (rest[0] == '/' && contains_all(kUrl, rest) && (has_port || count(rest, ':') == 0));
}

bool is_email(const char* value)
{
    if (std::strlen(value) < 5) return false;
    const char* at = std::strchr(value, '@');
    const char* dot = std::strrchr(value, '.');
    if (at == nullptr || dot == nullptr) return false;
    return at != value && dot - at >= 2 && dot[1] != '\0';
}

}  // namespace

int validate_host(const char* value) { return judge(is_host(value)); }

int validate_server_url(const char* value)
{
    return judge(is_url(value, "x-dslf_cwmp://", "x-dslf_cwmps://"));
}

int validate_firmware_url(const char* value) { return judge(is_url(value, "http://", "https://")); }

}  // namespace ostrel

using namespace ostrel;

int TcmValidateDomainName(const char* value) { return judge(is_domain_name(value)); }

int ValidateURL(const char* value) { return validate_host(value); }

int TcmValidateServerURL(const char* value) { return validate_server_url(value); }

int TcmValidatefirmwareURL(const char* value)
{
    return validate_firmware_url(value) == OSTREL_VALID ? OSTREL_VALID : OSTREL_WRONG_FORM;
}

int isEmail(const char* value) { return judge(is_email(value)); }

int TcmValidateEmailAddress(const char* value)
{
    if (const int code = validate_string(value, text(5, 64, kMail)); code != OSTREL_VALID) return code;
    return is_email(value) ? OSTREL_VALID : OSTREL_WRONG_FORM;
}

int TcmValidateVoIPRegistrar(const char* value)
{
    if (const int code = validate_string(value, text(3, 64, kName)); code != OSTREL_VALID) return code;
    return is_host(value) ? OSTREL_VALID : OSTREL_WRONG_FORM;
}

int TcmValidateVoIPSTUNServer(const char* value)
{
    if (const int code = validate_string(value, text(0, 64, kHostPort)); code != OSTREL_VALID) return code;
    return value[0] == '\0' || is_host(value) ? OSTREL_VALID : OSTREL_WRONG_FORM;
}

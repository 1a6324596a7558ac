#include "primitives/hosts.h"

#include <ostrel/hosts.h>
#include <ostrel/result_code.h>

#include <cstdlib>
#include <cstring>

#include "primitives/addresses.h"
#include "primitives/strings.h"
#include "support/char_set.h"
#include "support/text.h"

namespace ostrel {

namespace {

constexpr int kLongestLabel = 20;
constexpr int kMostLabels = 6;

// is_domain_name needs no test of its own for dots that lead, trail or follow each other: they leave an empty
// label.
bool is_domain_name(std::string_view name)
{
    if (kIpv4.contains_all(name)) return false;
    for (int labels = 1; labels <= kMostLabels; ++labels) {
        const std::string_view label = before(name, '.');
        if (validate_string(1, kLongestLabel, kHost, label) != OSTREL_VALID) return false;
        if (label.size() == name.size()) return true;
        name.remove_prefix(label.size() + 1);
    }
    return false;
}

// is_port judges the port of a URL; digits are all that it may hold. What follows it in memory is a "/" or
// the URL's terminator, so that atoi reads no further.
bool is_port(std::string_view port)
{
    if (!kDigits.contains_all(port)) return false;
    const int number = std::atoi(port.data());
    return number >= 0 && number <= 65535;
}

bool is_url(const char* value, std::string_view scheme, std::string_view secure_scheme)
{
    std::string_view rest = value;
    if (validate_string(0, 256, kUrl, rest) != OSTREL_VALID) return false;
    if (starts_with(rest, scheme)) {
        rest.remove_prefix(scheme.size());
    } else if (starts_with(rest, secure_scheme)) {
        rest.remove_prefix(secure_scheme.size());
    } else {
        return false;
    }
    const std::string_view host = before(rest, ':');
    if (host.size() == rest.size()) return is_host(before(rest, '/'));
    rest.remove_prefix(host.size() + 1);
    return is_host(host) && is_port(before(rest, '/'));
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

bool is_host(std::string_view text) { return is_domain_name(text) || is_ipv4_address(text); }

bool is_server_url(const char* value) { return is_url(value, "x-dslf_cwmp://", "x-dslf_cwmps://"); }

bool is_firmware_url(const char* value) { return is_url(value, "http://", "https://"); }

}  // namespace ostrel

using namespace ostrel;

int TcmValidateDomainName(const char* value) { return is_domain_name(value) ? OSTREL_VALID : OSTREL_INVALID; }

int ValidateURL(const char* value) { return is_host(value) ? OSTREL_VALID : OSTREL_INVALID; }

int TcmValidateServerURL(const char* value) { return is_server_url(value) ? OSTREL_VALID : OSTREL_INVALID; }

int TcmValidatefirmwareURL(const char* value)
{
    return is_firmware_url(value) ? OSTREL_VALID : OSTREL_WRONG_FORM;
}

int isEmail(const char* value) { return is_email(value) ? OSTREL_VALID : OSTREL_INVALID; }

int TcmValidateEmailAddress(const char* value)
{
    if (const int code = validate_string(5, 64, kMail, value); code != OSTREL_VALID) return code;
    return is_email(value) ? OSTREL_VALID : OSTREL_WRONG_FORM;
}

int TcmValidateVoIPRegistrar(const char* value)
{
    if (const int code = validate_string(3, 64, kName, value); code != OSTREL_VALID) return code;
    return is_host(value) ? OSTREL_VALID : OSTREL_WRONG_FORM;
}

int TcmValidateVoIPSTUNServer(const char* value)
{
    if (const int code = validate_string(0, 64, kHostPort, value); code != OSTREL_VALID) return code;
    return value[0] == '\0' || is_host(value) ? OSTREL_VALID : OSTREL_WRONG_FORM;
}

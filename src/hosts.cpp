#include <ostrel/hosts.h>
#include <ostrel/result_code.h>

#include <cstddef>
#include <cstring>

#include "src/addresses.h"
#include "src/strings.h"
#include "src/support/judge.h"
#include "src/support/number.h"

using namespace ostrel;

namespace {

constexpr std::ptrdiff_t kLongestLabel = 20;
constexpr int kMostLabels = 6;
constexpr std::ptrdiff_t kLongestUrl = 256;
constexpr int kLargestPort = 65535;

// skip_domain_name returns the end of a domain name at the start of the string, or NULL if there is none.
// Leading, trailing and adjacent dots need no separate test, because they produce an empty label.
const char* skip_domain_name(const char* text)
{
    const char* const name = text;
    for (int labels = 1; labels <= kMostLabels; ++labels) {
        const char* const label = text;
        text = first_outside(kHost, text);
        if (text == label || text - label > kLongestLabel) return nullptr;
        if (*text != '.') return first_outside(kIpv4, name) == text ? nullptr : text;
        ++text;
    }
    return nullptr;
}

const char* skip_host(const char* text)
{
    const char* end = skip_domain_name(text);
    return end != nullptr ? end : skip_ipv4_address(text);
}

bool is_whole(const char* end) { return end != nullptr && *end == '\0'; }

// skip_scheme accepts "scheme://" and "schemes://".
const char* skip_scheme(const char* text, const char* scheme)
{
    for (; *scheme != '\0'; ++scheme) {
        if (*text++ != *scheme) return nullptr;
    }
    if (*text == 's') ++text;
    return std::strncmp(text, "://", 3) == 0 ? text + 3 : nullptr;
}

// is_url checks only the path against CHARSET_URL, because the other components allow fewer characters. If
// there is no port, a ":" in the path counts as the end of the host, so the URL is refused.
bool is_url(const char* value, const char* scheme)
{
    const char* rest = skip_scheme(value, scheme);
    if (rest == nullptr) return false;
    rest = skip_host(rest);
    if (rest == nullptr) return false;
    const bool has_port = *rest == ':';
    if (has_port) {
        // If there are no digits, nothing is skipped, and the remaining characters are refused unless they
        // are a path.
        const int port = read_number(++rest);
        if (port < 0 || port > kLargestPort) return false;
    }
    if (*rest != '\0') {
        const char* const path = rest;
        rest = first_outside(kUrl, path);
        if (*path != '/' || *rest != '\0' || (!has_port && std::strchr(path, ':') != nullptr)) return false;
    }
    return rest - value <= kLongestUrl;
}

}  // namespace

int TcmValidateDomainName(const char* value) { return judge(is_whole(skip_domain_name(value))); }

int ValidateURL(const char* value) { return judge(is_whole(skip_host(value))); }

int TcmValidateServerURL(const char* value) { return judge(is_url(value, "x-dslf_cwmp")); }

int TcmValidatefirmwareURL(const char* value)
{
    return is_url(value, "http") ? OSTREL_VALID : OSTREL_WRONG_FORM;
}

int isEmail(const char* value)
{
    const char* at = std::strchr(value, '@');
    const char* dot = std::strrchr(value, '.');
    if (at == nullptr || dot == nullptr) return OSTREL_INVALID;
    return judge(at != value && dot - at >= 2 && dot[1] != '\0');
}

int TcmValidateEmailAddress(const char* value)
{
    if (const int code = validate_string(value, text(5, 64, kMail)); code != OSTREL_VALID) return code;
    return isEmail(value) == OSTREL_VALID ? OSTREL_VALID : OSTREL_WRONG_FORM;
}

int TcmValidateVoIPRegistrar(const char* value)
{
    if (const int code = validate_string(value, text(3, 64, kName)); code != OSTREL_VALID) return code;
    return ValidateURL(value) == OSTREL_VALID ? OSTREL_VALID : OSTREL_WRONG_FORM;
}

int TcmValidateVoIPSTUNServer(const char* value)
{
    if (const int code = validate_string(value, text(0, 64, kHostPort)); code != OSTREL_VALID) return code;
    return value[0] == '\0' || ValidateURL(value) == OSTREL_VALID ? OSTREL_VALID : OSTREL_WRONG_FORM;
}

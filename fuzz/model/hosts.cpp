// Host names, URLs and e-mail addresses.
#include "fuzz/model/rule.h"

namespace ostrel::model {

namespace {

constexpr std::string_view kUrlSet = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-_./:?";
constexpr std::string_view kNameSet = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-._";
constexpr std::string_view kMailSet = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-.@";
constexpr std::string_view kHostPortSet =
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-._:";
constexpr std::string_view kLabelSet = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-";

bool is_domain_name(const std::string& value)
{
    if (value.find_first_not_of("0123456789.") == std::string::npos) return false;  // a number, or empty
    const std::vector<std::string> labels = rule::split(value, '.');
    if (labels.size() > 6) return false;
    for (const std::string& label : labels) {
        // An empty label is a dot at either end, or two in a row.
        if (rule::length_and_set(1, 20, kLabelSet, label) != 0) return false;
    }
    return true;
}

// is_url parts the host at the first ":" wherever that stands, so a ":" in the path spoils the host.
std::optional<bool> is_url(const std::string& value, const std::string& scheme, const std::string& secure)
{
    if (rule::length_and_set(0, 256, kUrlSet, value) != 0) return false;
    std::string rest;
    if (value.starts_with(scheme)) {
        rest = value.substr(scheme.size());
    } else if (value.starts_with(secure)) {
        rest = value.substr(secure.size());
    } else {
        return false;
    }
    const std::size_t colon = rest.find(':');
    if (colon == std::string::npos) return rule::is_host(rest.substr(0, rest.find('/')));
    if (!rule::is_host(rest.substr(0, colon))) return false;
    std::string port = rest.substr(colon + 1);
    port = port.substr(0, port.find('/'));
    if (port.find_first_not_of(rule::kDigits) != std::string::npos) return false;
    const Number number = read_number(port);  // an empty port is 0
    if (number.undefined) return std::nullopt;
    return number.value >= 0 && number.value <= 65535;
}

// is_mail looks for a byte before the first "@" and a last "." at least two places behind that "@" and not at
// the end; what stands between is free.
bool is_mail(const std::string& value)
{
    if (value.size() < 5) return false;
    const std::size_t at = value.find('@');
    const std::size_t dot = value.rfind('.');
    if (at == std::string::npos || dot == std::string::npos) return false;
    const bool something_before = at >= 1;
    const bool something_behind = dot + 1 < value.size();
    return something_before && something_behind && dot >= at + 2;
}

Answer domain_name(const std::string& value) { return silent(is_domain_name(value) ? 0 : -1); }

Answer host(const std::string& value) { return silent(rule::is_host(value) ? 0 : -1); }

Answer server_url(const std::string& value)
{
    const std::optional<bool> valid = rule::is_server_url(value);
    if (!valid) return undefined();
    return silent(*valid ? 0 : -1);
}

Answer firmware_url(const std::string& value)
{
    const std::optional<bool> valid = rule::is_firmware_url(value);
    if (!valid) return undefined();
    return silent(*valid ? 0 : 600);
}

Answer mail_outline(const std::string& value) { return silent(is_mail(value) ? 0 : -1); }

Answer mail_address(const std::string& value)
{
    const int code = rule::length_and_set(5, 64, kMailSet, value);
    if (code != 0) return silent(code);
    return silent(is_mail(value) ? 0 : 600);
}

Answer registrar(const std::string& value)
{
    const int code = rule::length_and_set(3, 64, kNameSet, value);
    if (code != 0) return silent(code);
    return silent(rule::is_host(value) ? 0 : 600);
}

// stun_server admits ":" to the set, and refuses the form of whatever holds one.
Answer stun_server(const std::string& value)
{
    const int code = rule::length_and_set(0, 64, kHostPortSet, value);
    if (code != 0) return silent(code);
    return silent(value.empty() || rule::is_host(value) ? 0 : 600);
}

}  // namespace

namespace rule {

bool is_host(const std::string& value) { return is_domain_name(value) || is_address(value); }

std::optional<bool> is_server_url(const std::string& value)
{
    return is_url(value, "x-dslf_cwmp://", "x-dslf_cwmps://");
}

std::optional<bool> is_firmware_url(const std::string& value) { return is_url(value, "http://", "https://"); }

}  // namespace rule

void add_host_names(Models& models)
{
    models["TcmValidateDomainName"] = on_text<domain_name>;
    models["ValidateURL"] = on_text<host>;
    models["TcmValidateServerURL"] = on_text<server_url>;
    models["TcmValidatefirmwareURL"] = on_text<firmware_url>;
    models["isEmail"] = on_text<mail_outline>;
    models["TcmValidateEmailAddress"] = on_text<mail_address>;
    models["TcmValidateVoIPRegistrar"] = on_text<registrar>;
    models["TcmValidateVoIPSTUNServer"] = on_text<stun_server>;
}

void add_hosts(Models& models)
{
    add_host_names(models);
    add_dates(models);
    add_subnets(models);
    add_names(models);
}

}  // namespace ostrel::model

#include <ostrel/character_sets.h>
#include <ostrel/hosts.h>

#include "catalogue/entry.h"

namespace ostrel::catalogue {

std::vector<Function> hosts()
{
    return {
        check<TcmValidateDomainName>("TcmValidateDomainName",
                                     {{"value", "a host name, 1 to 6 labels of 1 to 20 bytes"}},
                                     "a host name: 1 to 6 labels of 1 to 20 letters, digits and - between "
                                     "dots; not digits and dots alone",
                                     {{-1, "no host name", fails(domain_fault)}}),
        check<ValidateURL>("ValidateURL", {{"value", "a host name or an IPv4 address"}},
                           "a bare host: a host name (TcmValidateDomainName) or an IPv4 address",
                           {{-1, "no bare host", fails(host_fault)}}),
        check<TcmValidateServerURL>(
            "TcmValidateServerURL", {{"value", "a URL, at most 256 bytes"}},
            "x-dslf_cwmp:// or x-dslf_cwmps://, a host, an optional port of 0 to 65535, an optional path; at "
            "most 256 letters, digits and - _ . / : ?",
            {{-1, "no URL of a management server", fails(server_url_fault)}}),
        check<TcmValidatefirmwareURL>(
            "TcmValidatefirmwareURL", {{"value", "a URL, at most 256 bytes"}},
            "http:// or https://, a host, an optional port of 0 to 65535, an optional path; at most 256 "
            "letters, digits and - _ . / : ?",
            {{600, "no URL of a firmware image", fails(firmware_url_fault)}}),
        check<isEmail>("isEmail", {{"value", "an e-mail address, 5 bytes or more"}},
                       "5 bytes or more: something, @, something, and the last dot with something behind it",
                       {{-1, "no e-mail address", fails(email_fault)}}),
        check<TcmValidateEmailAddress>(
            "TcmValidateEmailAddress", {{"value", "an e-mail address, 5 to 64 bytes"}},
            "an e-mail address of 5 to 64 letters, digits and - . @",
            {{801, "shorter than 5 characters"},
             {802, "longer than 64 characters"},
             {803, "the length is right and a character is outside the set", outside(CHARSET_MAIL)},
             {600, "the right characters, and not in the form of an address", fails(email_fault)}}),
        check<TcmValidateVoIPRegistrar>(
            "TcmValidateVoIPRegistrar", {{"value", "a host name or an IPv4 address, 3 to 64 bytes"}},
            "a host (ValidateURL) of 3 to 64 characters",
            {{801, "shorter than 3 characters"},
             {802, "longer than 64 characters"},
             {803, "a character that is no letter, digit, - . or _", outside(CHARSET_NAME)},
             {600, "the right characters, and no host", fails(host_fault)}}),
        check<TcmValidateVoIPSTUNServer>(
            "TcmValidateVoIPSTUNServer",
            {{"value", "a host name or an IPv4 address, at most 64 bytes; may be empty"}},
            "a host (ValidateURL) of at most 64 characters; the empty value is valid",
            {{802, "longer than 64 characters"},
             {803, "a character that is no letter, digit, - . _ or :", outside(CHARSET_HOSTPORT)},
             {600, "the right characters, and no host; a port makes it invalid", fails(host_fault)}}),
    };
}

}  // namespace ostrel::catalogue

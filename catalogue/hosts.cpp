#include <ostrel/hosts.h>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

std::vector<Function> hosts()
{
    return {
        check<TcmValidateDomainName>("TcmValidateDomainName", {"value"},
                                     "a host name: 1 to 6 labels of 1 to 20 letters, digits and - between "
                                     "dots; not digits and dots alone",
                                     {{-1, "any other value"}}),
        check<ValidateURL>("ValidateURL", {"value"},
                           "a bare host: a host name (TcmValidateDomainName) or an IPv4 address",
                           {{-1, "any other value; a scheme, a port or a path make it invalid"}}),
        check<TcmValidateServerURL>(
            "TcmValidateServerURL", {"value"},
            "x-dslf_cwmp:// or x-dslf_cwmps://, a host, an optional port of 0 to 65535, an optional path; at "
            "most 256 letters, digits and - _ . / : ?",
            {{-1, "too long, a forbidden character, another scheme, an invalid host or port"}}),
        check<TcmValidatefirmwareURL>(
            "TcmValidatefirmwareURL", {"value"},
            "http:// or https://, a host, an optional port of 0 to 65535, an optional path; at most 256 "
            "letters, digits and - _ . / : ?",
            {{600, "too long, a forbidden character, another scheme, an invalid host or port"}}),
        check<isEmail>("isEmail", {"value"},
                       "5 bytes or more: something, @, something, and the last dot with something behind it",
                       {{-1, "any other value"}}),
        check<TcmValidateEmailAddress>("TcmValidateEmailAddress", {"value"},
                                       "an e-mail address of 5 to 64 letters, digits and - . @",
                                       {{801, "shorter than 5 characters"},
                                        {802, "longer than 64 characters"},
                                        {803, "a character outside the set"},
                                        {600, "the right characters, and not in the form of an address"}}),
        check<TcmValidateVoIPRegistrar>("TcmValidateVoIPRegistrar", {"value"},
                                        "a host (ValidateURL) of 3 to 64 characters",
                                        {{801, "shorter than 3 characters"},
                                         {802, "longer than 64 characters"},
                                         {803, "a character that is no letter, digit, - . or _"},
                                         {600, "the right characters, and no host"}}),
        check<TcmValidateVoIPSTUNServer>(
            "TcmValidateVoIPSTUNServer", {"value"},
            "a host (ValidateURL) of at most 64 characters; the empty value is valid",
            {{802, "longer than 64 characters"},
             {803, "a character that is no letter, digit, - . _ or :"},
             {600, "the right characters, and no host; a port makes it invalid"}}),
    };
}

}  // namespace ostrel::catalogue

#include <ostrel/accounts.h>
#include <ostrel/character_sets.h>

#include "catalogue/entry.h"

namespace ostrel::catalogue {

namespace {

template <auto F>
Function field(const char* name, const char* what, const char* rule, std::string_view set,
               bool may_be_empty = false)
{
    std::vector<Code> codes = {{802, "too long"},
                               {803, "the length is right and a character is outside the set", outside(set)}};
    if (!may_be_empty) codes.insert(codes.begin(), {801, "too short"});
    return check<F>(name, {{"value", what}}, rule, std::move(codes));
}

}  // namespace

std::vector<Function> accounts()
{
    return {
        check<TcmValidateProvisioningCode>(
            "TcmValidateProvisioningCode", {{"value", "a provisioning code, 15 bytes"}},
            "\"000.00d.00d.ddd\" with 0 to 4 at positions 6 and 10 and any digit at 12 to 14",
            {{402, "no provisioning code", fails(provisioning_fault)}}),
        check<TcmValidatePPPUsername>(
            "TcmValidatePPPUsername",
            {{"value", "a user name, 1 to 131 bytes; 18 to 30 or 16 to 17 before a realm"},
             Name("account_type", "receives the type of account, 0 to 6")
                 .writes("the type, when the name is accepted; nothing when the part before a realm has "
                         "three \"#\" or more, and nothing on a refusal")},
            "before one of the ISP's realms: a local part of one of its forms, or with three \"#\" or more; "
            "otherwise 1 to 131 printable Latin-1 bytes",
            {{801, "the name or its part before a realm is too short", user_name_fault(801)},
             {802, "the name or its part before a realm is too long", user_name_fault(802)},
             {803, "a byte outside the set; before a realm only digits and \"#\" are allowed",
              user_name_fault(803)},
             {402, "a part of digits and \"#\" before a realm in none of the forms", user_name_fault(402)}}),
        field<TcmValidatePPPPassword>("TcmValidatePPPPassword", "a password, 1 to 67 bytes",
                                      "1 to 67 printable Latin-1 bytes", CHARSET_LATIN1_PRINTABLE),
        field<TcmValidateLANConfigPassword>("TcmValidateLANConfigPassword", "a password, 4 to 12 bytes",
                                            "4 to 12 characters: letters, digits and - . _", CHARSET_NAME),
        field<TcmValidateEmailPassword>("TcmValidateEmailPassword", "a password, at most 255 bytes",
                                        "at most 255 characters: letters, digits and - . _", CHARSET_NAME,
                                        true),
        field<TcmValidateVoIPAnbietername>(
            "TcmValidateVoIPAnbietername", "a name, 1 to 32 bytes",
            "the provider's name: 1 to 32 characters: letters, digits and - . _", CHARSET_NAME),
        field<TcmValidateVoIPNumber>("TcmValidateVoIPNumber", "a telephone number, 1 to 32 digits",
                                     "1 to 32 digits", CHARSET_DIGITS),
        field<TcmValidateVoIPUsername>("TcmValidateVoIPUsername", "a user name, 1 to 64 bytes",
                                       "1 to 64 characters: letters, digits and - . @", CHARSET_MAIL),
        field<TcmValidateVoIPPassword>("TcmValidateVoIPPassword", "a password, at most 255 bytes",
                                       "at most 255 characters: letters, digits and - . _", CHARSET_NAME,
                                       true),
        field<TcmValidateVoIPAreaCode>("TcmValidateVoIPAreaCode", "an area code, 1 to 6 digits",
                                       "1 to 6 digits", CHARSET_DIGITS),
        check<TcmValidatePort>("TcmValidatePort", {{"value", "a port number, 1 to 65535"}},
                               "the leading number is from 1 to 65535",
                               {{-1, "the number is below 1 or above 65535, or there is none"}}),
        check<TcmValidateVoIPRegistrarPort>("TcmValidateVoIPRegistrarPort",
                                            {{"value", "a port number, 1 to 65535"}},
                                            "the leading number is from 1 to 65535",
                                            {{-1, "the number is below 1 or above 65535, or there is none"}}),
    };
}

}  // namespace ostrel::catalogue

#include <ostrel/accounts.h>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

namespace {

template <auto F>
Function field(const char* name, const char* rule, bool may_be_empty = false)
{
    std::vector<Code> codes = {{802, "too long"},
                               {803, "the length is right and a character is outside the set"}};
    if (!may_be_empty) codes.insert(codes.begin(), {801, "too short"});
    return check<F>(name, {"value"}, rule, std::move(codes));
}

}  // namespace

std::vector<Function> accounts()
{
    return {
        check<TcmValidateProvisioningCode>(
            "TcmValidateProvisioningCode", {"value"},
            "\"000.00d.00d.ddd\" with 0 to 4 at positions 6 and 10 and any digit at 12 to 14",
            {{402, "another length, or the first wrong position is printed"}}),
        check<TcmValidatePPPUsername>(
            "TcmValidatePPPUsername", {"value", "account_type"},
            "before one of the ISP's realms: a local part of one of its forms, or with three \"#\" or more; "
            "otherwise 1 to 131 printable Latin-1 bytes",
            {{801, "the name or its local part is too short"},
             {802, "the name or its local part is too long"},
             {803, "a byte outside the set; before a realm only digits and \"#\" are allowed"},
             {402, "a local part of digits and \"#\" in none of the forms"}}),
        field<TcmValidatePPPPassword>("TcmValidatePPPPassword", "1 to 67 printable Latin-1 bytes"),
        field<TcmValidateLANConfigPassword>("TcmValidateLANConfigPassword",
                                            "4 to 12 characters: letters, digits and - . _"),
        field<TcmValidateEmailPassword>("TcmValidateEmailPassword",
                                        "at most 255 characters: letters, digits and - . _", true),
        field<TcmValidateVoIPAnbietername>(
            "TcmValidateVoIPAnbietername",
            "the provider's name: 1 to 32 characters: letters, digits and - . _"),
        field<TcmValidateVoIPNumber>("TcmValidateVoIPNumber", "1 to 32 digits"),
        field<TcmValidateVoIPUsername>("TcmValidateVoIPUsername",
                                       "1 to 64 characters: letters, digits and - . @"),
        field<TcmValidateVoIPPassword>("TcmValidateVoIPPassword",
                                       "at most 255 characters: letters, digits and - . _", true),
        field<TcmValidateVoIPAreaCode>("TcmValidateVoIPAreaCode", "1 to 6 digits"),
        check<TcmValidatePort>("TcmValidatePort", {"value"}, "the leading number is from 1 to 65535",
                               {{-1, "the number is below 1 or above 65535, or there is none"}}),
        check<TcmValidateVoIPRegistrarPort>("TcmValidateVoIPRegistrarPort", {"value"},
                                            "the leading number is from 1 to 65535",
                                            {{-1, "the number is below 1 or above 65535, or there is none"}}),
    };
}

}  // namespace ostrel::catalogue

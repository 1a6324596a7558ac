#include <ostrel/wireless.h>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

std::vector<Function> wireless()
{
    return {
        check<TcmValueisValid>("TcmValueisValid", {"value", "allowed"},
                               "every byte is one of allowed; the empty value is valid",
                               {{803, "a byte that is not in allowed"}}),
        check<TcmValidatePSK>(
            "TcmValidatePSK", {"value"}, "a pre-shared key: 64 hexadecimal digits",
            {{600, "another length"}, {803, "the length is right and a character is no hexadecimal digit"}}),
        check<TcmValidateKPP>("TcmValidateKPP", {"value"},
                              "a pass phrase: 8 to 63 bytes, each of 0x20 to 0x7E",
                              {{801, "fewer than 8 bytes"},
                               {802, "more than 63 bytes"},
                               {803, "the length is right and a byte is not printable ASCII"}}),
        check<TcmValidateRate>("TcmValidateRate", {"value"},
                               "Auto, or one of 1, 2, 5.5, 6, 9, 11, 12, 18, 24, 36, 48 and 54",
                               {{-1, "any other value"}}),
        check<TcmValidateBeaconType>("TcmValidateBeaconType", {"value"}, "None, Basic, WPA, 11i or WPAand11i",
                                     {{-1, "any other value"}}),
        check<TcmValidateSSID>("TcmValidateSSID", {"value"},
                               "1 to 32 bytes, each of 0x20 to 0x7E; the length is printed at every call",
                               {{802, "more than 32 bytes"},
                                {803, "not too long, and a byte is not printable ASCII"},
                                {801, "empty"}}),
        check<TcmValidateDataTransmitRates>(
            "TcmValidateDataTransmitRates", {"value"},
            "all, default, or a list of rates (see TcmValidateRate, without Auto) between single commas",
            {{-1, "an item that is no rate, or is empty"}}),
    };
}

}  // namespace ostrel::catalogue

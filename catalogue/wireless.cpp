#include <ostrel/character_sets.h>
#include <ostrel/wireless.h>

#include "catalogue/entry.h"

namespace ostrel::catalogue {

std::vector<Function> wireless()
{
    return {
        check<TcmValueisValid>(
            "TcmValueisValid",
            {{"value", "the value, of any length"}, {"allowed", "the bytes allowed, as one text"}},
            "every byte is one of allowed; the empty value is valid",
            {{803, "a byte that is not in allowed", outside_argument(1, 0)}}),
        check<TcmValidatePSK>(
            "TcmValidatePSK", {{"value", "a key, 64 hexadecimal digits"}},
            "a pre-shared key: 64 hexadecimal digits",
            {{600, "another length than 64"},
             {803, "the length is right and a character is no hexadecimal digit", outside(CHARSET_HEX)}}),
        check<TcmValidateKPP>("TcmValidateKPP", {{"value", "a pass phrase, 8 to 63 bytes"}},
                              "a pass phrase: 8 to 63 bytes, each of 0x20 to 0x7E",
                              {{801, "fewer than 8 bytes"},
                               {802, "more than 63 bytes"},
                               {803, "the length is right and a byte is not printable ASCII",
                                outside(CHARSET_ASCII_PRINTABLE)}}),
        check<TcmValidateRate>(
            "TcmValidateRate",
            {{"value",
              "a rate in Mbit/s",
              {"Auto", "1", "2", "5.5", "6", "9", "11", "12", "18", "24", "36", "48", "54"}}},
            "Auto, or one of 1, 2, 5.5, 6, 9, 11, 12, 18, 24, 36, 48 and 54", {{-1, "any other value"}}),
        check<TcmValidateBeaconType>(
            "TcmValidateBeaconType",
            {{"value", "a beacon type", {"None", "Basic", "WPA", "11i", "WPAand11i"}}},
            "None, Basic, WPA, 11i or WPAand11i", {{-1, "any other value"}}),
        check<TcmValidateSSID>(
            "TcmValidateSSID", {{"value", "an SSID, 1 to 32 bytes"}},
            "1 to 32 bytes, each of 0x20 to 0x7E; the length is printed at every call",
            {{802, "more than 32 bytes"},
             {803, "not too long, and a byte is not printable ASCII", outside(CHARSET_ASCII_PRINTABLE)},
             {801, "empty"}}),
        check<TcmValidateDataTransmitRates>(
            "TcmValidateDataTransmitRates",
            {{"value",
              "rates in Mbit/s between single commas, any number of them",
              {"all", "default", "1", "2", "5.5", "6", "9", "11", "12", "18", "24", "36", "48", "54"}}},
            "all, default, or a list of rates (see TcmValidateRate, without Auto) between single commas",
            {{-1, "no list of rates", fails(rates_fault)}}),
    };
}

}  // namespace ostrel::catalogue

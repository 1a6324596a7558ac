#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

namespace {

const Words kRates = {"1", "2", "5.5", "6", "9", "11", "12", "18", "24", "36", "48", "54"};

Words with(Words words, const Words& more)
{
    words.insert(words.end(), more.begin(), more.end());
    return words;
}

}  // namespace

std::vector<Check> wireless()
{
    return {
        check("TcmValueisValid", {text("value", "a string"), text("allowed", "the allowed bytes")},
              {refuse(803, outside("value", "allowed"))}),
        check("TcmValidatePSK", {text("value", "a pre-shared key").secret()},
              {refuse(600, length_not({64})), refuse(803, outside(kHex))}),
        check("TcmValidateKPP", {text("value", "a pass phrase").secret()},
              {refuse(801, shorter_than(8)), refuse(802, longer_than(63)), refuse(803, outside(kPrintable))}),
        check("TcmValidateRate", {text("value", "a data rate").in("Mbit/s")},
              {refuse(-1, none_of(with({"Auto"}, kRates)))}),
        check("TcmValidateBeaconType", {text("value", "a beacon type")},
              {refuse(-1, none_of({"None", "Basic", "WPA", "11i", "WPAand11i"}))}),
        check("TcmValidateSSID", {text("value", "the name of a wireless network")},
              {remember("length", length()),
               print(line("Info in TcmValidateSSID: The lenght of SSID is <length>\n\n")),
               refuse(802, longer_than(32)), refuse(803, outside(kPrintable)), refuse(801, empty())}),
        check("TcmValidateDataTransmitRates", {text("value", "data rates").in("Mbit/s")},
              {when(contains(it, literal(",")), {for_each(list_of(it, ','), {refuse(-1, none_of(kRates))})},
                    {refuse(-1, none_of(with({"all", "default"}, kRates)))})}),
    };
}

}  // namespace ostrel::rules

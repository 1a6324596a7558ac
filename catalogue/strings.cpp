#include <ostrel/strings.h>

#include "catalogue/entry.h"

namespace ostrel::catalogue {

std::vector<Function> strings()
{
    return {
        check<ValidateString>(
            "ValidateString",
            {{"min_len", "the least length in bytes, inclusive; 0 or below lets the empty value pass"},
             {"max_len", "the greatest length in bytes, inclusive"},
             {"charset", "the bytes allowed, as one text; \"\" allows none"},
             {"value", "the value, min_len to max_len bytes"}},
            "min_len to max_len bytes, each one of charset",
            {{801, "shorter than min_len"},
             {802, "not too short, and longer than max_len"},
             {803, "the length is right and a byte is not in charset", outside_argument(2, 3)}}),
        check<ValidateNum>("ValidateNum",
                           {{"min", "the least number"},
                            {"max", "the greatest number"},
                            {"charset", "the bytes allowed, as one text; \"\" allows none"},
                            {"value", "the number, in decimal digits as atoi reads it"}},
                           "bytes of charset, whose leading number is from min to max; the empty value is 0",
                           {{803, "a byte is not in charset", outside_argument(2, 3)},
                            {601, "the number is below min or above max"}}),
        number<countChar>("countChar",
                          {{"value", "the text to count in, of any length"},
                           {"ch", "the byte; of the number only the lowest eight bits count"}},
                          "how many bytes of the value equal ch"),
    };
}

}  // namespace ostrel::catalogue

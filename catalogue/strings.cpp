#include <ostrel/strings.h>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

std::vector<Function> strings()
{
    return {
        check<ValidateString>("ValidateString", {"min_len", "max_len", "charset", "value"},
                              "min_len to max_len bytes, each one of charset",
                              {{801, "shorter than min_len"},
                               {802, "not too short, and longer than max_len"},
                               {803, "the length is right and a byte is not in charset"}}),
        check<ValidateNum>(
            "ValidateNum", {"min", "max", "charset", "value"},
            "bytes of charset, whose leading number is from min to max; the empty value is 0",
            {{803, "a byte is not in charset"}, {601, "the number is below min or above max"}}),
        number<countChar>("countChar", {"value", "ch"}, "how many bytes of the value equal ch"),
    };
}

}  // namespace ostrel::catalogue

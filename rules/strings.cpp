#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

std::vector<Check> strings()
{
    return {
        check("ValidateString",
              {integer("min_len", "the minimum length").in("bytes"),
               integer("max_len", "the maximum length").in("bytes"), text("charset", "the allowed bytes"),
               text("value", "a string")},
              {reads("charset"), refuse(801, shorter_than("value", "min_len")),
               refuse(802, longer_than("value", "max_len")), refuse(803, outside("value", "charset"))}),
        check("ValidateNum",
              {integer("min", "the minimum"), integer("max", "the maximum"),
               text("charset", "the allowed bytes"), text("value", "a number")},
              {refuse(803, outside("value", "charset")), refuse(601, below("value", "min")),
               refuse(601, above("value", "max"))}),
        number("countChar",
               {text("value", "a string"), integer("ch", "the byte to count, in the lowest 8 bits")},
               {answer(Code(count("value", "ch")))}),
    };
}

}  // namespace ostrel::rules

#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

std::vector<Check> mgtserver_check_hnap_core()
{
    return {
        check("HNAPCORE_check_username", {text("value", "the administrator's user name")},
              {refuse(its_code(), refused_by("ValidateString", {1, 16, kLatin1, "value"}),
                      line("Error in HNAPCORE_check_username: Error max allowed number:<value>\n\n"))}),
        check("HNAPCORE_check_timezone",
              {text("value", "\"UTC\" and the offset from it"),
               buffer("offset_out", "the offset").needs(larger({7, sum({length("value"), -2})})).output()},
              {refuse(-1, ignoring_case(not_(begins_with({"UTC"})))),
               when(length_is({3}), {write("offset_out", literal("+00:00"))},
                    {write("offset_out", slice("value", 3))})}),
        check("HNAPCORE_check_locale", {text("value", "the language of the user interface")},
              {refuse(-1, ignoring_case(none_of({"en-us", "fr-ca", "fr-fr", "de-de", "es-es", "it-it",
                                                 "nl-nl", "sv-se", "ar-sa", "pl-pl", "th-th"})))}),
    };
}

}  // namespace ostrel::rules

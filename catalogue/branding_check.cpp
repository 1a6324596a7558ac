#include <ostrel/branding_check.h>
#include <ostrel/character_sets.h>

#include "catalogue/entry.h"

namespace ostrel::catalogue {

std::vector<Function> branding_checks()
{
    return {
        check<Param_check_ispname_value>("Param_check_ispname_value", {{"value", "a name, at most 31 bytes"}},
                                         "at most 31 bytes", {{802, "longer than 31 bytes"}}),
        check<Param_check_helpdesk_value>("Param_check_helpdesk_value",
                                          {{"value", "a text, at most 63 bytes"}}, "at most 63 bytes",
                                          {{802, "longer than 63 bytes"}}),
        check<Param_check_page_value>("Param_check_page_value", {{"value", "a page, at most 255 bytes"}},
                                      "at most 255 bytes", {{802, "longer than 255 bytes"}}),
        check<Param_check_logo_value>("Param_check_logo_value",
                                      {{"value", "an encoded picture, at most 5459 bytes"}},
                                      "at most 5459 bytes", {{802, "longer than 5459 bytes"}}),
        check<Param_check_logo_size_value>("Param_check_logo_size_value",
                                           {{"value", "a text, at most 4095 bytes"}}, "at most 4095 bytes",
                                           {{802, "longer than 4095 bytes"}}),
        check<Param_check_server_value>("Param_check_server_value",
                                        {{"value", "a server, at most 255 bytes"}}, "at most 255 bytes",
                                        {{802, "longer than 255 bytes"}}),
        check<Param_check_login_value>("Param_check_login_value",
                                       {{"value", "a user name, at most 39 bytes"}}, "at most 39 bytes",
                                       {{802, "longer than 39 bytes"}}),
        check<Param_check_pword_value>("Param_check_pword_value", {{"value", "a password, at most 29 bytes"}},
                                       "at most 29 bytes", {{802, "longer than 29 bytes"}}),
        check<Param_check_color_value>(
            "Param_check_color_value", {{"value", "a colour, 6 hexadecimal digits"}}, "6 hexadecimal digits",
            {{601, "not 6 bytes"},
             {600, "6 bytes, one of which is no hexadecimal digit", outside(CHARSET_HEX)}}),
        check<Param_check_bool_value>("Param_check_bool_value", {{"value", "a truth value", {"0", "1"}}},
                                      "0 or 1", {{601, "any other value"}}),
        check<Param_check_datetime_value>("Param_check_datetime_value",
                                          {{"value", "a text, never looked at"}}, "everything, NULL included",
                                          {}),
    };
}

}  // namespace ostrel::catalogue

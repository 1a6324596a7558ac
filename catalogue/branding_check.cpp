#include <ostrel/branding_check.h>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

std::vector<Function> branding_checks()
{
    return {
        check<Param_check_ispname_value>("Param_check_ispname_value", {"value"}, "at most 31 bytes",
                                         {{802, "longer than 31 bytes"}}),
        check<Param_check_helpdesk_value>("Param_check_helpdesk_value", {"value"}, "at most 63 bytes",
                                          {{802, "longer than 63 bytes"}}),
        check<Param_check_page_value>("Param_check_page_value", {"value"}, "at most 255 bytes",
                                      {{802, "longer than 255 bytes"}}),
        check<Param_check_logo_value>("Param_check_logo_value", {"value"}, "at most 5459 bytes",
                                      {{802, "longer than 5459 bytes"}}),
        check<Param_check_logo_size_value>("Param_check_logo_size_value", {"value"}, "at most 4095 bytes",
                                           {{802, "longer than 4095 bytes"}}),
        check<Param_check_server_value>("Param_check_server_value", {"value"}, "at most 255 bytes",
                                        {{802, "longer than 255 bytes"}}),
        check<Param_check_login_value>("Param_check_login_value", {"value"}, "at most 39 bytes",
                                       {{802, "longer than 39 bytes"}}),
        check<Param_check_pword_value>("Param_check_pword_value", {"value"}, "at most 29 bytes",
                                       {{802, "longer than 29 bytes"}}),
        check<Param_check_color_value>(
            "Param_check_color_value", {"value"}, "6 hexadecimal digits",
            {{601, "not 6 bytes"}, {600, "6 bytes, one of which is no hexadecimal digit"}}),
        check<Param_check_bool_value>("Param_check_bool_value", {"value"}, "0 or 1",
                                      {{601, "any other value"}}),
        check<Param_check_datetime_value>("Param_check_datetime_value", {"value"},
                                          "everything, NULL included", {}),
    };
}

}  // namespace ostrel::catalogue

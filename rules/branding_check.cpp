#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

std::vector<Check> branding_check()
{
    return {
        check("Param_check_ispname_value", {text("value", "the name of the provider")},
              {refuse(802, longer_than(31),
                      line("Error in Param_check_ispname_value: The length of string :<value> shoud not be "
                           "less than 32\n"))}),
        check("Param_check_helpdesk_value", {text("value", "where users can find help")},
              {refuse(802, longer_than(63),
                      line("Error in Param_check_helpdesk_value: The length of string :<value> shoud not be "
                           "less than 64\n"))}),
        check("Param_check_page_value", {text("value", "the portal page")},
              {refuse(802, longer_than(255),
                      line("Error in Param_check_page_value: The length of string :<value> shoud not be less "
                           "than 256\n"))}),
        check("Param_check_logo_value", {text("value", "the logo, as the host encodes it")},
              {refuse(802, longer_than(5459),
                      line("Error in Param_check_logo_value: The length of string :<value> shoud not be less "
                           "than 5460\n"))}),
        check("Param_check_logo_size_value", {text("value", "the size of the logo, as the host encodes it")},
              {refuse(802, longer_than(4095),
                      line("Error in Param_check_logo_size_value: The length of string :<value> shoud not be "
                           "less than 4096\n"))}),
        check("Param_check_server_value", {text("value", "the portal server")},
              {refuse(802, longer_than(255),
                      line("Error in Param_check_server_value: The length of string :<value> shoud not be "
                           "less than 256\n"))}),
        check("Param_check_login_value", {text("value", "the user name on the server")},
              {refuse(802, longer_than(39),
                      line("Error in Param_check_login_value: The length of string :<value> shoud not be "
                           "less than 40\n"))}),
        check("Param_check_pword_value", {text("value", "the password on the server").secret()},
              {refuse(802, longer_than(29),
                      line("Error in Param_check_pword_value: The length of string :<value> shoud not be "
                           "less than 30\n"))}),
        check("Param_check_color_value", {text("value", "a colour: two digits each for red, green and blue")},
              {refuse(601, length_not({6}),
                      line("Error in Param_check_color_value: The length of color :<value> shoud not be "
                           "equal to 6\n")),
               refuse(600, outside(kHex),
                      line("Error in Param_check_color_value: color :<value> contain invalid char "
                           "<byte>\n"))}),
        check("Param_check_bool_value", {text("value", "a Boolean value")},
              {refuse(601, none_of({"0", "1"}),
                      line("Error in Param_check_bool_value: bool value :<value> out of range\n"))}),
        check("Param_check_datetime_value", {text("value", "a date and time; ignored")}, {}),
    };
}

}  // namespace ostrel::rules

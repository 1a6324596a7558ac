#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

namespace {

// For a malformed value, the line about the maximum is printed. If the number is below 1, the line about the
// minimum is also printed, and the result is 402; otherwise, the result is the code of ValidateString.
Check guests()
{
    const Condition is_malformed = refused_by("ValidateString", {1, 2, kDigits, "value"});
    return check(
        "GUESTACCESS_check_max_allowed_number", {text("value", "the maximum number of guests")},
        {print(line("Error in GUESTACCESS_check_max_allowed_number: Error max allowed number:<value>\n\n"),
               is_malformed),
         refuse(402, below(1),
                line("Error in GUESTACCESS_check_max_allowed_number: Error min allowed number:<value>\n\n")),
         refuse(its_code(), is_malformed)});
}

}  // namespace

std::vector<Check> mgtserver_check_guest_access()
{
    return {
        guests(),
        check("GUESTACCESS_check_password", {text("value", "the guest password").secret()},
              {refuse(its_code(), refused_by("ValidateString", {4, 32, kAlnum, "value"}),
                      line("Error in GUESTACCESS_check_password: Error max allowed number:<value>\n\n"))}),
    };
}

}  // namespace ostrel::rules
